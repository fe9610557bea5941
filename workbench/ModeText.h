#ifndef WORKBENCH_MODETEXT_H
#define WORKBENCH_MODETEXT_H

#include "host/HardwareSupport/EdidSetting.h"

#include <QString>

/// How a video mode is written.
namespace ModeText {

/// The frame rate of a setting, Hz: the integer rate, divided by 1.001 when it is fractional.
float Rate(const SEdidSetting& setting);

/// "1920 × 1080 @ 59.94 Hz".
QString Of(const SEdidSetting& setting);

} // namespace ModeText

#endif // WORKBENCH_MODETEXT_H
