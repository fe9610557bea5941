#include "tests/simulator/SimulatorTest.h"

#include <QJsonArray>
#include <QRandomGenerator>

namespace {

/// A project with something in every field.
SSimulatedProject FullProject()
{
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(16, QStringLiteral("左屏 (main)"));
    simulator.Document().AddSender(17);
    simulator.Hardware().SetEdidMemory(1, 16, QByteArray(c_nEdidBlockSize, '\xff'));
    simulator.Document().Change([](SSimulatedProject& project) {
        SSimulatedSender& sender = project.listSenders[1];
        sender.outputLimitFlags = 0xFFFFFFFFU;
        sender.fMaxInputFrameRate = 59.94F;
        sender.sizeHardwareCanvas = QSize(3840, 2160);
        sender.faults = {-9007199254740991, true, 250};
        sender.FindInput(17)->setting.reset();
        project.nCurSender = 1;
        project.addressing.nAddedSenderCount = 3;
        project.addressing.listDetected = QStringList{QStringLiteral("10.0.0.1")};
        project.addresses.listStored = QStringList{QStringLiteral("10.0.0.7(a(b)c)")};
        project.addresses.listOriginal = QStringList{QStringLiteral("10.0.0.8()")};
        project.addresses.listCurSet = QStringList{QStringLiteral("10.0.0.()")};
        project.listMeasurements =
            QStringList{QStringLiteral("module,Rx,Ry,RY"), QStringLiteral("左,0.69,0.3,240")};
    });
    return simulator.Project();
}

/// The parts of `senders[0].record.frameRate`: keys, and indices as numbers.
QStringList PathParts(const QString& strPath)
{
    QString strParts = strPath;
    strParts.replace(QLatin1Char('['), QLatin1Char('.')).remove(QLatin1Char(']'));
    return strParts.split(QLatin1Char('.'));
}

/// The value with another one put at a path; an undefined value removes the key.
QJsonValue WithValueAt(const QJsonValue& root, const QStringList& listPath, const QJsonValue& value)
{
    if (listPath.isEmpty())
        return value;
    const QString& strPart = listPath.first();
    if (root.isArray()) {
        QJsonArray array = root.toArray();
        array[strPart.toInt()] = WithValueAt(array.at(strPart.toInt()), listPath.mid(1), value);
        return array;
    }
    QJsonObject object = root.toObject();
    const QJsonValue changed = WithValueAt(object.value(strPart), listPath.mid(1), value);
    object.remove(strPart);
    if (!changed.isUndefined())
        object.insert(strPart, changed);
    return object;
}

SFileProblem ProblemWith(const QString& strPath, const QJsonValue& value)
{
    SFileProblem problem;
    ProjectFromJson(WithValueAt(ProjectToJson(FullProject()), PathParts(strPath), value).toObject(), problem);
    return problem;
}

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

} // namespace

Q_DECLARE_METATYPE(QJsonValue)

class TestProjectJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFullProjectComesBackAsItWas();
    void RandomProjectsComeBackAsTheyWere();
    void AnEmptyProjectComesBackAsItWas();
    void AWrongValueIsNamedWithItsPlace_data();
    void AWrongValueIsNamedWithItsPlace();
    void TheEdgesOfTheLimitsAreGood_data();
    void TheEdgesOfTheLimitsAreGood();
    void AMissingKeyIsNamed_data();
    void AMissingKeyIsNamed();
    void AnUnknownKeyIsNamed_data();
    void AnUnknownKeyIsNamed();
    void TheWholeMustFitTogether_data();
    void TheWholeMustFitTogether();
    void TheGroupsOfACoverageBelongTogether_data();
    void TheGroupsOfACoverageBelongTogether();
    void MeasurementsMayBeLeftOut();
    void TheMessageQuotesTheValueAndWhatIsExpected();
    void ALongValueIsQuotedInPart();
};

