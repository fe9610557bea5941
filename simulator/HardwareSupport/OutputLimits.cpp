#include "simulator/HardwareSupport/OutputLimits.h"

#include "simulator/CommonClass/SimulatedProject.h"

#include <algorithm>

namespace {

/// Output sizes of a sender, pixels: the two that the dialogs mention.
constexpr qint64 c_nSmallOutputArea = 2600000;
constexpr qint64 c_nLargeOutputArea = 8880000;
/// What one output port drives, pixels.
constexpr qint64 c_nPortArea = 655360;

qint64 OutputArea(const SSimulatedSender& sender)
{
    return IsSmallOutputType(sender.capability.nType) ? c_nSmallOutputArea : c_nLargeOutputArea;
}

qint64 CanvasArea(const SSimulatedSender& sender)
{
    const QSize& size = sender.record.sizeCanvas;
    return qint64(size.width()) * size.height();
}

qint64 SettingArea(const SSimulatedInput& input)
{
    return input.setting ? qint64(input.setting->wWidth) * input.setting->wHeight : 0;
}

/// Pixel sum of the inputs with ids from one to another.
qint64 InputArea(const SSimulatedSender& sender, int nFirstId, int nLastId)
{
    qint64 nSum = 0;
    for (const SSimulatedInput& input : sender.listInputs) {
        if (input.nInterfaceId >= nFirstId && input.nInterfaceId <= nLastId)
            nSum += SettingArea(input);
    }
    return nSum;
}

bool HasLargerSetting(const SSimulatedSender& sender, qint64 nArea)
{
    return std::any_of(sender.listInputs.cbegin(), sender.listInputs.cend(),
                       [=](const SSimulatedInput& input) { return SettingArea(input) > nArea; });
}

} // namespace

unsigned int OutputLimitFlags(const SSimulatedSender& sender)
{
    if (sender.outputLimitFlags)
        return *sender.outputLimitFlags;
    unsigned int nFlags = 0;
    const auto SetIf = [&nFlags](enOutputLimitFlag flag, bool bBroken) { nFlags |= bBroken ? flag : 0U; };
    SetIf(enLimitOutputArea, CanvasArea(sender) > OutputArea(sender));
    SetIf(enLimitDvi1To4, InputArea(sender, 1, 4) > c_nLargeOutputArea);
    SetIf(enLimitDvi5To8, InputArea(sender, 5, 8) > c_nLargeOutputArea);
    SetIf(enLimitPortArea, CanvasArea(sender) > sender.record.nOutputPortCount * c_nPortArea);
    SetIf(enLimitEdidArea, HasLargerSetting(sender, OutputArea(sender)));
    return nFlags;
}
