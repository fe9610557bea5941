#include "workbench/colour/ColourPage.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/SaveDialog.h"
#include "workbench/colour/ChartControls.h"
#include "workbench/colour/ChartExport.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/DiagramOverlay.h"
#include "workbench/colour/DiagramPair.h"
#include "workbench/colour/GroupPanel.h"
#include "workbench/colour/MeasuredWall.h"
#include "workbench/colour/PictureSizeDialog.h"
#include "workbench/colour/PointKeys.h"
#include "workbench/colour/PointReadout.h"
#include "workbench/colour/ProjectColours.h"
#include "workbench/colour/ReadingsPanel.h"
#include "workbench/colour/RegionOverlay.h"
#include "workbench/colour/UcsView.h"
#include "workbench/colour/WallPanel.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int c_nLeastSideWidth = 372;  ///< pixels: the headings of the readings
constexpr int c_nLeastChartWidth = 300; ///< pixels: below it, points can hardly be told apart

} // namespace

CColourPage::CColourPage(QWidget* pParent)
    : CWorkbenchPage(pParent)
    , m_pView(new CChartView(this))
    , m_pReadout(new QLabel(this))
{
    auto* pSplitter = new QSplitter(this);
    pSplitter->addWidget(CreateChart());
    pSplitter->addWidget(CreateSide());
    pSplitter->setStretchFactor(0, 1);
    pSplitter->setChildrenCollapsible(false);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pSplitter);
    connect(m_pGroups, &CGroupPanel::Reported, this, &CColourPage::Reported);
    connect(m_pGroups, &CGroupPanel::StandardChosen, m_pView, &CChartView::PreferStandard);
    connect(m_pControls, &CChartControls::Reported, this, &CColourPage::Reported);
    connect(m_pView, &CChartView::PointTaken, m_pGroups, &CGroupPanel::SelectKey);
    ConnectReadout();
    m_pProject = new CProjectColours(*m_pView, this);
    connect(m_pControls, &CChartControls::RegionChanged, m_pProject, &CProjectColours::StoreRegion);
    const auto funcBegin = [this](const QString& strText) { Q_EMIT StepBegan(strText); };
    connect(m_pProject, &CProjectColours::StepBegan, this, funcBegin);
    connect(m_pProject, &CProjectColours::StepEnded, this, &CColourPage::StepEnded);
    connect(m_pWall, &CMeasuredWall::StepBegan, this, funcBegin);
    connect(m_pWall, &CMeasuredWall::StepEnded, this, &CColourPage::StepEnded);
    connect(m_pProject, &CProjectColours::Loaded, m_pControls, &CChartControls::Retranslate);
    m_pProject->Load();
    m_pGroups->SelectKey(enScreenColorSpace);
    Retranslate();
}

CColourPage::~CColourPage()
{
    // A point that has the focus loses it now, while the page can still take what it tells.
    hide();
}

void CColourPage::ConnectReadout()
{
    const CPointKeys* const pKeys = &m_pView->Keys();
    connect(m_pView, &CChartView::MouseMoved, this, [this] { DescribeOther(enUnderMouse); });
    connect(m_pView, &CChartView::MouseLeft, this,
            [this, pKeys] { DescribeOther(pKeys->hasFocus() ? enFocusedPoint : enNothing); });
    connect(pKeys, &CPointKeys::Told, this, [this](const QString& strText) {
        DescribeOther(strText.isEmpty() ? enNothing : enFocusedPoint);
    });
    // A drag tells of each step by itself.
    connect(&m_pView->Editor(), &CChartEditor::Changed, this, [this] {
        if (!m_pView->Editor().IsDragging())
            ShowReadout();
    });
    connect(&m_pView->Overlay(), &CRegionOverlay::DrawingStarted, this, &CColourPage::ShowReadout);
    connect(&m_pView->Overlay(), &CRegionOverlay::DrawingEnded, this, &CColourPage::ShowReadout);
}

