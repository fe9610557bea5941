#ifndef WORKBENCH_EDID_EDIDDOCUMENT_H
#define WORKBENCH_EDID_EDIDDOCUMENT_H

#include "instruments/edid/Difference.h"

#include <QObject>
#include <QUndoStack>

/// Where an EDID comes from.
enum class enEdidOrigin
{
    enNone,   ///< there is none
    enMemory, ///< the EDID memory of an input
    enFile,
    enPasted,
    enBuilt ///< made for a mode
};

/// An EDID and where it comes from.
struct SEdidContent
{
    QByteArray bytes; ///< whole blocks, or nothing
    enEdidOrigin origin = enEdidOrigin::enNone;
    QString strName;      ///< of the input, the file, the display or the mode
    bool bEdited = false; ///< changed since it came from there
};

/// The EDID that the operator works on, with undoable steps, and another that it is compared with.
class CEdidDocument : public QObject
{
    Q_OBJECT

public:
    explicit CEdidDocument(QObject* pParent = nullptr);
    ~CEdidDocument() override;

    const SEdidContent& Content() const { return m_content; }
    const quint8* Bytes() const;
    /// What the bytes say.
    const std::vector<Edid::SField>& Fields() const { return m_vecFields; }
    bool IsEmpty() const { return m_content.bytes.isEmpty(); }
    QUndoStack& Steps() { return m_steps; }

    /// Whether the content is an input's memory, unchanged, or nothing: then the page shows another input's
    /// memory when one is selected.
    bool IsFollowing() const;
    /// Replaces the content without a step, and drops the steps.
    void Follow(const SEdidContent& content);
    /// Notes that an input's memory holds the content now.
    void MarkStored(const QString& strInput);

    /// Replaces the content in one step.
    void Load(const SEdidContent& content, const QString& strStep);
    /// What `SetField` would say.
    QString Refusal(int nField, const QString& strValue) const;
    /// Sets a field in one step.
    /// @param nField    place in `Fields`
    /// @param strValue  as `Edid::SetField` takes it
    /// @return what is wrong with the value; empty when it was set
    QString SetField(int nField, const QString& strValue);
    /// Makes header, extension count and checksums right, in one step; none when they are.
    void FixAll();

    void CompareWith(const SEdidContent& other);
    void EndComparison();
    bool IsComparing() const { return !m_other.bytes.isEmpty(); }
    const SEdidContent& Other() const { return m_other; }
    const std::vector<Edid::SField>& OtherFields() const { return m_vecOtherFields; }
    /// The fields that are different; none without a comparison.
    const QVector<Edid::SFieldPair>& Differences() const { return m_vecDifferences; }
    /// Offsets of the bytes that are different; none without a comparison.
    QVector<int> DifferentBytes() const;

Q_SIGNALS:
    /// The content or the comparison changed.
    void Changed();

private:
    friend class CContentCommand;
    void SetContent(const SEdidContent& content);
    void Push(const QByteArray& bytes, const QString& strStep);
    void Refresh();

    SEdidContent m_content;
    SEdidContent m_other;
    std::vector<Edid::SField> m_vecFields;
    std::vector<Edid::SField> m_vecOtherFields;
    QVector<Edid::SFieldPair> m_vecDifferences;
    QUndoStack m_steps;
};

/// Offsets at which two EDIDs differ. A missing byte differs from any.
QVector<int> ChangedOffsets(const QByteArray& before, const QByteArray& after);

#endif // WORKBENCH_EDID_EDIDDOCUMENT_H
