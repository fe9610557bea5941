#ifndef SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTCONFIGDLG_H
#define SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTCONFIGDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

class CCustomComboBox;
class CCustomLabel;
class QPushButton;

/// Opens a demonstration project without hardware: the operator picks one of six processor types, and on OK
/// the host's project goes into demo mode with that type. The result is 1 on OK and 0 on Cancel.
class SENDERMODULEDIALOG_EXPORT CDemoProjectConfigDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Starts with the first type; asks nothing of the host.
    /// @param pParent owner of the dialog; may be null
    explicit CDemoProjectConfigDlg(QWidget* pParent);
    ~CDemoProjectConfigDlg() override;

public Q_SLOTS:
    /// What a control does.
    /// @param id 0 a type was picked, 1 OK, 2 Cancel; any other value does nothing
    /// @param sub index of the type with id 0; a value outside 0 to 5 shows no name and sets no type on OK
    void ControlClicked(int id, int sub = 0);

private:
    void InitControl();
    void InitStyle();
    void SetControlRect();
    void PickType(int nIndex);
    void OpenDemoProject();

    CCustomLabel* m_pTypeLabel = nullptr;
    CCustomComboBox* m_pTypeComboBox = nullptr;
    QPushButton* m_pOkButton = nullptr;
    QPushButton* m_pCancelButton = nullptr;
    int m_nTypeIndex = 0;
};

#endif // SENDERMODULEDIALOG_ADDRESSING_DEMOPROJECTCONFIGDLG_H
