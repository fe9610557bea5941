#ifndef WORKBENCH_COLOUR_GROUPPANEL_H
#define WORKBENCH_COLOUR_GROUPPANEL_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"

#include <QWidget>

class CChartEditor;
class CGroupModel;
class QAction;
class QLabel;
class QTableView;
class QPushButton;

/// The table of the chart's groups with the buttons that add, remove and preset them, undo and redo.
class CGroupPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CGroupPanel(CChartEditor& editor, QWidget* pParent = nullptr);

    void Retranslate();
    CGroupModel& Model() { return *m_pModel; }

    /// @name What the buttons do
    /// @{

    /// Adds a group with the points of a standard, under the next free key.
    void AddStandard(enColorStandard standard);
    /// Adds the output and the screen colour space: the chart's coverage needs both or neither.
    void AddCoveragePair();
    /// Removes the selected group; of the output and the screen colour space, both.
    void RemoveSelected();
    /// Gives the selected group the points of a standard.
    void ApplyStandard(enColorStandard standard);
    /// Asks for the selected group's own colour.
    void ChooseColour();
    /// @}

    /// Selects the group with the key and scrolls its column into view.
    void SelectKey(int nKey);
    /// Key of the selected group, -1 for none.
    int SelectedKey() const;

Q_SIGNALS:
    /// One line for the status bar.
    void Reported(const QString& strText);
    /// Another group is selected, or none: its key is then -1.
    void GroupSelected(int nKey);
    /// The first group took the points of this standard.
    void StandardChosen(enColorStandard standard);

private:
    void CreateButtons();
    QWidget* CreateBar();
    void CreateTable();
    void TellStandard(int nKey, enColorStandard standard);
    void Refuse(const QString& strText);
    void Refresh();

    CChartEditor& m_editor;
    CGroupModel* m_pModel = nullptr;
    QTableView* m_pTable = nullptr;
    QLabel* m_pCoverage = nullptr;
    QPushButton* m_pAdd = nullptr;
    QAction* m_pAddPair = nullptr;
    QPushButton* m_pRemove = nullptr;
    QPushButton* m_pPreset = nullptr;
};

#endif // WORKBENCH_COLOUR_GROUPPANEL_H
