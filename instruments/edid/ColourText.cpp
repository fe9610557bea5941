#include "instruments/edid/ColourText.h"

#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "instruments/edid/BaseLayout.h"

#include <QStringList>

namespace Edid {

namespace {

/// The two coordinates of a point stand in neighbouring rows.
CPointEx<float> Point(const quint8* pBlock, int nRowX)
{
    const auto Coordinate = [=](int nRow) {
        const SFieldType& type = c_layoutBase[nRow];
        return float(double(Get(pBlock, type)) * type.dScale);
    };
    return {Coordinate(nRowX), Coordinate(nRowX + 1)};
}

QString CoverageOf(std::vector<CPointEx<float>> vecGamut, const SColourStandard& standard)
{
    std::vector<CPointEx<float>> vecStandard = {standard.ptRed, standard.ptGreen, standard.ptBlue};
    float fRatio = 0.0F;
    CCalcChromaRatio().CalcChromaRatio(vecGamut, vecStandard, fRatio);
    constexpr double c_dPercent = 100.0;
    return QStringLiteral("%1 %2 %").arg(QString::fromLatin1(standard.szName),
                                         QString::number(double(fRatio) * c_dPercent, 'f', 1));
}

} // namespace

QString CoverageText(const quint8* pBlock)
{
    const std::vector<CPointEx<float>> vecGamut = {Point(pBlock, enRedX), Point(pBlock, enGreenX),
                                                   Point(pBlock, enBlueX)};
    QStringList listCoverages;
    for (const SColourStandard& standard : c_arrColourStandards)
        listCoverages += CoverageOf(vecGamut, standard);
    return listCoverages.join(QStringLiteral(", "));
}

QString TemperatureText(const quint8* pBlock)
{
    static const CCCT2ColorCoord s_converter;
    const CPointEx<float> pt = Point(pBlock, enWhiteX);
    float fKelvin = 0.0F;
    if (!s_converter.TriangAlgCalcRelativeCCT(QPointF(double(pt.x), double(pt.y)), &fKelvin, true))
        return QStringLiteral("not from 4000 to 25000 K");
    return QStringLiteral("%1 K").arg(qRound(fKelvin));
}

} // namespace Edid
