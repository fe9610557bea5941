#ifndef WORKBENCH_COLOUR_MODULEMODEL_H
#define WORKBENCH_COLOUR_MODULEMODEL_H

#include <QAbstractTableModel>

class CMeasuredWall;

/// The modules of the measured wall, one per row: how far each colour lies from the wall's mean, and whether
/// the module is odd.
class CModuleModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum enColumn
    {
        enName,
        enOdd,
        enRedUcs,
        enGreenUcs,
        enBlueUcs,
        enWhiteUcs,
        enLuminance,
        enColumnCount,
    };

    /// What rows are sorted by: a number, or the name.
    static constexpr int c_nSortRole = Qt::UserRole;

    explicit CModuleModel(const CMeasuredWall& wall, QObject* pParent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

    void Retranslate();

private:
    QString Text(int nRow, int nColumn) const;
    QVariant SortValue(int nRow, int nColumn) const;

    const CMeasuredWall& m_wall;
};

#endif // WORKBENCH_COLOUR_MODULEMODEL_H
