#ifndef WORKBENCH_COLOUR_COLOURPAGE_H
#define WORKBENCH_COLOUR_COLOURPAGE_H

#include "workbench/WorkbenchPage.h"
#include "workbench/colour/PictureSize.h"

class CChartControls;
class CChartView;
class CGroupPanel;
class CMeasuredWall;
class CProjectColours;
class CReadingsPanel;
class CUcsView;
class CDiagramOverlay;
class CDiagramPair;
class CWallPanel;
class QLabel;
class QPushButton;
class QTabWidget;

/// The chromaticity chart with its groups in a table beside it, its settings, the readings of the selected
/// group, and picture export. The groups and the measured wall belong to the project: they do not depend
/// on any sender.
class CColourPage final : public CWorkbenchPage
{
    Q_OBJECT

public:
    explicit CColourPage(QWidget* pParent = nullptr);
    ~CColourPage() override;

    QString Title() const override;
    void ShowSelection(const SSelection& selection) override;
    void Retranslate() override;

    CChartView& View() { return *m_pView; }
    CGroupPanel& Groups() { return *m_pGroups; }
    CChartControls& Controls() { return *m_pControls; }
    CReadingsPanel& Readings() { return *m_pReadings; }
    CWallPanel& Wall() { return *m_pWallPanel; }
    /// The tabs beside the chart, in their order.
    enum enTab
    {
        enGroupsTab,
        enReadingsTab,
        enWallTab,
    };
    void ShowTab(enTab tab);
    /// Shows the CIE 1976 (u', v') diagram instead of the chart, or the chart again; a wide page shows both.
    void ShowUcs(bool bShown);

    /// @name Pictures of the chart
    /// @return false when the file could not be written; the status line says why
    /// @{
    void CopyPicture();
    bool SavePng(const QString& strFile, const SPictureSize& size);
    bool SaveSvg(const QString& strFile, QSize size);
    /// @}

private:
    QWidget* CreateChart();
    QWidget* CreateSide();
    QWidget* CreateGroups();
    QWidget* CreateWall();
    QWidget* CreateExports();
    void ExportPng();
    void ExportSvg();
    bool ReportSaved(const QString& strFile, const QString& strError);
    /// What the line below the chart describes.
    enum enDescribed
    {
        enNothing,
        enUnderMouse,
        enFocusedPoint,
    };
    void ConnectReadout();
    void DescribeOther(enDescribed described);
    QString Readout() const;
    void ShowReadout();

    CChartView* m_pView = nullptr;
    QTabWidget* m_pTabs = nullptr;
    CGroupPanel* m_pGroups = nullptr;
    CReadingsPanel* m_pReadings = nullptr;
    CMeasuredWall* m_pWall = nullptr;
    CWallPanel* m_pWallPanel = nullptr;
    CDiagramOverlay* m_pDiagramOverlay = nullptr;
    CChartControls* m_pControls = nullptr;
    CDiagramPair* m_pDiagrams = nullptr;
    CUcsView* m_pUcs = nullptr;
    QPushButton* m_pUcsShown = nullptr;
    CProjectColours* m_pProject = nullptr;
    QLabel* m_pReadout = nullptr;
    enDescribed m_described = enNothing;
    QPushButton* m_pCopy = nullptr;
    QPushButton* m_pPng = nullptr;
    QPushButton* m_pSvg = nullptr;
};

#endif // WORKBENCH_COLOUR_COLOURPAGE_H
