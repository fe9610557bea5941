#ifndef INSTRUMENTS_EDID_EDIDTEXT_H
#define INSTRUMENTS_EDID_EDIDTEXT_H

#include <QCoreApplication>

namespace Edid {

/// Translation context of what was wrong with an input. The texts are English; a program may
/// install a translator.
class CEdidText
{
    Q_DECLARE_TR_FUNCTIONS(CEdidText)
};

} // namespace Edid

#endif // INSTRUMENTS_EDID_EDIDTEXT_H
