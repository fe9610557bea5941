#ifndef SENDERMODULEDIALOG_ADDRESSING_ADDRESSGENERATORS_H
#define SENDERMODULEDIALOG_ADDRESSING_ADDRESSGENERATORS_H

#include <functional>
#include <optional>

/// The four runs over addresses of the dialogs: two proposals and two ways of adding many. They resemble one
/// another and differ in details. Do not unify them: hosts rely on each.
///
/// An address value has the first octet in the most significant byte.
namespace AddressGenerators {

/// Whether the host sees an error in an address.
using FuncHasError = std::function<bool(unsigned int nIP)>;
/// Takes an address into the host's list.
using FuncStore = std::function<void(unsigned int nIP)>;

/// The first free address after a base, for processors that are added by hand.
///
/// The base does not move: behind the end of its /24 one address of the next /24 is tried, then the search is
/// back in the base's own. It has no bound and ends when the host frees an address.
unsigned int FirstFreeAfter(unsigned int nBase, const FuncHasError& funcHasError);

/// Proposes free addresses one after another, for the rows of the address dialog. The budget of failed
/// candidates is one for all rows: 257 in all, then one more for each further row.
class CProposalSearch
{
public:
    /// @param nBase the address that the search counts from
    explicit CProposalSearch(unsigned int nBase);

    /// The next free address, or nothing when the row is given up.
    std::optional<unsigned int> Next(const FuncHasError& funcHasError);

private:
    void StepIntoNetwork();

    unsigned int m_nIP;
    unsigned int m_nDelta = 1;
    int m_nAttempts = 0;
};

/// Adds a batch of addresses from a start address on.
///
/// The start address and the address that opens a new /24 are stored without asking. Addresses with an error
/// are skipped and don't count. At the end of the third octet a pass is spent without storing, and the
/// octet's overflow goes on into the second octet.
/// @param nCount how many; 0 or less stores nothing
void AddBatch(unsigned int nStart, int nCount, const FuncHasError& funcHasError, const FuncStore& funcStore);

/// Adds processors by hand from a start address on.
///
/// Only the start address is stored without asking. After a store the same address is asked for again: the
/// run moves on because the host now reports it as used.
/// @param nCount how many; 0 or less stores nothing
/// @param nListed number of addresses in the host's list; the run ends when the list would hold 255
void AddByHand(unsigned int nStart, int nCount, int nListed, const FuncHasError& funcHasError,
               const FuncStore& funcStore);

} // namespace AddressGenerators

#endif // SENDERMODULEDIALOG_ADDRESSING_ADDRESSGENERATORS_H
