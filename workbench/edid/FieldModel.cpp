#include "workbench/edid/FieldModel.h"

#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/FieldEditing.h"
#include "workbench/edid/EdidColours.h"
#include "workbench/edid/EdidDocument.h"
#include "workbench/edid/EdidWords.h"

#include <QFont>

#include <algorithm>

namespace {

using Edid::SField;

/// What only says that something is not there.
bool IsSilent(const SField& field)
{
    const Edid::enKind kind = field.pType->kind;
    if (kind == Edid::enKind::enStandard)
        return field.nRaw == Edid::c_wUnusedStandard;
    return (kind == Edid::enKind::enFlag || kind == Edid::enKind::enEstablished) && field.nRaw == 0;
}

std::vector<std::pair<const Edid::SFieldType*, int>> ShapeOf(const std::vector<SField>& vecFields)
{
    std::vector<std::pair<const Edid::SFieldType*, int>> vecShape;
    for (const SField& field : vecFields)
        vecShape.emplace_back(field.pType, field.nOffset);
    return vecShape;
}

} // namespace

CFieldModel::CFieldModel(CEdidDocument& document, QObject* pParent)
    : QAbstractItemModel(pParent)
    , m_document(document)
{
    connect(&m_document, &CEdidDocument::Changed, this, &CFieldModel::Refresh);
    Refresh();
}

int CFieldModel::Append(std::vector<SRow>& vecRows, SRow row)
{
    const int nRow = int(vecRows.size());
    if (row.nParent >= 0) {
        QVector<int>& vecBelow = vecRows[std::size_t(row.nParent)].vecBelow;
        row.nPlace = int(vecBelow.size());
        vecBelow.append(nRow);
    } else {
        row.nPlace = int(std::count_if(vecRows.begin(), vecRows.end(),
                                       [](const SRow& other) { return other.nParent < 0; }));
    }
    vecRows.push_back(row);
    return nRow;
}

std::vector<CFieldModel::SRow> CFieldModel::RowsOf(const CEdidDocument& document)
{
    std::vector<SRow> vecRows;
    QVector<int> vecOpen; // the row above each depth
    for (std::size_t i = 0; i < document.Fields().size(); ++i) {
        SRow row;
        row.nField = int(i);
        vecOpen.resize(document.Fields()[i].nDepth);
        row.nParent = vecOpen.isEmpty() ? -1 : vecOpen.constLast();
        vecOpen.append(Append(vecRows, row));
    }
    int nGroup = -1;
    for (const Edid::SFieldPair& pair : document.Differences()) {
        if (pair.nFirst >= 0) {
            vecRows[std::size_t(pair.nFirst)].nOther = pair.nSecond;
            vecRows[std::size_t(pair.nFirst)].bDifferent = true;
            continue;
        }
        if (nGroup < 0)
            nGroup = Append(vecRows, {});
        SRow row;
        row.nOther = pair.nSecond;
        row.bDifferent = true;
        row.nParent = nGroup;
        Append(vecRows, row);
    }
    return vecRows;
}

bool CFieldModel::HasShapeOf(const std::vector<SRow>& vecRows) const
{
    const auto IsSame = [](const SRow& a, const SRow& b) {
        return a.nParent == b.nParent && a.nField == b.nField;
    };
    return vecRows.size() == m_vecRows.size() && m_vecShape == ShapeOf(m_document.Fields()) &&
           std::equal(vecRows.begin(), vecRows.end(), m_vecRows.begin(), IsSame);
}

void CFieldModel::Refresh()
{
    std::vector<SRow> vecRows = RowsOf(m_document);
    if (HasShapeOf(vecRows)) {
        m_vecRows = std::move(vecRows);
        ReportValues({});
        return;
    }
    beginResetModel();
    m_vecRows = std::move(vecRows);
    m_vecShape = ShapeOf(m_document.Fields());
    m_vecTop.clear();
    for (std::size_t i = 0; i < m_vecRows.size(); ++i)
        if (m_vecRows[i].nParent < 0)
            m_vecTop.append(int(i));
    endResetModel();
}

