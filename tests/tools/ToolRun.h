#ifndef TESTS_TOOLS_TOOLRUN_H
#define TESTS_TOOLS_TOOLRUN_H

#include <QByteArray>
#include <QByteArrayList>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

/// What a run of the real `sender-tool` gave.
struct SToolRun
{
    int nStatus = -1; ///< exit status, -1 when it did not end by itself
    QByteArray output;
    QByteArray errors;
};

/// Runs the tool of this build with these words, given in UTF-8.
/// @param input what it reads on standard input
inline SToolRun RunTool(const QByteArrayList& listWords, const QByteArray& input = QByteArray())
{
    QStringList listArguments;
    for (const QByteArray& word : listWords)
        listArguments += QString::fromUtf8(word);
    QProcess process;
    process.start(QStringLiteral(SENDER_TOOL), listArguments);
    process.write(input);
    process.closeWriteChannel();
    SToolRun run;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit)
        run.nStatus = process.exitCode();
    run.output = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}

/// The object that a run printed as JSON.
inline QJsonObject JsonOf(const SToolRun& run)
{
    return QJsonDocument::fromJson(run.output).object();
}

/// The run ended as bad input does: status 2, no result, and one line that holds the given text.
#define VERIFY_BAD_INPUT(run, expectedText)                                        \
    do {                                                                           \
        const SToolRun badRun = run;                                               \
        QCOMPARE(badRun.nStatus, 2);                                               \
        QCOMPARE(badRun.output, QByteArray());                                     \
        QCOMPARE(badRun.errors.count('\n'), 1);                                    \
        QVERIFY2(badRun.errors.endsWith('\n'), badRun.errors.constData());         \
        QVERIFY2(badRun.errors.contains(expectedText), badRun.errors.constData()); \
    } while (false)

#endif // TESTS_TOOLS_TOOLRUN_H
