#include "instruments/edid/Conforming.h"

#include "SenderModuleDialog/edid/EdidBlock.h"
#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/Checksum.h"
#include "instruments/edid/DetailedTiming.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/FieldValues.h"
#include "instruments/edid/ListedTimings.h"
#include "instruments/edid/ReducedMode.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace Edid {

namespace {

using Block = std::array<quint8, c_nEdidBlockSize>;

/// Below this decoders take a detailed timing for something else, Hz.
constexpr qint64 c_nLowestClock = 10000000;
constexpr int c_nMmPerCm = 10;

/// The mode of a base block whose display has one that does not fit there: every computer knows it.
constexpr int c_nCommonMode = 0x52; ///< DMT: 1920x1080 at 60 Hz

/// Modes that every computer starts with; a display offers those that are not larger than its own.
constexpr quint8 c_arrStartModes[] = {0x04, 0x09, 0x10}; ///< DMT: 640x480, 800x600, 1024x768 at 60 Hz

QString NameOf(const SConformRequest& request)
{
    if (!request.strName.isEmpty())
        return request.strName;
    const QString strSize = QStringLiteral("%1X%2").arg(request.nWidth).arg(request.nHeight);
    const QString strName = QStringLiteral("LED") + strSize;
    return strName.size() <= c_nContentSize ? strName : strSize;
}

QString RequestError(const SConformRequest& request)
{
    constexpr int c_nLargestCm = 255;
    if (!MakerNumber(request.strMaker))
        return QStringLiteral("the maker '%1' is not three letters A to Z").arg(request.strMaker);
    const QString strTextError = TextError(NameOf(request));
    if (!strTextError.isEmpty())
        return QStringLiteral("the name: ") + strTextError;
    const auto IsSize = [](int nCm) { return nCm >= 0 && nCm <= c_nLargestCm; };
    if (!IsSize(request.nWidthCm) || !IsSize(request.nHeightCm) ||
        (request.nWidthCm == 0) != (request.nHeightCm == 0))
        return QStringLiteral("the size of %1x%2 cm does not fit; give 1 to 255 cm for both, or none")
            .arg(request.nWidthCm)
            .arg(request.nHeightCm);
    return {};
}

QString TimingError(const SModeTiming& timing)
{
    if (timing.nClock < c_nLowestClock)
        return QStringLiteral(
                   "the pixel clock of %1 MHz is below the 10 MHz that decoders accept; give a larger "
                   "size or a higher rate")
            .arg(double(timing.nClock) / 1e6, 0, 'f', 2);
    if (timing.vertical.nBack <= 0 || !FitsTypeI(timing))
        return QStringLiteral("the rate leaves no time for the blanking; give a lower rate");
    return {};
}

/// Whether the base block can hold a mode, and its range limits the line rate.
bool FitsBaseBlock(const SModeTiming& timing)
{
    constexpr double c_dHighestLineRate = 510000.0;
    return FitsDetailed(timing) && timing.LineRate() <= c_dHighestLineRate;
}

void PutBase(Block& block, int nRow, qint64 nRaw)
{
    Put(block.data(), c_layoutBase[nRow], nRaw);
}

void WriteIdentity(Block& block, const SConformRequest& request)
{
    PutBase(block, enMakerId, *MakerNumber(request.strMaker));
    PutBase(block, enSerial, 0);
    PutBase(block, enRevision, 4);
    PutBase(block, enWidthCm, request.nWidthCm);
    PutBase(block, enHeightCm, request.nHeightCm);
}

/// Digital, with nothing said about its depth; the first timing is the preferred one in any case.
void WriteFeatures(Block& block, bool bNative)
{
    constexpr quint8 c_byDigital = 0x80;
    block[c_nInputOffset] = c_byDigital;
    block[c_nFeatureOffset] = 0;
    PutBase(block, enPreferredIsNative, bNative);
}

void WriteEstablished(Block& block, const SModeTiming& wanted)
{
    std::fill_n(block.begin() + c_nEstablishedOffset, c_nEstablishedSize, quint8(0));
    for (const SEstablished& established : EstablishedTimings()) {
        const SModeTiming timing = TimingOf(*established.pTiming);
        const bool bStart = std::find(std::begin(c_arrStartModes), std::end(c_arrStartModes),
                                      established.byDmt) != std::end(c_arrStartModes);
        const bool bFits = timing.horizontal.nActive <= wanted.horizontal.nActive &&
                           timing.vertical.nActive <= wanted.vertical.nActive;
        if (bStart && bFits)
            block[established.byByte] |= static_cast<quint8>(1U << established.byBit);
    }
}

quint8* Descriptor(Block& block, int nIndex)
{
    const int nOffset = c_nDescriptorOffset + nIndex * c_nDescriptorSize;
    return block.data() + nOffset;
}

void WriteDescriptors(Block& block, const SConformRequest& request, const SModeTiming& first,
                      const SModeTiming& wanted)
{
    WriteDetailed(Descriptor(block, 0), first, request.nWidthCm * c_nMmPerCm, request.nHeightCm * c_nMmPerCm);
    for (int i = 1; i < c_nDescriptorCount; ++i) {
        std::fill_n(Descriptor(block, i), c_nDescriptorSize, quint8(0));
        Descriptor(block, i)[c_nTagOffset] = c_byDummyTag;
    }
    SBlockTimings timings = TimingsOf(block.data());
    timings.Include(wanted);
    WriteRange(Descriptor(block, 1), LimitsFor(timings, true), true);
    WriteTextDescriptor(Descriptor(block, 2), c_byNameTag, NameOf(request));
}

QByteArray Finished(Block& block)
{
    block[c_nChecksumOffset] = Checksum(block.data());
    return QByteArray(reinterpret_cast<const char*>(block.data()), c_nEdidBlockSize);
}

QByteArray BaseBlock(const SConformRequest& request, const SModeTiming& wanted, bool bExtended)
{
    Block block = {};
    EdidBlock::WriteTemplate(block, request.nWidth, request.nHeight);
    const SModeTiming first = bExtended ? TimingOf(*FindListed(DisplayTimings(), c_nCommonMode)) : wanted;
    WriteIdentity(block, request);
    WriteFeatures(block, !bExtended);
    WriteEstablished(block, wanted);
    WriteDescriptors(block, request, first, wanted);
    PutBase(block, enExtensionCount, bExtended ? 1 : 0);
    return Finished(block);
}

/// Puts data blocks into the section of a DisplayID extension.
class CSectionWriter
{
public:
    explicit CSectionWriter(Block& block)
        : m_pNext(block.data() + c_nSectionOffset + c_nSectionHeadSize)
    {}