void TestProjectJson::AFullProjectComesBackAsItWas()
{
    const QJsonObject object = ProjectToJson(FullProject());
    SFileProblem problem;
    const SSimulatedProject project = ProjectFromJson(object, problem);
    QVERIFY2(!problem.IsSet(), qPrintable(problem.Text()));
    QCOMPARE(ProjectToJson(project), object);
    QCOMPARE(project.FindSender(1)->FindInput(16)->baEdid, QByteArray(c_nEdidBlockSize, '\xff'));
    QCOMPARE(project.FindSender(1)->fMaxInputFrameRate, 59.94F);
    QVERIFY(!project.FindSender(1)->FindInput(17)->setting);
    QCOMPARE(project.FindSender(0)->strName, Text("左屏 (main)"));
}

void TestProjectJson::RandomProjectsComeBackAsTheyWere()
{
    QRandomGenerator random(20260101);
    const QList<int> listTypes = CCatalogue::Instance().Types();
    for (int nRun = 0; nRun < 40; ++nRun) {
        CSimulator& simulator = FreshSimulator();
        for (int nSender = random.bounded(4); nSender >= 0; --nSender)
            simulator.Document().AddSender(listTypes.at(random.bounded(listTypes.size())));
        simulator.Document().Change([&random](SSimulatedProject& project) {
            for (SSimulatedSender& sender : project.listSenders) {
                sender.record.nFrameRate = random.bounded(1001);
                sender.record.BkImageAlpha = quint8(random.bounded(256));
                sender.record.sizeCanvas = QSize(random.bounded(65536), random.bounded(65536));
                sender.fMaxInputFrameRate = float(random.bounded(1000.0));
                sender.outputLimitFlags = random.generate();
                sender.listInputs.front().setting->wWidth = quint16(random.bounded(65536));
            }
        });
        const QJsonObject object = ProjectToJson(simulator.Project());
        SFileProblem problem;
        QCOMPARE(ProjectToJson(ProjectFromJson(object, problem)), object);
        QVERIFY2(!problem.IsSet(), qPrintable(problem.Text()));
    }
}

void TestProjectJson::AnEmptyProjectComesBackAsItWas()
{
    const QJsonObject object = ProjectToJson({});
    SFileProblem problem;
    QCOMPARE(ProjectToJson(ProjectFromJson(object, problem)), object);
    QVERIFY(!problem.IsSet());
}

void TestProjectJson::AWrongValueIsNamedWithItsPlace_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    const auto Row = [](const char* szName, const char* szPath, const QJsonValue& value) {
        QTest::newRow(szName) << Text(szPath) << value;
    };
    Row("a text for a number", "senders[0].record.frameRate", Text("60"));
    Row("a fraction", "senders[0].record.frameRate", 60.5);
    Row("below the range", "senders[0].record.frameRate", -1);
    Row("above the range", "senders[0].record.frameRate", 1001);
    Row("far above any integer", "senders[0].record.frameRate", 1e300);
    Row("a byte of 256", "senders[1].record.pictureAlpha", 256);
    Row("a negative byte", "senders[1].record.pictureAlpha", -1);
    Row("65536 for 16 bits", "senders[0].inputs[0].setting.width", 65536);
    Row("2 for a flag", "senders[0].inputs[0].setting.fractional", 2);
    Row("33 bits of flags", "senders[0].outputLimitFlags", 4294967296.0);
    Row("beyond exact integers", "senders[0].faults.edidWriteResult", 9007199254740993.0);
    Row("a delay of more than a minute", "senders[0].faults.writeDelay", 60001);
    Row("1 for true", "demoMode", 1);
    Row("null for a value that must be there", "demoMode", QJsonValue::Null);
    Row("a number for a text", "senders[0].name", 5);
    Row("a text that is too long", "senders[0].name", QString(257, QLatin1Char('x')));
    Row("a size with one side", "senders[0].record.canvas", Text("1920"));
    Row("a size with three sides", "senders[0].record.canvas", Text("1x2x3"));
    Row("a size without numbers", "senders[0].record.canvas", Text("wide x high"));
    Row("a negative side", "senders[0].record.canvas", Text("-1x1080"));
    Row("a side above 16 bits", "senders[0].record.canvas", Text("65536x1"));
    Row("a number for a size", "senders[0].record.canvas", 1920);
    Row("a resolution in a list", "senders[0].inputs[1].limit.resolutions[2]", Text("1280:720"));
    Row("127 bytes", "senders[0].inputs[0].edid", QString(254, QLatin1Char('0')));
    Row("half a byte more", "senders[0].inputs[0].edid", QString(257, QLatin1Char('0')));
    Row("no hexadecimal digits", "senders[0].inputs[0].edid", QString(256, QLatin1Char('g')));
    Row("a number for bytes", "senders[0].inputs[0].edid", 0);
    Row("a number for a record", "senders[0].inputs[0].setting", 5);
    Row("an object for a list", "senders", QJsonObject());
    Row("a number for a sender", "senders[1]", 5);
    Row("a text for a rate", "senders[0].maxInputFrameRate", Text("fast"));
    Row("a negative rate", "senders[0].maxInputFrameRate", -0.5);
    Row("an entry without a name", "addresses.stored[0]", Text("10.0.0.1"));
    Row("an entry that does not end", "addresses.currentSet[0]", Text("10.0.0.1(x"));
    Row("an octet of 256", "addressing.detected[0]", Text("10.0.0.256"));
    Row("a sign in an octet", "addressing.detected[0]", Text("10.0.0.+1"));
    Row("three octets", "addressing.detected[0]", Text("10.0.0"));
}

