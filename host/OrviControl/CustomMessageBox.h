#ifndef HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H
#define HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H

#include "host/OrviControl/CustomDialog.h"

class QPushButton;

/// Modal messages in the host's look, as large as their text needs. Enter presses the button that has the
/// focus; Esc and the title bar close without an answer.
class ORVICONTROL_EXPORT CCustomMessageBox : public CCustomDialog
{
    Q_OBJECT

public:
    /// The buttons, as bits. The library relies on the numbers.
    enum StandardButton
    {
        NoButton = 0, ///< closed without an answer
        Ok = 1,       ///< the one button of `information`
        Yes = 2,      ///< agrees to a question
        No = 4,       ///< refuses
        Cancel = 8    ///< no dialog of the library shows it
    };
    Q_DECLARE_FLAGS(StandardButtons, StandardButton)

    /// Shows a message and waits for a button.
    /// @param buttons the buttons shown; the library passes 1
    /// @param defaultButton the button that starts with the focus; the library passes 1
    /// @param nTimeout milliseconds after which the message closes itself; 2147483647 never
    /// @return the button pressed, `NoButton` without an answer
    static StandardButton information(QWidget* pParent, const QString& strText, StandardButtons buttons,
                                      StandardButton defaultButton, int nTimeout);
    /// Asks a question and waits for a button.
    /// @param buttons the buttons shown; the library passes 6
    /// @param defaultButton the button that starts with the focus; the library passes 8, which is not among
    ///                      those shown: the last button starts with the focus, so that Enter alone agrees to
    ///                      nothing
    /// @return the button pressed, 2 when the operator agreed, `NoButton` without an answer
    static StandardButton question(QWidget* pParent, const QString& strText, StandardButtons buttons,
                                   StandardButton defaultButton);

    ~CCustomMessageBox() override;

    /// The text that is shown.
    QString text() const;

private:
    CCustomMessageBox(QWidget* pParent, const QString& strText, const char* szIcon, StandardButtons buttons,
                      StandardButton defaultButton);
    QPushButton* CreateButton(StandardButton button, const char* szText, bool bDefault);

    QString m_strText;
    StandardButton m_pressedButton = NoButton;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CCustomMessageBox::StandardButtons)

#endif // HOST_ORVICONTROL_CUSTOMMESSAGEBOX_H
