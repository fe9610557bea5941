#include "workbench/colour/RegionOverlay.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "host/QtCompat.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>

namespace {

const QColor c_clrRegion(255, 210, 80);
const QColor c_clrHalo(0, 0, 0, 150);
constexpr int c_nFillAlpha = 28;        ///< of the region while it is on: the chart below stays readable
constexpr double c_dHaloWidth = 4.0;    ///< pixels: the region's line crosses every colour
constexpr double c_dLineWidth = 2.0;    ///< pixels
constexpr double c_dCornerRadius = 4.0; ///< pixels

const QColor c_clrHint(0, 0, 0, 200);
constexpr double c_dHintMargin = 36.0; ///< pixels from the edges: clear of the numbers of the axes
constexpr double c_dHintPadding = 6.0; ///< pixels around the words
constexpr int c_nHintFlags = Qt::AlignRight | Qt::AlignBottom | Qt::TextWordWrap;

/// 54 dots per inch: the letters of the standards' names are then no higher than the font's size in points.
constexpr int c_nNameDotsPerMeter = 2126;

QColor Fill()
{
    QColor clrFill = c_clrRegion;
    clrFill.setAlpha(c_nFillAlpha);
    return clrFill;
}

QPolygonF InPixels(const CChromaticityDlgWnd& chart, const QPolygonF& polygon)
{
    const CChartMapping mapping = chart.Mapping();
    QPolygonF pixels;
    for (const QPointF& pt : polygon)
        pixels.append(mapping.ToPixel(pt));
    return pixels;
}

/// A line with a dark halo over a light fill.
void PaintOutline(QPainter& painter, const QPolygonF& polygon, Qt::PenStyle style, const QBrush& brush)
{
    painter.setPen(QPen(c_clrHalo, c_dHaloWidth));
    painter.setBrush(brush);
    painter.drawPolygon(polygon, Qt::OddEvenFill);
    painter.setPen(QPen(c_clrRegion, c_dLineWidth, style));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(polygon, Qt::OddEvenFill);
}

void PaintRegion(QPainter& painter, const CChromaticityDlgWnd& chart, const CFeasibleRegion& region)
{
    if (region.IsRegion())
        PaintOutline(painter, InPixels(chart, region.Polygon()), region.IsOn() ? Qt::SolidLine : Qt::DotLine,
                     region.IsOn() ? QBrush(Fill()) : QBrush(Qt::NoBrush));
}

/// The chart cuts the name off at a box whose height in pixels is the font's size in points.
/// At the resolution of a screen the letters are higher than that, at a low one they fit; SVG
/// does not clip.
void PaintStandard(QPainter& painter, CChromaticityDlgWnd& chart)
{
    // The chart names the standard of its first group and assumes that there is one.
    if (!chart.m_bShowStandard || chart.m_mapGroups.isEmpty() || chart.m_nGroupIndex != 0)
        return;
    if (painter.paintEngine()->type() != QPaintEngine::Raster)
        return chart.DrawCIEStandardShow(painter);
    const double dRatio = painter.device()->devicePixelRatioF();
    QImage image((QSizeF(chart.size()) * dRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dRatio);
    image.setDotsPerMeterX(c_nNameDotsPerMeter);
    image.setDotsPerMeterY(c_nNameDotsPerMeter);
    image.fill(Qt::transparent);
    QPainter painterName(&image);
    painterName.setRenderHint(QPainter::Antialiasing);
    chart.DrawCIEStandardShow(painterName);
    painterName.end();
    painter.drawImage(QPointF(0.0, 0.0), image);
}

} // namespace

CRegionOverlay::CRegionOverlay(CChromaticityDlgWnd& chart, CFeasibleRegion& region, QWidget* pParent)
    : QWidget(pParent)
    , m_chart(chart)
    , m_region(region)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMouseTracking(true);
}

void CRegionOverlay::Paint(QPainter& painter, CChromaticityDlgWnd& chart, const CFeasibleRegion& region)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintRegion(painter, chart, region);
    PaintStandard(painter, chart);
    painter.restore();
}

