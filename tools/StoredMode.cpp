#include "tools/StoredMode.h"

#include "SenderModuleDialog/edid/EdidBlock.h"
#include "SenderModuleDialog/edid/MonitorName.h"

namespace {

constexpr double c_dClockUnit = 10000.0;   ///< of a detailed timing, Hz
constexpr qint64 c_nClockMask = 0xFFFF;    ///< bits of the clock that a detailed timing keeps
constexpr int c_nSizeMask = 0xFFF;         ///< bits of a size that a detailed timing keeps
constexpr qint64 c_nDeclaredClock = 17000; ///< what the range limits declare, units of 10 kHz
constexpr double c_dHzPerMHz = 1000000.0;

void AddSizeCut(QStringList& listCuts, const char* szWhat, int nSize)
{
    if (nSize > c_nSizeMask)
        listCuts += QStringLiteral("the %1 %2 needs more than 12 bits; the block holds %3")
                        .arg(QString::fromLatin1(szWhat))
                        .arg(nSize)
                        .arg(nSize & c_nSizeMask);
}

} // namespace

QString Megahertz(double dHz)
{
    return QString::number(dHz / c_dHzPerMHz, 'f', 2);
}

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

QStringList CStoredMode::ClockCuts() const
{
    if (m_nClock > c_nClockMask)
        return {QStringLiteral(
                    "the pixel clock of %1 MHz is above 655.35 MHz; its low 16 bits are stored: %2 MHz")
                    .arg(Megahertz(RoundedClock()), Megahertz(StoredClock()))};
    if (m_nClock == 0)
        return {QStringLiteral("the pixel clock of %1 Hz is below the unit of 10 kHz; 0 is stored")
                    .arg(WantedClock(), 0, 'f', 0)};
    return {};
}

QStringList CStoredMode::BlockCuts() const
{
    QStringList listCuts;
    AddSizeCut(listCuts, "width", m_mode.nWidth);
    AddSizeCut(listCuts, "height", m_mode.nHeight);
    AddSizeCut(listCuts, "vertical blanking", m_blank.wVBlank);
    const CMonitorName name(m_mode.nWidth, m_mode.nHeight);
    if (!name.IsWhole())
        listCuts += QStringLiteral("the monitor name is longer than its 13 characters; the block holds '%1'")
                        .arg(QString::fromLatin1(name.begin(), int(name.end() - name.begin())));
    listCuts += ClockCuts();
    if (m_nClock > c_nDeclaredClock)
        listCuts += QStringLiteral("the pixel clock of %1 MHz is above the %2 MHz that the block declares")
                        .arg(Megahertz(RoundedClock()), Megahertz(double(c_nDeclaredClock) * c_dClockUnit));
    return listCuts;
}
