#include "host/OrviControl/Style.h"

#include "host/QtCompat.h"
#include "simulator/OrviControl/Theme.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>

QString g_labelNoFrameStyle = Theme::Resolve("QLabel{background:transparent; color:@text@; border:none;}"
                                             "QLabel:disabled{color:@text-disabled@;}");

QString g_labelWarnStyle = Theme::Resolve("QLabel{background:transparent; color:@warning@; border:none;}");

QString g_pushButtonStyle =
    Theme::Resolve("QPushButton{background:@button@; color:@text@; border:1px solid @edge@; "
                   "border-radius:4px; padding:0px 4px; outline:none;}"
                   "QPushButton:hover{background:@button-hover@;}"
                   "QPushButton:pressed{background:@button-pressed@;}"
                   "QPushButton:focus{border:2px solid @focus@; padding:0px 3px;}"
                   "QPushButton:disabled{color:@text-disabled@; background:@button-disabled@;}");

QString g_menuStyle =
    Theme::Resolve("QMenu{background:@field@; color:@text@; border:1px solid @edge@; padding:2px 0px;}"
                   "QMenu::item{padding:4px 12px 4px 26px;}"
                   "QMenu::item:selected{background:@selection@;}"
                   "QMenu::item:disabled{color:@text-disabled@;}"
                   "QMenu::separator{height:1px; background:@button@; margin:2px 6px;}"
                   "QMenu::indicator{width:14px; height:14px; left:6px;}"
                   "QMenu::indicator:checked{image:url(:/OrviControl/icons/check.svg);}"
                   "QMenu::indicator:checked:disabled{image:url(:/OrviControl/icons/check-disabled.svg);}");

QString g_checkBoxStyle = Theme::Resolve(
    "QCheckBox{color:@text@; spacing:6px; outline:none;}"
    "QCheckBox:disabled{color:@text-disabled@;}"
    "QCheckBox::indicator{width:14px; height:14px; background:@field@; border:1px solid @edge@; "
    "border-radius:3px;}"
    "QCheckBox::indicator:hover{border:1px solid @focus@;}"
    "QCheckBox::indicator:focus{width:12px; height:12px; border:2px solid @focus@;}"
    "QCheckBox::indicator:checked:focus{border:2px solid @text@;}"
    "QCheckBox::indicator:checked{background:@accent@; image:url(:/OrviControl/icons/check.svg);}"
    "QCheckBox::indicator:disabled{background:@button-disabled@; border:1px solid @edge-disabled@;}"
    "QCheckBox::indicator:checked:disabled{image:url(:/OrviControl/icons/check-disabled.svg);}");

QString g_doubleSpinBoxStyle = Theme::Resolve(
    "QDoubleSpinBox{background:@field@; color:@text@; border:1px solid @edge@; border-radius:4px; "
    "padding-left:2px;"
    " selection-background-color:@selection@; selection-color:@text@;}"
    "QDoubleSpinBox:focus{border:2px solid @focus@; padding-left:1px;}"
    "QDoubleSpinBox:disabled{color:@text-disabled@; background:@field-disabled@;}"
    "QDoubleSpinBox::up-button,QDoubleSpinBox::down-button{subcontrol-origin:padding; width:14px; "
    "border:none;"
    " background:@button@;}"
    "QDoubleSpinBox::up-button{subcontrol-position:top right; "
    "border-top-right-radius:3px;}"
    "QDoubleSpinBox::down-button{subcontrol-position:bottom right;"
    " border-bottom-right-radius:3px;}"
    "QDoubleSpinBox::up-button:hover,QDoubleSpinBox::down-button:hover{background:@button-hover@;}"
    "QDoubleSpinBox::up-button:pressed,QDoubleSpinBox::down-button:pressed{background:@button-pressed@;}"
    "QDoubleSpinBox::up-button:disabled,QDoubleSpinBox::down-button:disabled{background:@button-disabled@;}"
    "QDoubleSpinBox::up-arrow{image:url(:/OrviControl/icons/arrow-up.svg); width:8px; height:5px;}"
    "QDoubleSpinBox::up-arrow:disabled,QDoubleSpinBox::up-arrow:off"
    "{image:url(:/OrviControl/icons/arrow-up-disabled.svg);}"
    "QDoubleSpinBox::down-arrow{image:url(:/OrviControl/icons/arrow-down.svg); width:8px; height:5px;}"
    "QDoubleSpinBox::down-arrow:disabled,QDoubleSpinBox::down-arrow:off"
    "{image:url(:/OrviControl/icons/arrow-down-disabled.svg);}");

