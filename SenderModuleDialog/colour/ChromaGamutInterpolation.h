#ifndef SENDERMODULEDIALOG_COLOUR_CHROMAGAMUTINTERPOLATION_H
#define SENDERMODULEDIALOG_COLOUR_CHROMAGAMUTINTERPOLATION_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/CommonClass/PointEx.h"

#include <QList>
#include <QPointF>
#include <QVector>

/// The outline of the CIE 1931 chromaticity diagram: the region of (x, y) that real colours can reach.
///
/// The outline is the convex hull of the spectral locus of the 2 degree standard observer, with the
/// purple line as its long edge: 156 points, counter-clockwise from the lowest, which is the 404 nm
/// point. Every object starts with the same outline; it is computed for the first object and shared until
/// one is written to.
///
/// Used by one thread at a time.
class SENDERMODULEDIALOG_EXPORT CChromaGamutInterpolation
{
public:
    /// Starts with the standard outline. The first object of a process computes it from the colour-matching
    /// functions of CIE 15 (471 rows, 360 to 830 nm); the others share it.
    CChromaGamutInterpolation();

    /// The outline in double. What is written through the reference is the outline from then on.
    QVector<QPointF>& GetQPointFData();

    /// The outline in single precision. The list is not cleared: every call appends one more complete copy
    /// behind the earlier ones. Intentional: hosts hold the reference. A walk over it must allow for repeats.
    QList<CPointEx<float>>& GetData();

    /// Whether a chromaticity lies inside: by the even-odd rule in single precision, and always within 0.0001
    /// of a vertex in x and in y. False without an outline. Allocates nothing.
    bool IsPointInCIEPolygon(QPointF pt) const;

    /// The outline in single precision as an array: what one call of `GetData` appends, without the list.
    struct SFloatOutline
    {
        const CPointEx<float>* pPoints; ///< owned by the object that gave it, valid until its next call
        int nCount;                     ///< number of points; 156 for the standard outline
    };

    /// The points to walk. The use is counted, and the list that the next `GetData` gives is as long as if
    /// `GetData` had been called here too. For walks on every mouse move: neither memory nor time grow with
    /// the uses.
    SFloatOutline UseFloatOutline();

private:
    bool IsStandard() const;
    void Append(const QVector<QPointF>& vecOutline);

    QVector<QPointF> m_vecGamutPoints;
    QList<CPointEx<float>> m_listGamutPoints;
    QVector<CPointEx<float>> m_vecUsedOutline; ///< the last use of an outline that was written to
    qint64 m_nUsesToAppend = 0; ///< uses of the standard outline that the list does not hold yet
};

#endif // SENDERMODULEDIALOG_COLOUR_CHROMAGAMUTINTERPOLATION_H
