#include "simulator/CommonClass/ProjectFile.h"
#include "tests/simulator/SimulatorTest.h"

#include <QDir>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>

#include <sys/stat.h>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

bool WriteBytes(const QString& strFile, const QByteArray& baContent)
{
    QFile file(strFile);
    return file.open(QIODevice::WriteOnly) && file.write(baContent) == baContent.size();
}

QByteArray ReadBytes(const QString& strFile)
{
    QFile file(strFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A project file with these header values.
QByteArray FileWith(const QJsonObject& header)
{
    QJsonObject object = {{Text("format"), Text("sender-project")}, {Text("version"), 1}};
    object.insert(Text("project"), ProjectToJson({}));
    for (auto itKey = header.begin(); itKey != header.end(); ++itKey)
        object.insert(itKey.key(), itKey.value());
    return QJsonDocument(object).toJson();
}

} // namespace

class TestProjectFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ASavedProjectOpensAsItWas();
    void OpeningAndSavingTellWhatTheyDid();
    void ANameInChineseWithSpacesWorks();
    void WhatIsWrongWithAFileIsSaid_data();
    void WhatIsWrongWithAFileIsSaid();
    void AProblemNamesFilePlaceAndAdvice();
    void AFileThatCannotBeOpenedLeavesTheProject();
    void AMissingFileIsAProblem();
    void AFolderIsNoFile();
    void AHugeFileIsNotRead();
    void ABrokenFileIsKeptBesideTheNewOne_data();
    void ABrokenFileIsKeptBesideTheNewOne();
    void EveryKeptFileHasANameOfItsOwn();
    void AGoodFileIsReplaced();
    void ABrokenFileThatCannotBeKeptIsNotOverwritten();
    void WhatCouldNotBeReadBackIsNotWritten();
    void AProjectWithoutAFileAsksForOne();
    void AFolderThatIsNotThereIsAProblem();
    void APipeIsNeitherReadNorReplaced();
    void AnIdThatLeavesNoRoomIsRefused();
    void WhatAKilledSaveLeftIsRemovedByTheNext();
    void FilesOfTheOperatorsOwnStay();
    void AnotherProcessesSaveStays();
    void ALinkStaysALink();

private:
    QString Path(const char* szName) const { return m_dir->filePath(QString::fromUtf8(szName)); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestProjectFile::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    FreshSimulator().Document().AddSender(17);
}

void TestProjectFile::ASavedProjectOpensAsItWas()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Hardware().SetEdidMemory(0, 16, QByteArray(c_nEdidBlockSize, '\x12'));
    const QJsonObject before = ProjectToJson(simulator.Project());
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(Path("a.json"), problem), qPrintable(problem.Text()));
    simulator.Document().NewEmptyProject();
    QVERIFY2(simulator.Document().Open(Path("a.json"), problem), qPrintable(problem.Text()));
    QCOMPARE(ProjectToJson(simulator.Project()), before);
}

void TestProjectFile::OpeningAndSavingTellWhatTheyDid()
{
    CSimulator& simulator = CSimulator::Instance();
    QSignalSpy spyPath(&simulator.Document(), &CProjectDocument::OnFilePathChanged);
    QSignalSpy spyReplaced(&simulator.Document(), &CProjectDocument::OnProjectReplaced);
    QVERIFY(simulator.Document().IsModified());
    SFileProblem problem;
    QVERIFY(simulator.Document().SaveAs(Path("a.json"), problem));
    QVERIFY(!simulator.Document().IsModified());
    QCOMPARE(simulator.Document().FilePath(), Path("a.json"));
    QCOMPARE(spyPath.count(), 1);
    simulator.Document().Change([](SSimulatedProject& project) { project.bDemoMode = false; });
    QVERIFY(simulator.Document().IsModified());
    QVERIFY(simulator.Document().Save(problem));
    QVERIFY(!simulator.Document().IsModified());
    QVERIFY(simulator.Document().Open(Path("a.json"), problem));
    QCOMPARE(spyReplaced.count(), 1);
    QVERIFY(!simulator.Project().bDemoMode);
}

