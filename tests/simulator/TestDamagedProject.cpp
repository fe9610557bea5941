#include "simulator/CommonClass/ProjectFile.h"
#include "tests/simulator/SimulatorTest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <functional>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

/// A project with something in every kind of list.
QJsonObject SampleProject()
{
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(16);
    simulator.Document().Change([](SSimulatedProject& project) {
        const QStringList listEntries = {Text("192.168.7.1(左)"), Text("192.168.7.2(Right)")};
        project.addresses = {listEntries, listEntries, listEntries};
        SProjectColourGroup group;
        group.strName = Text("Wall");
        project.colour.emplace().listGroups = {group};
    });
    return ProjectToJson(simulator.Project());
}

QJsonObject FileOf(const QJsonObject& project)
{
    return {{Text("format"), Text("sender-project")}, {Text("version"), 1}, {Text("project"), project}};
}

/// Every value that is as far from a sound file as JSON can tell.
const QJsonArray& OddValues()
{
    static const QJsonArray s_odd = {QJsonValue(),
                                     true,
                                     -1,
                                     0.5,
                                     1e300,
                                     -9007199254740993.0,
                                     4294967296.0,
                                     QString(),
                                     QString(1000, QLatin1Char('x')),
                                     QString(QChar(0xD800)),
                                     QJsonArray(),
                                     QJsonArray({QJsonValue()}),
                                     QJsonObject(),
                                     QJsonObject({{Text("odd"), 1}})};
    return s_odd;
}

/// Calls a visitor with one copy of a JSON value for each place in it and each odd value there.
void ForEachOddCopy(const QJsonValue& value, const std::function<void(const QJsonValue&)>& Visit)
{
    for (const QJsonValue odd : OddValues())
        Visit(odd);
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString& strKey : object.keys()) {
            ForEachOddCopy(object.value(strKey), [&object, &strKey, &Visit](const QJsonValue& odd) {
                QJsonObject copy = object;
                copy.insert(strKey, odd);
                Visit(copy);
            });
        }
    }
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int nIndex = 0; nIndex < array.size(); ++nIndex) {
            ForEachOddCopy(array.at(nIndex), [&array, nIndex, &Visit](const QJsonValue& odd) {
                QJsonArray copy = array;
                copy.replace(nIndex, odd);
                Visit(copy);
            });
        }
    }
}

} // namespace

/// Files that a failing disk, a careless editor or another program made of a project. Each is read as a whole
/// project or refused with what is wrong and what to do; none is ever changed.
class TestDamagedProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void AFileCutAtAnyByteIsRefused();
    void AFlippedBitGivesAWholeProjectOrAProblem();
    void AnOddValueAnywhereGivesAWholeProjectOrAProblem();
    void AHugeNumberIsRefused_data();
    void AHugeNumberIsRefused();
    void DeepNestingIsRefused_data();
    void DeepNestingIsRefused();
    void AFileThatIsNotUtf8IsRefused_data();
    void AFileThatIsNotUtf8IsRefused();
    void ADeviceIsRefused_data();
    void ADeviceIsRefused();

private:
    /// Reads bytes as a project file, and checks what holds for any bytes.
    bool Reads(const QByteArray& baContent, SFileProblem& problem);
    bool IsRefused(const QByteArray& baContent);

    QTemporaryDir m_dir;
    QString m_strFile;
    QByteArray m_baSound; ///< a file without damage
    QString m_strBroken;  ///< the first property that did not hold
};

void TestDamagedProject::initTestCase()
{
    m_strFile = m_dir.filePath(Text("project.json"));
    m_baSound = QJsonDocument(FileOf(SampleProject())).toJson(QJsonDocument::Compact);
}

void TestDamagedProject::init()
{
    m_strBroken.clear();
    SFileProblem problem;
    QVERIFY2(Reads(m_baSound, problem), qPrintable(problem.Text()));
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
}

bool TestDamagedProject::Reads(const QByteArray& baContent, SFileProblem& problem)
{
    const auto Require = [this, &baContent](bool bHolds, const char* szWhat) {
        if (!bHolds && m_strBroken.isEmpty())
            m_strBroken = Text(szWhat) + Text(": ") + QString::fromUtf8(baContent.left(5000));
    };
    QFile file(m_strFile);
    // Some file systems write a file that is overwritten to disk at once, which takes minutes here.
    file.remove();
    Require(file.open(QIODevice::WriteOnly) && file.write(baContent) == baContent.size(), "not written");
    file.close();
    const std::optional<SSimulatedProject> project = ProjectFile::Read(m_strFile, problem);
    Require(problem.IsSet() != project.has_value(), "neither a project nor a problem, or both");
    Require(!problem.IsSet() || (!problem.strAdvice.isEmpty() && problem.strFile == m_strFile),
            "a problem without file or advice");
    if (project) {
        SFileProblem problemAgain;
        const QJsonObject json = ProjectToJson(*project);
        Require(ProjectToJson(ProjectFromJson(json, problemAgain)) == json && !problemAgain.IsSet(),
                "a project that cannot be saved and read again");
    }
    Require(file.open(QIODevice::ReadOnly) && file.readAll() == baContent, "the file was changed");
    return project.has_value();
}

bool TestDamagedProject::IsRefused(const QByteArray& baContent)
{
    SFileProblem problem;
    return !Reads(baContent, problem);
}

