#include "simulator/OrviControl/Theme.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/OutlinedStyle.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include <array>

namespace Theme {

namespace {

/// A colour by its name in style texts.
struct SNamedColour
{
    const char* szName;
    QRgb rgb;
};

constexpr std::array<SNamedColour, 16> c_arrColours = {{
    {"window", c_rgbWindow},
    {"field", c_rgbField},
    {"field-disabled", c_rgbFieldDisabled},
    {"edge", c_rgbEdge},
    {"edge-disabled", c_rgbEdgeDisabled},
    {"text", c_rgbText},
    {"text-disabled", c_rgbTextDisabled},
    {"button", c_rgbButton},
    {"button-hover", c_rgbButtonHover},
    {"button-pressed", c_rgbButtonPressed},
    {"button-disabled", c_rgbButtonDisabled},
    {"accent", c_rgbAccent},
    {"selection", c_rgbSelection},
    {"focus", c_rgbFocus},
    {"warning", c_rgbWarning},
    {"track-off", c_rgbTrackOff},
}};

/// A colour of the palette, enabled and disabled.
struct SRole
{
    QPalette::ColorRole role;
    QRgb rgb;
    QRgb rgbDisabled;
};

constexpr std::array<SRole, 14> c_arrRoles = {{
    {QPalette::Window, c_rgbWindow, c_rgbWindow},
    {QPalette::WindowText, c_rgbText, c_rgbTextDisabled},
    {QPalette::Base, c_rgbField, c_rgbFieldDisabled},
    {QPalette::AlternateBase, c_rgbWindow, c_rgbWindow},
    {QPalette::Text, c_rgbText, c_rgbTextDisabled},
    {QPalette::PlaceholderText, c_rgbNote, c_rgbTextDisabled},
    {QPalette::Button, c_rgbButton, c_rgbButtonDisabled},
    {QPalette::ButtonText, c_rgbText, c_rgbTextDisabled},
    {QPalette::BrightText, c_rgbWarning, c_rgbWarning},
    {QPalette::Highlight, c_rgbSelection, c_rgbTrackOff},
    {QPalette::HighlightedText, c_rgbText, c_rgbText},
    {QPalette::Link, c_rgbFocus, c_rgbTextDisabled},
    {QPalette::ToolTipBase, c_rgbField, c_rgbField},
    {QPalette::ToolTipText, c_rgbText, c_rgbText},
}};

QString StyleColour(QRgb rgb)
{
    return QStringLiteral("rgb(%1,%2,%3)").arg(qRed(rgb)).arg(qGreen(rgb)).arg(qBlue(rgb));
}

} // namespace

QPalette Palette()
{
    QPalette palette{QColor(c_rgbButton), QColor(c_rgbWindow)};
    for (const SRole& row : c_arrRoles) {
        palette.setColor(QPalette::Active, row.role, row.rgb);
        palette.setColor(QPalette::Inactive, row.role, row.rgb);
        palette.setColor(QPalette::Disabled, row.role, row.rgbDisabled);
    }
    return palette;
}

QFont Font()
{
    QFont font(GetFontFamily());
    font.setPixelSize(c_nFontSize);
    return font;
}

QStyle* CreateStyle()
{
    return new COutlinedStyle;
}

void Apply(QWidget* pWindow)
{
    pWindow->setPalette(Palette());
    pWindow->setFont(Font());
}

QString Resolve(const char* szStyle)
{
    QString strStyle = QString::fromLatin1(szStyle);
    for (const SNamedColour& colour : c_arrColours)
        strStyle.replace(QStringLiteral("@%1@").arg(QLatin1String(colour.szName)), StyleColour(colour.rgb));
    return strStyle;
}

bool AreAnimationsOn()
{
    static const bool s_bEnvironment = qgetenv("ORVICONTROL_ANIMATIONS") != "0";
    return s_bEnvironment && QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

} // namespace Theme
