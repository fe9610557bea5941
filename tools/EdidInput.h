#ifndef TOOLS_EDIDINPUT_H
#define TOOLS_EDIDINPUT_H

#include "instruments/edid/FieldText.h"
#include "instruments/edid/Reading.h"

#include <QString>
#include <QStringList>

class CArguments;

/// @file
/// Where the subcommands that read EDIDs get them from.

namespace EdidInput {

/// An EDID and where it comes from.
struct SSource
{
    QString strFile; ///< as it was given
    Edid::SNamedEdid edid;

    /// The file, with the display where there is one.
    QString Title() const;
};

/// Reads all EDIDs of a file, or of standard input for `-`. Throws `CToolError` when there are none.
QVector<SSource> ReadFile(const QString& strFile);

/// Reads the one EDID of a file; the display chooses where there are several. Throws `CToolError`.
/// @param strDisplay  empty for any
SSource ReadOne(const QString& strFile, const QString& strDisplay);

/// Reads all EDIDs of all files, only those of the option `--display` when it is given. Throws `CToolError`.
QVector<SSource> ReadAll(const CArguments& arguments);

/// The names of makers as Debian's hwdata lists them; none when it is not installed.
Edid::MakerNames LoadMakerNames();

} // namespace EdidInput

#endif // TOOLS_EDIDINPUT_H