void TestProjectFile::ANameInChineseWithSpacesWorks()
{
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(Path("演示 工程.json"), problem), qPrintable(problem.Text()));
    QVERIFY2(simulator.Document().Open(Path("演示 工程.json"), problem), qPrintable(problem.Text()));
}

void TestProjectFile::WhatIsWrongWithAFileIsSaid_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray() << Text("not JSON");
    QTest::newRow("cut off") << FileWith({}).left(100) << Text("not JSON");
    QTest::newRow("binary") << QByteArray("\x00\xff\x00\xff", 4) << Text("not JSON");
    QTest::newRow("an array") << QByteArray("[]") << Text("\"format\"");
    QTest::newRow("another format") << FileWith({{Text("format"), Text("notes")}}) << Text("\"format\"");
    QTest::newRow("a newer version") << FileWith({{Text("version"), 2}}) << Text("version 2");
    QTest::newRow("version 0") << FileWith({{Text("version"), 0}}) << Text("\"version\"");
    QTest::newRow("a version as text") << FileWith({{Text("version"), Text("1")}}) << Text("\"version\"");
    QTest::newRow("an unknown key") << FileWith({{Text("colour"), 1}}) << Text("\"colour\"");
    QTest::newRow("no project") << FileWith({{Text("project"), 1}}) << Text("\"project\"");
    QTest::newRow("an empty project") << FileWith({{Text("project"), QJsonObject()}}) << Text("\"demoMode\"");
}

void TestProjectFile::WhatIsWrongWithAFileIsSaid()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, text);
    QVERIFY(WriteBytes(Path("a.json"), content));
    SFileProblem problem;
    QVERIFY(!ProjectFile::Read(Path("a.json"), problem));
    QVERIFY2(problem.strWhat.contains(text), qPrintable(problem.strWhat));
    QCOMPARE(problem.strFile, Path("a.json"));
    QVERIFY(!problem.strAdvice.isEmpty());
    QCOMPARE(ReadBytes(Path("a.json")), content);
}

void TestProjectFile::AProblemNamesFilePlaceAndAdvice()
{
    QJsonObject project = ProjectToJson(CSimulator::Instance().Project());
    project.insert(Text("currentSender"), -3);
    QVERIFY(WriteBytes(Path("a.json"), FileWith({{Text("project"), project}})));
    SFileProblem problem;
    QVERIFY(!ProjectFile::Read(Path("a.json"), problem));
    QCOMPARE(problem.strPlace, Text("currentSender"));
    const QStringList listLines = problem.Text().split(QLatin1Char('\n'));
    QCOMPARE(listLines.size(), 3);
    QCOMPARE(listLines.at(0), Path("a.json"));
    QVERIFY(listLines.at(1).contains(Text("currentSender: the value is -3")));
}

void TestProjectFile::AFileThatCannotBeOpenedLeavesTheProject()
{
    CSimulator& simulator = CSimulator::Instance();
    const QJsonObject before = ProjectToJson(simulator.Project());
    QVERIFY(WriteBytes(Path("a.json"), "{"));
    QSignalSpy spyReplaced(&simulator.Document(), &CProjectDocument::OnProjectReplaced);
    SFileProblem problem;
    QVERIFY(!simulator.Document().Open(Path("a.json"), problem));
    QCOMPARE(ProjectToJson(simulator.Project()), before);
    QCOMPARE(spyReplaced.count(), 0);
    QVERIFY(simulator.Document().FilePath().isEmpty());
}

void TestProjectFile::AMissingFileIsAProblem()
{
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().Open(Path("missing.json"), problem));
    QVERIFY(problem.IsSet());
    QVERIFY(!QFileInfo::exists(Path("missing.json")));
}

