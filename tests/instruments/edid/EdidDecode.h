#ifndef TESTS_INSTRUMENTS_EDID_EDIDDECODE_H
#define TESTS_INSTRUMENTS_EDID_EDIDDECODE_H

#include <QProcess>
#include <QStringList>

/// What the installed edid-decode prints for some options and input: the second opinion of these tests.
inline QString EdidDecode(const QStringList& listOptions, const QByteArray& input = QByteArray())
{
    QProcess process;
    process.start(QStringLiteral(EDID_DECODE), listOptions);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished())
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

#endif // TESTS_INSTRUMENTS_EDID_EDIDDECODE_H
