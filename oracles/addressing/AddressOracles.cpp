#include "oracles/addressing/AddressOracles.h"

namespace AddressOracles {

std::vector<unsigned int> Batch(unsigned int nStart, int nCount, const FuncHasError& funcHasError)
{
    std::vector<unsigned int> vecStored;
    if (nCount <= 0)
        return vecStored;
    unsigned int nUpper = nStart / 65536;
    unsigned int nThird = nStart / 256 % 256;
    unsigned int nLow = nStart % 256;
    unsigned int nStep = 0;
    int nDone = 0;
    while (true) {
        bool bSpent = false;
        if (nLow + nStep >= 256) {
            bSpent = nThird >= 255;
            nLow = 1;
            nStep = 0;
            nThird = nThird + 1;
        }
        if (!bSpent) {
            nUpper = nUpper | nThird / 256;
            const unsigned int nIP = nUpper * 65536 + nThird % 256 * 256 + nLow + nStep;
            if (nStep != 0 && funcHasError(nIP)) {
                nStep = nStep + 1;
                continue;
            }
            vecStored.push_back(nIP);
        }
        nStep = nStep + 1;
        nDone = nDone + 1;
        if (nDone == nCount)
            return vecStored;
    }
}

std::vector<unsigned int> ByHand(unsigned int nStart, int nCount, int nListed,
                                 const FuncHasError& funcHasError,
                                 const std::function<void(unsigned int)>& funcStored)
{
    std::vector<unsigned int> vecStored;
    if (nCount <= 0 || nListed > 254)
        return vecStored;
    unsigned int nUpper = nStart / 65536;
    unsigned int nThird = nStart / 256 % 256;
    unsigned int nLow = nStart % 256;
    unsigned int nStep = 0;
    int nDone = 0;
    while (true) {
        bool bSpent = false;
        if (nLow + nStep >= 256) {
            bSpent = nThird > 254;
            nLow = 1;
            nStep = 0;
            nThird = nThird + 1;
        }
        if (!bSpent) {
            nUpper = nUpper | nThird / 256;
            const unsigned int nIP = nUpper * 65536 + nThird % 256 * 256 + nLow + nStep;
            if (nDone + int(nStep) != 0 && funcHasError(nIP)) {
                nStep = nStep + 1;
                continue;
            }
            vecStored.push_back(nIP);
            funcStored(nIP);
        }
        if (nDone + 1 >= nCount || nListed + nDone + 1 >= 255)
            return vecStored;
        nDone = nDone + 1;
    }
}

std::vector<unsigned int> Proposals(unsigned int nBase, int nRows, const FuncHasError& funcHasError)
{
    unsigned int arrOctets[4] = {nBase / 16777216, nBase / 65536 % 256, nBase / 256 % 256, nBase % 256};
    unsigned int nDelta = 1;
    int nAttempts = 0;
    std::vector<unsigned int> vecProposals;
    for (int nRow = 0; nRow < nRows; ++nRow) {
        const int nLimit = (nAttempts > 256 ? nAttempts : 256) + 1;
        unsigned int nFound = 0;
        do {
            if (arrOctets[3] + nDelta >= 256) {
                arrOctets[2] = arrOctets[2] == 255 ? 1 : arrOctets[2] + 1;
                arrOctets[3] = 1;
                nDelta = 1;
            }
            if (arrOctets[1] == 255)
                arrOctets[1] = 1;
            if (arrOctets[0] == 0 || arrOctets[0] == 255)
                arrOctets[0] = 192;
            const unsigned int nIP =
                arrOctets[0] * 16777216 + arrOctets[1] * 65536 + arrOctets[2] * 256 + arrOctets[3] + nDelta;
            nDelta = nDelta + 1;
            if (!funcHasError(nIP)) {
                nFound = nIP;
                break;
            }
            nAttempts = nAttempts + 1;
        } while (nAttempts != nLimit);
        vecProposals.push_back(nFound);
    }
    return vecProposals;
}

} // namespace AddressOracles
