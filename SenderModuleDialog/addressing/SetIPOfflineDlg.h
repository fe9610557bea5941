#ifndef SENDERMODULEDIALOG_ADDRESSING_SETIPOFFLINEDLG_H
#define SENDERMODULEDIALOG_ADDRESSING_SETIPOFFLINEDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

#include <QList>

class CCustomIPEdit;
class CCustomSpinBox;
class QGridLayout;
class QLineEdit;

/// Edits the host's list of processor addresses while no processor is connected: adds a batch of addresses,
/// sets one address for each of several processors, or modifies one entry.
/// The result is 1 on OK and 0 on Cancel.
class SENDERMODULEDIALOG_EXPORT CSetIPOfflineDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// @param nIndex to modify: the entry's index in the list; to set: the ordinal of the first processor
    /// @param nCount number of address rows; -1 asks for a batch
    /// @param bSet true: set, false: modify
    /// @param bOriginal true: work on the host's original list, false: on the list that is being set
    CSetIPOfflineDlg(int nIndex, int nCount, bool bSet, bool bOriginal, QWidget* pParent);
    ~CSetIPOfflineDlg() override;

    /// What the host shows for the entry after a reset; empty when the dialog sets addresses. An entry
    /// without a name takes "IP" and its last octet as name.
    QString GetResetStr();

    /// Replaces the entry in the list. Does not make the list permanent: that is left to the host.
    /// @return false when there is no address field or the address is refused
    bool DoModify();
    /// Adds a run of addresses from the start address on and makes the list permanent.
    /// @return false when a field is missing or the start address is refused
    bool DoCustomAdd();
    /// Adds the rows' addresses as far as the list holds them and makes it permanent.
    /// @return false when the rows don't match their count or an address is refused
    bool DoNumAdd();

public Q_SLOTS:
    /// @param nID 0 OK, 1 Cancel; any other value does nothing
    void ActionSlots(int nID);

private:
    bool IsSingle() const;
    const char* Title() const;

    void InitControl();
    void InitBatchRows(QGridLayout* pGrid);
    void InitSingleRows(QGridLayout* pGrid);
    void InitProcessorRows(QGridLayout* pGrid);
    void AddRow(QGridLayout* pGrid, const QString& strCaption, QWidget* pField, const char* szName);
    CCustomIPEdit* AddProcessorField();

    void SetInitialIP();
    unsigned int BaseAddress();
    void ProposeAddresses(unsigned int nBase);
    void ShowStoredAddress();
    QString StoredEntry();
    QString EnteredName() const;
    bool Commit();

    bool m_bSet = false;
    bool m_bOriginal = false;
    QString m_strOldIP; ///< address of the entry under modification; empty otherwise
    int m_nIndex = 0;
    int m_nCount = 0;
    bool m_bBatch = false;
    CCustomIPEdit* m_pIPEdit = nullptr;        ///< start address of a batch, or the address to modify
    CCustomSpinBox* m_pCountSpinBox = nullptr; ///< number to add, in a batch
    QLineEdit* m_pNameEdit = nullptr;          ///< the name, where there is one address
    QList<CCustomIPEdit*> m_listIPEdit;        ///< addresses to set, one per processor
};

#endif // SENDERMODULEDIALOG_ADDRESSING_SETIPOFFLINEDLG_H