void CFieldModel::Retranslate()
{
    ReportValues({});
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, enColumnCount - 1);
}

void CFieldModel::ReportValues(const QModelIndex& parent)
{
    const int nRows = rowCount(parent);
    if (nRows == 0)
        return;
    Q_EMIT dataChanged(index(0, 0, parent), index(nRows - 1, enColumnCount - 1, parent));
    for (int nRow = 0; nRow < nRows; ++nRow)
        ReportValues(index(nRow, 0, parent));
}

const CFieldModel::SRow* CFieldModel::RowOf(const QModelIndex& index) const
{
    return index.isValid() ? &m_vecRows[std::size_t(index.internalId())] : nullptr;
}

const SField* CFieldModel::FieldAt(const SRow& row) const
{
    return row.nField < 0 ? nullptr : &m_document.Fields()[std::size_t(row.nField)];
}

const SField* CFieldModel::OtherAt(const SRow& row) const
{
    return row.nOther < 0 ? nullptr : &m_document.OtherFields()[std::size_t(row.nOther)];
}

int CFieldModel::FieldOf(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    return pRow == nullptr ? -1 : pRow->nField;
}

QVector<int> CFieldModel::BytesOf(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    const SField* pField = pRow == nullptr ? nullptr : FieldAt(*pRow);
    return pField == nullptr ? QVector<int>() : Edid::FieldOffsets(*pField);
}

QVector<int> CFieldModel::OtherBytesOf(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    const SField* pOther = pRow == nullptr ? nullptr : OtherAt(*pRow);
    return pOther == nullptr ? QVector<int>() : Edid::FieldOffsets(*pOther);
}

bool CFieldModel::IsDifferent(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    return pRow != nullptr && pRow->bDifferent;
}

bool CFieldModel::IsSilentGroup(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    return pRow != nullptr && !pRow->vecBelow.isEmpty() &&
           std::all_of(pRow->vecBelow.begin(), pRow->vecBelow.end(), [this](int nRow) {
               const SField* pField = FieldAt(m_vecRows[std::size_t(nRow)]);
               return pField != nullptr && IsSilent(*pField);
           });
}

QModelIndex CFieldModel::IndexOfRow(int nRow, int nColumn) const
{
    return createIndex(m_vecRows[std::size_t(nRow)].nPlace, nColumn, quintptr(nRow));
}

QModelIndex CFieldModel::IndexOfField(int nField) const
{
    // The rows of the fields come first, in the same order.
    return nField >= 0 && nField < int(m_document.Fields().size()) ? IndexOfRow(nField) : QModelIndex();
}

QModelIndex CFieldModel::IndexOfByte(int nOffset) const
{
    int nFound = -1;
    for (std::size_t i = 0; i < m_document.Fields().size(); ++i) {
        const SField& field = m_document.Fields()[i];
        const bool bDeeper = nFound < 0 || field.nDepth > m_document.Fields()[std::size_t(nFound)].nDepth;
        if (bDeeper && Edid::FieldOffsets(field).contains(nOffset))
            nFound = int(i);
    }
    return IndexOfField(nFound);
}

QModelIndex CFieldModel::NextDifference(const QModelIndex& index, bool bForward) const
{
    const int nRows = int(m_vecRows.size());
    const int nStep = bForward ? 1 : -1;
    int nRow = index.isValid() ? int(index.internalId()) : (bForward ? -1 : nRows);
    for (int i = 0; i < nRows; ++i) {
        nRow = (nRow + nStep + nRows) % nRows;
        if (m_vecRows[std::size_t(nRow)].bDifferent)
            return IndexOfRow(nRow);
    }
    return {};
}

