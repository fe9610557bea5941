#include "tests/tools/ToolRun.h"

#include <QJsonArray>
#include <QTemporaryDir>

/// `sender-tool edit` and `sender-tool diff`, the real executable.
class TestEditCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AnEditWithoutAChangeConverts_data();
    void AnEditWithoutAChangeConverts();
    void ValuesAreSetInOrder();
    void ARefusedValueWritesNothing();
    void DifferencesGiveStatus1();
    void EqualFilesGiveStatus0();

private:
    QByteArray Path(const char* szName) const
    {
        return m_folder.filePath(QString::fromLatin1(szName)).toUtf8();
    }

    QTemporaryDir m_folder;
};

void TestEditCommands::init()
{
    QCOMPARE(RunTool({"edid", "7680x1080@60", "--conform", "--format", "bin", "-o", Path("edid")}).nStatus,
             0);
}

void TestEditCommands::AnEditWithoutAChangeConverts_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char* szFormat : {"hex", "bin", "c", "json"})
        QTest::newRow(szFormat) << QByteArray(szFormat);
}

void TestEditCommands::AnEditWithoutAChangeConverts()
{
    QFETCH(QByteArray, format);
    const SToolRun run = RunTool({"edit", Path("edid"), "--format", format, "-o", Path("copy")});
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.nStatus, 0);
    const SToolRun diff = RunTool({"diff", Path("edid"), Path("copy")});
    QCOMPARE(diff.output, QByteArray());
    QCOMPARE(diff.nStatus, 0);
}

void TestEditCommands::ValuesAreSetInOrder()
{
    const SToolRun run = RunTool({"edit", Path("edid"), "--set", "name=First", "-s", "name=Second",
                                  "-smaker=ABC", "--drop-extensions", "--fix", "-o", Path("changed")});
    QCOMPARE(run.errors, QByteArray());
    const SToolRun explained = RunTool({"explain", Path("changed")});
    QVERIFY2(explained.output.contains("Name: Second\n"), explained.output.constData());
    QVERIFY(explained.output.contains("Maker: ABC"));
    QVERIFY(explained.output.contains("Extension blocks: 0\n"));
}

void TestEditCommands::ARefusedValueWritesNothing()
{
    VERIFY_BAD_INPUT(RunTool({"edit", Path("edid"), "-s", "name=fourteen chars", "-o", Path("none")}),
                     "name: a text has 1 to 13 characters");
    VERIFY_BAD_INPUT(RunTool({"edit", Path("edid"), "-s", "name"}),
                     "'name' is no assignment; write FIELD=VALUE");
    VERIFY_BAD_INPUT(RunTool({"edit", Path("edid"), "--format", "xml"}),
                     "unknown format 'xml'; give one of: hex, bin, c, json");
    QVERIFY(!QFile::exists(QString::fromUtf8(Path("none"))));
}

void TestEditCommands::DifferencesGiveStatus1()
{
    QCOMPARE(RunTool({"edit", Path("edid"), "-s", "maker=XYZ", "-o", Path("other")}).nStatus, 0);
    const SToolRun run = RunTool({"diff", Path("edid"), Path("other")});
    QCOMPARE(run.nStatus, 1);
    QVERIFY2(run.output.startsWith("0008 0008  Base block / Vendor and product / Maker: LED -> XYZ\n"),
             run.output.constData());
    QVERIFY(run.output.contains("byte 0008: 30 -> 63\n"));
    const QJsonObject json = JsonOf(RunTool({"diff", "--json", Path("edid"), Path("other")}));
    QCOMPARE(json.value(QStringLiteral("fields")).toArray().size(), 2);
    QCOMPARE(json.value(QStringLiteral("bytes")).toArray().size(), 3);
}

void TestEditCommands::EqualFilesGiveStatus0()
{
    const SToolRun run = RunTool({"diff", Path("edid"), Path("edid")});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output, QByteArray());
    VERIFY_BAD_INPUT(RunTool({"diff", Path("edid"), "/nonexistent"}), "cannot read '/nonexistent': ");
}

QTEST_GUILESS_MAIN(TestEditCommands)
#include "TestEditCommands.moc"
