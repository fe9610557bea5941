#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/colour/ShownColourPage.h"
#include "workbench/colour/ModuleModel.h"
#include "workbench/colour/WallPanel.h"

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTemporaryDir>

namespace {

/// A wall whose module 5 is dark and has a green of another kind.
QString Wall(int nCount)
{
    QString strText = QStringLiteral("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n");
    for (int i = 1; i <= nCount; ++i)
        strText += QStringLiteral("%1,0.69,0.305,240,%2,0.7,%3,0.14,0.056,76\n")
                       .arg(i)
                       .arg(i == 5 ? 0.23 : 0.19)
                       .arg(i == 5 ? 640 : 800);
    return strText;
}

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

struct SWallPage : SShownColourPage
{
    SWallPage() { page.ShowTab(CColourPage::enWallTab); }

    CWallPanel& Wall() { return page.Wall(); }
    bool Paste(const QString& strText)
    {
        QGuiApplication::clipboard()->setText(strText);
        return Wall().Paste();
    }
};

} // namespace

class TestWallPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void PastedModulesAreListed();
    void OddModulesAreMarkedInWords();
    void RowsSortByDistance();
    void AWrongTextLeavesTheModulesAlone();
    void FilesAreImportedAndExported();
    void AReportIsSaved();
    void AFileThatIsNotThereIsTold();
    void AFileThatIsTooLargeIsTold();
    void TheProjectKeepsTheMeasurements();
    void UnreadableMeasurementsOfAProjectAreTold();
    void ModulesAreShownOnTheChart();
    void AnotherStandardIsToldOf();
    void ClearEmptiesEverything();
};

void TestWallPanel::init()
{
    Document().NewEmptyProject();
}

void TestWallPanel::PastedModulesAreListed()
{
    SWallPage shown;
    QVERIFY(shown.Paste(Wall(20)));
    QCOMPARE(shown.Wall().Model().rowCount(), 20);
    QVERIFY(shown.Wall().Summary().startsWith(QString::fromUtf8("20 个模组，1 个异常")));
}

void TestWallPanel::OddModulesAreMarkedInWords()
{
    SWallPage shown;
    shown.Paste(Wall(20));
    const CModuleModel& model = shown.Wall().Model();
    QCOMPARE(model.index(4, CModuleModel::enOdd).data().toString(), QString::fromUtf8("颜色、亮度"));
    QVERIFY(model.index(4, 0).data(Qt::ForegroundRole).isValid());
    QCOMPARE(model.index(3, CModuleModel::enOdd).data().toString(), QString());
    QVERIFY(!model.index(3, 0).data(Qt::ForegroundRole).isValid());
}

void TestWallPanel::RowsSortByDistance()
{
    SWallPage shown;
    shown.Paste(Wall(20));
    auto* pTable = shown.Wall().findChild<QTableView*>();
    pTable->sortByColumn(CModuleModel::enGreenUcs, Qt::DescendingOrder);
    QCOMPARE(pTable->model()->index(0, CModuleModel::enName).data().toString(), QStringLiteral("5"));
    pTable->sortByColumn(CModuleModel::enName, Qt::AscendingOrder);
    QCOMPARE(pTable->model()->index(9, CModuleModel::enName).data().toString(), QStringLiteral("10"));
}

void TestWallPanel::AWrongTextLeavesTheModulesAlone()
{
    SWallPage shown;
    shown.Paste(Wall(20));
    QSignalSpy spyFailed(&shown.page, &CWorkbenchPage::Failed);
    QVERIFY(!shown.Paste(QStringLiteral("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n1,0.69,0.3o5,240,,,,,,\n")));
    QCOMPARE(shown.Wall().Summary(), QString::fromUtf8("第 2 行第 3 列：“0.3o5”不是数字；例如 0.3127"));
    QCOMPARE(spyFailed.size(), 1);
    QVERIFY(spyFailed.last().first().toString().contains(shown.Wall().Summary()));
    QCOMPARE(shown.Wall().Model().rowCount(), 20);
}

