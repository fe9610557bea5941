#ifndef WORKBENCH_EDID_EDIDWORDS_H
#define WORKBENCH_EDID_EDIDWORDS_H

#include "instruments/edid/FieldText.h"

#include <QVector>

/// What an explanation says, in the words of the current language. The decoder itself speaks English.
namespace EdidWords {

/// One value of a field that has few.
struct SChoice
{
    qint64 nRaw;
    QString strName;
};

/// A text of the decoder in the current language; the text itself when it has no other words.
QString Word(const char* szEnglish);
/// Whether a text of the decoder has words of its own.
bool HasWord(const char* szEnglish);

/// What a field's row is called.
QString Label(const Edid::SField& field);
/// A field's value.
/// @param pBytes  the whole EDID that was explained
QString Value(const Edid::SField& field, const quint8* pBytes);
/// The values of a field for which `Edid::HasChoices`.
QVector<SChoice> Choices(const Edid::SField& field);

} // namespace EdidWords

#endif // WORKBENCH_EDID_EDIDWORDS_H
