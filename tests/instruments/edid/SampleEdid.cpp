#include "tests/instruments/edid/SampleEdid.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "instruments/edid/Checksum.h"

namespace SampleEdid {

namespace {

constexpr char c_szBase[] = "00FFFFFFFFFFFF00 30A40112 78563412 0C20 0104 B5 3C22 78 3A"
                            "C515 AC4F44AE260E5054"
                            "A54B00"
                            "D1C0 8180 9500 A9C0 B300 0101 0101 0101"
                            "4DD000A0F0703E80302035 0058 5421 0000 1A"
                            "000000FF00 4D4E3132333435 0A2020202020"
                            "000000FD00 28 3C 1E 8C 3C 00 0A202020202020"
                            "000000FC00 4C454420 57414C4C 0A20202020"
                            "02 00";

constexpr char c_szCta[] = "02 03 3C F1"
                           "4B 10 1F 04 93 02 11 12 03 5F 5D 61"       // video codes
                           "23 09 7F 07"                               // audio
                           "83 01 00 00"                               // speakers
                           "6D 03 0C 00 10 00 38 3C 20 00 60 01 02 03" // HDMI
                           "67 D8 5D C4 01 78 80 03"                   // HDMI Forum
                           "E2 00 D5"                                  // video capability
                           "E3 05 C0 00"                               // colorimetry
                           "E3 06 0D 01"                               // HDR
                           "E2 0F 00"                                  // 4:2:0 map
    ;

constexpr char c_szDisplayId[] = "70 13 79 03 00"
                                 "03 00 14"
                                 "E1 5A 02 84 FF 1D 9F 00 2F 80 1F 00 37 04 3D 00 02 00 04 00";

QByteArray Block(const char* szHex)
{
    constexpr int c_nLast = Edid::c_nChecksumOffset;
    QByteArray block = QByteArray::fromHex(szHex);
    return block.append(c_nLast + 1 - block.size(), '\0');
}

/// The section's own checksum makes its bytes sum to 0, its head and its data blocks with it.
QByteArray WithSectionChecksum(QByteArray block)
{
    constexpr int c_nSectionChecksum = 126;
    unsigned nSum = 0;
    for (int i = 1; i < c_nSectionChecksum; ++i)
        nSum += static_cast<quint8>(block[i]);
    block[c_nSectionChecksum] = static_cast<char>(0U - nSum);
    return block;
}

} // namespace

QByteArray Built(int nWidth, int nHeight, float fRate)
{
    CEDIDRaw edid;
    edid.ChangeWH(nWidth, nHeight, fRate);
    return QByteArray(reinterpret_cast<const char*>(&edid), sizeof edid);
}

QByteArray Rich()
{
    return WithChecksums(Block(c_szBase) + Block(c_szCta) + WithSectionChecksum(Block(c_szDisplayId)));
}

QByteArray WithChecksums(QByteArray edid)
{
    for (int nBlock = 0; nBlock + c_nEdidBlockSize <= edid.size(); nBlock += c_nEdidBlockSize)
        edid[nBlock + Edid::c_nChecksumOffset] =
            char(Edid::Checksum(reinterpret_cast<const quint8*>(edid.constData()) + nBlock));
    return edid;
}

} // namespace SampleEdid
