#ifndef WORKBENCH_ADDRESSES_HANDADDITION_H
#define WORKBENCH_ADDRESSES_HANDADDITION_H

#include <QList>
#include <QString>

/// Whether the dialog that adds processors by hand can be opened. Its search for a first free address does
/// not end until it finds one, so the workbench checks before it opens the dialog.
namespace HandAddition {

/// The addresses that the dialog's search tries from a base address on, each once: the rest of the base's own
/// /24, and the one address of the next /24 that it visits at each wrap. The first octet is in the most
/// significant byte of a value.
QList<unsigned int> Candidates(unsigned int nBase);

/// Why the dialog cannot be opened and what to do, in the current language; empty when it can.
QString Obstacle();

} // namespace HandAddition

#endif // WORKBENCH_ADDRESSES_HANDADDITION_H
