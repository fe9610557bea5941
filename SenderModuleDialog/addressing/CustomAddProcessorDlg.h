#ifndef SENDERMODULEDIALOG_ADDRESSING_CUSTOMADDPROCESSORDLG_H
#define SENDERMODULEDIALOG_ADDRESSING_CUSTOMADDPROCESSORDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

class CCustomComboBox;
class CCustomIPEdit;
class CCustomLabel;
class CCustomSpinBox;
class QGridLayout;

/// Asks how many processors to add by hand, how many output ports each has, and, where processors are
/// addressed by IP, from which address on. On OK the addresses enter the host's list; number and ports are
/// read by the host. The result is 1 on OK and 0 on Cancel.
class SENDERMODULEDIALOG_EXPORT CCustomAddProcessorDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Asks the host which rows to show: ports while no processor exists, the start address where processors
    /// are found by address. Faults when the project has no sender 0, whose ports are the default.
    /// @param pParent owner of the dialog; may be null
    explicit CCustomAddProcessorDlg(QWidget* pParent);
    ~CCustomAddProcessorDlg() override;

    /// The number that the operator asked for; 3 until OK. A full list does not lower it.
    int GetCount() const { return m_nCount; }
    /// Output ports of each processor: those of processor 0 until OK, and always where the row is hidden.
    int GetPortCount() const { return m_nPortCount; }

    /// Proposes the start address: the first one after a local address that the host sees no error in. Does
    /// not end while the host refuses every candidate.
    void GetInitialIP(QString& strIP);
    /// Validates the start address and tells the operator what is wrong with it.
    /// @return true when it may enter the list
    bool CheckIPAddress();

public Q_SLOTS:
    /// @param nID 0 OK, 1 Cancel; any other value does nothing
    void ActionSlots(int nID);

private:
    void InitControl();
    void InitCountRow(QGridLayout* pGrid);
    void InitPortRow(QGridLayout* pGrid);
    void InitAddressRow(QGridLayout* pGrid);
    void AddRow(QGridLayout* pGrid, int nRow, CCustomLabel* pCaption, QWidget* pField);
    CCustomLabel* CreateRowCaption(const char* szText, int nMaxWidth);
    void Accept();
    void StoreAddresses();

    CCustomSpinBox* m_pCountSpinBox = nullptr;
    CCustomComboBox* m_pPortComboBox = nullptr; ///< null when the row isn't shown
    CCustomIPEdit* m_pIPEdit = nullptr;         ///< null when the row isn't shown
    int m_nCount = 0;
    int m_nPortCount = 0;
    bool m_bPortFixed = false; ///< processors exist already, so their ports are settled
    bool m_bUseIP = false;     ///< processors are found by address
};

#endif // SENDERMODULEDIALOG_ADDRESSING_CUSTOMADDPROCESSORDLG_H
