#include "simulator/OrviControl/OutlinedStyle.h"

#include "simulator/OrviControl/Theme.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <iterator>
#include <type_traits>

namespace {

/// Fusion draws an outline as the window's colour, darker by this at most, per cent.
constexpr int c_nFusionDarker = 150;

/// More palettes than a program has; a program that changes its palette all the time starts anew.
constexpr int c_nMaxPalettes = 64;

constexpr double c_dFocusRadius = 2.0; ///< pixels
constexpr int c_nFocusMargin = 2;      ///< from the edge of a button to the focus in it, pixels

constexpr std::array<QStyle::PrimitiveElement, 4> c_arrOutlined = {
    QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton, QStyle::PE_PanelButtonCommand,
    QStyle::PE_FrameLineEdit};

constexpr std::array<QStyle::ComplexControl, 3> c_arrOutlinedControls = {
    QStyle::CC_ComboBox, QStyle::CC_SpinBox, QStyle::CC_Slider};

/// The sign of a message.
struct SSign
{
    QStyle::StandardPixmap sign;
    const char* szFile;
};

constexpr SSign c_arrSigns[] = {
    {QStyle::SP_MessageBoxInformation, ":/OrviControl/icons/information.svg"},
    {QStyle::SP_MessageBoxQuestion, ":/OrviControl/icons/question.svg"},
    {QStyle::SP_MessageBoxWarning, ":/OrviControl/icons/warning.svg"},
    {QStyle::SP_MessageBoxCritical, ":/OrviControl/icons/critical.svg"},
};

template <class TArray, class TValue>
bool Contains(const TArray& arrValues, TValue value)
{
    return std::find(arrValues.cbegin(), arrValues.cend(), value) != arrValues.cend();
}

/// What lies on a page stands on the window's colour; Fusion's own is too light for the outlines.
void DrawPane(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setPen(QColor(Theme::c_rgbButton));
    painter.setBrush(option.palette.window());
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

/// The window's colour for which Fusion draws outlines in a grey.
QColor BeforeFusion(QRgb rgbGrey)
{
    const int nGrey = qRed(rgbGrey) * c_nFusionDarker / 100;
    return {nGrey, nGrey, nGrey};
}

QPalette WithOutlines(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, BeforeFusion(Theme::c_rgbEdge));
        palette.setColor(group, QPalette::Highlight, Theme::c_rgbFocus);
    }
    palette.setColor(QPalette::Disabled, QPalette::Window, BeforeFusion(Theme::c_rgbEdgeDisabled));
    return palette;
}

bool IsFocusShown(const QStyleOption& option)
{
    const QStyle::State stateShown = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    return (option.state & stateShown) == stateShown;
}

void DrawFocus(QPainter& painter, const QRect& rc)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Theme::c_rgbFocus));
    painter.drawRoundedRect(QRectF(rc).adjusted(0.5, 0.5, -0.5, -0.5), c_dFocusRadius, c_dFocusRadius);
    painter.restore();
}

void DrawFocusInside(QPainter& painter, const QRect& rcControl)
{
    DrawFocus(painter, rcControl.adjusted(c_nFocusMargin, c_nFocusMargin, -c_nFocusMargin, -c_nFocusMargin));
}

} // namespace

COutlinedStyle::COutlinedStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{}

QPalette COutlinedStyle::Outlined(const QPalette& palette) const
{
    auto itFound = m_hashOutlined.find(palette.cacheKey());
    if (itFound == m_hashOutlined.end()) {
        if (m_hashOutlined.size() >= c_nMaxPalettes)
            m_hashOutlined.clear();
        itFound = m_hashOutlined.insert(palette.cacheKey(), WithOutlines(palette));
    }
    QPalette outlined = *itFound;
    // Not part of the key.
    outlined.setCurrentColorGroup(palette.currentColorGroup());
    return outlined;
}

/// @param funcDraw draws with an option of the same class
/// @return false when the option is of another class
template <class TOption, class TDraw>
bool COutlinedStyle::DrawOutlined(const QStyleOption* pOption, TDraw funcDraw) const
{
    const auto* pKnown = qstyleoption_cast<const TOption*>(pOption);
    if (pKnown == nullptr)
        return false;
    TOption option = *pKnown;
    option.palette = Outlined(option.palette);
    // Fields show the focus by their outline. In what is pressed Fusion's own hardly shows; `DrawFocus` does.
    if (!std::is_same_v<TOption, QStyleOptionFrame> && !std::is_same_v<TOption, QStyleOptionSpinBox>)
        option.state.setFlag(State_HasFocus, false);
    funcDraw(&option);
    return true;
}

void COutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* pOption, QPainter* pPainter,
                                   const QWidget* pWidget) const
{
    if (element == PE_FrameFocusRect)
        return DrawFocus(*pPainter, pOption->rect);
    if (element == PE_FrameTabWidget)
        return DrawPane(*pPainter, *pOption);
    const auto Draw = [&](const QStyleOption* pDrawn) {
        QProxyStyle::drawPrimitive(element, pDrawn, pPainter, pWidget);
    };
    const bool bDrawn =
        Contains(c_arrOutlined, element) &&
        (DrawOutlined<QStyleOptionButton>(pOption, Draw) || DrawOutlined<QStyleOptionFrame>(pOption, Draw) ||
         DrawOutlined<QStyleOptionViewItem>(pOption, Draw));
    if (!bDrawn)
        Draw(pOption);
    if (element == PE_PanelButtonCommand && IsFocusShown(*pOption))
        DrawFocusInside(*pPainter, pOption->rect);
}

void COutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* pOption,
                                        QPainter* pPainter, const QWidget* pWidget) const
{
    const auto Draw = [&](const QStyleOptionComplex* pDrawn) {
        QProxyStyle::drawComplexControl(control, pDrawn, pPainter, pWidget);
    };
    const bool bDrawn =
        Contains(c_arrOutlinedControls, control) &&
        (DrawOutlined<QStyleOptionComboBox>(pOption, Draw) ||
         DrawOutlined<QStyleOptionSpinBox>(pOption, Draw) || DrawOutlined<QStyleOptionSlider>(pOption, Draw));
    if (!bDrawn)
        Draw(pOption);
    if (control == CC_ComboBox && IsFocusShown(*pOption))
        DrawFocusInside(*pPainter, pOption->rect);
}

QIcon COutlinedStyle::standardIcon(StandardPixmap sign, const QStyleOption* pOption,
                                   const QWidget* pWidget) const
{
    const auto* const pSign = std::find_if(std::cbegin(c_arrSigns), std::cend(c_arrSigns),
                                           [sign](const SSign& known) { return known.sign == sign; });
    return pSign == std::cend(c_arrSigns) ? QProxyStyle::standardIcon(sign, pOption, pWidget)
                                          : QIcon(QString::fromLatin1(pSign->szFile));
}
