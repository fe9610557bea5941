#include "tests/tools/ToolRun.h"

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

namespace {

QByteArray HexOf(const char* szMode)
{
    return RunTool({"edid", szMode}).output;
}

/// A display of xrandr with the EDID of a mode.
QByteArray Output(const char* szName, const char* szMode)
{
    QByteArray lines;
    for (const QByteArray& line : HexOf(szMode).split('\n'))
        lines += line.isEmpty() ? QByteArray() : "\t\t" + QByteArray(line).replace(" ", "").toLower() + "\n";
    return QByteArray(szName) + " connected 1x1+0+0\n\tEDID: \n" + lines;
}

} // namespace

/// `sender-tool explain`, the real executable.
class TestExplainCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ABlockOfTheToolIsExplained();
    void StandardInputIsRead();
    void SeveralDisplaysAreToldApart();
    void OneDisplayCanBeChosen();
    void TheJsonCanBeReadBack();
    void WhatCannotBeReadIsOneLine_data();
    void WhatCannotBeReadIsOneLine();

private:
    QByteArray File(const QByteArray& content);

    QTemporaryDir m_folder;
    int m_nFiles = 0;
};

QByteArray TestExplainCommand::File(const QByteArray& content)
{
    QFile file(m_folder.filePath(QString::number(++m_nFiles)));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("the test's file could not be written");
    return file.fileName().toUtf8();
}

void TestExplainCommand::ABlockOfTheToolIsExplained()
{
    const SToolRun run = RunTool({"explain", File(HexOf("1920x1080@60"))});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    for (const char* szLine :
         {"0000              Base block\n", "Detailed timing 1: 1920x1080 at 59.999 Hz\n",
          "Name: LED 1920X1080\n", "007F  22            Checksum: right\n"})
        QVERIFY2(run.output.contains(szLine), run.output.constData());
}

void TestExplainCommand::StandardInputIsRead()
{
    const QByteArray file = File(HexOf("800x600@60"));
    QProcess process;
    process.setStandardInputFile(QString::fromUtf8(file));
    process.start(QStringLiteral(SENDER_TOOL), {QStringLiteral("explain"), QStringLiteral("-")});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), RunTool({"explain", file}).output);
}

void TestExplainCommand::SeveralDisplaysAreToldApart()
{
    const QByteArray file = File(Output("HDMI-1", "1920x1080@60") + Output("DP-2", "1280x720@50"));
    const SToolRun run = RunTool({"explain", file});
    QVERIFY2(run.output.startsWith(file + ", HDMI-1:\n0000"), run.output.constData());
    QVERIFY2(run.output.contains("\n\n" + file + ", DP-2:\n0000"), run.output.constData());
}

void TestExplainCommand::OneDisplayCanBeChosen()
{
    const QByteArray file = File(Output("HDMI-1", "1920x1080@60") + Output("DP-2", "1280x720@50"));
    const SToolRun run = RunTool({"explain", file, "--display", "DP-2"});
    QCOMPARE(run.output, RunTool({"explain", File(HexOf("1280x720@50"))}).output);
    VERIFY_BAD_INPUT(RunTool({"explain", file, "--display", "VGA"}),
                     "no EDID of the display 'VGA'; give one of: HDMI-1, DP-2");
}

void TestExplainCommand::TheJsonCanBeReadBack()
{
    const QByteArray file = File(HexOf("1920x1080@60"));
    const SToolRun run = RunTool({"explain", "--json", file});
    const QJsonObject edid = JsonOf(run).value(QStringLiteral("edids")).toArray().at(0).toObject();
    QCOMPARE(edid.value(QStringLiteral("file")).toString().toUtf8(), file);
    const QJsonObject base = edid.value(QStringLiteral("blocks")).toArray().at(0).toObject();
    QCOMPARE(base.value(QStringLiteral("key")).toString(), QStringLiteral("base"));
    QCOMPARE(RunTool({"explain", File(run.output)}).output, RunTool({"explain", file}).output);
}

void TestExplainCommand::WhatCannotBeReadIsOneLine_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("words") << QByteArray("no EDID")
                           << QByteArray("': line 1, column 1: 'n' is no hexadecimal digit");
    QTest::newRow("empty") << QByteArray() << QByteArray("': line 1, column 1: there are no bytes");
    QTest::newRow("half a block") << QByteArray(64, '\0')
                                  << QByteArray("': there are 64 bytes; an EDID has whole blocks");
}

void TestExplainCommand::WhatCannotBeReadIsOneLine()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool({"explain", File(content)}), text);
    VERIFY_BAD_INPUT(RunTool({"explain", "/nonexistent/edid"}), "cannot read '/nonexistent/edid': ");
}

QTEST_GUILESS_MAIN(TestExplainCommand)
#include "TestExplainCommand.moc"
