#ifndef TESTS_INSTRUMENTS_COLOUR_NEAR_H
#define TESTS_INSTRUMENTS_COLOUR_NEAR_H

#include <QtTest>

#include <cmath>

/// Fails unless two numbers differ by no more than a tolerance, and prints both.
#define COMPARE_NEAR(actual, expected, tolerance)                       \
    do {                                                                \
        const double dActual = actual;                                  \
        const double dExpected = expected;                              \
        QVERIFY2(std::abs(dActual - dExpected) <= double(tolerance),    \
                 qPrintable(QStringLiteral("%1 is not within %2 of %3") \
                                .arg(dActual, 0, 'g', 12)               \
                                .arg(double(tolerance), 0, 'g', 3)      \
                                .arg(dExpected, 0, 'g', 12)));          \
    } while (false)

#endif // TESTS_INSTRUMENTS_COLOUR_NEAR_H
