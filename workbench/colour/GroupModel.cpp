#include "workbench/colour/GroupModel.h"

#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "workbench/colour/ChartEditor.h"

#include <QBrush>
#include <QColor>

namespace {

/// The field behind a row's check box; null for rows without one.
bool SChromaGroupInfo::*TickOf(int nRow)
{
    static constexpr bool SChromaGroupInfo::*c_arrTicks[CGroupModel::enRowCount] = {
        nullptr,
        &SChromaGroupInfo::bVisible,
        nullptr,
        &SChromaGroupInfo::bMoveRed,
        &SChromaGroupInfo::bMoveGreen,
        &SChromaGroupInfo::bMoveBlue,
        &SChromaGroupInfo::bMoveWhite,
        &SChromaGroupInfo::bOwnColor,
        &SChromaGroupInfo::bShowNote};
    return c_arrTicks[nRow];
}

/// The point whose chromaticity a row shows, `enNoPoint` for none.
int PointOf(int nRow)
{
    return nRow >= CGroupModel::enRed && nRow <= CGroupModel::enWhite ? nRow - CGroupModel::enRed : enNoPoint;
}

bool IsNameFixed(const SChromaGroupInfo& group)
{
    return ColourGroups::IsCoverageKey(group.nGroupKey);
}

QString ModeName(bool bRgb)
{
    return bRgb ? QStringLiteral("RGB") : QStringLiteral("CMY");
}

QColor ColourOf(const SChromaGroupInfo& group)
{
    return {group.nColorR, group.nColorG, group.nColorB};
}

QVariant Text(int nRow, const SChromaGroupInfo& group)
{
    if (nRow == CGroupModel::enName)
        return CGroupModel::GroupName(group);
    if (nRow == CGroupModel::enMode)
        return ModeName(group.bRgbMode);
    if (nRow == CGroupModel::enColour)
        return ColourOf(group).name();
    const int nPoint = PointOf(nRow);
    return nPoint == enNoPoint ? QVariant()
                               : QVariant(ColourGroups::PointText(GroupPointOrOrigin(group, nPoint)));
}

QString Hint(int nRow)
{
    if (PointOf(nRow) != enNoPoint)
        return CGroupModel::tr("勾选：可以在图上拖动。双击：输入 x, y。");
    if (nRow == CGroupModel::enColour)
        return CGroupModel::tr("勾选：使用自己的颜色，否则按显示顺序取色。双击：选择颜色。");
    return {};
}

} // namespace

CGroupModel::CGroupModel(CChartEditor& editor, QObject* pParent)
    : QAbstractTableModel(pParent)
    , m_editor(editor)
    , m_listKeys(editor.Chart().m_mapGroups.keys())
{}

void CGroupModel::Refresh()
{
    const QList<int> listKeys = m_editor.Chart().m_mapGroups.keys();
    if (listKeys != m_listKeys) {
        beginResetModel();
        m_listKeys = listKeys;
        endResetModel();
        return;
    }
    if (m_listKeys.isEmpty())
        return;
    Q_EMIT dataChanged(index(0, 0), index(enRowCount - 1, int(m_listKeys.size()) - 1));
    Q_EMIT headerDataChanged(Qt::Vertical, 0, enRowCount - 1);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, int(m_listKeys.size()) - 1);
}

SChromaGroupInfo* CGroupModel::Group(int nColumn) const
{
    return m_editor.Chart().GetChromaGroupByIndex(Key(nColumn));
}

int CGroupModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enRowCount);
}

int CGroupModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_listKeys.size());
}

QString CGroupModel::RowName(int nRow)
{
    const QString arrNames[enRowCount] = {tr("名称"),    tr("显示"),      tr("模式"),
                                          tr("红 / 青"), tr("绿 / 品红"), tr("蓝 / 黄"),
                                          tr("白"),      tr("颜色"),      tr("图例")};
    return arrNames[nRow];
}

