#include "workbench/edid/EdidDocument.h"

#include "instruments/edid/Editing.h"
#include "instruments/edid/FieldEditing.h"
#include "workbench/edid/EdidWords.h"

/// One step: the content before and after.
class CContentCommand : public QUndoCommand
{
public:
    CContentCommand(CEdidDocument& document, SEdidContent content, const QString& strText)
        : QUndoCommand(strText)
        , m_document(document)
        , m_before(document.Content())
        , m_after(std::move(content))
    {}

    void undo() override { m_document.SetContent(m_before); }
    void redo() override { m_document.SetContent(m_after); }

private:
    CEdidDocument& m_document;
    SEdidContent m_before;
    SEdidContent m_after;
};

namespace {

constexpr int c_nMaxSteps = 1000;

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

} // namespace

CEdidDocument::CEdidDocument(QObject* pParent)
    : QObject(pParent)
{
    m_steps.setUndoLimit(c_nMaxSteps);
}

CEdidDocument::~CEdidDocument()
{
    // The stack is destroyed last and would emit signals to whoever is gone.
    const QSignalBlocker blocker(m_steps);
    m_steps.clear();
}

const quint8* CEdidDocument::Bytes() const
{
    return BytesOf(m_content.bytes);
}

bool CEdidDocument::IsFollowing() const
{
    const bool bMemory = m_content.origin == enEdidOrigin::enMemory && !m_content.bEdited;
    return bMemory || m_content.origin == enEdidOrigin::enNone;
}

void CEdidDocument::Follow(const SEdidContent& content)
{
    m_steps.clear();
    SetContent(content);
}

void CEdidDocument::MarkStored(const QString& strInput)
{
    SetContent({m_content.bytes, enEdidOrigin::enMemory, strInput, false});
}

void CEdidDocument::Load(const SEdidContent& content, const QString& strStep)
{
    m_steps.push(new CContentCommand(*this, content, strStep));
}

QString CEdidDocument::Refusal(int nField, const QString& strValue) const
{
    QByteArray bytes = m_content.bytes;
    return Edid::SetField(bytes, m_vecFields[std::size_t(nField)], strValue);
}

QString CEdidDocument::SetField(int nField, const QString& strValue)
{
    const Edid::SField& field = m_vecFields[std::size_t(nField)];
    QByteArray bytes = m_content.bytes;
    QString strRefusal = Edid::SetField(bytes, field, strValue);
    if (strRefusal.isEmpty())
        Push(bytes, EdidWords::Label(field));
    return strRefusal;
}

void CEdidDocument::FixAll()
{
    QByteArray bytes = m_content.bytes;
    Edid::Fix(bytes);
    Push(bytes, tr("全部修复"));
}

void CEdidDocument::Push(const QByteArray& bytes, const QString& strStep)
{
    if (bytes == m_content.bytes)
        return;
    SEdidContent content = m_content;
    content.bytes = bytes;
    content.bEdited = true;
    Load(content, strStep);
}

void CEdidDocument::SetContent(const SEdidContent& content)
{
    m_content = content;
    Refresh();
}

void CEdidDocument::CompareWith(const SEdidContent& other)
{
    m_other = other;
    Refresh();
}

void CEdidDocument::EndComparison()
{
    CompareWith({});
}

void CEdidDocument::Refresh()
{
    Edid::Explain(Bytes(), int(m_content.bytes.size()), m_vecFields);
    Edid::Explain(BytesOf(m_other.bytes), int(m_other.bytes.size()), m_vecOtherFields);
    m_vecDifferences =
        IsComparing() ? Edid::DifferentFields(m_vecFields, m_content.bytes, m_vecOtherFields, m_other.bytes)
                      : QVector<Edid::SFieldPair>();
    Q_EMIT Changed();
}

QVector<int> CEdidDocument::DifferentBytes() const
{
    return IsComparing() ? ChangedOffsets(m_content.bytes, m_other.bytes) : QVector<int>();
}

QVector<int> ChangedOffsets(const QByteArray& before, const QByteArray& after)
{
    QVector<int> vecOffsets;
    for (const Edid::SByteDifference& difference : Edid::ByteDifferences(before, after))
        vecOffsets.append(difference.nOffset);
    return vecOffsets;
}
