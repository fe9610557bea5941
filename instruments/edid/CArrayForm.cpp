#include "instruments/edid/TextForms.h"

/// @file
/// An array as C source writes it, with or without the declaration around it.

namespace Edid {

namespace {

/// Comments become blanks, so that every place stays where it is.
QByteArray WithoutComments(QByteArray text)
{
    const auto Blank = [&](int nBegin, int nEnd) {
        for (int i = nBegin; i < nEnd; ++i)
            if (text[i] != '\n' && text[i] != '\r')
                text[i] = ' ';
    };
    const auto EndOf = [&](int nIndex, const char* szEnd, int nLength) {
        const int nFound = int(text.indexOf(szEnd, nIndex));
        return nFound < 0 ? int(text.size()) : nFound + nLength;
    };
    for (int i = int(text.indexOf('/')); i >= 0 && i + 1 < text.size(); i = int(text.indexOf('/', i + 1))) {
        if (text[i + 1] == '*')
            Blank(i, EndOf(i + 2, "*/", 2));
        else if (text[i + 1] == '/')
            Blank(i, EndOf(i + 2, "\n", 0));
    }
    return text;
}

/// The part of a text between its braces; all of it without braces.
struct SStretch
{
    int nBegin;
    int nEnd;
};

SStretch BetweenBraces(const QByteArray& text)
{
    const int nOpen = int(text.indexOf('{'));
    if (nOpen < 0)
        return {0, int(text.size())};
    const int nClose = int(text.indexOf('}', nOpen));
    return {nOpen + 1, nClose < 0 ? int(text.size()) : nClose};
}

} // namespace

bool IsCArray(const QByteArray& text)
{
    return text.contains("0x") || text.contains("0X");
}

SReading ReadCArray(const QByteArray& text)
{
    const QByteArray source = WithoutComments(text);
    const SStretch stretch = BetweenBraces(source);
    const Lines vecLines = SplitLines(source);
    const char* pText = source.constData();
    const SLine* pLast = &vecLines.back();
    CByteCollector collector;
    for (const SLine& line : vecLines) {
        const int nLine = int(line.pBegin - pText);
        const int nBegin = std::max(stretch.nBegin - nLine, 0);
        const int nEnd = std::min(stretch.nEnd - nLine, line.Size());
        if (nBegin < nEnd && !collector.TakeGroups(line, nBegin, nEnd))
            break;
        pLast = &line;
        if (nLine > stretch.nEnd)
            break;
    }
    return collector.Result(*pLast);
}

} // namespace Edid