namespace {

/// Fonts that are known to draw Latin and Chinese well at small sizes, best first.
constexpr std::array<const char*, 4> c_arrPreferredFamilies = {"Noto Sans CJK SC", "Noto Sans SC",
                                                               "Source Han Sans SC", "WenQuanYi Micro Hei"};

bool HasLatinAndChinese(const QString& strFamily)
{
    const QList<QFontDatabase::WritingSystem> listSystems = QtCompat::WritingSystems(strFamily);
    return listSystems.contains(QFontDatabase::Latin) &&
           listSystems.contains(QFontDatabase::SimplifiedChinese);
}

/// A preferred font, else the desktop's own, else any that has both scripts.
QString ChooseFamily()
{
    const QString strSystem = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    QStringList listCandidates;
    for (const char* szFamily : c_arrPreferredFamilies)
        listCandidates.append(QString::fromLatin1(szFamily));
    listCandidates.append(strSystem);
    listCandidates.append(QtCompat::FontFamilies(QFontDatabase::SimplifiedChinese));
    const auto itFound = std::find_if(listCandidates.cbegin(), listCandidates.cend(), HasLatinAndChinese);
    return itFound == listCandidates.cend() ? strSystem : *itFound;
}

/// Gives a family a fallback in which control characters are empty and have no width. Library texts use them
/// as fill characters, and common fonts have no glyphs for them, so they would appear as boxes.
void HideControlCharacters(const QString& strFamily)
{
    QFile file(QStringLiteral(":/OrviControl/fonts/control-characters.ttf"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const int nFont = QFontDatabase::addApplicationFontFromData(file.readAll());
    for (const QString& strFallback : QFontDatabase::applicationFontFamilies(nFont))
        QFont::insertSubstitution(strFamily, strFallback);
}

/// What the host adds to the style of a widget class, behind the caller's own text.
struct SAddition
{
    const char* szSelector;
    const char* szStyle;
};

/// Text fields bring a style of their own, whose outline does not stand out from the window.
constexpr std::array<SAddition, 1> c_arrAdditions = {
    {{"QLineEdit", "QLineEdit[frame=\"true\"]{border:1px solid @edge@; padding:0px 1px;"
                   " selection-background-color:@selection@; selection-color:@text@;}"
                   "QLineEdit[frame=\"true\"]:focus{border:2px solid @focus@; padding:0px;}"}}};

/// The host's addition for a widget class; empty for most.
QString Addition(const QString& strSelector)
{
    const auto itFound =
        std::find_if(c_arrAdditions.cbegin(), c_arrAdditions.cend(), [&](const SAddition& addition) {
            return strSelector == QLatin1String(addition.szSelector);
        });
    return itFound == c_arrAdditions.cend() ? QString() : Theme::Resolve(itFound->szStyle);
}

QString PrepareFamily()
{
    QString strFamily = ChooseFamily();
    HideControlCharacters(strFamily);
    return strFamily;
}

} // namespace

QString GetFontFamily()
{
    static const QString s_strFamily = PrepareFamily();
    return s_strFamily;
}

QString GetFontStyleSheet(QString strStyle, QString strSelector, int nFontSize)
{
    strStyle += Addition(strSelector);
    strSelector +=
        QStringLiteral("{font-family:\"%1\"; font-size:%2px;}").arg(GetFontFamily()).arg(nFontSize);
    strStyle += strSelector;
    return strStyle;
}
