#ifndef TESTS_EDID_TIMINGRECORDS_H
#define TESTS_EDID_TIMINGRECORDS_H

#include "SenderModuleDialog/edid/EDIDRaw.h"

#include <QByteArray>
#include <QString>
#include <QtTest>

/// @file
/// Timing records and blocks in tests: comparison and a text for the failure message.

Q_DECLARE_METATYPE(tagSBlankTiming)
Q_DECLARE_METATYPE(tagSCalTimingIn)

inline bool operator==(const tagSBlankTiming& a, const tagSBlankTiming& b)
{
    return a.wHBlank == b.wHBlank && a.wHFrontPorch == b.wHFrontPorch && a.wHSync == b.wHSync &&
           a.wVBlank == b.wVBlank && a.byVFrontPorch == b.byVFrontPorch && a.byVSync == b.byVSync &&
           a.bySyncFlag == b.bySyncFlag;
}

inline QString Describe(const tagSBlankTiming& timing)
{
    return QString::asprintf("H blank %u front %u sync %u, V blank %u front %u sync %u, flag %u",
                             timing.wHBlank, timing.wHFrontPorch, timing.wHSync, timing.wVBlank,
                             timing.byVFrontPorch, timing.byVSync, timing.bySyncFlag);
}

inline QString Describe(const tagSCalTimingIn& in)
{
    return QString::asprintf("%dx%d at %a Hz (%.9g), interlaced %d, reduced %d, margins %d", in.nWidth,
                             in.nHeight, double(in.fRate), double(in.fRate), in.bInterlaced, in.bReducedBlank,
                             in.bMargins);
}

namespace QTest {

template <>
inline char* toString(const tagSBlankTiming& timing)
{
    return qstrdup(qPrintable(Describe(timing)));
}

} // namespace QTest

/// The block as a host reads it: 128 bytes at the object's address.
inline QByteArray BlockOf(const CEDIDRaw& edid)
{
    return QByteArray(reinterpret_cast<const char*>(&edid), 128);
}

#endif // TESTS_EDID_TIMINGRECORDS_H
