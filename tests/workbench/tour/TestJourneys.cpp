#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/JournalDock.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/tour/JourneyWalk.h"
#include "workbench/tour/TourNetwork.h"

#include <QAbstractItemView>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

#include <map>
#include <tuple>

namespace {

/// A journey that was walked, and what it left.
struct SWalked
{
    QString strProblem;
    QByteArray baFile;             ///< the project file
    SSimulatedProject project;     ///< what the file holds
    QStringList listWrites;        ///< the writing calls of the journal
    QStringList listFailures;      ///< those of them that failed
    QVector<QStringList> vecShown; ///< the calls that the journal shows after each step
};

/// The calls in the rows of a model that a predicate is true for, with their results.
template <class TPredicate>
QStringList Calls(const QAbstractItemModel& model, TPredicate predicate)
{
    QStringList listCalls;
    for (int i = 0; i < model.rowCount(); ++i) {
        const QModelIndex index = model.index(i, CHostJournal::enColumnCall);
        if (predicate(index))
            listCalls.append(index.data().toString());
    }
    return listCalls;
}

bool IsWrite(const QModelIndex& index)
{
    return index.data(CHostJournal::enRoleCategory).toInt() == int(enJournalWrite);
}

bool IsFailed(const QModelIndex& index)
{
    return index.data(CHostJournal::enRoleFailed).toBool();
}

void ReadFile(const QString& strFile, SWalked& walked)
{
    QFile file(strFile);
    if (file.open(QIODevice::ReadOnly))
        walked.baFile = file.readAll();
    SFileProblem problem;
    if (CSimulator::Instance().Document().Open(strFile, problem))
        walked.project = CSimulator::Instance().Project();
}

SWalked Walk(const SJourney& journey, enHand hand, enLanguage tongue)
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("saved.json"));
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    CLanguage language;
    language.Set(tongue);
    const CTourNetwork network;
    CMainWindow window(language, settings);
    window.ArrangeFor({1920, 1040});
    window.show();
    CHostJournal& journal = CSimulator::Instance().Journal();
    journal.Clear();
    const QAbstractItemModel& shown = *window.Journal().findChild<QTableView*>()->model();
    SWalked walked;
    walked.strProblem = CJourneyWalk(window, hand, strFile).Walk(journey, [&](int) {
        walked.vecShown.append(Calls(shown, [](const QModelIndex&) { return true; }));
    });
    walked.listWrites = Calls(journal, IsWrite);
    walked.listFailures = Calls(journal, IsFailed);
    ReadFile(strFile, walked);
    return walked;
}

const SJourney& Journey(const QByteArray& baName)
{
    for (const SJourney& journey : Journeys::All()) {
        if (baName == journey.szName)
            return journey;
    }
    qFatal("there is no journey %s", baName.constData());
}

/// What a journey left: it is walked once with each hand in each language, because writing a mode takes a
/// second.
const SWalked& Walked(const QByteArray& baName, enHand hand, enLanguage language)
{
    static std::map<std::tuple<QByteArray, enHand, enLanguage>, SWalked> s_mapWalked;
    const auto [itWalked, bNew] = s_mapWalked.try_emplace({baName, hand, language});
    if (bNew)
        itWalked->second = Walk(Journey(baName), hand, language);
    return itWalked->second;
}

/// The names of a section's numbered steps.
QStringList StepsOf(const QString& strHeading)
{
    QFile file(QStringLiteral(SENDER_SOURCE_DIR "/README.md"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("README.md cannot be read");
    const QString strSection = QString::fromUtf8(file.readAll())
                                   .section(QStringLiteral("# %1\n").arg(strHeading), 1, 1)
                                   .section(QStringLiteral("\n#"), 0, 0);
    static const QRegularExpression s_regStep(QStringLiteral("^\\d+\\. \\*\\*(.+?)\\.\\*\\*"),
                                              QRegularExpression::MultilineOption);
    QStringList listSteps;
    QRegularExpressionMatchIterator itStep = s_regStep.globalMatch(strSection);
    while (itStep.hasNext())
        listSteps.append(itStep.next().captured(1));
    return listSteps;
}

} // namespace

Q_DECLARE_METATYPE(enHand)
Q_DECLARE_METATYPE(enLanguage)

class TestJourneys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TheReadmeTellsTheSteps_data();
    void TheReadmeTellsTheSteps();
    void EitherHandWalksInEitherLanguage_data();
    void EitherHandWalksInEitherLanguage();
    void BothHandsLeaveTheSame_data();
    void BothHandsLeaveTheSame();
    void TheWallIsSavedAsItWasSetUp();
    void TheWallIsWrittenByTheseCalls();
    void TheFailedWriteIsFoundInTheJournal();
    void TheInputHasItsPictureAgain();
    void AStepThatCannotBeDoneIsNamed();
};

void TestJourneys::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestJourneys::TheReadmeTellsTheSteps_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const SJourney& journey : Journeys::All())
        QTest::newRow(journey.szName) << QByteArray(journey.szName);
}

void TestJourneys::TheReadmeTellsTheSteps()
{
    QFETCH(QByteArray, name);
    const SJourney& journey = Journey(name);
    QStringList listSteps;
    for (const SJourneyStep& step : journey.vecSteps)
        listSteps.append(QString::fromLatin1(step.szName));
    QCOMPARE(StepsOf(QString::fromLatin1(journey.szTitle)), listSteps);
}