void TestDamagedProject::AFileCutAtAnyByteIsRefused()
{
    for (int nLength = 0; nLength < m_baSound.size(); ++nLength)
        QVERIFY2(IsRefused(m_baSound.left(nLength)), QByteArray::number(nLength).constData());
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
}

void TestDamagedProject::AFlippedBitGivesAWholeProjectOrAProblem()
{
    int nRefused = 0;
    int nBits = 0;
    for (int nByte = 0; nByte < m_baSound.size(); ++nByte) {
        for (int nBit = 0; nBit < 8; ++nBit) {
            QByteArray baFlipped = m_baSound;
            baFlipped[nByte] = char(baFlipped.at(nByte) ^ (1 << nBit));
            nRefused += IsRefused(baFlipped) ? 1 : 0;
            ++nBits;
        }
    }
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
    // A flip in a name or in a digit leaves a sound file; one in a key or in the grammar does not.
    QVERIFY2(nRefused > nBits / 2 && nRefused < nBits, QByteArray::number(nRefused).constData());
}

void TestDamagedProject::AnOddValueAnywhereGivesAWholeProjectOrAProblem()
{
    int nFiles = 0;
    ForEachOddCopy(FileOf(SampleProject()), [this, &nFiles](const QJsonValue& odd) {
        const QJsonDocument document =
            odd.isArray() ? QJsonDocument(odd.toArray()) : QJsonDocument(odd.toObject());
        SFileProblem problem;
        Reads(document.toJson(QJsonDocument::Compact), problem);
        ++nFiles;
    });
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
    QVERIFY2(nFiles > 1000, QByteArray::number(nFiles).constData());
}

void TestDamagedProject::AHugeNumberIsRefused_data()
{
    QTest::addColumn<QByteArray>("number");
    for (const char* szNumber : {"2147483648", "-2147483649", "9223372036854775808", "1e309", "1e-400",
                                 "18446744073709551616", "NaN", "Infinity", "0x10"})
        QTest::newRow(szNumber) << QByteArray(szNumber);
    QTest::newRow("a million digits") << QByteArray(1000000, '9');
}

void TestDamagedProject::AHugeNumberIsRefused()
{
    QFETCH(QByteArray, number);
    QByteArray baContent = m_baSound;
    const QByteArray baBefore = "\"currentSender\":0";
    QVERIFY(baContent.contains(baBefore));
    baContent.replace(baBefore, "\"currentSender\":" + number);
    QVERIFY(IsRefused(baContent));
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
}

void TestDamagedProject::DeepNestingIsRefused_data()
{
    constexpr int c_nDepth = 100000;
    QTest::addColumn<QByteArray>("nested");
    QTest::newRow("arrays") << QByteArray(c_nDepth, '[') + QByteArray(c_nDepth, ']');
    QTest::newRow("arrays without an end") << QByteArray(c_nDepth, '[');
    QTest::newRow("objects") << QByteArray("{\"a\":").repeated(c_nDepth) + '1' + QByteArray(c_nDepth, '}');
}

void TestDamagedProject::DeepNestingIsRefused()
{
    QFETCH(QByteArray, nested);
    QVERIFY(IsRefused(nested));
    QByteArray baContent = m_baSound;
    baContent.replace("\"currentSender\":0", "\"currentSender\":" + nested);
    QVERIFY(IsRefused(baContent));
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
}

void TestDamagedProject::AFileThatIsNotUtf8IsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    const QString strSound = QString::fromUtf8(m_baSound);
    const auto Utf16 = [&strSound] {
        return QByteArray(reinterpret_cast<const char*>(strSound.utf16()), strSound.size() * 2);
    };
    QTest::newRow("UTF-16") << Utf16();
    QTest::newRow("Latin-1 in a name") << QByteArray(m_baSound).replace("Wall", "W\xE4ll");
    QTest::newRow("a cut character in a name") << QByteArray(m_baSound).replace("Wall", "W\xE5\xB7ll");
    QTest::newRow("an overlong character in a name") << QByteArray(m_baSound).replace("Wall", "W\xC0\xAFll");
    QTest::newRow("a surrogate in a name") << QByteArray(m_baSound).replace("Wall", "W\xED\xA0\x80ll");
}

void TestDamagedProject::AFileThatIsNotUtf8IsRefused()
{
    QFETCH(QByteArray, content);
    QVERIFY(IsRefused(content));
    QVERIFY2(m_strBroken.isEmpty(), qPrintable(m_strBroken));
}

void TestDamagedProject::ADeviceIsRefused_data()
{
    QTest::addColumn<QString>("file");
    for (const char* szDevice : {"/dev/null", "/dev/zero", "/dev/full"})
        QTest::newRow(szDevice) << Text(szDevice);
}

void TestDamagedProject::ADeviceIsRefused()
{
    QFETCH(QString, file);
    CSimulator& simulator = FreshSimulator();
    SFileProblem problem;
    QVERIFY(!simulator.Document().Open(file, problem));
    QVERIFY2(problem.strWhat.contains(Text("no regular file")), qPrintable(problem.Text()));
    QVERIFY(!simulator.Document().SaveAs(file, problem));
    QVERIFY2(problem.strWhat.contains(Text("no regular file")), qPrintable(problem.Text()));
    QVERIFY(!QFileInfo(file).isFile());
}

QTEST_GUILESS_MAIN(TestDamagedProject)
#include "TestDamagedProject.moc"
