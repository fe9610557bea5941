#ifndef INSTRUMENTS_COLOUR_MEASUREMENTCSV_H
#define INSTRUMENTS_COLOUR_MEASUREMENTCSV_H

#include "instruments/colour/ModuleWall.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// @file
/// Measurements of modules as text: comma, semicolon or tab between the fields; decimal point or, beside
/// semicolon and tab, decimal comma; a heading in English or Chinese; (x, y, Y) or (X, Y, Z); one line a
/// module or one line a primary. Columns that the heading names otherwise are ignored, as are empty lines and
/// lines that begin with '#'.

/// What is wrong with a text.
enum class enMeasurementFault
{
    enNone,
    enNotText,         ///< neither UTF-8, UTF-16 nor GB 18030
    enEmpty,           ///< no heading and no line
    enNoHeading,       ///< the first line names no column of readings
    enMissingColumn,   ///< `strValue` is the column
    enRepeatedColumn,  ///< `strValue` is the column
    enOpenQuote,       ///< a quoted field does not end
    enNoLines,         ///< nothing after the heading
    enNotNumber,       ///< `strValue` is the field
    enNotReading,      ///< `strValue` is the field, `colourFault` says why
    enUnknownPrimary,  ///< `strValue` is the field
    enRepeatedModule,  ///< `strValue` is the module
    enRepeatedReading, ///< `strValue` is the module
    enMissingReading,  ///< `strValue` is the module
    enNotModule,       ///< `strValue` is the module, `colourFault` says why
};

/// Where and what.
struct SMeasurementError
{
    enMeasurementFault fault = enMeasurementFault::enNone; ///< what is wrong
    int nLine = 0;                                         ///< from 1, in the text
    int nColumn = 0;                                       ///< from 1, fields of the line
    QString strValue; ///< what the text holds there; see `enMeasurementFault`
    enColourFault colourFault = enColourFault::enNone; ///< why a reading cannot be calculated with

    /// One line in English: "line 7, column 4: '0,6x' is not a number; write one such as 0.3127".
    QString Text() const;
};

/// How a text was written, or is to be.
struct SMeasurementFormat
{
    QChar chSeparator = QLatin1Char(','); ///< comma, semicolon or tab
    bool bDecimalComma = false;           ///< not beside the separator comma
    bool bChinese = false;                ///< the heading
    bool bTristimulus = false;            ///< (X, Y, Z) instead of (x, y, Y)
    bool bLineAPrimary = false;           ///< one line a primary instead of one line a module
};

/// What was read, or why nothing was.
struct SMeasurements
{
    Modules modules;                        ///< in the order of the text
    SMeasurementFormat format;              ///< how the text was written
    std::optional<SMeasurementError> error; ///< where it is set, there are no modules
};

namespace MeasurementCsv {

/// Reads a file's content: UTF-8, UTF-16 with a byte order mark, or GB 18030.
SMeasurements Read(const QByteArray& content);
/// Reads a text, such as a spreadsheet puts on the clipboard.
SMeasurements Read(const QString& strText);

/// Writes modules so that `Read` gives the same again: to the last digit as (x, y, Y), up to rounding as
/// (X, Y, Z).
QString Write(const Modules& modules, const SMeasurementFormat& format);

} // namespace MeasurementCsv

#endif // INSTRUMENTS_COLOUR_MEASUREMENTCSV_H
