#include "tests/instruments/edid/ExtensionEdid.h"

#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/Conforming.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/Editing.h"

namespace ExtensionEdid {

namespace {

QByteArray Padded(const QByteArray& bytes)
{
    return bytes.leftJustified(c_nEdidBlockSize, '\0');
}

} // namespace

QByteArray Cta(const SCta& cta)
{
    const int nTimings = cta.nTimings < 0 ? Edid::c_nCtaFirstDataBlock + cta.dataBlocks.size() : cta.nTimings;
    QByteArray head(1, char(Edid::c_byCtaTag));
    head += char(cta.nRevision);
    head += char(nTimings);
    head += char(cta.nFlags);
    return Padded(head + cta.dataBlocks + cta.timings);
}

QByteArray Section(const SSection& section)
{
    QByteArray head(1, char(Edid::c_byDisplayIdTag));
    head += char(section.nVersion);
    head += char(section.nLength);
    head += char(section.nProduct);
    head += char(section.nFollowing);
    return Padded(head + section.dataBlocks);
}

QByteArray With(const QByteArray& extensions)
{
    QByteArray edid =
        Edid::MakeConforming({1920, 1080, 60.0F, QStringLiteral("LED"), {}, 60, 34}).edid + extensions;
    Edid::Fix(edid);
    return edid;
}

QByteArray Changed(QByteArray edid, int nOffset, const char* szHex)
{
    const QByteArray bytes = QByteArray::fromHex(szHex);
    edid.replace(nOffset, bytes.size(), bytes);
    Edid::Fix(edid);
    return edid;
}

} // namespace ExtensionEdid
