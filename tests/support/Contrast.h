#ifndef TESTS_SUPPORT_CONTRAST_H
#define TESTS_SUPPORT_CONTRAST_H

#include <QColor>

#include <algorithm>
#include <cmath>

/// What the Web Content Accessibility Guidelines 2.1 demand, level AA. Disabled controls are exempt there.
inline constexpr double c_dTextContrast = 4.5;
inline constexpr double c_dOutlineContrast = 3.0;
/// Of outlines of controls that accept no input.
inline constexpr double c_dDisabledContrast = 1.5;

/// Relative luminance of an sRGB colour, as the guidelines define it.
inline double Luminance(QRgb rgb)
{
    const auto Linear = [](int nChannel) {
        const double dValue = nChannel / 255.0;
        return dValue <= 0.03928 ? dValue / 12.92 : std::pow((dValue + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * Linear(qRed(rgb)) + 0.7152 * Linear(qGreen(rgb)) + 0.0722 * Linear(qBlue(rgb));
}

inline double Contrast(QRgb rgbOne, QRgb rgbOther)
{
    const auto [dDark, dLight] = std::minmax({Luminance(rgbOne), Luminance(rgbOther)});
    return (dLight + 0.05) / (dDark + 0.05);
}

#endif // TESTS_SUPPORT_CONTRAST_H