    /// Begins a data block. @return its content
    quint8* Begin(quint8 byTag, int nLength)
    {
        quint8* pContent = m_pNext + c_nDataBlockHeadSize;
        m_pNext[0] = byTag;
        m_pNext[2] = static_cast<quint8>(nLength);
        m_pNext = pContent + nLength;
        return pContent;
    }

private:
    quint8* m_pNext;
};

void PutWord(quint8* pBytes, int nValue)
{
    pBytes[0] = static_cast<quint8>(nValue & 0xFF);
    pBytes[1] = static_cast<quint8>(nValue >> 8);
}

/// Product identification (VESA DisplayID 1.3, section 4.1): the maker's letters as they are, the
/// year after 2000.
void WriteProduct(CSectionWriter& writer, const SConformRequest& request)
{
    constexpr int c_nLength = 12;
    constexpr int c_nYear = 10;
    constexpr quint8 c_byMade = 17; // as the base block says
    quint8* pContent = writer.Begin(0x00, c_nLength);
    const QByteArray maker = request.strMaker.toLatin1();
    std::copy(maker.begin(), maker.end(), pContent);
    pContent[c_nYear] = c_byMade;
}

/// Display parameters (section 4.2): size in tenths of a millimetre, native format, gamma, aspect, depths.
void WriteParameters(CSectionWriter& writer, const SConformRequest& request)
{
    constexpr int c_nLength = 12;
    constexpr int c_nTenthsPerCm = 100;
    constexpr quint8 c_byGamma = 120;   // 2.20
    constexpr quint8 c_byDepths = 0x77; // 8 bits, native and overall
    constexpr double c_dLargest = 255.0;
    quint8* pContent = writer.Begin(0x01, c_nLength);
    PutWord(pContent, request.nWidthCm * c_nTenthsPerCm);
    PutWord(pContent + 2, request.nHeightCm * c_nTenthsPerCm);
    PutWord(pContent + 4, request.nWidth);
    PutWord(pContent + 6, request.nHeight);
    const double dLong = std::max(request.nWidth, request.nHeight);
    const double dShort = std::min(request.nWidth, request.nHeight);
    pContent[9] = c_byGamma;
    pContent[10] = static_cast<quint8>(std::min((dLong / dShort - 1.0) * 100.0, c_dLargest));
    pContent[11] = c_byDepths;
}

/// Display interface (section 4.14): DisplayPort of four lanes, version 1.2.
void WriteInterface(CSectionWriter& writer)
{
    constexpr int c_nLength = 10;
    quint8* pContent = writer.Begin(0x0F, c_nLength);
    pContent[0] = 0xA4;
    pContent[1] = 0x12;
}

QByteArray TimingBlock(const SConformRequest& request, const SModeTiming& wanted)
{
    constexpr quint8 c_byVersion = 0x13;
    constexpr quint8 c_byStandalone = 3;
    Block block = {};
    block[0] = c_byDisplayIdTag;
    block[1] = c_byVersion;
    block[2] = c_nMaxSectionBytes;
    block[3] = c_byStandalone;
    CSectionWriter writer(block);
    WriteProduct(writer, request);
    WriteParameters(writer, request);
    WriteTypeI(writer.Begin(c_byTypeITag, c_nTypeISize), wanted);
    WriteInterface(writer);
    constexpr int c_nSectionChecksum = c_nSectionOffset + c_nSectionHeadSize + c_nMaxSectionBytes;
    const unsigned nSum =
        std::accumulate(block.begin() + c_nSectionOffset, block.begin() + c_nSectionChecksum, 0U);
    block[c_nSectionChecksum] = static_cast<quint8>(0U - nSum);
    return Finished(block);
}

} // namespace

SConformResult MakeConforming(const SConformRequest& request)
{
    SConformResult result;
    result.strError = RequestError(request);
    if (!result.strError.isEmpty())
        return result;
    const SModeTiming wanted = ReducedMode(request.nWidth, request.nHeight, request.fRate);
    result.strError = TimingError(wanted);
    if (!result.strError.isEmpty())
        return result;
    const bool bExtended = !FitsBaseBlock(wanted);
    result.edid = BaseBlock(request, wanted, bExtended);
    if (bExtended)
        result.edid += TimingBlock(request, wanted);
    return result;
}

} // namespace Edid
