#include "SenderModuleDialog/addressing/AddressGenerators.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/addressing/IPAddressRules.h"

#include <algorithm>

namespace AddressGenerators {

namespace {

constexpr unsigned int c_nOctetEnd = 256; ///< first value beyond an octet
constexpr unsigned int c_nOctetMax = 255;
constexpr unsigned int c_nFirstHost = 1;      ///< last octet that opens a /24
constexpr unsigned int c_nPrivateFirst = 192; ///< first octet in place of one that no host has
constexpr int c_nAttemptBudget = 256;

/// Octet 0 is the last.
unsigned int Octet(unsigned int nIP, int nOctet)
{
    return nIP >> (8 * nOctet) & c_nOctetMax;
}

unsigned int WithOctet(unsigned int nIP, int nOctet, unsigned int nValue)
{
    return (nIP & ~(c_nOctetMax << (8 * nOctet))) | nValue << (8 * nOctet);
}

/// The first two octets, with the third and the last or-ed in at their places. A third octet beyond 255
/// therefore sets low bits of the second: a run that leaves its /16 goes on in a neighbouring one.
unsigned int Compose(unsigned int nIP, unsigned int nThird, unsigned int nLast)
{
    return (nIP & 0xFFFF0000U) | nThird << 8 | nLast;
}

unsigned int NextThird(unsigned int nThird)
{
    return nThird == c_nOctetMax ? 1 : nThird + 1;
}

/// The place of a run: last octet is `nLow + nStep`.
struct SRun
{
    unsigned int nIP;
    unsigned int nLow;
    unsigned int nThird;
    unsigned int nStep = 0;

    explicit SRun(unsigned int nStart)
        : nIP(nStart)
        , nLow(Octet(nStart, 0))
        , nThird(Octet(nStart, 1))
    {}

    /// Opens the next /24 when this one is used up.
    /// @return false when the third octet has run out: the pass stores nothing
    bool Advance()
    {
        if (nLow + nStep < c_nOctetEnd)
            return true;
        nLow = c_nFirstHost;
        nStep = 0;
        return nThird++ < c_nOctetMax;
    }

    unsigned int Take() { return nIP = Compose(nIP, nThird, nLow + nStep); }
};

} // namespace

unsigned int FirstFreeAfter(unsigned int nBase, const FuncHasError& funcHasError)
{
    const unsigned int nLast = Octet(nBase, 0);
    unsigned int nDelta = 1;
    for (;;) {
        unsigned int nThird = Octet(nBase, 1);
        if (nLast + nDelta >= c_nOctetEnd) {
            nThird = NextThird(nThird);
            nDelta = 1;
        }
        const unsigned int nCandidate = Compose(nBase, nThird, nLast + nDelta);
        if (!funcHasError(nCandidate))
            return nCandidate;
        ++nDelta;
    }
}

CProposalSearch::CProposalSearch(unsigned int nBase)
    : m_nIP(nBase)
{}

void CProposalSearch::StepIntoNetwork()
{
    if (Octet(m_nIP, 0) + m_nDelta >= c_nOctetEnd) {
        m_nIP = WithOctet(m_nIP, 1, NextThird(Octet(m_nIP, 1)));
        m_nIP = WithOctet(m_nIP, 0, c_nFirstHost);
        m_nDelta = 1;
    }
    if (Octet(m_nIP, 2) == c_nOctetMax)
        m_nIP = WithOctet(m_nIP, 2, 1);
    if (Octet(m_nIP, 3) == 0 || Octet(m_nIP, 3) == c_nOctetMax)
        m_nIP = WithOctet(m_nIP, 3, c_nPrivateFirst);
}

std::optional<unsigned int> CProposalSearch::Next(const FuncHasError& funcHasError)
{
    const int nLimit = std::max(m_nAttempts, c_nAttemptBudget) + 1;
    while (m_nAttempts != nLimit) {
        StepIntoNetwork();
        const unsigned int nCandidate = m_nIP + m_nDelta++;
        if (!funcHasError(nCandidate))
            return nCandidate;
        ++m_nAttempts;
    }
    return std::nullopt;
}

void AddBatch(unsigned int nStart, int nCount, const FuncHasError& funcHasError, const FuncStore& funcStore)
{
    SRun run(nStart);
    for (int nDone = 0; nDone < nCount;) {
        if (run.Advance()) {
            const unsigned int nIP = run.Take();
            if (run.nStep != 0 && funcHasError(nIP)) {
                ++run.nStep;
                continue;
            }
            funcStore(nIP);
        }
        ++run.nStep;
        ++nDone;
    }
}

void AddByHand(unsigned int nStart, int nCount, int nListed, const FuncHasError& funcHasError,
               const FuncStore& funcStore)
{
    SRun run(nStart);
    // The list's end is looked at after each pass, and so is the count: the first pass always runs.
    for (int nDone = 0; nDone < nCount;) {
        if (run.Advance()) {
            const unsigned int nIP = run.Take();
            const bool bFirst = nDone == 0 && run.nStep == 0;
            if (!bFirst && funcHasError(nIP)) {
                ++run.nStep;
                continue;
            }
            funcStore(nIP);
        }
        ++nDone;
        if (nListed + nDone >= IPAddressRules::c_nListLimit)
            return;
    }
}

} // namespace AddressGenerators
