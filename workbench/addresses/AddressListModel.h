#ifndef WORKBENCH_ADDRESSES_ADDRESSLISTMODEL_H
#define WORKBENCH_ADDRESSES_ADDRESSLISTMODEL_H

#include <QAbstractTableModel>

/// The processor addresses of the simulated project: address, displayed name, and the state
/// of the entry.
class CAddressListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum enColumn
    {
        enAddress,
        enName,
        enState,
        enColumnCount
    };

    explicit CAddressListModel(QObject* pParent = nullptr);

    /// Reads the list again.
    void Refresh();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

private:
    QString StateText(int nRow) const;
};

#endif // WORKBENCH_ADDRESSES_ADDRESSLISTMODEL_H
