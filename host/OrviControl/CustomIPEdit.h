#ifndef HOST_ORVICONTROL_CUSTOMIPEDIT_H
#define HOST_ORVICONTROL_CUSTOMIPEDIT_H

#include "host/HostExport.h"

#include <QWidget>

#include <memory>

/// A four-octet IPv4 address editor.
class ORVICONTROL_EXPORT CCustomIPEdit : public QWidget
{
    Q_OBJECT

public:
    explicit CCustomIPEdit(QWidget* pParent = nullptr);
    ~CCustomIPEdit() override;

    /// The address in dotted decimal as it stands in the field, with missing octets left out between the
    /// dots; empty when nothing has been entered.
    QString text() const;
    /// Shows an address given in dotted decimal; an empty text clears the field.
    void setText(const QString& strAddress);

Q_SIGNALS:
    /// The address changed, by typing or by `setText`.
    void textChanged(const QString& strAddress);

private:
    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMIPEDIT_H
