#ifndef SENDERMODULEDIALOG_CHART_CHARTLINEPICTURE_H
#define SENDERMODULEDIALOG_CHART_CHARTLINEPICTURE_H

#include "SenderModuleDialog/chart/ChartSurface.h"

#include <QImage>
#include <QLine>
#include <QPen>
#include <QPoint>
#include <QSize>

class QPainter;

/// A level or an upright line across the surface, kept as a picture on nothing. A line touches each pixel
/// once, so laying the picture over the surface gives the very pixels that drawing the line gives, wherever
/// it stands.
class CChartLinePicture
{
public:
    /// Lays the line over the surface, or draws it where a picture might not give the same pixels: too close
    /// to the surface's edges, without antialiasing, and on pixels that are not premultiplied.
    /// @param line in the painter's coordinates
    void Draw(QPainter& painter, const CChartSurface& surface, const QLine& line);

private:
    /// What the picture shows.
    struct SContent
    {
        QSize sizeImage;
        QPoint ptOrigin;
        QLine line; ///< moved to where its picture has it
        QPen pen;
        QPainter::RenderHints hints;

        bool operator==(const SContent& other) const;
    };

    void Repaint(const SContent& content);

    SContent m_content;
    QImage m_image;
};

#endif // SENDERMODULEDIALOG_CHART_CHARTLINEPICTURE_H