QWidget* CColourPage::CreateChart()
{
    auto* pChart = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pChart);
    pLayout->setContentsMargins(0, 0, 0, 0);
    m_pDiagrams = new CDiagramPair(pChart);
    m_pDiagrams->setMinimumWidth(c_nLeastChartWidth);
    m_pUcsShown = new QPushButton(pChart);
    m_pUcsShown->setCheckable(true);
    connect(m_pUcsShown, &QPushButton::toggled, this, &CColourPage::ShowUcs);
    // A long text breaks instead of widening the page.
    m_pReadout->setWordWrap(true);
    m_pReadout->setObjectName(QStringLiteral("readout"));
    auto* pFoot = new QHBoxLayout;
    pFoot->addWidget(m_pReadout, 1);
    pFoot->addWidget(m_pUcsShown);
    pLayout->addWidget(m_pDiagrams, 1);
    pLayout->addLayout(pFoot);
    return pChart;
}

QWidget* CColourPage::CreateSide()
{
    m_pTabs = new QTabWidget(this);
    m_pTabs->setMinimumWidth(c_nLeastSideWidth);
    m_pTabs->addTab(CreateGroups(), QString());
    m_pReadings = new CReadingsPanel(m_pView->Editor(), this);
    m_pTabs->addTab(m_pReadings, QString());
    m_pTabs->addTab(CreateWall(), QString());
    connect(m_pGroups, &CGroupPanel::GroupSelected, m_pReadings, &CReadingsPanel::ShowGroup);
    return m_pTabs;
}

QWidget* CColourPage::CreateGroups()
{
    m_pGroups = new CGroupPanel(m_pView->Editor(), this);
    m_pControls = new CChartControls(*m_pView, this);
    auto* pGroups = new QWidget(this);
    auto* pLayout = new QVBoxLayout(pGroups);
    pLayout->addWidget(m_pGroups, 1);
    pLayout->addWidget(m_pControls);
    pLayout->addWidget(CreateExports());
    return pGroups;
}

QWidget* CColourPage::CreateWall()
{
    m_pWall = new CMeasuredWall(this);
    m_pWallPanel = new CWallPanel(*m_pWall, this);
    m_pDiagramOverlay = new CDiagramOverlay(*m_pWall, *m_pView);
    connect(m_pWallPanel, &CWallPanel::ShownOnChart, m_pDiagramOverlay, &CDiagramOverlay::SetWallShown);
    m_pUcs = new CUcsView(m_pView->Editor(), *m_pWall, this);
    m_pDiagrams->SetDiagrams(m_pView, m_pUcs);
    connect(m_pDiagrams, &CDiagramPair::RoomChanged, m_pUcsShown, &QWidget::setHidden);
    connect(m_pWallPanel, &CWallPanel::ShownOnChart, m_pUcs, &CUcsView::SetWallShown);
    connect(m_pWallPanel, &CWallPanel::Reported, this, &CColourPage::Reported);
    connect(m_pWallPanel, &CWallPanel::Failed, this, &CColourPage::Failed);
    return m_pWallPanel;
}

void CColourPage::ShowUcs(bool bShown)
{
    m_pUcsShown->setChecked(bShown);
    m_pDiagrams->ShowUcs(bShown);
}

void CColourPage::ShowTab(enTab tab)
{
    m_pTabs->setCurrentIndex(tab);
}

QWidget* CColourPage::CreateExports()
{
    auto* pExports = new QWidget(this);
    m_pCopy = new QPushButton(pExports);
    m_pPng = new QPushButton(pExports);
    m_pSvg = new QPushButton(pExports);
    auto* pLayout = new QHBoxLayout(pExports);
    pLayout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* pButton : {m_pCopy, m_pPng, m_pSvg})
        pLayout->addWidget(pButton);
    connect(m_pCopy, &QPushButton::clicked, this, &CColourPage::CopyPicture);
    connect(m_pPng, &QPushButton::clicked, this, &CColourPage::ExportPng);
    connect(m_pSvg, &QPushButton::clicked, this, &CColourPage::ExportSvg);
    return pExports;
}

QString CColourPage::Title() const
{
    return tr("色彩");
}

void CColourPage::ShowSelection(const SSelection& selection)
{
    Q_UNUSED(selection)
}

