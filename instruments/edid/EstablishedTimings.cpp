#include "instruments/edid/ListedTimings.h"

namespace Edid {

namespace {

// clang-format off
/// Timings that makers set before there was a list (VESA E-EDID, section 3.8): no number, hence 0.
constexpr SListedTiming c_arrOwnTimings[] = {
    {0, 0, 0, {9, 5}, 28320, {720, 18, 108, 54}, {400, 21, 2, 26}, "-+"},
    {0, 0, 0, {9, 5}, 35500, {720, 18, 108, 54}, {400, 12, 2, 35}, "-+"},
    {0, 0, 0, {4, 3}, 30240, {640, 64, 64, 96}, {480, 3, 3, 39}, "--"},
    {0, 0, 0, {4, 3}, 57284, {832, 32, 64, 224}, {624, 1, 3, 39}, "--"},
    {0, 0, 0, {192, 145}, 100000, {1152, 48, 128, 128}, {870, 3, 3, 39}, "++"},
};

/// The place of a bit and what it stands for.
struct SRow
{
    quint8 byByte;
    quint8 byBit;
    quint8 byDmt;                ///< 0 for a timing of a maker's own
    const SListedTiming* pOwn;
};

constexpr SRow c_arrRows[] = {
    {0x23, 7, 0, &c_arrOwnTimings[0]},
    {0x23, 6, 0, &c_arrOwnTimings[1]},
    {0x23, 5, 0x04, nullptr},
    {0x23, 4, 0, &c_arrOwnTimings[2]},
    {0x23, 3, 0x05, nullptr},
    {0x23, 2, 0x06, nullptr},
    {0x23, 1, 0x08, nullptr},
    {0x23, 0, 0x09, nullptr},
    {0x24, 7, 0x0A, nullptr},
    {0x24, 6, 0x0B, nullptr},
    {0x24, 5, 0, &c_arrOwnTimings[3]},
    {0x24, 4, 0x0F, nullptr},
    {0x24, 3, 0x10, nullptr},
    {0x24, 2, 0x11, nullptr},
    {0x24, 1, 0x12, nullptr},
    {0x24, 0, 0x24, nullptr},
    {0x25, 7, 0, &c_arrOwnTimings[4]},
};

constexpr SRow c_arrRowsIII[] = {
    {6, 7, 0x01, nullptr},
    {6, 6, 0x02, nullptr},
    {6, 5, 0x03, nullptr},
    {6, 4, 0x07, nullptr},
    {6, 3, 0x0E, nullptr},
    {6, 2, 0x0C, nullptr},
    {6, 1, 0x13, nullptr},
    {6, 0, 0x15, nullptr},
    {7, 7, 0x16, nullptr},
    {7, 6, 0x17, nullptr},
    {7, 5, 0x18, nullptr},
    {7, 4, 0x19, nullptr},
    {7, 3, 0x20, nullptr},
    {7, 2, 0x21, nullptr},
    {7, 1, 0x23, nullptr},
    {7, 0, 0x25, nullptr},
    {8, 7, 0x27, nullptr},
    {8, 6, 0x2E, nullptr},
    {8, 5, 0x2F, nullptr},
    {8, 4, 0x30, nullptr},
    {8, 3, 0x31, nullptr},
    {8, 2, 0x29, nullptr},
    {8, 1, 0x2A, nullptr},
    {8, 0, 0x2B, nullptr},
    {9, 7, 0x2C, nullptr},
    {9, 6, 0x39, nullptr},
    {9, 5, 0x3A, nullptr},
    {9, 4, 0x3B, nullptr},
    {9, 3, 0x3C, nullptr},
    {9, 2, 0x33, nullptr},
    {9, 1, 0x34, nullptr},
    {9, 0, 0x35, nullptr},
    {10, 7, 0x36, nullptr},
    {10, 6, 0x37, nullptr},
    {10, 5, 0x3E, nullptr},
    {10, 4, 0x3F, nullptr},
    {10, 3, 0x41, nullptr},
    {10, 2, 0x42, nullptr},
    {10, 1, 0x44, nullptr},
    {10, 0, 0x45, nullptr},
    {11, 7, 0x46, nullptr},
    {11, 6, 0x47, nullptr},
    {11, 5, 0x49, nullptr},
    {11, 4, 0x4A, nullptr},
};
// clang-format on

const char* OriginOf(const SRow& row)
{
    if (row.byDmt != 0)
        return "DMT";
    // IBM's text modes are the ones of 400 lines.
    constexpr quint16 c_nTextLines = 400;
    return row.pOwn->arrVertical[0] == c_nTextLines ? "IBM" : "Apple";
}

SEstablished Resolve(const SRow& row)
{
    const SListedTiming* pTiming = row.byDmt != 0 ? FindListed(DisplayTimings(), row.byDmt) : row.pOwn;
    return {row.byByte, row.byBit, row.byDmt, OriginOf(row), pTiming};
}

template <std::size_t c_nCount>
EstablishedList ResolveAll(const SRow (&arrRows)[c_nCount])
{
    EstablishedList vecEstablished;
    vecEstablished.reserve(c_nCount);
    for (const SRow& row : arrRows)
        vecEstablished.push_back(Resolve(row));
    return vecEstablished;
}

} // namespace

const EstablishedList& EstablishedTimings()
{
    static const EstablishedList s_vecEstablished = ResolveAll(c_arrRows);
    return s_vecEstablished;
}

const EstablishedList& EstablishedTimingsIII()
{
    static const EstablishedList s_vecEstablished = ResolveAll(c_arrRowsIII);
    return s_vecEstablished;
}

} // namespace Edid
