#ifndef HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H
#define HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H

#include "host/OrviControl/CustomDialog.h"

/// Modal messages in the host's look.
class ORVICONTROL_EXPORT CCustomMessageBox : public CCustomDialog
{
    Q_OBJECT

public:
    enum StandardButton
    {
        NoButton = 0,
        Ok = 1,
        Yes = 2,
        No = 4,
        Cancel = 8
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton)

    /// Shows a message and waits for a button.
    /// @param buttons the buttons shown; the library passes 1
    /// @param defaultButton the button that Enter presses; the library passes 1
    /// @param nTimeout milliseconds after which the message closes itself; 2147483647 never
    /// @return the button pressed
    static StandardButton information(QWidget* pParent, const QString& strText, StandardButtons buttons,
                                      StandardButton defaultButton, int nTimeout);
    /// Asks a question and waits for a button.
    /// @param buttons the buttons shown; the library passes 6
    /// @param defaultButton the button that Enter presses, none when it is not shown; the library passes 8
    /// @return the button pressed; 2 means that the operator agreed
    static StandardButton question(QWidget* pParent, const QString& strText, StandardButtons buttons,
                                   StandardButton defaultButton);

    ~CCustomMessageBox() override;

    /// The text that is shown.
    QString text() const;

private:
    CCustomMessageBox(QWidget* pParent, const QString& strText, StandardButtons buttons,
                      StandardButton defaultButton);

    QString m_strText;
    StandardButton m_pressedButton = NoButton;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CCustomMessageBox::StandardButtons)

#endif // HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H
