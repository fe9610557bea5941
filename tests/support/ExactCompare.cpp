#include "tests/support/ExactCompare.h"

#include <cmath>
#include <cstdio>

namespace ExactCompare {

namespace {

template <class T>
bool SameBitsOf(T actual, T expected)
{
    if (std::isnan(actual) && std::isnan(expected))
        return true;
    // Equal values have equal bits, except the two zeros.
    return actual == expected && std::signbit(actual) == std::signbit(expected);
}

QString Hex(double dValue)
{
    // Qt's own formatting has no hexadecimal floating point.
    char szText[64];
    std::snprintf(szText, sizeof szText, "%a (%.17g)", dValue, dValue);
    return QString::fromLatin1(szText);
}

} // namespace

bool SameBits(float fActual, float fExpected)
{
    return SameBitsOf(fActual, fExpected);
}

bool SameBits(double dActual, double dExpected)
{
    return SameBitsOf(dActual, dExpected);
}

bool SameBits(QPointF ptActual, QPointF ptExpected)
{
    return SameBits(ptActual.x(), ptExpected.x()) && SameBits(ptActual.y(), ptExpected.y());
}

QString Difference(float fActual, float fExpected)
{
    return Difference(double(fActual), double(fExpected));
}

QString Difference(double dActual, double dExpected)
{
    return QStringLiteral("actual %1, expected %2").arg(Hex(dActual), Hex(dExpected));
}

QString Difference(QPointF ptActual, QPointF ptExpected)
{
    return QStringLiteral("x: %1; y: %2")
        .arg(Difference(ptActual.x(), ptExpected.x()), Difference(ptActual.y(), ptExpected.y()));
}

} // namespace ExactCompare