void CColourPage::Retranslate()
{
    m_pUcsShown->setText(tr("u'v' 图"));
    m_pUcsShown->setToolTip(tr("显示 CIE 1976 u'v' 图；在 xy 图上拖动点"));
    m_pUcs->setAccessibleName(tr("CIE 1976 u'v' 图"));
    m_pTabs->setTabText(enGroupsTab, tr("色彩组"));
    m_pTabs->setTabText(enReadingsTab, tr("读数"));
    m_pGroups->Retranslate();
    m_pTabs->setTabText(enWallTab, tr("测量"));
    m_pReadings->Retranslate();
    m_pWallPanel->Retranslate();
    m_pControls->Retranslate();
    m_pView->Chart().setAccessibleName(tr("CIE 1931 色度图"));
    ShowReadout();
    m_pCopy->setText(tr("复制图片"));
    m_pPng->setText(tr("导出 PNG..."));
    m_pSvg->setText(tr("导出 SVG..."));
}

void CColourPage::DescribeOther(enDescribed described)
{
    m_described = described;
    ShowReadout();
}

/// Read from the chart each time: the line follows undo, removed groups and another language too.
QString CColourPage::Readout() const
{
    const SGroupPoint focused = m_pView->Keys().Current();
    switch (m_described) {
    case enUnderMouse:
        return PointReadout::Of(m_pView->Chart());
    case enFocusedPoint:
        return PointReadout::OfPoint(m_pView->Chart(), focused.nGroup, focused.nPoint);
    case enNothing:
        break;
    }
    return {};
}

void CColourPage::ShowReadout()
{
    const QString strReadout = Readout();
    if (m_pView->Overlay().IsDrawing())
        m_pReadout->clear();
    else if (strReadout.isEmpty())
        m_pReadout->setText(tr("拖动白边的点，或用 Tab 键选点、方向键移动；灰边的点不能移动。"));
    else
        m_pReadout->setText(strReadout);
}

void CColourPage::CopyPicture()
{
    QGuiApplication::clipboard()->setImage(
        ChartExport::Picture(m_pView->Chart(), m_pView->Region(), ChartExport::ScreenSize(m_pView->Chart())));
    Q_EMIT Reported(tr("图片已复制到剪贴板。"));
}

void CColourPage::ExportPng()
{
    const QString strTitle = tr("导出 PNG");
    const auto size = CPictureSizeDialog::Ask(ChartExport::ScreenSize(m_pView->Chart()),
                                              CPictureSizeDialog::enPixels, strTitle, this);
    if (!size)
        return;
    const QString strFile =
        SaveDialog::Ask(this, strTitle, QStringLiteral("chart.png"), tr("PNG 图片 (*.png)"));
    if (!strFile.isEmpty())
        SavePng(strFile, *size);
}

void CColourPage::ExportSvg()
{
    const QString strTitle = tr("导出 SVG");
    const auto size =
        CPictureSizeDialog::Ask({m_pView->Chart().size()}, CPictureSizeDialog::enLines, strTitle, this);
    if (!size)
        return;
    const QString strFile =
        SaveDialog::Ask(this, strTitle, QStringLiteral("chart.svg"), tr("SVG 图形 (*.svg)"));
    if (!strFile.isEmpty())
        SaveSvg(strFile, size->size);
}

bool CColourPage::SavePng(const QString& strFile, const SPictureSize& size)
{
    return ReportSaved(strFile, ChartExport::SavePng(m_pView->Chart(), m_pView->Region(), size, strFile));
}

bool CColourPage::SaveSvg(const QString& strFile, QSize size)
{
    return ReportSaved(strFile, ChartExport::SaveSvg(m_pView->Chart(), m_pView->Region(), size, strFile));
}

bool CColourPage::ReportSaved(const QString& strFile, const QString& strError)
{
    const QString strName = QDir::toNativeSeparators(strFile);
    if (strError.isEmpty())
        Q_EMIT Reported(tr("已保存 %1").arg(strName));
    else
        Q_EMIT Failed(tr("无法写入 %1：%2。请选择别的位置。").arg(strName, strError));
    return strError.isEmpty();
}
