#include "tests/simulator/SimulatorTest.h"

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

namespace {

/// A project in which every optional value is there, so that each has a row below.
SSimulatedProject FullProject()
{
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(17);
    SSimulatedProject project = simulator.Project();
    SSimulatedSender& sender = project.listSenders.front();
    sender.outputLimitFlags = 0x800;
    sender.listInputs.resize(1);
    sender.listInputs.front().setting = SEdidSetting();
    sender.listInputs.front().baEdid = QByteArray(c_nEdidBlockSize, '\x5a');
    SProjectColour& colour = project.colour.emplace();
    colour.listGroups.append(SProjectColourGroup());
    colour.listRegion.append(SProjectPoint());
    project.addressing.nAddedSenderCount = 3;
    project.addressing.listDetected = QStringList{QStringLiteral("192.168.1.20")};
    project.addresses.listStored = project.addresses.listOriginal = project.addresses.listCurSet =
        QStringList{QStringLiteral("192.168.1.20()")};
    return project;
}

QJsonValue AnotherText(const QString& strText)
{
    if (strText.contains(QLatin1Char('x')))
        return QStringLiteral("1x1");
    QString strOther = strText;
    if (strText.contains(QLatin1Char('.')))
        return strOther.replace(QLatin1String(".20"), QLatin1String(".21"));
    return strText.startsWith(QLatin1String("5a")) ? strOther.replace(0, 2, QStringLiteral("5b"))
                                                   : strOther + QLatin1Char('!');
}

/// A value of the same kind that the project's limits allow.
QJsonValue Another(const QJsonValue& value)
{
    if (value.isBool())
        return !value.toBool();
    if (value.isDouble())
        return value.toDouble() + 1;
    return AnotherText(value.toString());
}

/// Hands the visitor each copy of a value with one leaf changed, and the leaf's path.
void ForEachLeaf(const QJsonValue& value, const QString& strPath,
                 const std::function<void(const QString& strLeaf, const QJsonValue& changed)>& funcVisit)
{
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString& strKey : object.keys()) {
            ForEachLeaf(object.value(strKey), strPath + QLatin1Char('.') + strKey,
                        [&](const QString& strLeaf, const QJsonValue& changed) {
                            QJsonObject copy = object;
                            copy.insert(strKey, changed);
                            funcVisit(strLeaf, copy);
                        });
        }
    } else if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            ForEachLeaf(array.at(i), strPath + QStringLiteral("[%1]").arg(i),
                        [&](const QString& strLeaf, const QJsonValue& changed) {
                            QJsonArray copy = array;
                            copy.replace(i, changed);
                            funcVisit(strLeaf, copy);
                        });
        }
    } else {
        funcVisit(strPath, Another(value));
    }
}

} // namespace

class TestProjectFingerprint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachValueCounts_data();
    void EachValueCounts();
    void AChangeNamesItsSender();
    void AddedAndRemovedSendersChangeTheList();
    void AChangeOfTheAddressesLeavesTheSendersAlone();
    void TextsThatShareTheirCharactersDiffer();
};

void TestProjectFingerprint::EachValueCounts_data()
{
    QTest::addColumn<QJsonObject>("changed");
    ForEachLeaf(ProjectToJson(FullProject()), QString(),
                [](const QString& strPath, const QJsonValue& changed) {
                    QTest::newRow(qPrintable(strPath)) << changed.toObject();
                });
}

void TestProjectFingerprint::EachValueCounts()
{
    QFETCH(QJsonObject, changed);
    const SSimulatedProject before = FullProject();
    SFileProblem problem;
    SSimulatedProject after = ProjectFromJson(changed, problem);
    // Rules across values, such as ids above the last, are irrelevant here.
    if (problem.IsSet())
        QVERIFY2(!problem.strWhat.contains(QStringLiteral("but must be")), qPrintable(problem.Text()));
    QVERIFY(!Difference(FingerprintOf(before), FingerprintOf(after)).IsEmpty());
    QVERIFY(Difference(FingerprintOf(after), FingerprintOf(after)).IsEmpty());
}

void TestProjectFingerprint::AChangeNamesItsSender()
{
    SSimulatedProject project = FullProject();
    const SProjectFingerprint before = FingerprintOf(project);
    project.listSenders.front().record.nFrameRate = 24;
    const SProjectChange change = Difference(before, FingerprintOf(project));
    QCOMPARE(change.setSenderIds, QSet<int>{project.listSenders.front().nId});
    QVERIFY(!change.bSenderList);
    QVERIFY(!change.bAddresses);
    QVERIFY(!change.bSettings);
}

void TestProjectFingerprint::AddedAndRemovedSendersChangeTheList()
{
    CSimulator& simulator = FreshSimulator();
    simulator.Document().AddSender(16);
    const SProjectFingerprint one = FingerprintOf(simulator.Project());
    simulator.Document().AddSender(16);
    const SProjectFingerprint two = FingerprintOf(simulator.Project());
    QVERIFY(Difference(one, two).bSenderList);
    QCOMPARE(Difference(one, two).setSenderIds, QSet<int>{2});
    QVERIFY(Difference(two, one).bSenderList);
    QVERIFY(Difference(two, one).setSenderIds.isEmpty());
}

void TestProjectFingerprint::AChangeOfTheAddressesLeavesTheSendersAlone()
{
    SSimulatedProject project = FullProject();
    const SProjectFingerprint before = FingerprintOf(project);
    project.addresses.listStored.clear();
    const SProjectChange change = Difference(before, FingerprintOf(project));
    QVERIFY(change.bAddresses);
    QVERIFY(change.setSenderIds.isEmpty());
}

void TestProjectFingerprint::TextsThatShareTheirCharactersDiffer()
{
    SSimulatedProject left = FullProject();
    SSimulatedProject right = left;
    left.addresses.listStored = QStringList{QStringLiteral("ab"), QStringLiteral("c")};
    right.addresses.listStored = QStringList{QStringLiteral("a"), QStringLiteral("bc")};
    QVERIFY(Difference(FingerprintOf(left), FingerprintOf(right)).bAddresses);
}

QTEST_GUILESS_MAIN(TestProjectFingerprint)
#include "TestProjectFingerprint.moc"
