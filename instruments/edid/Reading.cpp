#include "instruments/edid/Reading.h"

#include "instruments/edid/Checksum.h"
#include "instruments/edid/EdidText.h"
#include "instruments/edid/TextForms.h"

#include <algorithm>
#include <iterator>

namespace Edid {

namespace {

constexpr char c_arrHeader[] = "\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00";
constexpr int c_nHeaderSize = 8;

/// No text holds a zero byte or one of the other control characters.
bool IsControl(char ch)
{
    constexpr char c_chFirstPrintable = ' ';
    constexpr char c_chDelete = 0x7F;
    const bool bLow = static_cast<unsigned char>(ch) < c_chFirstPrintable;
    return (bLow && ch != '\n' && ch != '\r' && ch != '\t' && ch != '\f' && ch != '\v') || ch == c_chDelete;
}

bool IsBinary(const QByteArray& content)
{
    if (content.startsWith(QByteArray::fromRawData(c_arrHeader, c_nHeaderSize)))
        return true;
    return std::any_of(content.begin(), content.end(), &IsControl);
}

SReading ReadBinary(const QByteArray& content)
{
    SReading reading;
    reading.strError = SizeError(int(content.size()));
    if (reading.IsRead())
        reading.vecEdids.append({QString(), content});
    return reading;
}

struct STextForm
{
    bool (*pIs)(const QByteArray& text);
    SReading (*pRead)(const QByteArray& text);
};

/// The first form that recognises the text reads it: the more particular ones come first.
constexpr STextForm c_arrForms[] = {
    {&IsJson, &ReadJson}, {&IsXrandr, &ReadXrandr},   {&IsDecoderText, &ReadDecoderText},
    {&IsXxd, &ReadXxd},   {&IsHexdump, &ReadHexdump}, {&IsCArray, &ReadCArray},
};

SReading ReadText(const QByteArray& text)
{
    const auto Recognises = [&](const STextForm& form) { return form.pIs(text); };
    const STextForm* pForm = std::find_if(std::begin(c_arrForms), std::end(c_arrForms), Recognises);
    return pForm == std::end(c_arrForms) ? ReadPlainHex(text) : pForm->pRead(text);
}

} // namespace

QString SReading::ErrorText() const
{
    if (nLine == 0)
        return strError;
    return CEdidText::tr("line %1, column %2: %3").arg(nLine).arg(nColumn).arg(strError);
}

SReading Read(const QByteArray& content)
{
    if (content.size() <= c_nMaxText)
        return IsBinary(content) ? ReadBinary(content) : ReadText(content);
    // A text with too much in it is told where; one that would have been all right is just too long.
    const QByteArray begin = content.left(c_nMaxText);
    SReading reading = IsBinary(begin) ? ReadBinary(content) : ReadText(begin);
    if (reading.IsRead())
        reading.strError = CEdidText::tr("the text is longer than 8 MB; give the EDID alone");
    return reading;
}

} // namespace Edid
