#ifndef SENDERMODULEDIALOG_COLOUR_NEARESTROWSEARCH_H
#define SENDERMODULEDIALOG_COLOUR_NEARESTROWSEARCH_H

#include "SenderModuleDialog/colour/CIE1931Row.h"
#include "SenderModuleDialog/colour/DoublePair.h"

#include <QPointF>
#include <QVector>

#include <array>
#include <cstddef>

/// Where the walk along the colour temperature table ends.
struct SNearestRow
{
    int nNearest = 0;       ///< the last row whose distance fell, 0 if none did
    bool bImproved = false; ///< whether a distance ever fell below the starting distance
    int nStop = -1;         ///< the row that ended the walk, -1 where the table ended it
};

/// The walk itself, row by row, over any table.
///
/// The distance of each row from (u, v) is taken in double and rounded to float. The walk begins with a
/// distance of 10 and ends at the first row that is nearer than that and does not lower the best distance.
SNearestRow WalkToNearestRow(QPointF uvPoint, const sCIE1931* pRows, int nCount);

/// Ends where `WalkToNearestRow` ends, on one table, without visiting every row.
///
/// The walk does not end at the nearest row but at the first one whose rounded distance does not fall, often
/// on a plateau before the minimum. So neither a bisection nor an index of nearest rows finds its end. What
/// is skipped here are whole blocks of rows over which each rounded distance provably falls; all other rows
/// are walked.
///
/// The proof. Let p be the point, r(i) the row points, D(i) = |p - r(i)|, c(i) = r(i) - r(i-1) and m(i) the
/// middle of the two. Then D(i-1)^2 - D(i)^2 = 2 (p - m(i)).c(i). If that is positive, D(i) < D(i-1), and
///
///     D(i-1) - D(i) = 2 (p - m(i)).c(i) / (D(i-1) + D(i)) > (p - m(i)).c(i) / D(i-1).
///
/// The distance computed in double errs by less than 2^-51 D: coordinates, squares, sum and root round once
/// each. Floats next to D are at most 2^-23 D apart, and two numbers that are farther apart than the floats
/// around the larger one round to different floats. So the rounded distance falls from row i-1 to row i if
///
///     (p - m(i)).c(i) > K D(i-1)^2   with K = 2^-23 (1 + 2^-26).                                       (1)
///
/// For a block of rows g+1 to h, let w = p - r(g), t a unit vector along r(h) - r(g), n perpendicular to it,
/// and a = w.t, b = w.n. As long as the distances fall, D(i-1) <= D(g) = |w|, so (1) holds for the whole
/// block if for each of its rows, with the components of c(i) along t and n and c_t > 0,
///
///     a - |b| |c_n| / c_t - (m(i) - r(g)).c(i) / c_t > K |w|^2 / c_t.
///
/// Taking the worst row for each of the three quotients and multiplying by min c_t / K leaves four
/// numbers a block:
///
///     (min c_t / K) w.t - slope |(min c_t / K) w.n| - |w|^2 > lead.                                    (2)
///
/// All of it is for points within `c_dReach` of the origin, where no distance reaches the walk's start of
/// 10. There the roundings of (2) itself come to less than 1e-13 in the units of a; `c_dSlack` covers
/// them in the lead.
class CNearestRowSearch
{
public:
    /// Prepares the search for a table of at least two rows that bends by less than a right angle per block.
    explicit CNearestRowSearch(const QVector<sCIE1931>& vecRows);

    /// Whether this search was made for exactly this table: the same shared data, so nobody has written
    /// to it.
    bool IsFor(const QVector<sCIE1931>& vecRows) const
    {
        return vecRows.constData() == m_vecRows.constData();
    }

    /// What `WalkToNearestRow` gives for this table.
    SNearestRow Find(QPointF uvPoint) const;

private:
    struct SPoint
    {
        double dU;
        double dV;
    };

    /// Blocks that are tested together: without a branch between them a processor predicts nothing wrong.
    static constexpr int c_nTogether = 8;
    static constexpr std::size_t c_nPairs = c_nTogether / 2;

    /// The numbers of (2) for neighbouring blocks. Where the table has no more rows, the lead is infinite.
    struct SBlocks
    {
        SBlocks();

        std::array<CDoublePair, c_nPairs> arrFirstU = {}; ///< r(g)
        std::array<CDoublePair, c_nPairs> arrFirstV = {};
        std::array<CDoublePair, c_nPairs> arrAlongU = {}; ///< t scaled by min c_t / K
        std::array<CDoublePair, c_nPairs> arrAlongV = {};
        std::array<CDoublePair, c_nPairs> arrSlope = {};
        std::array<CDoublePair, c_nPairs> arrLead = {};
    };

    /// Rows per block from coarse to fine, as powers of two.
    static constexpr std::array<int, 3> c_arrShift = {9, 6, 3};

    void AddBlock(int nFirst, int nLast, SBlocks& blocks, std::size_t nBlock) const;
    static unsigned int Falling(const SBlocks& blocks, QPointF uvPoint);
    int ProvenEnd(int nRow, QPointF uvPoint) const;
    float Distance(int nRow, QPointF uvPoint) const;
    int LastRow() const { return int(m_vecRows.size()) - 1; }

    QVector<sCIE1931> m_vecRows;
    QVector<SPoint> m_vecPoints;
    std::array<QVector<SBlocks>, c_arrShift.size()> m_arrLevels; ///< one for each of `c_arrShift`
};

#endif // SENDERMODULEDIALOG_COLOUR_NEARESTROWSEARCH_H