void TestWallPanel::FilesAreImportedAndExported()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("wall.csv"));
    SWallPage shown;
    shown.Paste(Wall(7));
    QVERIFY(shown.Wall().ExportFile(strFile));
    shown.Wall().Clear();
    QVERIFY(shown.Wall().ImportFile(strFile));
    QCOMPARE(shown.Wall().Model().rowCount(), 7);
    QVERIFY(!shown.Wall().ExportFile(folder.filePath(QStringLiteral("missing/wall.csv"))));
}

void TestWallPanel::AReportIsSaved()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("wall.pdf"));
    SWallPage shown;
    QVERIFY(!shown.Wall().SaveReport(strFile));
    shown.Paste(Wall(20));
    QVERIFY(shown.Wall().SaveReport(strFile));
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("/Count 2"));
}

void TestWallPanel::AFileThatIsNotThereIsTold()
{
    SWallPage shown;
    QSignalSpy spy(&shown.page, &CWorkbenchPage::Failed);
    QVERIFY(!shown.Wall().ImportFile(QStringLiteral("/nowhere/wall.csv")));
    QVERIFY(spy.last().first().toString().contains(QStringLiteral("/nowhere/wall.csv")));
}

void TestWallPanel::AFileThatIsTooLargeIsTold()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(64) * 1024 * 1024 + 1));
    SWallPage shown;
    QSignalSpy spy(&shown.page, &CWorkbenchPage::Failed);
    QVERIFY(!shown.Wall().ImportFile(file.fileName()));
    QVERIFY(spy.last().first().toString().contains(QString::fromUtf8("文件大于 64 MB")));
}

void TestWallPanel::TheProjectKeepsTheMeasurements()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath(QStringLiteral("project.json"));
    SFileProblem problem;
    SWallPage shown;
    QVERIFY(!Document().IsModified());
    shown.Paste(Wall(9));
    QVERIFY(Document().IsModified());
    QVERIFY(Document().SaveAs(strFile, problem));
    Document().NewEmptyProject();
    QCOMPARE(shown.Wall().Model().rowCount(), 0);
    QVERIFY(Document().Open(strFile, problem));
    QCOMPARE(shown.Wall().Model().rowCount(), 9);
    QVERIFY(!Document().IsModified());
}

void TestWallPanel::UnreadableMeasurementsOfAProjectAreTold()
{
    SWallPage shown;
    Document().Change([](SSimulatedProject& project) {
        project.listMeasurements = QStringList{QStringLiteral("module"), QStringLiteral("1")};
    });
    QCOMPARE(shown.Wall().Model().rowCount(), 0);
    QVERIFY(shown.Wall().Summary().startsWith(QString::fromUtf8("第 1 行第 1 列：")));
}

void TestWallPanel::ModulesAreShownOnTheChart()
{
    SWallPage shown;
    const QImage before = shown.View().grab().toImage();
    shown.Paste(Wall(20));
    const QImage with = shown.View().grab().toImage();
    QVERIFY(with != before);
    Q_EMIT shown.Wall().ShownOnChart(false);
    QCOMPARE(shown.View().grab().toImage(), before);
}

void TestWallPanel::AnotherStandardIsToldOf()
{
    SWallPage shown;
    shown.Paste(Wall(20));
    QVERIFY(shown.Wall().Summary().contains(QStringLiteral("Rec709")));
    shown.Wall().findChild<QComboBox*>()->setCurrentIndex(enStandardRec2020);
    QVERIFY(shown.Wall().Summary().contains(QStringLiteral("Rec2020")));
}

void TestWallPanel::ClearEmptiesEverything()
{
    SWallPage shown;
    shown.Paste(Wall(20));
    shown.Wall().Clear();
    QCOMPARE(shown.Wall().Model().rowCount(), 0);
    QVERIFY(CSimulator::Instance().Project().listMeasurements.isEmpty());
}

QTEST_MAIN(TestWallPanel)
#include "TestWallPanel.moc"
