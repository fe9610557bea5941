#include "workbench/ModeText.h"

namespace ModeText {

float Rate(const SEdidSetting& setting)
{
    constexpr double c_dFractionalDivisor = 1.001;
    const double dRate = setting.byRate;
    return float(setting.byFractional != 0 ? dRate / c_dFractionalDivisor : dRate);
}

QString Of(const SEdidSetting& setting)
{
    constexpr int c_nDigits = 5; // 23.976 and 59.94 keep all their digits
    const QString strRate = QString::number(double(Rate(setting)), 'g', c_nDigits);
    return QStringLiteral("%1 × %2 @ %3 Hz").arg(setting.wWidth).arg(setting.wHeight).arg(strRate);
}

} // namespace ModeText
