#include "workbench/output/SenderOutput.h"

#include "simulator/CommonClass/SimulatedProject.h"

namespace {

/// Bits of the hardware's depth mode 0, and what each further mode adds.
constexpr int c_nFirstDepth = 8;
constexpr int c_nDepthStep = 2;

} // namespace

bool SenderOutput::KeepsCanvas(const SSimulatedSender& sender)
{
    return sender.capability.bVideoProcessor && sender.capability.bCanvasFromHardware;
}

QSize SenderOutput::Canvas(const SSimulatedSender& sender)
{
    const bool bHardware = KeepsCanvas(sender) && sender.sizeHardwareCanvas != QSize(0, 0);
    return bHardware ? sender.sizeHardwareCanvas : sender.record.sizeCanvas;
}

void SenderOutput::StoreCanvas(SSimulatedSender& sender, QSize size)
{
    sender.record.sizeCanvas = size;
    if (KeepsCanvas(sender))
        sender.sizeHardwareCanvas = size;
}

int SenderOutput::HardwareDepth(const SSimulatedSender& sender)
{
    return c_nFirstDepth + c_nDepthStep * sender.nOutputDepthMode;
}

QString SenderOutput::SizeText(QSize size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}
