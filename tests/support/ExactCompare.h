#ifndef TESTS_SUPPORT_EXACTCOMPARE_H
#define TESTS_SUPPORT_EXACTCOMPARE_H

#include <QPointF>
#include <QString>
#include <QtTest>

/// @file
/// Comparison to the last bit. `QCOMPARE` on float and double is fuzzy, and where every rounding is fixed a
/// fuzzy comparison would hide a wrong one.

namespace ExactCompare {

/// The same bit pattern; any NaN equals any other.
bool SameBits(float fActual, float fExpected);
bool SameBits(double dActual, double dExpected);
bool SameBits(QPointF ptActual, QPointF ptExpected);

/// Both values as hexadecimal floating point, for the failure message.
QString Difference(float fActual, float fExpected);
QString Difference(double dActual, double dExpected);
QString Difference(QPointF ptActual, QPointF ptExpected);

} // namespace ExactCompare

/// Like QCOMPARE, to the last bit.
#define COMPARE_BITS(actual, expected) \
    QVERIFY2(ExactCompare::SameBits(actual, expected), qPrintable(ExactCompare::Difference(actual, expected)))

#endif // TESTS_SUPPORT_EXACTCOMPARE_H
