#ifndef WORKBENCH_OUTPUT_CANVASLAYOUT_H
#define WORKBENCH_OUTPUT_CANVASLAYOUT_H

#include <QRect>
#include <QSize>

/// How a background picture is fitted to the canvas. The values are those of `CSender::BkImageFit`.
enum class enPictureFit
{
    enOneToOne = 0, ///< a pixel of the picture is a pixel of the canvas, from its top left corner on
    enStretched = 1 ///< the picture fills the canvas, whatever its sides
};

/// Where a canvas is shown.
struct SCanvasLayout
{
    QRect rectCanvas;  ///< view pixels; empty when there is nothing to show
    double dScale = 0; ///< view pixels for one pixel of the canvas
};

/// Where a picture is shown.
struct SPictureLayout
{
    QRect rectSource; ///< the part of the picture that lies on the canvas, pixels of the picture
    QRect rectTarget; ///< where that part is shown, view pixels
};

/// The geometry of the canvas view, over plain values.
namespace CanvasLayout {

/// Shows a canvas as large as an area allows, to scale and in its middle.
/// @param sizeCanvas pixels; a side of 0 or below shows nothing
/// @param rectArea   view pixels; an empty one shows nothing
/// @return a side of at least one view pixel, however narrow the canvas is
SCanvasLayout FitCanvas(QSize sizeCanvas, const QRect& rectArea);

/// Puts a picture on a canvas that is shown. What would lie outside the canvas is cut off.
SPictureLayout PlacePicture(const SCanvasLayout& layout, QSize sizeCanvas, QSize sizePicture,
                            enPictureFit fit);

} // namespace CanvasLayout

#endif // WORKBENCH_OUTPUT_CANVASLAYOUT_H
