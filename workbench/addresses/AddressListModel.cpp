#include "workbench/addresses/AddressListModel.h"

#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"

namespace {

const SAddressLists& Lists()
{
    return CSimulator::Instance().Project().addresses;
}

} // namespace

CAddressListModel::CAddressListModel(QObject* pParent)
    : QAbstractTableModel(pParent)
{}

void CAddressListModel::Refresh()
{
    beginResetModel();
    endResetModel();
}

int CAddressListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(Lists().listStored.size());
}

int CAddressListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(enColumnCount);
}

QString CAddressListModel::StateText(int nRow) const
{
    const SAddressLists& lists = Lists();
    if (lists.listCurSet.value(nRow) != lists.listStored.value(nRow))
        return tr("改为 %1，尚未应用").arg(lists.listCurSet.value(nRow));
    if (lists.listOriginal.value(nRow) != lists.listStored.value(nRow))
        return tr("原为 %1").arg(lists.listOriginal.value(nRow));
    return tr("原样");
}

QVariant CAddressListModel::data(const QModelIndex& index, int nRole) const
{
    if (nRole != Qt::DisplayRole)
        return {};
    const QString strEntry = Lists().listStored.value(index.row());
    switch (index.column()) {
    case enAddress:
        return EntryAddress(strEntry);
    case enName:
        return EntryName(EntryWithName(strEntry));
    default:
        return StateText(index.row());
    }
}

QVariant CAddressListModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (nRole != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return nSection + 1;
    const QString arrTitles[] = {tr("地址"), tr("名称"), tr("状态")};
    return arrTitles[nSection];
}
