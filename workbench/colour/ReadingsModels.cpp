#include "workbench/colour/ReadingsModels.h"

#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/colour/ColourStandards.h"

namespace {

constexpr int c_nCoordinateDigits = 4;
constexpr double c_dPerCent = 100.0;

const QString c_strNone = QStringLiteral("–");

QString Coordinate(double dValue)
{
    return QString::number(dValue, 'f', c_nCoordinateDigits);
}

QString PerCent(double dPart)
{
    return QStringLiteral("%1 %").arg(dPart * c_dPerCent, 0, 'f', 1);
}

QString Kelvin(double dKelvin)
{
    return QStringLiteral("%1 K").arg(dKelvin, 0, 'f', 0);
}

/// "611.3 nm", or for purples the complementary wavelength with the sign that CIE gives it: "549.1c nm".
QString Wavelength(const SpectralWavelength::SDominant& dominant)
{
    if (dominant.dominant)
        return QStringLiteral("%1 nm").arg(*dominant.dominant, 0, 'f', 1);
    if (dominant.complementary)
        return QStringLiteral("%1c nm").arg(*dominant.complementary, 0, 'f', 1);
    return c_strNone;
}

QString Signed(double dValue)
{
    return (dValue < 0.0 ? QString() : QStringLiteral("+")) + Coordinate(dValue);
}

QString WhiteText(const SGroupReadings& readings, int nRow)
{
    if (nRow == CPointReadingsModel::enDaylight)
        return readings.daylight ? Kelvin(*readings.daylight) : c_strNone;
    if (!readings.correlated)
        return c_strNone;
    if (nRow == CPointReadingsModel::enCorrelated)
        return Kelvin(readings.correlated->dKelvin);
    return nRow == CPointReadingsModel::enDuv ? Signed(readings.correlated->dDuv) : QString();
}

QString ShareText(const CColourResult<Primaries::SLuminances>& shares, int nColumn)
{
    if (!shares)
        return c_strNone;
    const double arrShares[] = {shares->dRed, shares->dGreen, shares->dBlue};
    return PerCent(arrShares[nColumn]);
}

QString PrimaryText(const SGroupReadings& readings, int nRow, int nColumn)
{
    if (nRow == CPointReadingsModel::enShare)
        return ShareText(readings.shares, nColumn);
    const bool bSpectral = nRow == CPointReadingsModel::enWavelength || nRow == CPointReadingsModel::enPurity;
    if (!bSpectral)
        return QString();
    const auto& dominant = readings.arrDominant[std::size_t(nColumn)];
    if (!dominant)
        return c_strNone;
    return nRow == CPointReadingsModel::enWavelength ? Wavelength(*dominant) : PerCent(dominant->dPurity);
}

} // namespace

void CReadingsModel::SetReadings(const std::optional<SGroupReadings>& readings)
{
    m_readings = readings;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), {Qt::DisplayRole});
}

void CReadingsModel::Retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

QVariant CReadingsModel::data(const QModelIndex& index, int nRole) const
{
    if (nRole == Qt::TextAlignmentRole)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    if (nRole != Qt::DisplayRole || !index.isValid() || !m_readings)
        return {};
    return CellText(*m_readings, index.row(), index.column());
}

int CPointReadingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enRowCount);
}

int CPointReadingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(SGroupReadings::c_nPoints);
}

QVariant CPointReadingsModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (orientation == Qt::Horizontal && nRole == Qt::DisplayRole)
        return QStringList{tr("红"), tr("绿"), tr("蓝"), tr("白")}.value(nSection);
    if (orientation != Qt::Vertical)
        return {};
    if (nRole == Qt::ToolTipRole)
        return QStringList{tr("CIE 1976 均匀色度坐标"),
                           tr("CIE 1976 均匀色度坐标"),
                           tr("相对本组白点的主波长；c 表示补色波长"),
                           tr("兴奋纯度"),
                           tr("各基色在白点亮度中的比例"),
                           tr("普朗克轨迹上最近点的温度"),
                           tr("到普朗克轨迹的距离，偏绿为正"),
                           tr("日光轨迹上最近点的温度")}
            .value(nSection);
    if (nRole == Qt::DisplayRole)
        return QStringList{QStringLiteral("u'"), QStringLiteral("v'"), tr("主波长"), tr("纯度"),
                           tr("亮度比例"),       tr("相关色温"),       tr("Duv"),    tr("日光色温")}
            .value(nSection);
    return {};
}

QString CPointReadingsModel::CellText(const SGroupReadings& readings, int nRow, int nColumn) const
{
    if (nRow == enU)
        return Coordinate(readings.arrUcs[std::size_t(nColumn)].dU);
    if (nRow == enV)
        return Coordinate(readings.arrUcs[std::size_t(nColumn)].dV);
    return nColumn == enWhitePoint ? WhiteText(readings, nRow) : PrimaryText(readings, nRow, nColumn);
}

int CCoverageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(Gamut::c_nStandards);
}

int CCoverageModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enColumnCount);
}

QVariant CCoverageModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (nRole != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return QString::fromLatin1(c_arrColourStandards[nSection].szName);
    return QStringList{tr("覆盖 xy"), tr("覆盖 u'v'"), tr("面积 xy"), tr("面积 u'v'")}.value(nSection);
}

QString CCoverageModel::CellText(const SGroupReadings& readings, int nRow, int nColumn) const
{
    if (!readings.coverage)
        return c_strNone;
    const Gamut::SStandardCoverage& standard = (*readings.coverage)[std::size_t(nRow)];
    const double arrParts[] = {standard.xy.dCovered, standard.ucs.dCovered, standard.xy.dAreaRatio,
                               standard.ucs.dAreaRatio};
    return PerCent(arrParts[nColumn]);
}
