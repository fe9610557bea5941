#ifndef INSTRUMENTS_COLOUR_MEASUREMENTHEADING_H
#define INSTRUMENTS_COLOUR_MEASUREMENTHEADING_H

#include "instruments/colour/CsvLines.h"
#include "instruments/colour/MeasurementCsv.h"

#include <array>

/// @file
/// The words of headings and fields, in English and Chinese.

/// The three numbers of one reading: (x, y, Y) or (X, Y, Z).
inline constexpr std::size_t c_nReadingNumbers = 3;

/// Columns of one colour's numbers, -1 where there is none.
using ReadingColumns = std::array<int, c_nReadingNumbers>;

/// What the heading says about the columns, from 0.
struct SMeasurementHeading
{
    int nName = -1;    ///< -1: modules are numbered
    int nPrimary = -1; ///< one line a primary
    /// One line a primary: the first alone. One line a module: by `enWallColour`; the last may be missing.
    std::array<ReadingColumns, c_nWallColours> arrColumns;
    bool bTristimulus = false;
    bool bChinese = false;

    bool IsLineAPrimary() const { return nPrimary >= 0; }
    bool HasWhite() const { return arrColumns[std::size_t(enWallColour::enWhite)][0] >= 0; }
};

namespace MeasurementHeading {

/// Reads the heading's line. On an error the heading is of no use.
SMeasurementHeading Read(const SCsvLine& line, std::optional<SMeasurementError>& error);

/// The heading's fields for a format.
QStringList Write(const SMeasurementFormat& format, bool bWhite);

/// The colour that a field names: "R", "red", "红", ...
std::optional<enWallColour> ColourOf(const QString& strField);

/// What a field calls a colour.
QString NameOf(enWallColour colour, bool bChinese);

} // namespace MeasurementHeading

#endif // INSTRUMENTS_COLOUR_MEASUREMENTHEADING_H
