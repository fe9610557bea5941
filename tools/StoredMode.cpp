#include "tools/StoredMode.h"

#include "SenderModuleDialog/edid/EdidBlock.h"

namespace {

constexpr double c_dClockUnit = 10000.0; ///< of a detailed timing, Hz
constexpr qint64 c_nClockMask = 0xFFFF;  ///< bits of the clock that a detailed timing keeps

} // namespace

CStoredMode::CStoredMode(const SVideoMode& mode, const tagSBlankTiming& blank)
    : m_mode(mode)
    , m_blank(blank)
    , m_nClock(EdidBlock::PixelClock(mode.nWidth, mode.nHeight, mode.fRate, blank))
{}

double CStoredMode::WantedClock() const
{
    return double(HTotal()) * double(VTotal()) * m_mode.strRate.toDouble();
}

double CStoredMode::RoundedClock() const
{
    return double(m_nClock) * c_dClockUnit;
}

double CStoredMode::StoredClock() const
{
    return double(m_nClock & c_nClockMask) * c_dClockUnit;
}

Edid::SBlockMode CStoredMode::InBlock() const
{
    return {m_mode.nWidth, m_mode.nHeight, m_blank, m_nClock, WantedClock()};
}
