#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "tests/architecture/digest/Digest.h"

#include <array>
#include <climits>

namespace {

constexpr int c_nRounds = 8000;

/// Sizes of displays, anything up to the limits of the controls, and now and then invalid ones.
int Size(CSequence& sequence)
{
    static constexpr int c_arrUsual[] = {600,  768,  800,  900,  960,  1024, 1050, 1080, 1152, 1200,
                                         1280, 1366, 1400, 1440, 1600, 1680, 1920, 2048, 2160, 3840};
    static constexpr int c_arrOdd[] = {0, -1, -1920, 65535, 16777217, INT_MAX, INT_MIN};
    const int nKind = sequence.Below(16);
    if (nKind == 0)
        return c_arrOdd[sequence.Below(7)];
    return nKind < 10 ? c_arrUsual[sequence.Below(20)] : 1 + sequence.Below(32768);
}

float Rate(CSequence& sequence)
{
    static constexpr float c_arrUsual[] = {23.976F, 24.0F,  25.0F, 29.97F, 30.0F,  48.0F,
                                           50.0F,   59.94F, 60.0F, 75.0F,  120.0F, 144.0F};
    static constexpr float c_arrOdd[] = {0.0F,   -0.0F,   -60.0F,   2173.9F,   3e9F,
                                         1e-40F, 3.4e38F, INFINITY, -INFINITY, NAN};
    const int nKind = sequence.Below(16);
    if (nKind == 0)
        return c_arrOdd[sequence.Below(10)];
    return nKind < 10 ? c_arrUsual[sequence.Below(12)] : sequence.Unit() * 480.0F;
}

void Add(CDigest& digest, const tagSBlankTiming& timing)
{
    for (const int nField :
         {int(timing.wHBlank), int(timing.wHFrontPorch), int(timing.wHSync), int(timing.wVBlank),
          int(timing.byVFrontPorch), int(timing.byVSync), int(timing.bySyncFlag)})
        digest.Add(nField);
}

void CalculatedTiming(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        tagSCalTimingIn in = {};
        in.nWidth = Size(sequence);
        in.nHeight = Size(sequence);
        in.fRate = Rate(sequence);
        in.bInterlaced = sequence.Below(2);
        in.bReducedBlank = sequence.Below(2);
        in.bMargins = sequence.Below(2);
        tagSBlankTiming timing = {};
        CEDIDRaw().CalculateTiming(in, &timing);
        Add(digest, timing);
    }
}

void PixelFrequency(CSequence& sequence, CDigest& digest)
{
    const CEDIDRaw edid;
    for (int i = 0; i < c_nRounds; ++i) {
        const int nWidth = Size(sequence);
        const int nHeight = Size(sequence);
        const float fRate = Rate(sequence);
        digest.Add(edid.CalReslutionPixelFreq(nWidth, nHeight, fRate, sequence.Below(3)));
        digest.Add(edid.CalculatePixelFreq(nWidth, nHeight, nHeight, nWidth, fRate));
        digest.Add(edid.IsReslutionOk(nWidth, nHeight, fRate));
    }
}

void Blocks(CSequence& sequence, CDigest& digest)
{
    CEDIDRaw edid;
    for (int i = 0; i < c_nRounds / 8; ++i) {
        const int nWidth = Size(sequence);
        const int nHeight = Size(sequence);
        edid.ChangeWH(nWidth, nHeight, Rate(sequence));
        std::array<unsigned char, sizeof(CEDIDRaw)> block = {};
        std::memcpy(block.data(), &edid, block.size());
        for (const unsigned char byByte : block)
            digest.Add(int(byByte));
    }
}

} // namespace

std::vector<SDigestFunction> EdidDigests()
{
    return {
        {"CEDIDRaw-CalculateTiming", CalculatedTiming},
        {"CEDIDRaw-pixel-frequency", PixelFrequency},
        {"CEDIDRaw-ChangeWH", Blocks},
    };
}
