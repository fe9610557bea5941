#include "workbench/output/CanvasLayout.h"

#include <algorithm>

namespace {

int Scaled(int nLength, double dScale)
{
    return std::max(1, qRound(nLength * dScale));
}

} // namespace

SCanvasLayout CanvasLayout::FitCanvas(QSize sizeCanvas, const QRect& rectArea)
{
    if (sizeCanvas.isEmpty() || rectArea.isEmpty())
        return {};
    SCanvasLayout layout;
    layout.dScale = std::min(double(rectArea.width()) / sizeCanvas.width(),
                             double(rectArea.height()) / sizeCanvas.height());
    const QSize sizeShown(Scaled(sizeCanvas.width(), layout.dScale),
                          Scaled(sizeCanvas.height(), layout.dScale));
    layout.rectCanvas = QRect(QPoint(), sizeShown);
    layout.rectCanvas.moveCenter(rectArea.center());
    return layout;
}

SPictureLayout CanvasLayout::PlacePicture(const SCanvasLayout& layout, QSize sizeCanvas, QSize sizePicture,
                                          enPictureFit fit)
{
    if (layout.rectCanvas.isEmpty() || sizePicture.isEmpty())
        return {};
    if (fit == enPictureFit::enStretched)
        return {QRect(QPoint(), sizePicture), layout.rectCanvas};
    const QSize sizePart = sizePicture.boundedTo(sizeCanvas);
    const QSize sizeTarget(Scaled(sizePart.width(), layout.dScale), Scaled(sizePart.height(), layout.dScale));
    return {QRect(QPoint(), sizePart), QRect(layout.rectCanvas.topLeft(), sizeTarget)};
}
