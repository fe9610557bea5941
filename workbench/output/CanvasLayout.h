#ifndef WORKBENCH_OUTPUT_CANVASLAYOUT_H
#define WORKBENCH_OUTPUT_CANVASLAYOUT_H

#include <QRect>
#include <QSize>

/// How a background picture is fitted to the canvas. The values are those of `CSender::BkImageFit`.
enum class enPictureFit
{
    enOneToOne = 0, ///< one picture pixel per canvas pixel, starting at the top left corner
    enStretched = 1 ///< the picture fills the canvas, ignoring its aspect ratio
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

/// Fits a canvas into an area, to scale and centred.
/// @param sizeCanvas pixels; a side of 0 or below shows nothing
/// @param rectArea   view pixels; an empty one shows nothing
/// @return a side of at least one view pixel, however narrow the canvas is
SCanvasLayout FitCanvas(QSize sizeCanvas, const QRect& rectArea);

/// Puts a picture on a displayed canvas. The part outside the canvas is cut off.
SPictureLayout PlacePicture(const SCanvasLayout& layout, QSize sizeCanvas, QSize sizePicture,
                            enPictureFit fit);

} // namespace CanvasLayout

#endif // WORKBENCH_OUTPUT_CANVASLAYOUT_H
