#include "tools/VideoMode.h"

#include "tools/Report.h"

#include <QRegularExpression>

namespace {

constexpr int c_nLargest = 65535; ///< of width, height and rate

/// What may follow is put to the person in the same words everywhere.
const QString c_strExample = QStringLiteral("write WIDTHxHEIGHT@RATE, for example 1920x1080@59.94");

[[noreturn]] void ThrowOutOfRange(const QString& strMode, const char* szWhat, const QString& strNumber)
{
    throw CToolError(QStringLiteral("mode '%1': the %2 %3 is out of range; it must be above 0 and at most %4")
                         .arg(strMode, QString::fromLatin1(szWhat), strNumber)
                         .arg(c_nLargest));
}

QRegularExpressionMatch Match(const QString& strMode)
{
    // The signs are let through to be rejected as what they are: numbers out of range.
    static const QRegularExpression s_pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("(-?[0-9]+)[xX](-?[0-9]+)@(-?[0-9]+(?:\\.[0-9]+)?)")));
    const QRegularExpressionMatch match = s_pattern.match(strMode);
    if (!match.hasMatch())
        throw CToolError(QStringLiteral("'%1' is not a video mode; %2").arg(strMode, c_strExample));
    return match;
}

int Size(const QString& strMode, const char* szWhat, const QString& strNumber)
{
    bool bOk = false;
    const int nSize = strNumber.toInt(&bOk);
    if (!bOk || nSize <= 0 || nSize > c_nLargest)
        ThrowOutOfRange(strMode, szWhat, strNumber);
    return nSize;
}

float Rate(const QString& strMode, const QString& strNumber)
{
    bool bOk = false;
    const float fRate = strNumber.toFloat(&bOk);
    if (!bOk || !(fRate > 0.0F) || fRate > static_cast<float>(c_nLargest))
        ThrowOutOfRange(strMode, "rate", strNumber);
    return fRate;
}

} // namespace

SVideoMode ParseVideoMode(const QString& strMode)
{
    const QRegularExpressionMatch match = Match(strMode);
    SVideoMode mode = {};
    mode.nWidth = Size(strMode, "width", match.captured(1));
    mode.nHeight = Size(strMode, "height", match.captured(2));
    mode.strRate = match.captured(3);
    mode.fRate = Rate(strMode, mode.strRate);
    return mode;
}

QString DescribeVideoMode(const SVideoMode& mode)
{
    return QStringLiteral("%1x%2 at %3 Hz").arg(mode.nWidth).arg(mode.nHeight).arg(mode.strRate);
}
