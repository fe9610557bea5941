#ifndef SENDERMODULEDIALOG_OUTPUT_SETDEPTHRATEDLG_H
#define SENDERMODULEDIALOG_OUTPUT_SETDEPTHRATEDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

#include <QString>

class CCustomComboBox;
class CCustomLabel;
class QAction;
class QMenu;
class QPushButton;

/// Asks for the highest frame rate that the project supports and for the output depth of the current sender.
/// OK writes them to the sender's record, and to the hardware of a video processor. The result is 1 on OK and
/// 2 on Cancel.
///
/// A warning about the output's load disables OK. Once shown it stays until the dialog is closed: no later
/// choice takes it back.
class SENDERMODULEDIALOG_EXPORT CSetDepthRateDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Reads rate and depth from the current sender's record, and what its hardware offers. A video processor
    /// that offers only 8 bit gets colour depth 8 in its project record, as soon as the dialog opens.
    /// @param pParent owner of the dialog; may be null
    explicit CSetDepthRateDlg(QWidget* pParent);
    ~CSetDepthRateDlg() override;

    /// Writes rate and depth as they were last taken from the fields: the depth mode of a video processor
    /// where the hardware's differs, then the sender's record.
    void SaveData();
    /// Shows the warning with the text it has, or hides it and clears its text. The dialog never hides it.
    void ChangeWndSize(bool bShowError);
    /// Builds the layouts for the window without a warning, in place of those that it has.
    void SetControlRect();
    /// @return false: this dialog validates while the operator chooses
    bool IsShowError();
    /// Does nothing: the fields are filled when they are created.
    void SetControlValue();

public Q_SLOTS:
    /// An entry of either menu was chosen.
    void ComboBoxSelect(QAction* action);
    /// @param id 2 OK, 3 Cancel; any other value does nothing
    void ButtonClicked(int id);

private:
    void InitControl();
    void InitStyle();
    void InitControlConnect();

    QMenu* CreateMenu(CCustomComboBox* pCombo);
    void FillRateMenu(QMenu* pMenu, int nSender);
    void FillDepthMenu(QMenu* pMenu, int nSender);
    void ShowChoice(const QString& strText);
    void ShowWarning();
    void TakeFields();
    bool ConfirmRate(int nSender);
    void Accept();

    int m_nFrameRate = 60; ///< to save, Hz
    int m_nColorDepth = 8; ///< to save, bits
    QString m_strError;    ///< text of the warning

    CCustomLabel* m_pFieldsPanel = nullptr;
    CCustomLabel* m_pButtonsPanel = nullptr;
    CCustomLabel* m_pRateLabel = nullptr;
    CCustomComboBox* m_pRateComboBox = nullptr;
    CCustomLabel* m_pDepthLabel = nullptr;
    CCustomComboBox* m_pDepthComboBox = nullptr;
    QPushButton* m_pOkButton = nullptr;
    QPushButton* m_pCancelButton = nullptr;
    CCustomLabel* m_pWarningLabel = nullptr;
};

#endif // SENDERMODULEDIALOG_OUTPUT_SETDEPTHRATEDLG_H
