#ifndef INSTRUMENTS_COLOUR_CSVLINES_H
#define INSTRUMENTS_COLOUR_CSVLINES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// @file
/// Text cut into fields, whatever they mean.

/// One line that holds something.
struct SCsvLine
{
    int nNumber = 0; ///< from 1, where it begins in the text
    QStringList listFields;
};

struct SCsvLines
{
    QChar chSeparator = QLatin1Char(',');
    std::vector<SCsvLine> vecLines;
    int nOpenQuote = 0; ///< line of a quoted field that does not end, 0 for none
};

namespace CsvLines {

/// The text of a file: UTF-16 where it begins with a byte order mark, else UTF-8, else GB 18030; nothing
/// where it is none of them.
std::optional<QString> Decode(const QByteArray& content);

/// Cuts a text into lines and fields (RFC 4180): fields are trimmed, quotes taken off. Empty lines, lines of
/// empty fields and lines that begin with '#' are left out. The separator is what the first line holds: a
/// tab, else a semicolon, else a comma; or what a first line "sep=;" names.
SCsvLines Split(const QString& strText);

/// A field as it is written: in quotes where it has to be.
QString Quoted(const QString& strField, QChar chSeparator);

} // namespace CsvLines

#endif // INSTRUMENTS_COLOUR_CSVLINES_H
