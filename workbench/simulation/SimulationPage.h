#ifndef WORKBENCH_SIMULATION_SIMULATIONPAGE_H
#define WORKBENCH_SIMULATION_SIMULATIONPAGE_H

#include "workbench/WorkbenchPage.h"

#include <vector>

class QFormLayout;
class QGroupBox;
class QLabel;
class QVBoxLayout;
struct SSenderProperty;

/// What the selected sender can do, what its hardware holds and how it misbehaves: everything that affects
/// what the dialogs show.
class CSimulationPage : public CWorkbenchPage
{
    Q_OBJECT

public:
    explicit CSimulationPage(QWidget* pParent = nullptr);
    ~CSimulationPage() override;

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;

private:
    struct SRow
    {
        const SSenderProperty* pProperty;
        QLabel* pCaption;
        QWidget* pEditor;
    };

    struct SGroup
    {
        const char* szName;
        QGroupBox* pBox;
        QFormLayout* pForm;
    };

    QFormLayout* FormOf(const char* szGroup, QVBoxLayout* pLayout);
    QWidget* CreateEditor(const SSenderProperty& property);
    void Write(const SSenderProperty& property, const QVariant& value);
    void Refresh();
    void AlignGroups();

    SSelection m_selection;
    QWidget* m_pForms = nullptr;
    std::vector<SGroup> m_vecGroups;
    std::vector<SRow> m_vecRows;
    bool m_bRefreshing = false; ///< editors are being filled: their signals are not user edits
};

#endif // WORKBENCH_SIMULATION_SIMULATIONPAGE_H
