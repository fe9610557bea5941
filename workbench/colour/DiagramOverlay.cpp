#include "workbench/colour/DiagramOverlay.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "reports/WallPainter.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/MeasuredWall.h"
#include "workbench/colour/RegionOverlay.h"
#include "workbench/colour/WavelengthMarks.h"

#include <QEvent>
#include <QPainter>

CDiagramOverlay::CDiagramOverlay(const CMeasuredWall& wall, CChartView& view)
    : QWidget(&view)
    , m_wall(wall)
    , m_view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(m_view.Chart().geometry());
    // Just above the chart: the region and the ring of the focused point stay on top.
    stackUnder(&m_view.Overlay());
    m_view.Chart().installEventFilter(this);
    connect(&wall, &CMeasuredWall::Changed, this, [this] {
        m_mapping.reset();
        update();
    });
}

void CDiagramOverlay::SetWallShown(bool bShown)
{
    m_bWallShown = bShown;
    m_mapping.reset();
    update();
}

bool CDiagramOverlay::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::Move)
        setGeometry(m_view.Chart().geometry());
    return QWidget::eventFilter(pWatched, pEvent);
}

QPixmap CDiagramOverlay::Paint(const CChartMapping& mapping) const
{
    QPixmap picture((QSizeF(size()) * devicePixelRatioF()).toSize());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const WallPainter::FuncToPixel funcToPixel = [&mapping](SChromaticity xy) {
        return mapping.ToPixel(QPointF(xy.dX, xy.dY));
    };
    WavelengthMarks::Paint(painter, funcToPixel);
    if (m_bWallShown && m_wall.Analysis())
        WallPainter::Paint(painter, m_wall.GetModules(), *m_wall.Analysis(), funcToPixel);
    return picture;
}

void CDiagramOverlay::paintEvent(QPaintEvent* /*pEvent*/)
{
    const CChartMapping mapping = m_view.Chart().Mapping();
    const bool bKept = m_mapping && *m_mapping == mapping &&
                       m_picture.size() == (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (!bKept) {
        m_picture = Paint(mapping);
        m_mapping = mapping;
    }
    QPainter(this).drawPixmap(0, 0, m_picture);
}
