#ifndef HOST_ORVICONTROL_CUSTOMIPEDIT_H
#define HOST_ORVICONTROL_CUSTOMIPEDIT_H

#include "host/HostExport.h"

#include <QWidget>

#include <memory>

/// A four-octet IPv4 address editor. A dot, or an octet that can take no more digits, leads to the next
/// octet; arrow keys, Home, End, Backspace and Delete cross the dots; a whole address is pasted and copied at
/// once. What would leave the range 0 to 255 is refused, and the frame shows it until the next key.
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
    /// Octets that are not numbers are left out, and those above 255 become 255.
    void setText(const QString& strAddress);
    /// True while the frame shows that the last input was refused.
    bool isRefused() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The address changed, by typing or by `setText`.
    void textChanged(const QString& strAddress);

protected:
    /// Keys that are sent to the field itself go to its current octet.
    void keyPressEvent(QKeyEvent* pEvent) override;
    bool focusNextPrevChild(bool bNext) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMIPEDIT_H
