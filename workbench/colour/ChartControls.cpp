#include "workbench/colour/ChartControls.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/RegionOverlay.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

namespace {

constexpr int c_nOpaque = 255;
constexpr int c_nSwatchSize = 14; ///< side of a colour's sample on a button, pixels

QIcon Swatch(const QColor& color)
{
    QPixmap pixmap(c_nSwatchSize, c_nSwatchSize);
    pixmap.fill(color);
    return {pixmap};
}

} // namespace

CChartControls::CChartControls(CChartView& view, QWidget* pParent)
    : QWidget(pParent)
    , m_view(view)
{
    CreateLook();
    CreateRegion();
    LayOut();
    CRegionOverlay* pOverlay = &m_view.Overlay();
    connect(pOverlay, &CRegionOverlay::DrawingEnded, this, &CChartControls::Refresh);
    connect(pOverlay, &CRegionOverlay::RegionDrawn, this,
            [this] { Q_EMIT Reported(tr("拖动的点现在留在区域内。")); });
    connect(pOverlay, &CRegionOverlay::RegionDrawn, this, &CChartControls::RegionChanged);
    Retranslate();
}

void CChartControls::CreateLook()
{
    m_pTemperature = new QCheckBox(this);
    m_pSnap = new QCheckBox(this);
    m_pStandard = new QCheckBox(this);
    m_pGridCaption = new QLabel(this);
    m_pGrid = new QSlider(Qt::Horizontal, this);
    m_pGrid->setRange(0, c_nOpaque);
    m_pGridCaption->setBuddy(m_pGrid);
    m_pBackground = new QPushButton(this);
    connect(m_pTemperature, &QCheckBox::toggled, this, &CChartControls::SetTemperatureShown);
    connect(m_pSnap, &QCheckBox::toggled, this, &CChartControls::SetSnapping);
    connect(m_pStandard, &QCheckBox::toggled, this, &CChartControls::SetStandardShown);
    connect(m_pGrid, &QSlider::valueChanged, this, &CChartControls::SetGridAlpha);
    connect(m_pBackground, &QPushButton::clicked, this, &CChartControls::ChooseBackground);
}

void CChartControls::CreateRegion()
{
    m_pRegionCaption = new QLabel(this);
    m_pRegionOn = new QCheckBox(this);
    m_pDraw = new QPushButton(this);
    m_pClear = new QPushButton(this);
    connect(m_pRegionOn, &QCheckBox::toggled, this, &CChartControls::SetRegionOn);
    connect(m_pDraw, &QPushButton::clicked, this, &CChartControls::DrawRegion);
    connect(m_pClear, &QPushButton::clicked, this, &CChartControls::ClearRegion);
}

void CChartControls::LayOut()
{
    auto* pGrid = new QHBoxLayout;
    pGrid->addWidget(m_pGridCaption);
    pGrid->addWidget(m_pGrid, 1);
    // Two rows: one would be wider than anything else beside the chart.
    auto* pRegion = new QGridLayout;
    pRegion->addWidget(m_pRegionCaption, 0, 0);
    pRegion->addWidget(m_pRegionOn, 0, 1, 1, 2);
    pRegion->addWidget(m_pDraw, 1, 1);
    pRegion->addWidget(m_pClear, 1, 2);
    pRegion->setColumnStretch(1, 1);
    pRegion->setColumnStretch(2, 1);
    auto* pLayout = new QGridLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pTemperature, 0, 0);
    pLayout->addWidget(m_pSnap, 0, 1);
    pLayout->addWidget(m_pStandard, 1, 0);
    pLayout->addWidget(m_pBackground, 1, 1);
    pLayout->addLayout(pGrid, 2, 0, 1, 2);
    pLayout->addLayout(pRegion, 3, 0, 1, 2);
}

void CChartControls::Retranslate()
{
    m_pTemperature->setText(tr("白点的色温"));
    m_pTemperature->setToolTip(tr("鼠标在白点上时显示色温"));
    m_pSnap->setText(tr("白点吸附 6500 K"));
    m_pStandard->setText(tr("标准名称"));
    m_pStandard->setToolTip(tr("第一个组与标准相符时，在图上显示标准的名称"));
    m_pGridCaption->setText(tr("网格"));
    m_pBackground->setText(tr("背景..."));
    m_pRegionCaption->setText(tr("可行区域"));
    m_pRegionOn->setText(tr("点留在区域内"));
    m_pDraw->setText(tr("绘制"));
    m_pClear->setText(tr("清除"));
    Refresh();
}

void CChartControls::Refresh()
{
    const CChromaticityDlgWnd& chart = m_view.Chart();
    const CFeasibleRegion& region = m_view.Region();
    const QSignalBlocker blockers[] = {QSignalBlocker(m_pTemperature), QSignalBlocker(m_pSnap),
                                       QSignalBlocker(m_pStandard), QSignalBlocker(m_pGrid),
                                       QSignalBlocker(m_pRegionOn)};
    m_pTemperature->setChecked(chart.m_bShowCCT);
    m_pSnap->setChecked(chart.m_bSnapWhite);
    m_pStandard->setChecked(m_view.IsStandardShown());
    m_pGrid->setValue(chart.m_nGridAlpha);
    m_pBackground->setIcon(Swatch(chart.m_clrBackground));
    m_pRegionOn->setChecked(region.IsOn() && region.IsRegion());
    m_pRegionOn->setEnabled(region.IsRegion());
    m_pClear->setEnabled(region.IsRegion());
    m_pDraw->setEnabled(!m_view.Overlay().IsDrawing());
}

void CChartControls::SetTemperatureShown(bool bShown)
{
    m_view.Chart().m_bShowCCT = bShown;
    m_view.Chart().update();
    Refresh();
}

void CChartControls::SetSnapping(bool bSnap)
{
    m_view.Chart().m_bSnapWhite = bSnap;
    Refresh();
}

void CChartControls::SetStandardShown(bool bShown)
{
    m_view.SetStandardShown(bShown);
    Refresh();
}

void CChartControls::SetGridAlpha(int nAlpha)
{
    m_view.Chart().SetGridLineAlpha(nAlpha);
    m_view.Chart().update();
    Refresh();
}

void CChartControls::SetBackground(const QColor& color)
{
    m_view.Chart().SetBackgroundColor(color);
    Refresh();
}

void CChartControls::ChooseBackground()
{
    const QColor color = QColorDialog::getColor(m_view.Chart().m_clrBackground, this, tr("图的背景颜色"),
                                                QColorDialog::DontUseNativeDialog);
    if (color.isValid())
        SetBackground(color);
}

void CChartControls::SetRegionOn(bool bOn)
{
    m_view.Region().SetOn(bOn);
    m_view.Overlay().update();
    Refresh();
    Q_EMIT RegionChanged();
}

void CChartControls::DrawRegion()
{
    m_view.Overlay().StartDrawing();
    Refresh();
}

void CChartControls::ClearRegion()
{
    m_view.Region().SetPolygon({});
    SetRegionOn(false);
}
