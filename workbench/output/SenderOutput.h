#ifndef WORKBENCH_OUTPUT_SENDEROUTPUT_H
#define WORKBENCH_OUTPUT_SENDEROUTPUT_H

#include <QSize>
#include <QString>

struct SSimulatedSender;

/// The output of a sender, by its record and by its hardware.
namespace SenderOutput {

/// True when the hardware keeps a canvas of its own, which counts instead of the record's.
bool KeepsCanvas(const SSimulatedSender& sender);
/// The canvas in force, pixels: the hardware's where it keeps one and has been given one, else the record's.
QSize Canvas(const SSimulatedSender& sender);
/// Stores a canvas in the record, and in hardware that keeps one.
void StoreCanvas(SSimulatedSender& sender, QSize size);
/// "1920 × 1080".
QString SizeText(QSize size);
/// The output depth that the hardware is set to, bits.
int HardwareDepth(const SSimulatedSender& sender);

} // namespace SenderOutput

#endif // WORKBENCH_OUTPUT_SENDEROUTPUT_H
