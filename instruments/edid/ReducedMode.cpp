#include "instruments/edid/ReducedMode.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "SenderModuleDialog/edid/EdidBlock.h"

namespace Edid {

SModeTiming ReducedMode(int nWidth, int nHeight, float fRate)
{
    constexpr qint64 c_nClockUnit = 10000;
    tagSBlankTiming blank = {};
    CEDIDRaw().CalCVTtiming(nWidth, nHeight, fRate, 0, 1, 0, &blank);
    // What no block holds is beyond every limit in any case.
    constexpr qint64 c_nLargestClock = qint64(1) << 40;
    SModeTiming timing;
    timing.nClock =
        qMin(EdidBlock::PixelClock(nWidth, nHeight, fRate, blank), c_nLargestClock) * c_nClockUnit;
    timing.horizontal = {nWidth, blank.wHFrontPorch, blank.wHSync,
                         blank.wHBlank - blank.wHFrontPorch - blank.wHSync, true};
    timing.vertical = {nHeight, blank.byVFrontPorch, blank.byVSync,
                       blank.wVBlank - blank.byVFrontPorch - blank.byVSync, false};
    return timing;
}

} // namespace Edid
