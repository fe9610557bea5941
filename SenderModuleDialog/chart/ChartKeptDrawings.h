#ifndef SENDERMODULEDIALOG_CHART_CHARTKEPTDRAWINGS_H
#define SENDERMODULEDIALOG_CHART_CHARTKEPTDRAWINGS_H

#include "SenderModuleDialog/chart/ChartLinePicture.h"
#include "SenderModuleDialog/chart/ChartSurface.h"

#include <QBrush>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QLine>
#include <QPen>
#include <QRect>
#include <QRectF>
#include <QString>

#include <vector>

class QPainter;

/// Remembers what the small drawings of a frame, its dots and texts, made of the pixels under them: the same
/// drawing makes the same of the same pixels, so it can be copied where both are found again. Under a moving
/// mouse that is nearly every drawing of every frame. The cross hair and the widths of texts are remembered
/// too.
///
/// Between frames, and wherever a copy is not sure to give the same pixels, everything is drawn.
class CChartKeptDrawings
{
public:
    /// One drawing, apart from the painter's pen, brush and font.
    struct SDrawing
    {
        QRectF rcPlace;  ///< where, exactly, in the painter's coordinates
        double dReach;   ///< how far beyond the place pixels may be touched
        QString strText; ///< what is written; empty for a shape

        /// A text without a box, which reaches as far as it may in its font.
        static SDrawing FreeText(QPointF ptStart, const QString& strText);
        bool IsFreeText() const;
        bool operator==(const SDrawing& other) const;
    };

    /// Begins a frame: its drawings are told apart by their order.
    /// @param rcChart where all pixels are opaque, in the painter's coordinates
    /// @param nLayerKey of the picture that the drawings lie on: another one for another state of the painter
    void Begin(const CChartSurface& surface, const QRect& rcChart, qint64 nLayerKey);
    /// Ends the frame, and forgets the drawings that it did not have.
    void End();

    /// Calls `funcDraw()`, or copies what it made of the same pixels the last time.
    template <class TFunc>
    void Draw(QPainter& painter, const SDrawing& drawing, const TFunc& funcDraw)
    {
        if (Copy(painter, drawing))
            return;
        SKept* const pKept = BeginDrawing(painter, drawing);
        funcDraw();
        if (pKept != nullptr)
            EndDrawing(*pKept);
    }

    /// Draws a level or an upright line across the chart, in the painter's pen.
    void DrawLineAcross(QPainter& painter, const QLine& line);

    /// `QFontMetrics(font).boundingRect(strText).width()`, remembered.
    int TextWidth(const QFont& font, const QString& strText);

private:
    struct SKept
    {
        SDrawing drawing;
        QPen pen;
        QBrush brush;
        QFont font;
        QRect rcPixels;   ///< of the surface's image
        QImage imgBefore; ///< null if there is nothing to copy
        QImage imgAfter;
        int nMisses = 0; ///< how often in turn it was drawn over other pixels
    };

    bool Copy(QPainter& painter, const SDrawing& drawing);
    bool IsKept(const SKept& kept, const QPainter& painter, const SDrawing& drawing) const;
    SKept* BeginDrawing(const QPainter& painter, const SDrawing& drawing);
    void EndDrawing(SKept& kept);
    /// The pixels that a drawing may touch; none if they may not all be kept.
    QRect Pixels(const QPainter& painter, const SDrawing& drawing) const;

    const CChartSurface* m_pSurface = nullptr;
    QPoint m_ptOrigin;
    qint64 m_nLayerKey = 0;
    QRect m_rcPixels;             ///< the pixels of the surface's image that may be kept
    std::vector<SKept> m_vecKept; ///< in the order of the frame
    std::size_t m_nNext = 0;      ///< the place of the next drawing
    CChartLinePicture m_picLevel;
    CChartLinePicture m_picUpright;
    QFont m_fontWidths;
    QHash<QString, int> m_hashWidths; ///< of texts in that font
};

#endif // SENDERMODULEDIALOG_CHART_CHARTKEPTDRAWINGS_H
