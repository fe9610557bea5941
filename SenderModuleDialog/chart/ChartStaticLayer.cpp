#include "SenderModuleDialog/chart/ChartStaticLayer.h"

#include <QPaintEngine>
#include <QTransform>

#include <cmath>
#include <tuple>

namespace {

constexpr int c_nOpaque = 255;

/// The raster image that the painter paints into, whatever device it was opened on; null if there is none.
const QImage* TargetImage(const QPainter& painter)
{
    const QPaintEngine* pEngine = painter.paintEngine();
    if (pEngine == nullptr || pEngine->type() != QPaintEngine::Raster)
        return nullptr;
    const QPaintDevice* pDevice = pEngine->paintDevice();
    return pDevice != nullptr && pDevice->devType() == QInternal::Image ? static_cast<const QImage*>(pDevice)
                                                                        : nullptr;
}

bool IsWhole(double dValue)
{
    return dValue == std::floor(dValue);
}

/// The formats in which opaque pixels are the same 32 bits, and are blended by the same arithmetic.
bool IsUsualFormat(QImage::Format format)
{
    return format == QImage::Format_RGB32 || format == QImage::Format_ARGB32 ||
           format == QImage::Format_ARGB32_Premultiplied;
}

bool IsMovedByWholePixels(const QTransform& transform, double dRatio)
{
    return transform.type() <= QTransform::TxScale && transform.m11() == dRatio &&
           transform.m22() == dRatio && IsWhole(transform.dx()) && IsWhole(transform.dy());
}

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

bool CChartStaticLayer::SSurface::operator==(const SSurface& other) const
{
    return std::tie(format, dRatio, hints, font, direction) ==
           std::tie(other.format, other.dRatio, other.hints, other.font, other.direction);
}

bool CChartStaticLayer::CanCopyTo(const QPainter& painter, const QImage* pTarget)
{
    return pTarget != nullptr && IsUsualFormat(pTarget->format()) && IsWhole(pTarget->devicePixelRatioF()) &&
           IsMovedByWholePixels(painter.deviceTransform(), pTarget->devicePixelRatioF()) &&
           !painter.hasClipping() && painter.opacity() == 1.0 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

bool CChartStaticLayer::Show(QPainter& painter, const SContent& content, const FuncPaint& funcPaint)
{
    const QImage* pTarget = TargetImage(painter);
    if (content.rcChart.isEmpty() || content.clrBackground.alpha() != c_nOpaque ||
        !CanCopyTo(painter, pTarget))
        return false;
    const SSurface surface = {pTarget->format(), pTarget->devicePixelRatioF(), painter.renderHints(),
                              painter.font(), painter.layoutDirection()};
    if (m_image.isNull() || !(content == m_content) || !(surface == m_surface))
        Repaint(content, surface, funcPaint);
    CopyTo(painter);
    return true;
}

void CChartStaticLayer::Repaint(const SContent& content, const SSurface& surface, const FuncPaint& funcPaint)
{
    m_content = content;
    m_surface = surface;
    m_image = QImage(content.rcChart.size() * int(surface.dRatio), surface.format);
    m_image.setDevicePixelRatio(surface.dRatio);
    QPainter painter(&m_image);
    painter.setRenderHints(painter.renderHints(), false);
    painter.setRenderHints(surface.hints, true);
    painter.setFont(surface.font);
    painter.setLayoutDirection(surface.direction);
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
    painter.setWorldTransform(QTransform::fromScale(1.0 / m_surface.dRatio, 1.0 / m_surface.dRatio), true);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPoint(0, 0), m_image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setWorldTransform(transform);
    painter.setPen(m_pen);
    painter.setBrush(m_brush);
    painter.setFont(m_font);
    painter.setRenderHints(m_hints, true);
}
