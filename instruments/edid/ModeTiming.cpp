#include "instruments/edid/ModeTiming.h"

#include <tuple>

namespace Edid {

int SModeTiming::FrameLines() const
{
    if (!bInterlaced)
        return vertical.Total();
    return vertical.nActive + 2 * vertical.Blank() + (bHalfLine ? 1 : 0);
}

double SModeTiming::LineRate() const
{
    return horizontal.Total() == 0 ? 0.0 : double(nClock) / horizontal.Total();
}

double SModeTiming::Rate() const
{
    const int nLines = FrameLines();
    return nLines == 0 ? 0.0 : LineRate() / nLines * (bInterlaced ? 2.0 : 1.0);
}

bool operator==(const SAxis& a, const SAxis& b)
{
    return std::tie(a.nActive, a.nFront, a.nSync, a.nBack, a.bPositive) ==
           std::tie(b.nActive, b.nFront, b.nSync, b.nBack, b.bPositive);
}

bool operator==(const SModeTiming& a, const SModeTiming& b)
{
    return std::tie(a.nClock, a.horizontal, a.vertical, a.bInterlaced, a.bHalfLine) ==
           std::tie(b.nClock, b.horizontal, b.vertical, b.bInterlaced, b.bHalfLine);
}

} // namespace Edid
