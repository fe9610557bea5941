#ifndef TOOLS_VALUES_H
#define TOOLS_VALUES_H

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

class CArguments;

/// @file
/// Subcommands that work on values: one argument, several, or the lines of standard input.

/// A value to work on.
struct SValue
{
    QString strText;
    QString
        strPlace; ///< what an error about it begins with: the line of standard input; empty for an argument
};

namespace Values {

/// Whether the results are lines: several arguments, or `-` for standard input.
bool AreMany(const CArguments& arguments);

/// Every positional argument; `-` stands for the lines of standard input, without the empty ones. Throws
/// `CToolError` when that cannot be read or holds nothing.
QVector<SValue> Of(const CArguments& arguments);

/// One line of the result for each value. What is thrown about a value of standard input names its line.
QByteArray Lines(const QVector<SValue>& vecValues, const std::function<QByteArray(const QString&)>& funcLine);

/// A JSON object in one line.
QByteArray CompactJson(const QByteArray& json);

} // namespace Values

#endif // TOOLS_VALUES_H
