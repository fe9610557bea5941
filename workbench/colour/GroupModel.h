#ifndef WORKBENCH_COLOUR_GROUPMODEL_H
#define WORKBENCH_COLOUR_GROUPMODEL_H

#include <QAbstractTableModel>

class CChartEditor;
struct SChromaGroupInfo;

/// The chart's live groups, one per column, with their settings in rows. Edits go through the editor.
///
/// A point's cell holds its chromaticity, checked while the point may be dragged. A checked colour cell means
/// that the group has its own colour.
class CGroupModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum enRow
    {
        enName,
        enVisible,
        enMode,
        enRed,
        enGreen,
        enBlue,
        enWhite,
        enColour,
        enNote,
        enRowCount
    };

    explicit CGroupModel(CChartEditor& editor, QObject* pParent = nullptr);

    /// Reads the groups again.
    void Refresh();
    /// Key of the group in a column, -1 for none.
    int Key(int nColumn) const { return m_listKeys.value(nColumn, -1); }
    /// Column of a key, -1 for none.
    int Column(int nKey) const { return int(m_listKeys.indexOf(nKey)); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int nRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int nRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;

    /// Names of the rows in the current language.
    static QString RowName(int nRow);
    /// The group's name as shown in the legend.
    static QString GroupName(const SChromaGroupInfo& group);

Q_SIGNALS:
    /// An edit was rejected, with the reason.
    void Refused(const QString& strText);

private:
    SChromaGroupInfo* Group(int nColumn) const;
    bool SetTick(int nRow, SChromaGroupInfo& group, bool bSet);
    bool SetValue(int nRow, SChromaGroupInfo& group, const QVariant& value);
    bool SetPoint(int nPoint, SChromaGroupInfo& group, const QString& strText);

    CChartEditor& m_editor;
    QList<int> m_listKeys;
};

#endif // WORKBENCH_COLOUR_GROUPMODEL_H