void TestJourneys::EitherHandWalksInEitherLanguage_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<enHand>("hand");
    QTest::addColumn<enLanguage>("language");
    for (const SJourney& journey : Journeys::All())
        for (const enHand hand : {enHand::enMouse, enHand::enKeys})
            for (const enLanguage language : {enLanguage::enChinese, enLanguage::enEnglish})
                QTest::addRow("%s, %s, %s", journey.szName, qPrintable(CHand::Name(hand)),
                              qPrintable(CLanguage::Code(language)))
                    << QByteArray(journey.szName) << hand << language;
}

void TestJourneys::EitherHandWalksInEitherLanguage()
{
    QFETCH(QByteArray, name);
    QFETCH(enHand, hand);
    QFETCH(enLanguage, language);
    const SWalked& walked = Walked(name, hand, language);
    QCOMPARE(walked.strProblem, QString());
    QCOMPARE(walked.vecShown.size(), int(Journey(name).vecSteps.size()));
    QVERIFY(!walked.baFile.isEmpty());
}

void TestJourneys::BothHandsLeaveTheSame_data()
{
    TheReadmeTellsTheSteps_data();
}

void TestJourneys::BothHandsLeaveTheSame()
{
    QFETCH(QByteArray, name);
    const SWalked& byMouse = Walked(name, enHand::enMouse, enLanguage::enChinese);
    const SWalked& byKeys = Walked(name, enHand::enKeys, enLanguage::enEnglish);
    QVERIFY(!byMouse.baFile.isEmpty());
    QCOMPARE(byKeys.baFile, byMouse.baFile);
    QCOMPARE(byKeys.listWrites, byMouse.listWrites);
}

void TestJourneys::TheWallIsSavedAsItWasSetUp()
{
    const SSimulatedProject& project = Walked("wall", enHand::enKeys, enLanguage::enEnglish).project;
    QCOMPARE(int(project.listSenders.size()), 4);
    for (const SSimulatedSender& sender : project.listSenders) {
        QCOMPARE(sender.capability.strModel, QStringLiteral("T6 PRO"));
        QCOMPARE(sender.sizeHardwareCanvas, QSize(1920, 1080));
        const SSimulatedInput& input = sender.listInputs.front();
        QVERIFY(input.setting);
        QCOMPARE(QSize(input.setting->wWidth, input.setting->wHeight), QSize(1920, 1080));
        QCOMPARE(input.baEdid.size(), 128);
    }
    QStringList listAddresses;
    for (const QString& strEntry : project.addresses.listStored)
        listAddresses.append(EntryAddress(strEntry));
    QCOMPARE(listAddresses, QStringList({QStringLiteral("192.168.1.21"), QStringLiteral("192.168.1.22"),
                                         QStringLiteral("192.168.1.23"), QStringLiteral("192.168.1.24")}));
}

void TestJourneys::TheWallIsWrittenByTheseCalls()
{
    QStringList listExpected;
    for (int i = 0; i < 4; ++i) {
        listExpected +=
            QStringLiteral(
                "SetEdidSetting(%1, 16, {1920x1080 rate 60 fractional 0 flags 0x12 standard 0 pc 1})")
                .arg(i);
        listExpected += QStringLiteral("FinishEdidWrite(%1, 1)").arg(i);
    }
    for (int i = 0; i < 4; ++i)
        listExpected += QStringLiteral("AddSpecifiedIP(\"192.168.1.%1\", \"\")").arg(21 + i);
    listExpected += QStringLiteral("SpecifiedIPsSave()");
    const SWalked& walked = Walked("wall", enHand::enMouse, enLanguage::enEnglish);
    QCOMPARE(walked.listWrites, listExpected);
    QCOMPARE(walked.listFailures, QStringList());
}

void TestJourneys::TheFailedWriteIsFoundInTheJournal()
{
    const SWalked& walked = Walked("no-picture", enHand::enKeys, enLanguage::enChinese);
    const QStringList listFailed = {
        QStringLiteral("SetEdidSetting(0, 16, {1920x1080 rate 60 fractional 0 flags 0x12 standard 0 pc 1})")};
    QCOMPARE(walked.listFailures, listFailed);
    QCOMPARE(walked.vecShown.value(3), listFailed);
}

void TestJourneys::TheInputHasItsPictureAgain()
{
    const SSimulatedProject& project = Walked("no-picture", enHand::enMouse, enLanguage::enEnglish).project;
    QVERIFY(!project.listSenders.empty());
    const SSimulatedSender& sender = project.listSenders.front();
    QCOMPARE(sender.faults.nEdidWriteResult, 0);
    QCOMPARE(sender.listInputs.front().baEdid.left(8).toHex(), QByteArray("00ffffffffffff00"));
}

void TestJourneys::AStepThatCannotBeDoneIsNamed()
{
    SJourney journey = Journey("wall");
    journey.vecSteps.resize(1);
    journey.vecSteps.push_back({"Press what is not there", [](CHand& hand, CMainWindow&, const QString&) {
                                    hand.ChooseInMenu({QStringLiteral("no such menu")});
                                }});
    QCOMPARE(Walk(journey, enHand::enMouse, enLanguage::enEnglish).strProblem,
             QStringLiteral("Press what is not there: the menu no such menu was not reached"));
}

QTEST_MAIN(TestJourneys)
#include "TestJourneys.moc"