QString CGroupModel::GroupName(const SChromaGroupInfo& group)
{
    if (group.nGroupKey == enOutputColorSpace)
        return tr("输出色彩空间");
    if (group.nGroupKey == enScreenColorSpace)
        return tr("屏幕色彩空间");
    return group.strName;
}

QVariant CGroupModel::data(const QModelIndex& index, int nRole) const
{
    const SChromaGroupInfo* pGroup = Group(index.column());
    if (pGroup == nullptr)
        return {};
    const int nRow = index.row();
    switch (nRole) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return Text(nRow, *pGroup);
    case Qt::CheckStateRole:
        if (TickOf(nRow) == nullptr)
            return {};
        return pGroup->*TickOf(nRow) ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
        return nRow == enColour ? QVariant(ColourOf(*pGroup)) : QVariant();
    case Qt::ToolTipRole:
        return Hint(nRow);
    default:
        return {};
    }
}

Qt::ItemFlags CGroupModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const SChromaGroupInfo* pGroup = Group(index.column());
    if (pGroup == nullptr)
        return flags;
    if (TickOf(index.row()) != nullptr)
        flags |= Qt::ItemIsUserCheckable;
    const bool bName = index.row() == enName && !IsNameFixed(*pGroup);
    if (bName || index.row() == enMode || PointOf(index.row()) != enNoPoint)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant CGroupModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (orientation == Qt::Vertical)
        return nRole == Qt::DisplayRole ? RowName(nSection) : QVariant();
    const SChromaGroupInfo* pGroup = Group(nSection);
    if (pGroup == nullptr)
        return {};
    if (nRole == Qt::ToolTipRole)
        return tr("%1，键 %2").arg(GroupName(*pGroup)).arg(pGroup->nGroupKey);
    return nRole == Qt::DisplayRole ? GroupName(*pGroup) : QVariant();
}

bool CGroupModel::setData(const QModelIndex& index, const QVariant& value, int nRole)
{
    SChromaGroupInfo* pGroup = Group(index.column());
    if (pGroup == nullptr)
        return false;
    const int nRow = index.row();
    return m_editor.Change(tr("更改%1").arg(RowName(nRow)), [&] {
        return nRole == Qt::CheckStateRole ? SetTick(nRow, *pGroup, value.toInt() == Qt::Checked)
                                           : SetValue(nRow, *pGroup, value);
    });
}

bool CGroupModel::SetTick(int nRow, SChromaGroupInfo& group, bool bSet)
{
    if (TickOf(nRow) == nullptr)
        return false;
    group.*TickOf(nRow) = bSet;
    return true;
}

bool CGroupModel::SetValue(int nRow, SChromaGroupInfo& group, const QVariant& value)
{
    if (PointOf(nRow) != enNoPoint)
        return SetPoint(PointOf(nRow), group, value.toString());
    switch (nRow) {
    case enName:
        group.strName = value.toString();
        return true;
    case enMode:
        ColourGroups::SetMode(group, value.toString() == ModeName(true));
        return true;
    case enColour: {
        const auto color = value.value<QColor>();
        group.bOwnColor = true;
        group.nColorR = quint8(color.red());
        group.nColorG = quint8(color.green());
        group.nColorB = quint8(color.blue());
        return true;
    }
    default:
        return false;
    }
}

bool CGroupModel::SetPoint(int nPoint, SChromaGroupInfo& group, const QString& strText)
{
    const std::optional<CPointEx<float>> point = ColourGroups::ParsePoint(strText);
    if (!point) {
        Q_EMIT Refused(
            tr("“%1”不是色度坐标。请输入 0 到 1 之间的两个数，例如 0.3127, 0.3290。").arg(strText));
        return false;
    }
    // An unchanged coordinate keeps the digits that are not shown.
    if (ColourGroups::PointText(GroupPoint(group, nPoint)) == ColourGroups::PointText(*point))
        return true;
    GroupPoint(group, nPoint) = *point;
    if (ColourGroups::MakeLegal(m_editor.Chart(), group, nPoint))
        return true;
    Q_EMIT Refused(tr("白点必须在光谱轨迹以内。"));
    return false;
}