void TestProjectFile::AFolderIsNoFile()
{
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().Open(m_dir->path(), problem));
    QVERIFY(problem.IsSet());
    QVERIFY(!CSimulator::Instance().Document().SaveAs(m_dir->path(), problem));
    QVERIFY(problem.IsSet());
}

void TestProjectFile::AHugeFileIsNotRead()
{
    QFile file(Path("a.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(1) << 33));
    SFileProblem problem;
    QVERIFY(!ProjectFile::Read(Path("a.json"), problem));
    QVERIFY2(problem.strWhat.contains(Text("too large")), qPrintable(problem.strWhat));
}

void TestProjectFile::ABrokenFileIsKeptBesideTheNewOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no JSON") << QByteArray("{ \"my work\": ");
    QTest::newRow("a newer version") << FileWith({{Text("version"), 2}});
    QTest::newRow("somebody's notes") << QByteArray("buy milk");
}

void TestProjectFile::ABrokenFileIsKeptBesideTheNewOne()
{
    QFETCH(QByteArray, content);
    QVERIFY(WriteBytes(Path("a.json"), content));
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(Path("a.json"), problem), qPrintable(problem.Text()));
    QVERIFY(simulator.Document().KeptFile().startsWith(Path("a.broken-")));
    QVERIFY(simulator.Document().KeptFile().endsWith(Text(".json")));
    QCOMPARE(ReadBytes(simulator.Document().KeptFile()), content);
    QVERIFY(simulator.Document().Open(Path("a.json"), problem));
}

void TestProjectFile::EveryKeptFileHasANameOfItsOwn()
{
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    QSet<QString> setKept;
    for (const char* szContent : {"one", "two", "three"}) {
        QVERIFY(WriteBytes(Path("a.json"), szContent));
        QVERIFY(simulator.Document().SaveAs(Path("a.json"), problem));
        QCOMPARE(ReadBytes(simulator.Document().KeptFile()), QByteArray(szContent));
        setKept.insert(simulator.Document().KeptFile());
    }
    QCOMPARE(setKept.size(), 3);
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files).size(), 4);
}

void TestProjectFile::AGoodFileIsReplaced()
{
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    QVERIFY(simulator.Document().SaveAs(Path("a.json"), problem));
    simulator.Document().AddSender(16);
    QVERIFY(simulator.Document().Save(problem));
    QVERIFY(simulator.Document().KeptFile().isEmpty());
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files), QStringList{Text("a.json")});
}

void TestProjectFile::ABrokenFileThatCannotBeKeptIsNotOverwritten()
{
    // The name of the copy exceeds the longest file name.
    const QString strFile = m_dir->filePath(QString(250, QLatin1Char('a')) + Text(".json"));
    QVERIFY(WriteBytes(strFile, "buy milk"));
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().SaveAs(strFile, problem));
    QVERIFY2(problem.strWhat.contains(Text("not overwritten")), qPrintable(problem.strWhat));
    QCOMPARE(ReadBytes(strFile), QByteArray("buy milk"));
    QVERIFY(CSimulator::Instance().Document().IsModified());
}

void TestProjectFile::WhatCouldNotBeReadBackIsNotWritten()
{
    CSimulator& simulator = CSimulator::Instance();
    SFileProblem problem;
    QVERIFY(simulator.Document().SaveAs(Path("a.json"), problem));
    const QByteArray baBefore = ReadBytes(Path("a.json"));
    simulator.Document().Change(
        [](SSimulatedProject& project) { project.listSenders[0].record.nFrameRate = 5000; });
    QVERIFY(!simulator.Document().Save(problem));
    QCOMPARE(problem.strPlace, Text("senders[0].record.frameRate"));
    QCOMPARE(ReadBytes(Path("a.json")), baBefore);
    QVERIFY(simulator.Document().IsModified());
}

void TestProjectFile::AProjectWithoutAFileAsksForOne()
{
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().Save(problem));
    QVERIFY(problem.IsSet());
}

