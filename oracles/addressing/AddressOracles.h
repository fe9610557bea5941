#ifndef ORACLES_ADDRESSING_ADDRESSORACLES_H
#define ORACLES_ADDRESSING_ADDRESSORACLES_H

#include <functional>
#include <vector>

/// The four runs over addresses again, each as one plain loop over separate octets. They share no code with
/// the library.
namespace AddressOracles {

using FuncHasError = std::function<bool(unsigned int nIP)>;

/// Addresses of a batch in the order of their stores.
std::vector<unsigned int> Batch(unsigned int nStart, int nCount, const FuncHasError& funcHasError);

/// Addresses added by hand in the order of their stores. The predicate sees each store at once.
std::vector<unsigned int> ByHand(unsigned int nStart, int nCount, int nListed,
                                 const FuncHasError& funcHasError,
                                 const std::function<void(unsigned int)>& funcStored);

/// Proposals for a number of rows; 0 where a row is given up.
std::vector<unsigned int> Proposals(unsigned int nBase, int nRows, const FuncHasError& funcHasError);

} // namespace AddressOracles

#endif // ORACLES_ADDRESSING_ADDRESSORACLES_H
