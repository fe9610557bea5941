#include "simulator/HardwareSupport/EdidVerdict.h"

#include "host/OrviControl/CustomDialog.h"
#include "simulator/CommonClass/SimulatedProject.h"

namespace {

/// Smallest side of a mode that an input shows.
constexpr int c_nSmallestSide = 64;
/// The base block describes sides in 12 bits (VESA E-EDID, detailed timing) ...
constexpr int c_nLargestBaseSide = 4095;
/// ... and the pixel clock in 16 bits of 10 kHz: 655.35 MHz.
constexpr int c_nLargestBaseClock = 655;

/// The mode does not fit into the base block.
bool NeedsExtensionBlock(const SSimulatedInput& input, int nWidth, int nHeight, int nLimit)
{
    const bool bClock = input.limit.bLimitByPixelClock && nLimit > c_nLargestBaseClock;
    return bClock || nWidth > c_nLargestBaseSide || nHeight > c_nLargestBaseSide;
}

QString SideVerdict(const SSimulatedInput& input, int nWidth, int nHeight)
{
    if (nWidth < c_nSmallestSide || nHeight < c_nSmallestSide)
        return CCustomDialog::tr("分辨率的宽或高不能小于%1。").arg(c_nSmallestSide);
    if (nWidth > input.limit.nMaxWidth)
        return CCustomDialog::tr("分辨率的宽不能大于%1。").arg(input.limit.nMaxWidth);
    if (nHeight > input.limit.nMaxHeight)
        return CCustomDialog::tr("分辨率的高不能大于%1。").arg(input.limit.nMaxHeight);
    return QString();
}

QString LoadVerdict(const SSimulatedInput& input, int nWidth, int nHeight, int nLimit)
{
    if (!input.limit.bLimitByPixelClock)
        return qint64(nWidth) * nHeight <= nLimit
                   ? QString()
                   : CCustomDialog::tr("此帧率下分辨率的面积不能大于%1。").arg(nLimit);
    return nLimit <= input.nMaxPixelClock ? QString()
                                          : CCustomDialog::tr("像素时钟%1MHz超过接口的最大值%2MHz。")
                                                .arg(nLimit)
                                                .arg(input.nMaxPixelClock);
}

} // namespace

QString EdidVerdict(const SSenderCapability& capability, const SSimulatedInput& input, int nWidth,
                    int nHeight, int nLimit)
{
    QString strSide = SideVerdict(input, nWidth, nHeight);
    if (!strSide.isEmpty())
        return strSide;
    QString strLoad = LoadVerdict(input, nWidth, nHeight, nLimit);
    if (!strLoad.isEmpty() || !NeedsExtensionBlock(input, nWidth, nHeight, nLimit))
        return strLoad;
    // The dialog compares the first of these texts with its own translation to tell the notice from an error.
    return capability.bExtensionBlock ? CCustomDialog::tr("已使用DisplayID 1.3扩展块")
                                      : CCustomDialog::tr("此接口不支持需要EDID扩展块的分辨率。");
}
