#include "workbench/colour/WavelengthMarks.h"

#include "instruments/colour/SpectralWavelength.h"

#include <QLineF>
#include <QPainter>

namespace {

/// Wavelengths whose marks are far enough apart to read, nm.
constexpr int c_nFirst = 460;
constexpr int c_nLast = 620;
constexpr int c_nStep = 20;

constexpr double c_dTick = 6.0;       ///< pixels
constexpr double c_dLabel = 17.0;     ///< pixels from the outline to the middle of the number
constexpr int c_nFontSize = 8;        ///< points
constexpr QSizeF c_sizeLabel(32, 14); ///< pixels
const QColor c_clrMark(200, 200, 200);

/// The white that the ticks point away from.
constexpr SChromaticity c_centre = {0.3333, 0.3333};

} // namespace

void WavelengthMarks::Paint(QPainter& painter, const WallPainter::FuncToPixel& funcToPixel)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(c_clrMark);
    QFont font = painter.font();
    font.setPointSize(c_nFontSize);
    painter.setFont(font);
    const QPointF ptCentre = funcToPixel(c_centre);
    for (const SpectralWavelength::SMark& mark : SpectralWavelength::Marks(c_nFirst, c_nLast, c_nStep)) {
        const QLineF outward = QLineF(ptCentre, funcToPixel(mark.xy));
        const QPointF direction = outward.unitVector().p2() - outward.p1();
        painter.drawLine(outward.p2(), outward.p2() + c_dTick * direction);
        QRectF label(QPointF(), c_sizeLabel);
        label.moveCenter(outward.p2() + c_dLabel * direction);
        painter.drawText(label, Qt::AlignCenter, QString::number(mark.dWavelength, 'f', 0));
    }
    painter.restore();
}
