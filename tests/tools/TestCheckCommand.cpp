#include "tests/tools/ToolRun.h"

#include <QJsonArray>
#include <QTemporaryDir>

/// `sender-tool check`, the real executable.
class TestCheckCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ErrorsGiveStatus1AndALineEach();
    void ABlockWithoutErrorsGivesStatus0();
    void WhatCannotBeReadGivesStatus2();
    void TheRulesAreListed();
    void TheJsonHoldsTheFindings();
};

void TestCheckCommand::ErrorsGiveStatus1AndALineEach()
{
    QTemporaryDir folder;
    const QByteArray file = folder.filePath(QStringLiteral("edid")).toUtf8();
    QCOMPARE(RunTool({"edid", "1920x1080@60", "-o", file}).nStatus, 0);
    const SToolRun run = RunTool({"check", file});
    QCOMPARE(run.nStatus, 1);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output,
             file + ": error 0008 product.maker: the maker's number does not stand for three letters; "
                    "give a maker of three letters A to Z\n");
}

void TestCheckCommand::ABlockWithoutErrorsGivesStatus0()
{
    QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("edid"));
    QByteArray block = RunTool({"edid", "1920x1080@60", "--format", "bin"}).output;
    block[8] = 0x30;
    block[9] = '\xA4';
    block[127] = char(block.at(127) + 0x7B + 0xDE - 0x30 - 0xA4);
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(block) == 128);
    file.close();
    const SToolRun run = RunTool({"check", strFile.toUtf8()});
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.nStatus, 0);
}

void TestCheckCommand::WhatCannotBeReadGivesStatus2()
{
    VERIFY_BAD_INPUT(RunTool({"check", "/nonexistent/edid"}), "cannot read '/nonexistent/edid': ");
    VERIFY_BAD_INPUT(RunTool({"check"}), "missing argument: FILE...");
}

void TestCheckCommand::TheRulesAreListed()
{
    const SToolRun run = RunTool({"check", "--rules"});
    QCOMPARE(run.nStatus, 0);
    for (const char* szRule : {"base.checksum ", "range.clock ", "name.terminator "})
        QVERIFY2(run.output.contains(szRule), szRule);
    const QJsonArray rules =
        JsonOf(RunTool({"check", "--rules", "--json"})).value(QStringLiteral("rules")).toArray();
    QCOMPARE(rules.size(), int(run.output.count('\n')));
}

void TestCheckCommand::TheJsonHoldsTheFindings()
{
    QTemporaryDir folder;
    const QByteArray file = folder.filePath(QStringLiteral("edid")).toUtf8();
    QCOMPARE(RunTool({"edid", "800x600@60", "-o", file}).nStatus, 0);
    const SToolRun run = RunTool({"check", "--json", file});
    QCOMPARE(run.nStatus, 1);
    const QJsonArray findings = JsonOf(run)
                                    .value(QStringLiteral("edids"))
                                    .toArray()
                                    .at(0)
                                    .toObject()
                                    .value(QStringLiteral("findings"))
                                    .toArray();
    QCOMPARE(findings.size(), 2);
    QCOMPARE(findings.at(0).toObject().value(QStringLiteral("rule")).toString(),
             QStringLiteral("product.maker"));
    QCOMPARE(findings.at(1).toObject().value(QStringLiteral("rule")).toString(),
             QStringLiteral("text.character"));
}

QTEST_GUILESS_MAIN(TestCheckCommand)
#include "TestCheckCommand.moc"
