#include "workbench/colour/ModuleModel.h"

#include "workbench/colour/MeasuredWall.h"

#include <QColor>

namespace {

constexpr int c_nUcsDigits = 4;
constexpr double c_dPerCent = 100.0;

/// Background of the rows of odd modules, which a word marks too.
const QColor c_clrOdd(255, 140, 150);

const ModuleWall::SModuleSpread& SpreadOf(const CMeasuredWall& wall, int nRow)
{
    return wall.Analysis()->spread.vecModules[std::size_t(nRow)];
}

double UcsOf(const ModuleWall::SModuleSpread& spread, int nColumn)
{
    return spread.arrColours[std::size_t(nColumn - CModuleModel::enRedUcs)].dUcs;
}

QString SignedPerCent(double dPart)
{
    return QStringLiteral("%1%2 %")
        .arg(dPart < 0.0 ? QString() : QStringLiteral("+"))
        .arg(dPart * c_dPerCent, 0, 'f', 1);
}

} // namespace

CModuleModel::CModuleModel(const CMeasuredWall& wall, QObject* pParent)
    : QAbstractTableModel(pParent)
    , m_wall(wall)
{
    connect(&wall, &CMeasuredWall::Changed, this, [this] {
        beginResetModel();
        endResetModel();
    });
}

int CModuleModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_wall.Analysis() ? 0 : int(m_wall.GetModules().size());
}

int CModuleModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enColumnCount);
}

void CModuleModel::Retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, enColumnCount - 1);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, enOdd), index(rowCount() - 1, enOdd));
}

QVariant CModuleModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (nRole == Qt::ToolTipRole && nSection >= enRedUcs && nSection <= enWhiteUcs)
        return tr("到全屏均值的 u'v' 距离");
    if (nRole == Qt::ToolTipRole && nSection == enLuminance)
        return tr("与均值相差最大的亮度");
    if (nRole != Qt::DisplayRole)
        return {};
    return QStringList{tr("模组"), tr("异常"), tr("红"), tr("绿"), tr("蓝"), tr("白"), QStringLiteral("ΔY")}
        .value(nSection);
}

QString CModuleModel::Text(int nRow, int nColumn) const
{
    const ModuleWall::SModuleSpread& spread = SpreadOf(m_wall, nRow);
    if (nColumn == enName)
        return m_wall.GetModules()[std::size_t(nRow)].strName;
    if (nColumn == enLuminance)
        return SignedPerCent(spread.worst.dLuminance);
    if (nColumn != enOdd)
        return QString::number(UcsOf(spread, nColumn), 'f', c_nUcsDigits);
    if (spread.bOddColour && spread.bOddLuminance)
        return tr("颜色、亮度");
    if (spread.bOddColour)
        return tr("颜色");
    return spread.bOddLuminance ? tr("亮度") : QString();
}

QVariant CModuleModel::SortValue(int nRow, int nColumn) const
{
    const ModuleWall::SModuleSpread& spread = SpreadOf(m_wall, nRow);
    if (nColumn == enName)
        return nRow; // the order of the file
    if (nColumn == enLuminance)
        return spread.worst.dLuminance;
    return nColumn == enOdd ? int(spread.bOddColour) + int(spread.bOddLuminance) : UcsOf(spread, nColumn);
}

QVariant CModuleModel::data(const QModelIndex& index, int nRole) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (nRole == Qt::DisplayRole)
        return Text(index.row(), index.column());
    if (nRole == c_nSortRole)
        return SortValue(index.row(), index.column());
    if (nRole == Qt::ForegroundRole && SpreadOf(m_wall, index.row()).IsOdd())
        return c_clrOdd;
    if (nRole == Qt::TextAlignmentRole && index.column() >= enRedUcs)
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}