void CRegionOverlay::paintEvent(QPaintEvent* /*pEvent*/)
{
    QPainter painter(this);
    Paint(painter, m_chart, m_region);
    if (!m_bDrawing)
        return;
    PaintDraft(painter);
    PaintHint(painter);
}

void CRegionOverlay::PaintDraft(QPainter& painter) const
{
    const QPolygonF corners = InPixels(m_chart, m_draft);
    QPolygonF outline = corners;
    outline.append(m_ptMouse);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!corners.isEmpty())
        PaintOutline(painter, outline, Qt::DashLine, Fill());
    painter.setPen(Qt::NoPen);
    painter.setBrush(c_clrRegion);
    for (const QPointF& pt : corners)
        painter.drawEllipse(pt, c_dCornerRadius, c_dCornerRadius);
}

QString CRegionOverlay::Hint() const
{
    if (!m_bDrawing)
        return {};
    if (m_draft.isEmpty())
        return tr("单击放置第一个顶点。Esc 取消。");
    if (m_draft.size() < CFeasibleRegion::c_nMinVertices)
        return tr("单击放置下一个顶点，至少三个。退格键撤回一个，Esc 取消。");
    return tr("双击或回车完成区域。退格键撤回一个顶点，Esc 取消。");
}

void CRegionOverlay::PaintHint(QPainter& painter) const
{
    painter.setPen(Qt::white);
    const QRectF rcRoom =
        QRectF(rect()).adjusted(c_dHintMargin, c_dHintMargin, -c_dHintMargin, -c_dHintMargin);
    const QRectF rcText = painter.boundingRect(rcRoom, c_nHintFlags, Hint());
    painter.fillRect(rcText.adjusted(-c_dHintPadding, -c_dHintPadding, c_dHintPadding, c_dHintPadding),
                     c_clrHint);
    painter.drawText(rcText, c_nHintFlags, Hint());
}

void CRegionOverlay::StartDrawing()
{
    m_draft.clear();
    m_bDrawing = true;
    setAttribute(Qt::WA_TransparentForMouseEvents, false);
    setCursor(Qt::CrossCursor);
    setFocus(Qt::OtherFocusReason);
    update();
    Q_EMIT DrawingStarted();
}

void CRegionOverlay::EndDrawing()
{
    m_bDrawing = false;
    m_draft.clear();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    unsetCursor();
    update();
    Q_EMIT DrawingEnded();
}

void CRegionOverlay::CloseRegion()
{
    if (m_draft.size() < CFeasibleRegion::c_nMinVertices)
        return;
    m_region.SetPolygon(m_draft);
    m_region.SetOn(true);
    EndDrawing();
    Q_EMIT RegionDrawn();
}

void CRegionOverlay::RemoveLastCorner()
{
    if (!m_draft.isEmpty())
        m_draft.removeLast();
    update();
}

void CRegionOverlay::mousePressEvent(QMouseEvent* pEvent)
{
    if (!m_bDrawing)
        return;
    if (pEvent->button() == Qt::RightButton)
        return RemoveLastCorner();
    m_ptMouse = QtCompat::EventPosition(*pEvent);
    m_draft.append(m_chart.Mapping().ToChromaticity(m_ptMouse));
    update();
}

void CRegionOverlay::mouseMoveEvent(QMouseEvent* pEvent)
{
    m_ptMouse = QtCompat::EventPosition(*pEvent);
    update();
}

void CRegionOverlay::mouseDoubleClickEvent(QMouseEvent* /*pEvent*/)
{
    // Its first half set the last corner.
    CloseRegion();
}

void CRegionOverlay::keyPressEvent(QKeyEvent* pEvent)
{
    if (!m_bDrawing)
        return QWidget::keyPressEvent(pEvent);
    switch (pEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return CloseRegion();
    case Qt::Key_Backspace:
        return RemoveLastCorner();
    case Qt::Key_Escape:
        return EndDrawing();
    default:
        return QWidget::keyPressEvent(pEvent);
    }
}
