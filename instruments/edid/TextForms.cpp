#include "instruments/edid/TextForms.h"

#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/EdidText.h"

#include <algorithm>
#include <cstring>

namespace Edid {

namespace {

constexpr int c_nMaxBytes = c_nMaxBlocks * c_nEdidBlockSize;

/// The digit's value, -1 for another character.
int DigitValue(char ch)
{
    if (ch >= '0' && ch <= '9')
        return ch - '0';
    if (ch >= 'a' && ch <= 'f')
        return ch - 'a' + 10;
    return ch >= 'A' && ch <= 'F' ? ch - 'A' + 10 : -1;
}

bool IsDigit(char ch)
{
    return DigitValue(ch) >= 0;
}

bool IsSeparator(char ch)
{
    return ch != '\0' && std::strchr(" \t,:;\f\v", ch) != nullptr;
}

bool IsBlank(char ch)
{
    return ch == ' ' || ch == '\t';
}

QString Shown(char ch)
{
    constexpr unsigned char c_byLastPlain = 0x7E;
    const bool bPlain = ch >= ' ' && static_cast<unsigned char>(ch) <= c_byLastPlain;
    return bPlain
               ? QStringLiteral("'%1'").arg(QLatin1Char(ch))
               : CEdidText::tr("the byte 0x%1").arg(static_cast<unsigned char>(ch), 2, 16, QLatin1Char('0'));
}

int SkipBlanks(const SLine& line, int nColumn)
{
    while (IsBlank(line.At(nColumn)))
        ++nColumn;
    return nColumn;
}

int SkipDigits(const SLine& line, int nColumn)
{
    while (IsDigit(line.At(nColumn)))
        ++nColumn;
    return nColumn;
}

bool IsEmpty(const SLine& line)
{
    return SkipBlanks(line, 0) == line.Size();
}

/// The line that decides what a text is.
const SLine* FirstLine(const Lines& vecLines)
{
    const auto HasContent = [](const SLine& line) { return !IsEmpty(line); };
    const auto it = std::find_if(vecLines.begin(), vecLines.end(), HasContent);
    return it == vecLines.end() ? nullptr : &*it;
}

/// Enough lines to recognise a form.
Lines FirstLines(const QByteArray& text)
{
    constexpr int c_nEnough = 4096;
    return SplitLines(QByteArray::fromRawData(text.constData(), std::min(int(text.size()), c_nEnough)));
}

/// The end of the offset that a line of a dump begins with, -1 for a line without one.
int OffsetEnd(const SLine& line)
{
    constexpr int c_nFewestDigits = 4;
    constexpr int c_nMostDigits = 16;
    const int nEnd = SkipDigits(line, 0);
    return nEnd >= c_nFewestDigits && nEnd <= c_nMostDigits ? nEnd : -1;
}

bool IsXxdLine(const SLine& line)
{
    const int nEnd = OffsetEnd(line);
    return nEnd > 0 && line.At(nEnd) == ':' && line.At(nEnd + 1) == ' ';
}

bool IsHexdumpLine(const SLine& line)
{
    const int nEnd = OffsetEnd(line);
    return nEnd > 0 && line.At(nEnd) == ' ' && line.At(nEnd + 1) == ' ' && IsDigit(line.At(nEnd + 2)) &&
           IsDigit(line.At(nEnd + 3)) && !IsDigit(line.At(nEnd + 4));
}

/// Where two blanks in a row begin: a dump puts its characters behind them.
int DoubleBlank(const SLine& line, int nColumn)
{
    while (nColumn < line.Size() && !(IsBlank(line.At(nColumn)) && IsBlank(line.At(nColumn + 1))))
        ++nColumn;
    return nColumn;
}

/// A dump whose lines leave something out tells by its offsets.
bool CheckOffset(CByteCollector& collector, const SLine& line, int nOffsetEnd)
{
    const qint64 nOffset = QByteArray(line.pBegin, nOffsetEnd).toLongLong(nullptr, 16);
    if (nOffset == collector.Bytes().size())
        return true;
    return collector.Fail(line, 0,
                          CEdidText::tr("the offset is 0x%1, but there are 0x%2 bytes before it; "
                                        "give every line of the dump")
                              .arg(nOffset, 0, 16)
                              .arg(collector.Bytes().size(), 0, 16));
}

bool TakeXxdLine(CByteCollector& collector, const SLine& line)
{
    if (IsEmpty(line))
        return true;
    if (!IsXxdLine(line))
        return collector.Fail(line, 0,
                              CEdidText::tr("no offset with a colon; give every line as xxd writes it"));
    const int nOffsetEnd = OffsetEnd(line);
    if (!CheckOffset(collector, line, nOffsetEnd))
        return false;
    const int nFirst = nOffsetEnd + 2;
    return collector.TakeGroups(line, nFirst, DoubleBlank(line, nFirst));
}

int CharactersColumn(const SLine& line)
{
    return int(std::find(line.pBegin, line.pEnd, '|') - line.pBegin);
}

/// What a `*` stands for is known when the next offset is.
bool TakeHexdumpLine(CByteCollector& collector, const SLine& line, bool& bRepeats)
{
    if (IsEmpty(line))
        return true;
    if (line.Size() == 1 && line.At(0) == '*') {
        bRepeats = true;
        return true;
    }
    const int nOffsetEnd = OffsetEnd(line);
    if (nOffsetEnd < 0)
        return collector.Fail(line, 0, CEdidText::tr("no offset; give every line as hexdump -C writes it"));
    const qint64 nOffset = QByteArray(line.pBegin, nOffsetEnd).toLongLong(nullptr, 16);
    if (bRepeats && !collector.Repeat(line, int(std::min<qint64>(nOffset, c_nMaxBytes + 1))))
        return false;
    bRepeats = false;
    return CheckOffset(collector, line, nOffsetEnd) &&
           collector.TakeGroups(line, nOffsetEnd, CharactersColumn(line));
}

/// A line that holds nothing but pairs of digits in groups.
bool IsHexLine(const SLine& line)
{
    const auto IsHex = [](char ch) { return IsDigit(ch) || IsBlank(ch); };
    return !IsEmpty(line) && std::all_of(line.pBegin, line.pEnd, IsHex);
}

const SLine c_noLine = {nullptr, nullptr, 1};

const SLine& LastOf(const Lines& vecLines)
{
    return vecLines.empty() ? c_noLine : vecLines.back();
}

template <class TTake>
SReading ReadLines(const QByteArray& text, TTake take)
{
    const Lines vecLines = SplitLines(text);
    CByteCollector collector;
    for (const SLine& line : vecLines)
        if (!take(collector, line))
            break;
    return collector.Result(LastOf(vecLines));
}

constexpr char c_szDecoderMark[] = "edid-decode (hex):";

} // namespace

Lines SplitLines(const QByteArray& text)
{
    Lines vecLines;
    const char* pNext = text.constData();
    const char* pEnd = pNext + text.size();
    while (pNext != pEnd) {
        const char* pBreak = std::find(pNext, pEnd, '\n');
        const char* pContentEnd = pBreak != pNext && pBreak[-1] == '\r' ? pBreak - 1 : pBreak;
        vecLines.push_back({pNext, pContentEnd, int(vecLines.size()) + 1});
        pNext = pBreak == pEnd ? pEnd : pBreak + 1;
    }
    return vecLines;
}

SReading ErrorAt(const SLine& line, int nColumn, const QString& strError)
{
    SReading reading;
    reading.strError = strError;
    reading.nLine = line.nNumber;
    reading.nColumn = nColumn + 1;
    return reading;
}

QString SizeError(qint64 nBytes)
{
    if (nBytes == 0)
        return CEdidText::tr("there are no bytes; give an EDID of at least 128");
    if (nBytes > c_nMaxBytes)
        return CEdidText::tr("there are more than 256 blocks; an EDID has at most so many");
    if (nBytes % c_nEdidBlockSize != 0)
        return CEdidText::tr("there are %1 bytes; an EDID has whole blocks of 128").arg(nBytes);
    return {};
}

bool CByteCollector::Fail(const SLine& line, int nColumn, const QString& strError)
{
    m_error = ErrorAt(line, nColumn, strError);
    return false;
}

bool CByteCollector::HasRoom(const SLine& line, int nColumn, int nMore)
{
    return m_bytes.size() + nMore <= c_nMaxBytes || Fail(line, nColumn, SizeError(c_nMaxBytes + 1));
}

bool CByteCollector::TakeGroup(const SLine& line, int nBegin, int nEnd)
{
    const int nDigits = nEnd - nBegin;
    if (!HasRoom(line, nBegin, (nDigits + 1) / 2))
        return false;
    const bool bPrefixed = nBegin >= 2 && (line.At(nBegin - 1) | ' ') == 'x';
    if (nDigits % 2 != 0 && !(bPrefixed && nDigits == 1))
        return Fail(line, nBegin,
                    CEdidText::tr("'%1' is no whole number of bytes; write two digits for each")
                        .arg(QString::fromLatin1(line.pBegin + nBegin, std::min(nDigits, 40))));
    int nColumn = nBegin;
    if (nDigits % 2 != 0)
        m_bytes.append(char(DigitValue(line.At(nColumn++))));
    for (; nColumn < nEnd; nColumn += 2)
        m_bytes.append(char(DigitValue(line.At(nColumn)) * 16 + DigitValue(line.At(nColumn + 1))));
    return true;
}

bool CByteCollector::TakeGroups(const SLine& line, int nBegin, int nEnd)
{
    for (int nColumn = nBegin; nColumn < nEnd;) {
        if (IsSeparator(line.At(nColumn))) {
            ++nColumn;
            continue;
        }
        const bool bPrefix = line.At(nColumn) == '0' && (line.At(nColumn + 1) | ' ') == 'x';
        const int nFirst = nColumn + (bPrefix ? 2 : 0);
        const int nLast = std::min(SkipDigits(line, nFirst), nEnd);
        if (nLast <= nFirst || (nLast < nEnd && !IsSeparator(line.At(nLast))))
            return Fail(line, nLast, CEdidText::tr("%1 is no hexadecimal digit").arg(Shown(line.At(nLast))));
        if (!TakeGroup(line, nFirst, nLast))
            return false;
        nColumn = nLast;
    }
    return true;
}

bool CByteCollector::Repeat(const SLine& line, int nUpTo)
{
    constexpr int c_nRow = 16;
    if (m_bytes.size() < c_nRow)
        return Fail(line, 0, CEdidText::tr("'*' has no line before it to repeat"));
    if (nUpTo > c_nMaxBytes)
        return Fail(line, 0, SizeError(nUpTo));
    while (m_bytes.size() < nUpTo)
        m_bytes.append(m_bytes.right(c_nRow).left(nUpTo - m_bytes.size()));
    return true;
}

SReading CByteCollector::Result(const SLine& lineLast) const
{
    if (HasFailed())
        return m_error;
    const QString strError = SizeError(int(m_bytes.size()));
    if (!strError.isEmpty())
        return ErrorAt(lineLast, lineLast.Size(), strError);
    SReading reading;
    reading.vecEdids.append({QString(), m_bytes});
    return reading;
}

bool IsXxd(const QByteArray& text)
{
    const Lines vecLines = FirstLines(text);
    const SLine* pFirst = FirstLine(vecLines);
    return pFirst != nullptr && IsXxdLine(*pFirst);
}

SReading ReadXxd(const QByteArray& text)
{
    return ReadLines(text, &TakeXxdLine);
}

bool IsHexdump(const QByteArray& text)
{
    const Lines vecLines = FirstLines(text);
    const SLine* pFirst = FirstLine(vecLines);
    return pFirst != nullptr && IsHexdumpLine(*pFirst);
}

SReading ReadHexdump(const QByteArray& text)
{
    bool bRepeats = false;
    return ReadLines(text, [&](CByteCollector& collector, const SLine& line) {
        return TakeHexdumpLine(collector, line, bRepeats);
    });
}

SReading ReadPlainHex(const QByteArray& text)
{
    return ReadLines(text, [](CByteCollector& collector, const SLine& line) {
        return collector.TakeGroups(line, 0, line.Size());
    });
}

bool IsDecoderText(const QByteArray& text)
{
    return text.contains(c_szDecoderMark);
}

/// The bytes stand between the mark and the first line that is none of them.
SReading ReadDecoderText(const QByteArray& text)
{
    const Lines vecLines = SplitLines(text);
    const auto IsMark = [](const SLine& line) { return line.Text().trimmed() == c_szDecoderMark; };
    auto it = std::find_if(vecLines.begin(), vecLines.end(), IsMark);
    if (it == vecLines.end())
        return ErrorAt(
            LastOf(vecLines), 0,
            CEdidText::tr("'%1' stands on no line of its own").arg(QLatin1String(c_szDecoderMark)));
    CByteCollector collector;
    for (++it; it != vecLines.end() && (IsEmpty(*it) || IsHexLine(*it)); ++it)
        if (!collector.TakeGroups(*it, 0, it->Size()))
            break;
    return collector.Result(it == vecLines.end() ? vecLines.back() : *it);
}

} // namespace Edid
