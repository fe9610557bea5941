#ifndef SENDERMODULEDIALOG_COLOUR_SPECTRALLOCUS_H
#define SENDERMODULEDIALOG_COLOUR_SPECTRALLOCUS_H

#include <QPointF>
#include <QVector>

namespace SpectralLocus {

/// The chromaticities of the monochromatic stimuli of the CIE 1931 observer, one for each nanometre from 360
/// to 830, computed in single precision.
QVector<QPointF> Points();

/// The convex hull of `Points`: the outline of the colours that can be. Counter-clockwise from the lowest
/// point, 404 nm, along the purple line first.
QVector<QPointF> Outline();

} // namespace SpectralLocus

#endif // SENDERMODULEDIALOG_COLOUR_SPECTRALLOCUS_H
