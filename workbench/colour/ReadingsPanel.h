#ifndef WORKBENCH_COLOUR_READINGSPANEL_H
#define WORKBENCH_COLOUR_READINGSPANEL_H

#include <QTimer>
#include <QWidget>

class CChartEditor;
class CCoverageModel;
class CPointReadingsModel;
class QAbstractItemModel;
class QLabel;
class QTableView;

/// The readings of the selected group's points and their coverage of the standards. It follows a drag.
class CReadingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CReadingsPanel(CChartEditor& editor, QWidget* pParent = nullptr);

    void Retranslate();
    /// Shows the group with this key; nothing for an unknown key.
    void ShowGroup(int nKey);
    /// Reads the group again.
    void Refresh();

    CPointReadingsModel& Points() { return *m_pPoints; }
    CCoverageModel& Coverage() { return *m_pCoverage; }

protected:
    void showEvent(QShowEvent* pEvent) override;

private:
    void Follow();
    QTableView* CreateTable(QAbstractItemModel* pModel);

    CChartEditor& m_editor;
    int m_nKey = -1;
    QTimer m_pause; ///< between two readings in a drag: mouse moves are more frequent than useful updates
    CPointReadingsModel* m_pPoints = nullptr;
    CCoverageModel* m_pCoverage = nullptr;
    QLabel* m_pName = nullptr;
    QLabel* m_pCoverageCaption = nullptr;
    QTableView* m_pPointsTable = nullptr;
    QTableView* m_pCoverageTable = nullptr;
};

#endif // WORKBENCH_COLOUR_READINGSPANEL_H