void TestProjectJson::AWrongValueIsNamedWithItsPlace()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QCOMPARE(ProblemWith(path, value).strPlace, path);
}

void TestProjectJson::TheEdgesOfTheLimitsAreGood_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    const auto Row = [](const char* szName, const char* szPath, const QJsonValue& value) {
        QTest::newRow(szName) << Text(szPath) << value;
    };
    Row("frame rate 0", "senders[0].record.frameRate", 0);
    Row("frame rate 1000", "senders[0].record.frameRate", 1000);
    Row("byte 255", "senders[0].record.pictureAlpha", 255);
    Row("width 65535", "senders[0].inputs[0].setting.width", 65535);
    Row("flags of 32 bits", "senders[0].outputLimitFlags", 4294967295.0);
    Row("flags computed", "senders[0].outputLimitFlags", QJsonValue::Null);
    Row("no setting", "senders[0].inputs[0].setting", QJsonValue::Null);
    Row("empty memory", "senders[0].inputs[0].edid", QString());
    Row("memory in capitals", "senders[0].inputs[0].edid", QString(256, QLatin1Char('F')));
    Row("canvas 0x0", "senders[0].record.canvas", Text("0x0"));
    Row("name of 256 characters", "senders[0].name", QString(256, QLatin1Char('x')));
    Row("an address as it was typed", "addresses.stored[0]", Text("10.0.(half)"));
    Row("smallest exact integer", "senders[0].faults.edidWriteResult", -9007199254740991.0);
}

void TestProjectJson::TheEdgesOfTheLimitsAreGood()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    const SFileProblem problem = ProblemWith(path, value);
    QVERIFY2(!problem.IsSet(), qPrintable(problem.Text()));
}

void TestProjectJson::AMissingKeyIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("place");
    QTest::newRow("of the project") << Text("addressing") << QString();
    QTest::newRow("of a record") << Text("senders[1].record.canvas") << Text("senders[1].record");
    QTest::newRow("of a setting") << Text("senders[0].inputs[0].setting.rate")
                                  << Text("senders[0].inputs[0].setting");
}

void TestProjectJson::AMissingKeyIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QString, place);
    const SFileProblem problem = ProblemWith(path, QJsonValue::Undefined);
    QCOMPARE(problem.strPlace, place);
    const QString strKey = PathParts(path).last();
    QVERIFY2(problem.strWhat.contains(QStringLiteral("\"%1\" is missing").arg(strKey)),
             qPrintable(problem.strWhat));
}

void TestProjectJson::AnUnknownKeyIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("place");
    QTest::newRow("of the project") << Text("sender") << QString();
    QTest::newRow("of an input") << Text("senders[0].inputs[1].rate") << Text("senders[0].inputs[1]");
}

