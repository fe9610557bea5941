#ifndef WORKBENCH_ADDRESSES_ADDITIONREPORT_H
#define WORKBENCH_ADDRESSES_ADDITIONREPORT_H

#include "simulator/CommonClass/AddressVerdict.h"

#include <QStringList>

#include <functional>

/// What an addition to the address list did, in words.
namespace AdditionReport {

using FuncVerdict = std::function<enAddressVerdict(unsigned int nAddress)>;

/// The addresses that were added, those that were left out and why, in the current language. Left out is what
/// lies between two added addresses and is refused: the dialogs try addresses one after the other.
/// @param listBefore entries of the list
/// @param listAfter entries afterwards: those before, and the added ones
/// @param funcVerdict verdict on an address as the list was before
/// @return empty when nothing was added
QString Of(const QStringList& listBefore, const QStringList& listAfter, const FuncVerdict& funcVerdict);

} // namespace AdditionReport

#endif // WORKBENCH_ADDRESSES_ADDITIONREPORT_H
