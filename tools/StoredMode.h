#ifndef TOOLS_STOREDMODE_H
#define TOOLS_STOREDMODE_H

#include "SenderModuleDialog/edid/VideoTiming.h"
#include "instruments/edid/BlockCuts.h"
#include "tools/VideoMode.h"

/// A mode with its blanking, and what becomes of it in a detailed timing.
class CStoredMode
{
public:
    CStoredMode(const SVideoMode& mode, const tagSBlankTiming& blank);

    const SVideoMode& Mode() const { return m_mode; }
    const tagSBlankTiming& Blank() const { return m_blank; }

    /// Width and horizontal blanking, pixels.
    int HTotal() const { return m_mode.nWidth + m_blank.wHBlank; }
    /// Height and vertical blanking, lines.
    int VTotal() const { return m_mode.nHeight + m_blank.wVBlank; }

    /// The pixel clock that the mode asks for, Hz.
    double WantedClock() const;
    /// The pixel clock in whole units of 10 kHz, Hz.
    double RoundedClock() const;
    /// The pixel clock that the descriptor stores, Hz: the low 16 bits of the units.
    double StoredClock() const;
    /// Lines in a second at the stored clock, Hz.
    double LineRate() const { return StoredClock() / HTotal(); }
    /// Frames in a second at the stored clock, Hz.
    double ActualRate() const { return LineRate() / VTotal(); }

    /// What becomes of the mode in a block: `Edid::ClockCuts` and `Edid::BlockCuts` tell what is cut.
    Edid::SBlockMode InBlock() const;

private:
    SVideoMode m_mode;
    tagSBlankTiming m_blank;
    qint64 m_nClock; ///< units of 10 kHz, before it is cut
};

#endif // TOOLS_STOREDMODE_H