void TestProjectJson::AnUnknownKeyIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QString, place);
    const SFileProblem problem = ProblemWith(path, 1);
    QCOMPARE(problem.strPlace, place);
    const QString strKey = PathParts(path).last();
    QVERIFY2(problem.strWhat.contains(QStringLiteral("\"%1\" is not known").arg(strKey)),
             qPrintable(problem.strWhat));
}

void TestProjectJson::TheWholeMustFitTogether_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<QString>("place");
    QTest::newRow("a sender's id twice") << Text("senders[1].id") << QJsonValue(1) << Text("senders[1]");
    QTest::newRow("an interface twice")
        << Text("senders[0].inputs[1].interface") << QJsonValue(1) << Text("senders[0].inputs[1]");
    QTest::newRow("the next id is taken") << Text("nextSenderId") << QJsonValue(2) << Text("nextSenderId");
    QTest::newRow("no such current sender")
        << Text("currentSender") << QJsonValue(2) << Text("currentSender");
    QTest::newRow("lists of different lengths")
        << Text("addresses.original") << QJsonValue(QJsonArray()) << Text("addresses");
}

void TestProjectJson::TheWholeMustFitTogether()
{
    QFETCH(QString, path);
    QFETCH(QJsonValue, value);
    QFETCH(QString, place);
    QCOMPARE(ProblemWith(path, value).strPlace, place);
}

void TestProjectJson::TheGroupsOfACoverageBelongTogether_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<bool>("good");
    QTest::newRow("none of the two") << QList<int>{1, 2} << true;
    QTest::newRow("both") << QList<int>{1, 512, 768} << true;
    QTest::newRow("output alone") << QList<int>{512} << false;
    QTest::newRow("screen alone") << QList<int>{1, 768} << false;
    QTest::newRow("a key twice") << QList<int>{1, 1} << false;
}

void TestProjectJson::TheGroupsOfACoverageBelongTogether()
{
    QFETCH(const QList<int>, keys);
    SSimulatedProject project;
    project.colour.emplace();
    for (const int nKey : keys) {
        SProjectColourGroup group;
        group.nKey = nKey;
        project.colour->listGroups.append(group);
    }
    SFileProblem problem;
    ProjectFromJson(ProjectToJson(project), problem);
    QTEST(!problem.IsSet(), "good");
    QVERIFY2(problem.strPlace.isEmpty() || problem.strPlace.startsWith(Text("colour.groups")),
             qPrintable(problem.strPlace));
}

void TestProjectJson::MeasurementsMayBeLeftOut()
{
    QJsonObject object = ProjectToJson(FullProject());
    QCOMPARE(object.take(QStringLiteral("measurements")).toArray().size(), 2);
    SFileProblem problem;
    QVERIFY(ProjectFromJson(object, problem).listMeasurements.isEmpty());
    QVERIFY(!problem.IsSet());
    QVERIFY(!ProjectToJson(SSimulatedProject()).contains(QStringLiteral("measurements")));
    QVERIFY(ProblemWith(QStringLiteral("measurements"), QStringLiteral("text")).IsSet());
    QVERIFY(ProblemWith(QStringLiteral("measurements[1]"), QString(1025, QLatin1Char('x'))).IsSet());
}

void TestProjectJson::TheMessageQuotesTheValueAndWhatIsExpected()
{
    const SFileProblem problem = ProblemWith(Text("senders[0].record.frameRate"), Text("60"));
    QCOMPARE(problem.Text(),
             Text("senders[0].record.frameRate: the value is \"60\", but must be a whole number "
                  "from 0 to 1000."));
}

void TestProjectJson::ALongValueIsQuotedInPart()
{
    const SFileProblem problem = ProblemWith(Text("senders[0].name"), QString(100000, QLatin1Char('x')));
    QVERIFY(problem.strWhat.size() < 200);
}

QTEST_GUILESS_MAIN(TestProjectJson)
#include "TestProjectJson.moc"
