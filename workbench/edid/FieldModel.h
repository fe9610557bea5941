#ifndef WORKBENCH_EDID_FIELDMODEL_H
#define WORKBENCH_EDID_FIELDMODEL_H

#include "instruments/edid/Explanation.h"

#include <QAbstractItemModel>
#include <QVector>

#include <vector>

class CEdidDocument;

/// The fields of a document as a tree, beside the values of the EDID that it is compared with. What only the
/// other has is in a group at the end.
class CFieldModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum enColumn
    {
        enField,
        enValue,
        enOther,
        enColumnCount
    };

    explicit CFieldModel(CEdidDocument& document, QObject* pParent = nullptr);

    CEdidDocument& Document() const { return m_document; }
    /// Place in the document's fields of a row, -1 for one that the document does not have.
    int FieldOf(const QModelIndex& index) const;
    /// Offsets of a row's bytes in the document.
    QVector<int> BytesOf(const QModelIndex& index) const;
    /// Offsets in the other of the bytes of a row that is different.
    QVector<int> OtherBytesOf(const QModelIndex& index) const;
    bool IsDifferent(const QModelIndex& index) const;
    /// A group whose rows only say that something is not there.
    bool IsSilentGroup(const QModelIndex& index) const;
    /// The deepest row that holds a byte.
    QModelIndex IndexOfByte(int nOffset) const;
    QModelIndex IndexOfField(int nField) const;
    /// The next row that is different behind a row, or before it; beyond the end it begins anew.
    /// @return invalid when nothing is different
    QModelIndex NextDifference(const QModelIndex& index, bool bForward) const;
    /// Uses the texts of the current language.
    void Retranslate();

    QModelIndex index(int nRow, int nColumn, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int nRole = Qt::DisplayRole) const override;
    QVariant headerData(int nSection, Qt::Orientation orientation, int nRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Sets a field to a text as `Edid::SetField` takes it.
    bool setData(const QModelIndex& index, const QVariant& value, int nRole = Qt::EditRole) override;

Q_SIGNALS:
    /// A value was refused: what is wrong and what to write.
    void Refused(const QString& strText);

private:
    struct SRow
    {
        int nField = -1; ///< place in the document's fields
        int nOther = -1; ///< place in the other's fields, of a row that is different
        bool bDifferent = false;
        int nParent = -1; ///< row that holds it, -1 at the top
        int nPlace = 0;   ///< among the rows of its parent
        QVector<int> vecBelow;
    };

    static std::vector<SRow> RowsOf(const CEdidDocument& document);
    static int Append(std::vector<SRow>& vecRows, SRow row);
    void Refresh();
    bool HasShapeOf(const std::vector<SRow>& vecRows) const;
    void ReportValues(const QModelIndex& parent);
    QModelIndex IndexOfRow(int nRow, int nColumn = enField) const;
    const SRow* RowOf(const QModelIndex& index) const;
    const Edid::SField* FieldAt(const SRow& row) const;
    const Edid::SField* OtherAt(const SRow& row) const;
    QString Label(const SRow& row) const;
    QString OtherPath(int nOther) const;
    QString OtherValue(const SRow& row) const;

    CEdidDocument& m_document;
    std::vector<SRow> m_vecRows;
    QVector<int> m_vecTop;
    /// What the rows stand for: when it stays, only values change and the view keeps its place.
    std::vector<std::pair<const Edid::SFieldType*, int>> m_vecShape;
};

#endif // WORKBENCH_EDID_FIELDMODEL_H