QModelIndex CFieldModel::index(int nRow, int nColumn, const QModelIndex& parent) const
{
    const SRow* pParent = RowOf(parent);
    const QVector<int>& vecRows = pParent == nullptr ? m_vecTop : pParent->vecBelow;
    if (nRow < 0 || nRow >= vecRows.size() || nColumn < 0 || nColumn >= enColumnCount)
        return {};
    return createIndex(nRow, nColumn, quintptr(vecRows.at(nRow)));
}

QModelIndex CFieldModel::parent(const QModelIndex& index) const
{
    const SRow* pRow = RowOf(index);
    return pRow == nullptr || pRow->nParent < 0 ? QModelIndex() : IndexOfRow(pRow->nParent);
}

int CFieldModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0)
        return 0;
    const SRow* pParent = RowOf(parent);
    return int(pParent == nullptr ? m_vecTop.size() : pParent->vecBelow.size());
}

int CFieldModel::columnCount(const QModelIndex&) const
{
    return enColumnCount;
}

QString CFieldModel::OtherPath(int nOther) const
{
    const std::vector<SField>& vecFields = m_document.OtherFields();
    QStringList listLabels;
    int nDepth = vecFields[std::size_t(nOther)].nDepth + 1;
    for (int i = nOther; i >= 0 && nDepth > 0; --i) {
        if (vecFields[std::size_t(i)].nDepth >= nDepth)
            continue;
        nDepth = vecFields[std::size_t(i)].nDepth;
        listLabels.prepend(EdidWords::Label(vecFields[std::size_t(i)]));
    }
    return listLabels.join(QStringLiteral(" / "));
}

QString CFieldModel::Label(const SRow& row) const
{
    const SField* pField = FieldAt(row);
    if (pField != nullptr)
        return EdidWords::Label(*pField);
    return row.nOther < 0 ? tr("只在另一个中") : OtherPath(row.nOther);
}

/// Where nothing is different, the value is the same.
QString CFieldModel::OtherValue(const SRow& row) const
{
    const SField* pOther = OtherAt(row);
    if (pOther == nullptr)
        return row.bDifferent ? tr("没有") : QString();
    return EdidWords::Value(*pOther, reinterpret_cast<const quint8*>(m_document.Other().bytes.constData()));
}

QVariant CFieldModel::data(const QModelIndex& index, int nRole) const
{
    const SRow* pRow = RowOf(index);
    if (pRow == nullptr)
        return {};
    const SField* pField = FieldAt(*pRow);
    if (nRole == Qt::ForegroundRole && pRow->bDifferent)
        return EdidColours::c_clrChanged;
    if (nRole == Qt::EditRole)
        return pField == nullptr ? QString() : Edid::EditText(*pField, m_document.Bytes());
    if (nRole != Qt::DisplayRole && nRole != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case enField:
        return Label(*pRow);
    case enValue:
        return pField == nullptr ? QString() : EdidWords::Value(*pField, m_document.Bytes());
    default:
        return OtherValue(*pRow);
    }
}

QVariant CFieldModel::headerData(int nSection, Qt::Orientation orientation, int nRole) const
{
    if (orientation != Qt::Horizontal || nRole != Qt::DisplayRole)
        return {};
    const QString arrHeads[] = {tr("字段"), tr("值"), tr("另一个的值")};
    return arrHeads[nSection];
}

Qt::ItemFlags CFieldModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const SRow* pRow = RowOf(index);
    const SField* pField = pRow == nullptr ? nullptr : FieldAt(*pRow);
    if (index.column() == enValue && pField != nullptr && Edid::IsEditable(*pField))
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool CFieldModel::setData(const QModelIndex& index, const QVariant& value, int nRole)
{
    const int nField = FieldOf(index);
    if (nRole != Qt::EditRole || nField < 0)
        return false;
    const QString strRefusal = m_document.SetField(nField, value.toString());
    if (!strRefusal.isEmpty())
        Q_EMIT Refused(strRefusal);
    return strRefusal.isEmpty();
}
