#include "workbench/colour/WallOverlay.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "reports/WallPainter.h"
#include "workbench/colour/ChartView.h"
#include "workbench/colour/MeasuredWall.h"
#include "workbench/colour/RegionOverlay.h"

#include <QEvent>
#include <QPainter>

CWallOverlay::CWallOverlay(const CMeasuredWall& wall, CChartView& view)
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

bool CWallOverlay::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::Resize || pEvent->type() == QEvent::Move)
        setGeometry(m_view.Chart().geometry());
    return QWidget::eventFilter(pWatched, pEvent);
}

QPixmap CWallOverlay::Paint(const CChartMapping& mapping) const
{
    QPixmap picture((QSizeF(size()) * devicePixelRatioF()).toSize());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    WallPainter::Paint(painter, m_wall.GetModules(), *m_wall.Analysis(),
                       [&mapping](SChromaticity xy) { return mapping.ToPixel(QPointF(xy.dX, xy.dY)); });
    return picture;
}

void CWallOverlay::paintEvent(QPaintEvent* /*pEvent*/)
{
    if (!m_wall.Analysis())
        return;
    const CChartMapping mapping = m_view.Chart().Mapping();
    const bool bKept = m_mapping && *m_mapping == mapping &&
                       m_picture.size() == (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (!bKept) {
        m_picture = Paint(mapping);
        m_mapping = mapping;
    }
    QPainter(this).drawPixmap(0, 0, m_picture);
}
