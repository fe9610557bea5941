#ifndef SENDERMODULEDIALOG_CHART_PAINT_CHARTSURFACE_H
#define SENDERMODULEDIALOG_CHART_PAINT_CHARTSURFACE_H

#include <QFont>
#include <QImage>
#include <QPainter>

/// The raster image that a painter paints into, whatever device it was opened on, where pixels that were
/// painted before can be copied instead of being painted anew.
class CChartSurface
{
public:
    /// What of the painter and its image the pixels depend on.
    struct SState
    {
        QImage::Format format = QImage::Format_Invalid;
        double dRatio = 1.0; ///< device pixels per pixel
        QPainter::RenderHints hints;
        QFont font;
        Qt::LayoutDirection direction = Qt::LayoutDirectionAuto;

        bool operator==(const SState& other) const;
    };

    explicit CChartSurface(const QPainter& painter);

    /// Device pixels per pixel of the device that is really painted on: a widget's painter may have been
    /// redirected to a picture with another ratio than the widget's.
    static double DevicePixelRatio(const QPainter& painter);

    /// Whether copying is certain to give the pixels that painting gives: only on 32-bit raster images, and
    /// without clip, opacity, composition mode or any transformation other than by whole pixels.
    bool CanCopy() const { return m_bCanCopy; }

    /// Only where `CanCopy()` is true.
    const SState& State() const { return m_state; }

private:
    bool m_bCanCopy = false;
    SState m_state;
};

#endif // SENDERMODULEDIALOG_CHART_PAINT_CHARTSURFACE_H
