#include "instruments/colour/StandardNames.h"

#include "SenderModuleDialog/colour/ColourStandards.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

/// Another name of a standard colour space.
struct SOtherName
{
    const char* szLabel; ///< as `SColourStandard::szName`
    const char* szName;
};

/// Names in use for the same primaries. Display P3 and the DCIP3 of this table both have the white D65.
constexpr SOtherName c_arrOtherNames[] = {
    {"sRGB", "IEC 61966-2-1"}, {"AdobeRGB", "Adobe RGB (1998)"},
    {"Rec601", "BT.601"},      {"Rec601", "ITU-R BT.601"},
    {"Rec709", "BT.709"},      {"Rec709", "ITU-R BT.709"},
    {"Rec2020", "BT.2020"},    {"Rec2020", "ITU-R BT.2020"},
    {"Rec2020", "BT.2100"},    {"DCIP3", "P3"},
    {"DCIP3", "Display P3"},   {"DCIP3", "P3-D65"},
};

/// A name reduced to what tells standards apart: its letters and digits, in lower case.
QString Simplified(const QString& strName)
{
    QString strSimplified;
    std::copy_if(strName.begin(), strName.end(), std::back_inserter(strSimplified),
                 [](QChar ch) { return ch.isLetterOrNumber(); });
    return strSimplified.toLower();
}

} // namespace

const SColourStandard* FindColourStandard(const QString& strName)
{
    const QString strWanted = Simplified(strName);
    const auto HasName = [&strWanted](const SColourStandard& standard) {
        const QStringList listNames = OtherNames(standard) + QStringList{QLatin1String(standard.szName)};
        return std::any_of(listNames.begin(), listNames.end(), [&strWanted](const QString& strOther) {
            return Simplified(strOther) == strWanted;
        });
    };
    const auto* const pEnd = std::end(c_arrColourStandards);
    const auto* const pStandard = std::find_if(std::begin(c_arrColourStandards), pEnd, HasName);
    return pStandard == pEnd ? nullptr : pStandard;
}

QStringList OtherNames(const SColourStandard& standard)
{
    QStringList listNames;
    for (const SOtherName& row : c_arrOtherNames) {
        if (std::strcmp(row.szLabel, standard.szName) == 0)
            listNames += QString::fromLatin1(row.szName);
    }
    return listNames;
}

QString StandardLabels()
{
    QStringList listLabels;
    for (const SColourStandard& standard : c_arrColourStandards)
        listLabels += QString::fromLatin1(standard.szName);
    return listLabels.join(QStringLiteral(", "));
}
