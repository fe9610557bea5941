#include "SenderModuleDialog/chart/paint/ChartSurface.h"

#include <QPaintEngine>
#include <QTransform>

#include <cmath>
#include <tuple>

namespace {

/// The device that is really painted on; null without one.
const QPaintDevice* TargetDevice(const QPainter& painter)
{
    const QPaintEngine* pEngine = painter.paintEngine();
    return pEngine != nullptr ? pEngine->paintDevice() : nullptr;
}

/// The raster image that the painter paints into; null if there is none.
const QImage* TargetImage(const QPainter& painter)
{
    const QPaintDevice* pDevice = TargetDevice(painter);
    if (pDevice == nullptr || painter.paintEngine()->type() != QPaintEngine::Raster)
        return nullptr;
    return pDevice->devType() == QInternal::Image ? static_cast<const QImage*>(pDevice) : nullptr;
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

bool CanCopyTo(const QPainter& painter, const QImage* pImage)
{
    return pImage != nullptr && IsUsualFormat(pImage->format()) && IsWhole(pImage->devicePixelRatioF()) &&
           IsMovedByWholePixels(painter.deviceTransform(), pImage->devicePixelRatioF()) &&
           !painter.hasClipping() && painter.opacity() == 1.0 &&
           painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

} // namespace

bool CChartSurface::SState::operator==(const SState& other) const
{
    return std::tie(format, dRatio, hints, font, direction) ==
           std::tie(other.format, other.dRatio, other.hints, other.font, other.direction);
}

double CChartSurface::DevicePixelRatio(const QPainter& painter)
{
    const QPaintDevice* pDevice = TargetDevice(painter);
    return pDevice != nullptr ? pDevice->devicePixelRatioF() : 1.0;
}

CChartSurface::CChartSurface(const QPainter& painter)
{
    const QImage* pImage = TargetImage(painter);
    if (!CanCopyTo(painter, pImage))
        return;
    m_bCanCopy = true;
    m_state = {pImage->format(), pImage->devicePixelRatioF(), painter.renderHints(), painter.font(),
               painter.layoutDirection()};
}
