#include "instruments/edid/EdidText.h"
#include "instruments/edid/TextForms.h"

#include <algorithm>

/// @file
/// What `xrandr --verbose` and `xrandr --prop` print: a line for each output, and below those with a display
/// the EDID as indented lines of 32 digits.

namespace Edid {

namespace {

constexpr char c_szConnected[] = " connected";
constexpr char c_szDisconnected[] = " disconnected";
constexpr char c_szProperty[] = "EDID:";

/// Outputs begin at the margin, everything that belongs to them is indented.
bool IsOutput(const SLine& line)
{
    if (line.Size() == 0 || line.At(0) == ' ' || line.At(0) == '\t')
        return false;
    const QByteArray text = line.Text();
    return text.contains(c_szConnected) || text.contains(c_szDisconnected);
}

bool IsProperty(const SLine& line)
{
    return line.Text().trimmed().startsWith(c_szProperty);
}

bool IsBytes(const SLine& line)
{
    constexpr int c_nDigits = 32;
    const QByteArray text = line.Text().trimmed();
    const auto IsHex = [](char ch) {
        return (ch >= '0' && ch <= '9') || (ch >= 'a' && ch <= 'f') || (ch >= 'A' && ch <= 'F');
    };
    return !text.isEmpty() && text.size() <= c_nDigits && std::all_of(text.begin(), text.end(), IsHex);
}

QString NameOf(const SLine& line)
{
    const QByteArray text = line.Text();
    return QString::fromUtf8(text.left(text.indexOf(' ')));
}

} // namespace

bool IsXrandr(const QByteArray& text)
{
    if (!text.contains(c_szConnected))
        return false;
    const Lines vecLines = SplitLines(text);
    return std::any_of(vecLines.begin(), vecLines.end(), &IsOutput);
}

SReading ReadXrandr(const QByteArray& text)
{
    const Lines vecLines = SplitLines(text);
    SReading reading;
    QString strName;
    for (auto it = vecLines.begin(); it != vecLines.end();) {
        const SLine& line = *it++;
        if (IsOutput(line))
            strName = NameOf(line);
        if (!IsProperty(line))
            continue;
        CByteCollector collector;
        const auto Take = [&] { return collector.TakeGroups(*it, 0, it->Size()); };
        while (it != vecLines.end() && IsBytes(*it) && Take())
            ++it;
        SReading one = collector.Result(it == vecLines.end() ? line : *it);
        if (!one.IsRead())
            return one;
        reading.vecEdids.append({strName, one.vecEdids.constFirst().bytes});
    }
    if (reading.vecEdids.isEmpty())
        return ErrorAt(vecLines.back(), 0,
                       CEdidText::tr("no output has an EDID; give what 'xrandr --prop' prints"));
    return reading;
}

} // namespace Edid
