#include "SenderModuleDialog/chart/ChartLinePicture.h"

#include <QPainter>

#include <tuple>

namespace {

/// Pixels on each side of the line: more than its pen reaches.
constexpr int c_nReach = 2;

bool IsLevel(const QLine& line)
{
    return line.dy() == 0;
}

/// Where the line stands, across its own direction.
int PlaceOf(const QLine& line)
{
    return IsLevel(line) ? line.y1() : line.x1();
}

QPoint Across(bool bLevel, int nDistance)
{
    return bLevel ? QPoint(0, nDistance) : QPoint(nDistance, 0);
}

} // namespace

bool CChartLinePicture::SContent::operator==(const SContent& other) const
{
    return std::tie(sizeImage, ptOrigin, line, pen, hints) ==
           std::tie(other.sizeImage, other.ptOrigin, other.line, other.pen, other.hints);
}

void CChartLinePicture::Draw(QPainter& painter, const CChartSurface& surface, const QLine& line)
{
    const bool bLevel = IsLevel(line);
    const QSize sizeImage = surface.Image().size();
    const int nLength = bLevel ? sizeImage.height() : sizeImage.width();
    const QPoint ptOrigin = surface.Origin();
    const qint64 nPixel = qint64(PlaceOf(line)) + (bLevel ? ptOrigin.y() : ptOrigin.x());
    // Only premultiplied pixels are blended in one step, whatever they let through.
    const bool bOneStep = surface.State().format != QImage::Format_ARGB32;
    if (!bOneStep || !painter.testRenderHint(QPainter::Antialiasing) || nPixel < c_nReach ||
        nPixel > nLength - c_nReach) {
        painter.drawLine(line);
        return;
    }
    const SContent content = {
        bLevel ? QSize(sizeImage.width(), 2 * c_nReach) : QSize(2 * c_nReach, sizeImage.height()),
        bLevel ? QPoint(ptOrigin.x(), 0) : QPoint(0, ptOrigin.y()),
        line.translated(Across(bLevel, c_nReach - PlaceOf(line))), painter.pen(), painter.renderHints()};
    if (m_image.isNull() || !(content == m_content))
        Repaint(content);
    painter.drawImage(Across(bLevel, int(nPixel) - c_nReach) - ptOrigin, m_image);
}

void CChartLinePicture::Repaint(const SContent& content)
{
    m_content = content;
    m_image = QImage(content.sizeImage, QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    QPainter painter(&m_image);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(content.hints, true);
    painter.translate(content.ptOrigin);
    painter.setPen(content.pen);
    painter.drawLine(content.line);
}
