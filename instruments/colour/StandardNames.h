#ifndef INSTRUMENTS_COLOUR_STANDARDNAMES_H
#define INSTRUMENTS_COLOUR_STANDARDNAMES_H

#include <QString>
#include <QStringList>

struct SColourStandard;

/// A standard colour space by its label or another name that people use for it, for example `BT.2020` or
/// `Display P3`. Case, blanks and punctuation make no difference.
/// @return null for any other name
const SColourStandard* FindColourStandard(const QString& strName);

/// The other names by which `FindColourStandard` finds a standard colour space, as people write them.
QStringList OtherNames(const SColourStandard& standard);

/// The labels of the standard colour spaces, as a list to choose from.
QString StandardLabels();

#endif // INSTRUMENTS_COLOUR_STANDARDNAMES_H
