#include "instruments/colour/CsvLines.h"

#include <QTextCodec>

#include <algorithm>

namespace {

constexpr QChar c_chQuote = QLatin1Char('"');
constexpr QChar c_chNewline = QLatin1Char('\n');
constexpr QChar c_chComment = QLatin1Char('#');

/// What Excel writes into a first line of its own.
const QString c_strSeparatorMark = QStringLiteral("sep=");

std::optional<QString> DecodeBy(const char* szCodec, const QByteArray& content)
{
    QTextCodec* pCodec = QTextCodec::codecForName(szCodec);
    if (pCodec == nullptr)
        return std::nullopt;
    QTextCodec::ConverterState state;
    const QString strText = pCodec->toUnicode(content.constData(), int(content.size()), &state);
    if (state.invalidChars > 0 || strText.contains(QChar::Null))
        return std::nullopt;
    return strText;
}

QChar SeparatorOf(const QString& strLine)
{
    for (const char ch : {'\t', ';'})
        if (strLine.contains(QLatin1Char(ch)))
            return QLatin1Char(ch);
    return QLatin1Char(',');
}

/// Walks a text field by field.
class CScanner
{
public:
    CScanner(const QString& strText, int nPosition, int nLine, QChar chSeparator)
        : m_strText(strText)
        , m_nPosition(nPosition)
        , m_nLine(nLine)
        , m_chSeparator(chSeparator)
    {}

    bool IsAtEnd() const { return m_nPosition >= m_strText.size(); }
    int OpenQuote() const { return m_nOpenQuote; }

    SCsvLine TakeLine()
    {
        SCsvLine line;
        line.nNumber = m_nLine;
        do
            line.listFields.append(TakeField());
        while (TakeIf(m_chSeparator));
        TakeIf(c_chNewline);
        ++m_nLine;
        return line;
    }

private:
    bool TakeIf(QChar ch)
    {
        if (IsAtEnd() || m_strText.at(m_nPosition) != ch)
            return false;
        ++m_nPosition;
        return true;
    }

    QString TakeField()
    {
        const QString strPlain = TakePlain();
        if (!strPlain.trimmed().isEmpty() || !TakeIf(c_chQuote))
            return strPlain.trimmed();
        const QString strQuoted = TakeQuoted();
        return (strQuoted + TakePlain()).trimmed();
    }

    /// Up to the end of the field, or to a quote that opens it.
    QString TakePlain()
    {
        const int nBegin = m_nPosition;
        bool bBlank = true;
        while (!IsAtEnd()) {
            const QChar ch = m_strText.at(m_nPosition);
            if (ch == m_chSeparator || ch == c_chNewline || (bBlank && ch == c_chQuote))
                break;
            bBlank = bBlank && ch.isSpace();
            ++m_nPosition;
        }
        return m_strText.mid(nBegin, m_nPosition - nBegin);
    }

    /// Up to the closing quote; two quotes stand for one.
    QString TakeQuoted()
    {
        const int nFirstLine = m_nLine;
        QString strField;
        while (!IsAtEnd()) {
            const QChar ch = m_strText.at(m_nPosition++);
            if (ch == c_chQuote && !TakeIf(c_chQuote))
                return strField;
            if (ch == c_chNewline)
                ++m_nLine;
            strField += ch;
        }
        m_nOpenQuote = nFirstLine;
        return strField;
    }

    const QString& m_strText;
    int m_nPosition;
    int m_nLine;
    QChar m_chSeparator;
    int m_nOpenQuote = 0;
};

/// Where the lines begin, and what separates their fields.
struct STextStart
{
    int nPosition = 0;
    int nLine = 1;
    QChar chSeparator;
};

/// The first line that is neither blank nor a remark.
QString FirstLineOf(const QString& strText)
{
    for (const QString& strLine : strText.split(c_chNewline))
        if (!strLine.trimmed().isEmpty() && !strLine.trimmed().startsWith(c_chComment))
            return strLine;
    return QString();
}

STextStart StartOf(const QString& strText)
{
    const QString strFirst = strText.section(c_chNewline, 0, 0).trimmed();
    const bool bMarked = strFirst.startsWith(c_strSeparatorMark, Qt::CaseInsensitive) &&
                         strFirst.size() == c_strSeparatorMark.size() + 1;
    if (bMarked)
        return {int(strText.indexOf(c_chNewline)) + 1, 2, strFirst.back()};
    return {0, 1, SeparatorOf(FirstLineOf(strText))};
}

bool HoldsSomething(const SCsvLine& line)
{
    const bool bEmpty = std::all_of(line.listFields.begin(), line.listFields.end(),
                                    [](const QString& strField) { return strField.isEmpty(); });
    return !bEmpty && !line.listFields.constFirst().startsWith(c_chComment);
}

} // namespace

std::optional<QString> CsvLines::Decode(const QByteArray& content)
{
    if (content.startsWith("\xFF\xFE") || content.startsWith("\xFE\xFF"))
        return DecodeBy("UTF-16", content);
    if (auto strText = DecodeBy("UTF-8", content))
        return strText;
    return DecodeBy("GB18030", content);
}

SCsvLines CsvLines::Split(const QString& strContent)
{
    QString strText = strContent;
    strText.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), c_chNewline);
    if (strText.startsWith(QChar::ByteOrderMark))
        strText.remove(0, 1);
    const STextStart start = StartOf(strText);
    SCsvLines lines;
    lines.chSeparator = start.chSeparator;
    CScanner scanner(strText, start.nPosition, start.nLine, start.chSeparator);
    while (!scanner.IsAtEnd()) {
        SCsvLine line = scanner.TakeLine();
        if (HoldsSomething(line))
            lines.vecLines.push_back(std::move(line));
    }
    lines.nOpenQuote = scanner.OpenQuote();
    return lines;
}

QString CsvLines::Quoted(const QString& strField, QChar chSeparator)
{
    const bool bNeeded = strField.contains(chSeparator) || strField.contains(c_chQuote) ||
                         strField.contains(c_chNewline) || strField.startsWith(c_chComment);
    if (!bNeeded)
        return strField;
    return c_chQuote + QString(strField).replace(c_chQuote, QStringLiteral("\"\"")) + c_chQuote;
}
