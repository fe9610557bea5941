#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"

#include "SenderModuleDialog/colour/OutlineIndex.h"
#include "SenderModuleDialog/colour/SpectralLocus.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"

namespace {

/// The outline that every object starts with, and what is derived from it.
struct SStandardOutline
{
    QVector<QPointF> vecPoints;
    COutlineIndex index;
};

/// Lives as long as the process: objects of a host may be used while statics are being destroyed.
const SStandardOutline& StandardOutline()
{
    static const SStandardOutline& s_outline = *[] {
        const QVector<QPointF> vecPoints = SpectralLocus::Outline();
        return new SStandardOutline{vecPoints, COutlineIndex(vecPoints)};
    }();
    return s_outline;
}

} // namespace

CChromaGamutInterpolation::CChromaGamutInterpolation()
    : m_vecGamutPoints(StandardOutline().vecPoints)
{}

QVector<QPointF>& CChromaGamutInterpolation::GetQPointFData()
{
    return m_vecGamutPoints;
}

QList<CPointEx<float>>& CChromaGamutInterpolation::GetData()
{
    for (; m_nUsesToAppend > 0; --m_nUsesToAppend)
        Append(StandardOutline().vecPoints);
    Append(m_vecGamutPoints);
    return m_listGamutPoints;
}

bool CChromaGamutInterpolation::IsPointInCIEPolygon(QPointF pt) const
{
    return IsStandard() ? StandardOutline().index.Contains(pt) : OutlineTest::Contains(m_vecGamutPoints, pt);
}

CChromaGamutInterpolation::SFloatOutline CChromaGamutInterpolation::UseFloatOutline()
{
    if (IsStandard()) {
        ++m_nUsesToAppend;
        const QVector<CPointEx<float>>& vecPoints = StandardOutline().index.Points();
        return {vecPoints.constData(), int(vecPoints.size())};
    }
    // An outline that was written to may be written to again, so each use of it is kept at once.
    const QList<CPointEx<float>>& listPoints = GetData();
    m_vecUsedOutline = listPoints.mid(listPoints.size() - m_vecGamutPoints.size()).toVector();
    return {m_vecUsedOutline.constData(), int(m_vecUsedOutline.size())};
}

/// Whether the outline is the one that all objects share. Writing to it has given an object data of its own.
bool CChromaGamutInterpolation::IsStandard() const
{
    return m_vecGamutPoints.constData() == StandardOutline().vecPoints.constData();
}

void CChromaGamutInterpolation::Append(const QVector<QPointF>& vecOutline)
{
    for (const QPointF& pt : vecOutline)
        m_listGamutPoints.append(Narrowed(pt));
}
