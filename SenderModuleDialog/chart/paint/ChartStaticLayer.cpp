#include "SenderModuleDialog/chart/paint/ChartStaticLayer.h"

#include <QTransform>

#include <tuple>

namespace {

constexpr int c_nOpaque = 255;

} // namespace

bool CChartStaticLayer::SContent::operator==(const SContent& other) const
{
    const auto Fields = [](const SContent& content) {
        return std::tie(content.rcChart, content.clrBackground, content.nBitmapKey, content.nGridAlpha,
                        content.fMarginX, content.fMarginY, content.fScale, content.strFontFamily,
                        content.boundary);
    };
    return Fields(*this) == Fields(other);
}

bool CChartStaticLayer::Show(QPainter& painter, const SContent& content, const FuncPaint& funcPaint)
{
    const CChartSurface surface(painter);
    if (content.rcChart.isEmpty() || content.clrBackground.alpha() != c_nOpaque || !surface.CanCopy())
        return false;
    if (m_image.isNull() || !(content == m_content) || !(surface.State() == m_state))
        Repaint(content, surface.State(), funcPaint);
    CopyTo(painter);
    return true;
}

void CChartStaticLayer::Repaint(const SContent& content, const CChartSurface::SState& state,
                                const FuncPaint& funcPaint)
{
    m_content = content;
    m_state = state;
    m_image = QImage(content.rcChart.size() * int(state.dRatio), state.format);
    m_image.setDevicePixelRatio(state.dRatio);
    QPainter painter(&m_image);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(state.hints, true);
    painter.setFont(state.font);
    painter.setLayoutDirection(state.direction);
    funcPaint(painter);
    m_pen = painter.pen();
    m_brush = painter.brush();
    m_font = painter.font();
    m_hints = painter.renderHints();
    painter.end();
    // From here on it is a picture of device pixels.
    m_image.setDevicePixelRatio(1.0);
}

void CChartStaticLayer::CopyTo(QPainter& painter) const
{
    const QTransform transform = painter.worldTransform();
    // The picture is in device pixels; it is opaque, so its pixels can replace what is there.
    painter.setWorldTransform(QTransform::fromScale(1.0 / m_state.dRatio, 1.0 / m_state.dRatio), true);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPoint(0, 0), m_image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setWorldTransform(transform);
    painter.setPen(m_pen);
    painter.setBrush(m_brush);
    painter.setFont(m_font);
    painter.setRenderHints(m_hints, true);
}
