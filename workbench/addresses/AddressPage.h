#ifndef WORKBENCH_ADDRESSES_ADDRESSPAGE_H
#define WORKBENCH_ADDRESSES_ADDRESSPAGE_H

#include "workbench/Captions.h"
#include "workbench/WorkbenchPage.h"

#include <functional>
#include <vector>

class CAddressEditor;
class CAddressListModel;
class CCustomIPEdit;
class QAction;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableView;

/// The list of processor addresses, buttons for what the editor can do to it, and a live view of why an
/// address is refused.
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

    CAddressEditor& Editor() { return *m_pEditor; }
    /// Selects an entry of the list.
    void SelectRow(int nRow);
    /// Puts an address into the check field.
    void CheckAddress(const QString& strAddress);
    /// The verdict on the address in the check field.
    QString ShownVerdict() const;

private:
    /// How many entries have to be selected for a button.
    enum class enNeeds
    {
        enOneEntry,
        enEntries
    };

    /// What a button does to selected entries, also in the list's context menu.
    struct SEntryAction
    {
        QAction* pAction;
        const char* szText;
        enNeeds needs;
    };

    QWidget* CreateButtons();
    QWidget* CreateSetBox();
    QWidget* CreateCheckRow();
    QPushButton* CreateButton(const char* szName, const char* szText, const std::function<void()>& funcDo);
    QPushButton* CreateEntryButton(const char* szName, const char* szText, enNeeds needs,
                                   const QList<QKeySequence>& listKeys, const std::function<void()>& funcDo);
    void Refresh();
    void EnableActions();
    void ShowVerdict();
    QList<int> SelectedRows() const;

    CAddressEditor* m_pEditor = nullptr;
    CAddressListModel* m_pModel = nullptr;
    QTableView* m_pTable = nullptr;
    QSpinBox* m_pCount = nullptr;
    CCustomIPEdit* m_pCheck = nullptr;
    QLabel* m_pVerdict = nullptr;
    QLabel* m_pReport = nullptr;
    CCaptions m_captions;
    std::vector<SEntryAction> m_vecEntryActions;
};

#endif // WORKBENCH_ADDRESSES_ADDRESSPAGE_H
