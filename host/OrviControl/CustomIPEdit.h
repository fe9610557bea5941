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
    /// An empty field.
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

    /// Room for an address of twelve digits; the dialogs give the field a fixed size of their own.
    QSize sizeHint() const override;
    /// The smallest size in which an address can be read.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The address changed, by typing or by `setText`.
    void textChanged(const QString& strAddress);

protected:
    /// Keys that are sent to the field itself go to its current octet.
    void keyPressEvent(QKeyEvent* pEvent) override;
    /// For Tab and Shift+Tab the field is one control: both leave it from any octet.
    bool focusNextPrevChild(bool bNext) override;
    /// A click beside the octets goes to the one left of it.
    void mousePressEvent(QMouseEvent* pEvent) override;
    /// Paints the frame, which shows focus and refusal, and the dots.
    void paintEvent(QPaintEvent* pEvent) override;
    /// Divides the width among the octets.
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    class CPrivate;
    const std::unique_ptr<CPrivate> m_pPrivate;
};

#endif // HOST_ORVICONTROL_CUSTOMIPEDIT_H
