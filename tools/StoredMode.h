#ifndef TOOLS_STOREDMODE_H
#define TOOLS_STOREDMODE_H

#include "SenderModuleDialog/edid/VideoTiming.h"
#include "tools/VideoMode.h"

#include <QStringList>

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

    /// What the descriptor cuts of the pixel clock, a line each.
    QStringList ClockCuts() const;
    /// What the whole block cuts of the mode or contradicts, a line each.
    QStringList BlockCuts() const;

private:
    SVideoMode m_mode;
    tagSBlankTiming m_blank;
    qint64 m_nClock; ///< units of 10 kHz, before it is cut
};

/// A frequency in MHz, with two decimals: exact for whole units of 10 kHz.
QString Megahertz(double dHz);

#endif // TOOLS_STOREDMODE_H
