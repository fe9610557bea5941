#include "workbench/colour/DiagramPair.h"

#include <QHBoxLayout>

namespace {

/// Width of a diagram that fills a height, as a part of it: the axes of the chart reach to 0.8 and 0.9.
constexpr double c_dUsefulWidth = 0.95;

/// A diagram that shrinks to this part of its size makes room for the other one: both show more than one
/// beside an empty half.
constexpr double c_dLeastSize = 0.75;

} // namespace

CDiagramPair::CDiagramPair(QWidget* pParent)
    : QWidget(pParent)
{
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
}

void CDiagramPair::SetDiagrams(QWidget* pChart, QWidget* pUcs)
{
    m_pChart = pChart;
    m_pUcs = pUcs;
    for (QWidget* pDiagram : {pChart, pUcs})
        layout()->addWidget(pDiagram);
    Arrange();
}

bool CDiagramPair::HasRoomForBoth() const
{
    return width() - layout()->spacing() >= 2.0 * c_dUsefulWidth * c_dLeastSize * height();
}

void CDiagramPair::ShowUcs(bool bShown)
{
    m_bUcsShown = bShown;
    Arrange();
}

void CDiagramPair::resizeEvent(QResizeEvent* pEvent)
{
    QWidget::resizeEvent(pEvent);
    if (m_bBoth == HasRoomForBoth())
        return;
    m_bBoth = !m_bBoth;
    Arrange();
    Q_EMIT RoomChanged(m_bBoth);
}

void CDiagramPair::Arrange()
{
    m_pChart->setVisible(m_bBoth || !m_bUcsShown);
    m_pUcs->setVisible(m_bBoth || m_bUcsShown);
}
