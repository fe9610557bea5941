#include "instruments/edid/BlockCuts.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "SenderModuleDialog/edid/EdidBlock.h"
#include "SenderModuleDialog/edid/MonitorName.h"
#include "instruments/edid/EdidText.h"

namespace Edid {

namespace {

constexpr double c_dClockUnit = 10000.0;   ///< of a detailed timing, Hz
constexpr qint64 c_nClockMask = 0xFFFF;    ///< bits of the clock that a detailed timing keeps
constexpr int c_nSizeMask = 0xFFF;         ///< bits of a size that a detailed timing keeps
constexpr qint64 c_nDeclaredClock = 17000; ///< what the range limits declare, units of 10 kHz
constexpr double c_dHzPerMHz = 1000000.0;

/// `strCut` holds the size and what is left of it.
void AddSizeCut(QStringList& listCuts, const QString& strCut, int nSize)
{
    if (nSize > c_nSizeMask)
        listCuts += strCut.arg(nSize).arg(nSize & c_nSizeMask);
}

QString ClockText(qint64 nClock)
{
    return Megahertz(double(nClock) * c_dClockUnit);
}

} // namespace

QString Megahertz(double dHz)
{
    return QString::number(dHz / c_dHzPerMHz, 'f', 2);
}

SBlockMode ReducedBlockMode(int nWidth, int nHeight, float fRate)
{
    SBlockMode mode = {nWidth, nHeight, {}, 0, 0.0};
    CEDIDRaw().CalCVTtiming(nWidth, nHeight, fRate, 0, 1, 0, &mode.blank);
    mode.nClock = EdidBlock::PixelClock(nWidth, nHeight, fRate, mode.blank);
    mode.dWantedClock =
        double(nWidth + mode.blank.wHBlank) * double(nHeight + mode.blank.wVBlank) * double(fRate);
    return mode;
}

QStringList ClockCuts(const SBlockMode& mode)
{
    if (mode.nClock > c_nClockMask)
        return {CEdidText::tr("the pixel clock of %1 MHz is above 655.35 MHz; its low 16 bits are stored: "
                              "%2 MHz")
                    .arg(ClockText(mode.nClock), ClockText(mode.nClock & c_nClockMask))};
    if (mode.nClock == 0)
        return {CEdidText::tr("the pixel clock of %1 Hz is below the unit of 10 kHz; 0 is stored")
                    .arg(mode.dWantedClock, 0, 'f', 0)};
    return {};
}

QStringList BlockCuts(const SBlockMode& mode)
{
    QStringList listCuts;
    AddSizeCut(listCuts, CEdidText::tr("the width %1 needs more than 12 bits; the block holds %2"),
               mode.nWidth);
    AddSizeCut(listCuts, CEdidText::tr("the height %1 needs more than 12 bits; the block holds %2"),
               mode.nHeight);
    AddSizeCut(listCuts,
               CEdidText::tr("the vertical blanking %1 needs more than 12 bits; the block holds %2"),
               mode.blank.wVBlank);
    const CMonitorName name(mode.nWidth, mode.nHeight);
    if (!name.IsWhole())
        listCuts += CEdidText::tr("the monitor name is longer than its 13 characters; the block holds '%1'")
                        .arg(QString::fromLatin1(name.begin(), int(name.end() - name.begin())));
    listCuts += ClockCuts(mode);
    if (mode.nClock > c_nDeclaredClock)
        listCuts += CEdidText::tr("the pixel clock of %1 MHz is above the %2 MHz that the block declares")
                        .arg(ClockText(mode.nClock), ClockText(c_nDeclaredClock));
    return listCuts;
}

} // namespace Edid
