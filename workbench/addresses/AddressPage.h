#ifndef WORKBENCH_ADDRESSES_ADDRESSPAGE_H
#define WORKBENCH_ADDRESSES_ADDRESSPAGE_H

#include "workbench/WorkbenchPage.h"

#include <functional>
#include <vector>

class CAddressListModel;
class CCustomIPEdit;
class CCustomAddProcessorDlg;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableView;

/// The list of processor addresses with the dialogs that add, set and change them, the demo project, and a
/// live view of why an address is refused.
class CAddressPage : public CWorkbenchPage
{
    Q_OBJECT

public:
    /// @param funcMayLeave asks about unsaved changes before the demo project replaces the current one;
    /// false when the operator wants to keep that project
    explicit CAddressPage(std::function<bool()> funcMayLeave, QWidget* pParent = nullptr);
    ~CAddressPage() override;

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;

    /// @name What the buttons do
    /// @{
    void AddBatch();
    void SetAddresses();
    void ModifySelected();
    void ResetSelected();
    void RemoveSelected();
    void AddByHand();
    void StartDemo();
    /// @}

    /// Selects an entry of the list.
    void SelectRow(int nRow);
    /// Puts an address into the check field.
    void CheckAddress(const QString& strAddress);
    /// The verdict on the address in the check field.
    QString ShownVerdict() const;

private:
    struct SAction
    {
        QPushButton* pButton;
        const char* szText;
        bool bNeedsEntry; ///< enabled only while an entry is selected
    };

    QWidget* CreateButtons();
    QWidget* CreateCheckRow();
    void AddAction(const char* szText, bool bNeedsEntry, void (CAddressPage::*pAction)());
    void Refresh();
    void EnableButtons();
    void ShowVerdict();
    int SelectedRow() const;
    void TakeProcessors(const CCustomAddProcessorDlg& dialog);

    const std::function<bool()> m_funcMayLeave;
    CAddressListModel* m_pModel = nullptr;
    QTableView* m_pTable = nullptr;
    QLabel* m_pCountCaption = nullptr;
    QSpinBox* m_pCount = nullptr;
    QLabel* m_pCheckCaption = nullptr;
    CCustomIPEdit* m_pCheck = nullptr;
    QLabel* m_pVerdict = nullptr;
    std::vector<SAction> m_vecActions;
};

#endif // WORKBENCH_ADDRESSES_ADDRESSPAGE_H