void TestProjectFile::AFolderThatIsNotThereIsAProblem()
{
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().SaveAs(Path("missing/a.json"), problem));
    QVERIFY(problem.IsSet());
    QVERIFY(!QFileInfo::exists(Path("missing")));
}

void TestProjectFile::APipeIsNeitherReadNorReplaced()
{
    const QByteArray baPipe = QFile::encodeName(Path("pipe.json"));
    QCOMPARE(mkfifo(baPipe.constData(), 0600), 0);
    SFileProblem problem;
    QVERIFY(!CSimulator::Instance().Document().Open(Path("pipe.json"), problem));
    QVERIFY2(problem.strWhat.contains(Text("regular file")), qPrintable(problem.strWhat));
    QVERIFY(!CSimulator::Instance().Document().SaveAs(Path("pipe.json"), problem));
    QVERIFY2(problem.strWhat.contains(Text("regular file")), qPrintable(problem.strWhat));
    struct stat status = {};
    QCOMPARE(stat(baPipe.constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void TestProjectFile::AnIdThatLeavesNoRoomIsRefused()
{
    QJsonObject project = ProjectToJson({});
    project.insert(Text("nextSenderId"), std::numeric_limits<int>::max());
    QVERIFY(WriteBytes(Path("a.json"), FileWith({{Text("project"), project}})));
    SFileProblem problem;
    QVERIFY(!ProjectFile::Read(Path("a.json"), problem));
    QCOMPARE(problem.strPlace, Text("nextSenderId"));
}

void TestProjectFile::WhatAKilledSaveLeftIsRemovedByTheNext()
{
    // No process has an id beyond the kernel's limit.
    for (const char* szName : {".a.json.saving-999999999", ".a.json.saving-999999999.AbCdEf"})
        QVERIFY(WriteBytes(Path(szName), "half a pro"));
    SFileProblem problem;
    QVERIFY2(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem), qPrintable(problem.Text()));
    QCOMPARE(QDir(m_dir->path()).entryList(QDir::Files | QDir::Hidden), QStringList{Text("a.json")});
}

void TestProjectFile::FilesOfTheOperatorsOwnStay()
{
    const QStringList listOwn = {Text(".a.json.saving-notes"), Text(".b.json.saving-999999999"),
                                 Text("a.json.backup")};
    for (const QString& strName : listOwn)
        QVERIFY(WriteBytes(m_dir->filePath(strName), "mine"));
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    for (const QString& strName : listOwn)
        QCOMPARE(ReadBytes(m_dir->filePath(strName)), QByteArray("mine"));
}

void TestProjectFile::AnotherProcessesSaveStays()
{
    // Process 1 runs as long as the system does.
    QVERIFY(WriteBytes(Path(".a.json.saving-1"), "half a pro"));
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QCOMPARE(ReadBytes(Path(".a.json.saving-1")), QByteArray("half a pro"));
}

void TestProjectFile::ALinkStaysALink()
{
    SFileProblem problem;
    QVERIFY(CSimulator::Instance().Document().SaveAs(Path("a.json"), problem));
    QVERIFY(QFile::link(Path("a.json"), Path("link.json")));
    QVERIFY(QFile::setPermissions(Path("a.json"), QFile::ReadOwner | QFile::WriteOwner));
    CSimulator::Instance().Document().AddSender(16);
    QVERIFY2(CSimulator::Instance().Document().SaveAs(Path("link.json"), problem),
             qPrintable(problem.Text()));
    QVERIFY(QFileInfo(Path("link.json")).isSymLink());
    QCOMPARE(int(ProjectFile::Read(Path("a.json"), problem)->listSenders.size()), 2);
    QCOMPARE(QFile::permissions(Path("a.json")) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
}

QTEST_GUILESS_MAIN(TestProjectFile)
#include "TestProjectFile.moc"
