#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "SenderModuleDialog/output/ResetCoefDlg.h"
#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/CustomSwitchButton.h"
#include "tests/simulator/SimulatorTest.h"
#include "tests/support/Controls.h"
#include "tests/support/ModalAnswers.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

/// A row of the document's tables: what the operator does, and the operations in the form of `Shortened`.
struct SStage
{
    QString strWhen;
    QString strOperations;
};

using Stages = QList<SStage>;
using FuncDrive = Stages (*)();

/// Sender types of the simulated host.
enum enTestSender
{
    enBasicSender = 10, ///< it takes basic EDID records, and is no video processor
    enFullSender = 17,  ///< a video processor that takes full EDID records and holds the canvas
};

/// Cycles of operations that are recognised where they repeat, longest last.
constexpr int c_nLongestCycle = 3;

/// Whether the operations from one place on are those before it again.
bool Repeats(const QStringList& list, int nAt, int nLength)
{
    return nAt + 2 * nLength <= list.size() && list.mid(nAt, nLength) == list.mid(nAt + nLength, nLength);
}

int CycleAt(const QStringList& list, int nAt)
{
    for (int nLength = 1; nLength <= c_nLongestCycle; ++nLength)
        if (Repeats(list, nAt, nLength))
            return nLength;
    return 0;
}

QString InBackticks(const QStringList& listOperations)
{
    return QLatin1Char('`') + listOperations.join(QStringLiteral("`, `")) + QLatin1Char('`');
}

/// Operations in order; what repeats stands once: `A`, (`B`, `C`) repeated.
QString Shortened(const QStringList& listOperations)
{
    QStringList listParts;
    for (int i = 0; i < listOperations.size();) {
        const int nCycle = CycleAt(listOperations, i);
        const int nLength = std::max(nCycle, 1);
        QString strPart = InBackticks(listOperations.mid(i, nLength));
        if (nCycle > 0)
            strPart = QLatin1Char('(') + strPart + QStringLiteral(") repeated");
        listParts.append(strPart);
        while (nCycle > 0 && Repeats(listOperations, i, nLength))
            i += nLength;
        i += nLength;
    }
    return listParts.isEmpty() ? QStringLiteral("none") : listParts.join(QStringLiteral(", "));
}

/// Takes what the journal holds after each thing that the operator did.
class CStageRecorder
{
public:
    CStageRecorder() { CSimulator::Instance().Journal().Clear(); }

    void Note(const char* szWhen)
    {
        CHostJournal& journal = CSimulator::Instance().Journal();
        QStringList listOperations;
        for (int i = 0; i < journal.GetCount(); ++i)
            listOperations.append(journal.At(i).strObject + QStringLiteral("::") +
                                  journal.At(i).strOperation);
        m_stages.append({QString::fromUtf8(szWhen), Shortened(listOperations)});
        journal.Clear();
    }

    const Stages& Taken() const { return m_stages; }

private:
    Stages m_stages;
};

void Click(const QDialog& dialog, const char* szButton)
{
    QTest::mouseClick(&Control<QPushButton>(dialog, szButton), Qt::LeftButton);
}

/// Chooses an entry of a drop-down button.
void Choose(const QDialog& dialog, const char* szBox, const char* szEntry)
{
    for (QAction* pAction : Control<CCustomComboBox>(dialog, szBox).menu()->actions())
        if (pAction->text() == QString::fromUtf8(szEntry))
            return pAction->trigger();
    qFatal("the menu has no %s", szEntry);
}

/// The one sender of the project.
void UseSender(enTestSender sender)
{
    CProjectDocument& document = CSimulator::Instance().Document();
    document.NewEmptyProject();
    document.AddSender(sender);
    document.SetCurrentSender(0);
    document.Change([](SSimulatedProject& project) { project.bDemoMode = true; });
}

Stages DriveEdid()
{
    UseSender(enFullSender);
    CStageRecorder recorder;
    CEdidSetDlg dialog(nullptr, 16, false);
    dialog.show();
    recorder.Note("opens");
    Choose(dialog, "rate", "50");
    recorder.Note("each choice and each change of a number");
    Click(dialog, "ok");
    recorder.Note("OK, full record");

    UseSender(enBasicSender);
    CStageRecorder recorderBasic;
    CEdidSetDlg dialogBasic(nullptr, 1, false);
    dialogBasic.show();
    recorderBasic.Note("opens");
    Click(dialogBasic, "ok");
    recorderBasic.Note("OK, basic record");
    return recorder.Taken() + recorderBasic.Taken().mid(1);
}

Stages DriveCanvas()
{
    UseSender(enFullSender);
    CStageRecorder recorder;
    CSetCanvasDlg dialog(nullptr);
    dialog.show();
    recorder.Note("opens");
    QTest::keyClick(&Control<CCustomSpinBox>(dialog, "width"), Qt::Key_Up);
    recorder.Note("each choice and each change of a number");
    Click(dialog, "ok");
    recorder.Note("OK");
    return recorder.Taken();
}

Stages DriveDepthRate()
{
    UseSender(enFullSender);
    CStageRecorder recorder;
    CSetDepthRateDlg dialog(nullptr);
    dialog.show();
    recorder.Note("opens");
    Choose(dialog, "rate", "50Hz");
    Choose(dialog, "depth", "10bit");
    recorder.Note("a choice that leaves 50 Hz");
    Choose(dialog, "rate", "120Hz");
    recorder.Note("a choice that leaves another rate");
    Click(dialog, "ok");
    recorder.Note("OK");
    return recorder.Taken();
}

/// Names a file in the file dialog that opens next.
void AnswerFileDialog(const QString& strFile)
{
    QTimer::singleShot(0, qApp, [strFile] {
        auto* const pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(pDialog != nullptr);
        pDialog->selectFile(strFile);
        QMetaObject::invokeMethod(pDialog, "accept");
    });
}

Stages DriveBackground()
{
    const QTemporaryDir folder;
    const QString strPicture = folder.filePath(QStringLiteral("picture.png"));
    QImage(QSize(16, 9), QImage::Format_RGB32).save(strPicture);
    UseSender(enFullSender);
    CStageRecorder recorder;
    CBackgroundImageDlg dialog(nullptr);
    dialog.show();
    recorder.Note("opens");
    QTest::mouseClick(&Control<CCustomSwitchButton>(dialog, "enable"), Qt::LeftButton);
    recorder.Note("switched on without a picture");
    AnswerFileDialog(strPicture);
    Click(dialog, "choose");
    recorder.Note("a file is chosen");
    Choose(dialog, "fit", "拉伸");
    recorder.Note("the fit is chosen");
    Control<QSlider>(dialog, "transparencySlider").setFocus();
    QTest::keyClick(&Control<QSlider>(dialog, "transparencySlider"), Qt::Key_Right);
    recorder.Note("the transparency changes");
    return recorder.Taken();
}

Stages DriveCoefficient()
{
    CStageRecorder recorder;
    CResetCoefDlg dialog(true, nullptr);
    dialog.show();
    Click(dialog, "ok");
    recorder.Note("always");
    return recorder.Taken();
}

/// The stages of an address dialog: it opens and its proposal is accepted.
Stages DriveAddresses(CSetIPOfflineDlg& dialog, CStageRecorder& recorder, const char* szOpens,
                      const char* szOk)
{
    dialog.show();
    recorder.Note(szOpens);
    Click(dialog, "ok");
    recorder.Note(szOk);
    return recorder.Taken();
}

Stages DriveBatch()
{
    CStageRecorder recorder;
    CSetIPOfflineDlg dialog(0, -1, true, false, nullptr);
    return DriveAddresses(dialog, recorder, "opens for a batch", "OK of a batch");
}

Stages DriveRows()
{
    CStageRecorder recorder;
    CSetIPOfflineDlg dialog(0, 2, true, false, nullptr);
    return DriveAddresses(dialog, recorder, "opens to set addresses", "OK of set addresses");
}

Stages DriveModify(bool bOriginal)
{
    CStageRecorder recorder;
    CSetIPOfflineDlg dialog(0, 1, false, bOriginal, nullptr);
    Stages stages = DriveAddresses(
        dialog, recorder, bOriginal ? "opens to modify an original entry" : "opens to modify an entry",
        bOriginal ? "OK of an original entry" : "OK of an entry");
    CStageRecorder recorderReset;
    dialog.GetResetStr();
    recorderReset.Note(bOriginal ? "`GetResetStr` of an original entry" : "`GetResetStr` of an entry");
    return stages + recorderReset.Taken();
}

Stages DriveAllAddresses()
{
    UseSender(enFullSender);
    const QStringList listEntries = {QStringLiteral("192.168.1.100(left)"),
                                     QStringLiteral("192.168.1.101(right)")};
    CSimulator::Instance().Document().Change([&listEntries](SSimulatedProject& project) {
        project.addresses = {listEntries, listEntries, listEntries};
    });
    return DriveBatch() + DriveRows() + DriveModify(false) + DriveModify(true);
}

Stages DriveProcessors()
{
    CSimulator::Instance().Document().NewEmptyProject();
    CStageRecorder recorder;
    CCustomAddProcessorDlg dialog(nullptr);
    dialog.show();
    recorder.Note("opens");
    Click(dialog, "ok");
    recorder.Note("OK");
    return recorder.Taken();
}

Stages DriveDemoProject()
{
    CStageRecorder recorder;
    CDemoProjectConfigDlg dialog(nullptr);
    dialog.show();
    Choose(dialog, "type", "T4");
    recorder.Note("opens, and a type is chosen");
    Click(dialog, "ok");
    recorder.Note("OK");
    return recorder.Taken();
}

/// One line a row, so that a failure shows the row to write.
QStringList Lines(const Stages& stages)
{
    QStringList listLines;
    for (const SStage& stage : stages)
        listLines.append(QStringLiteral("| %1 | %2 |").arg(stage.strWhen, stage.strOperations));
    return listLines;
}

/// The rows of the table below a heading of the document.
QStringList DocumentedRows(const QString& strHeading)
{
    QFile file(QStringLiteral(SENDER_SOURCE_DIR "/docs/HostDeveloper.md"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList listLines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    const auto itHeading =
        std::find(listLines.cbegin(), listLines.cend(), QStringLiteral("### ") + strHeading);
    QStringList listRows;
    for (auto it = itHeading; it != listLines.cend(); ++it) {
        if (it != itHeading && it->startsWith(QLatin1Char('#')))
            break;
        if (it->startsWith(QLatin1Char('|')))
            listRows.append(*it);
    }
    return listRows.mid(2); // behind the heads and the line below them
}

/// A dialog as its first use shows it.
using FuncMake = std::unique_ptr<QDialog> (*)();

template <class TDialog>
std::unique_ptr<QDialog> Make()
{
    return std::make_unique<TDialog>(nullptr);
}

} // namespace

Q_DECLARE_METATYPE(FuncDrive)
Q_DECLARE_METATYPE(FuncMake)

/// The operations that each dialog calls, as the host developer reads them, are those that the dialogs call.
class TestHostOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheDocumentNamesTheCallsOfEachStage_data();
    void TheDocumentNamesTheCallsOfEachStage();
    void ClosingWithoutOkCallsNothing_data();
    void ClosingWithoutOkCallsNothing();
};

void TestHostOperations::init()
{
    SenderModuleDialogInit(FreshSimulator().Label());
}

void TestHostOperations::TheDocumentNamesTheCallsOfEachStage_data()
{
    QTest::addColumn<FuncDrive>("funcDrive");
    QTest::newRow("CEdidSetDlg") << &DriveEdid;
    QTest::newRow("CSetCanvasDlg") << &DriveCanvas;
    QTest::newRow("CSetDepthRateDlg") << &DriveDepthRate;
    QTest::newRow("CBackgroundImageDlg") << &DriveBackground;
    QTest::newRow("CResetCoefDlg") << &DriveCoefficient;
    QTest::newRow("CSetIPOfflineDlg") << &DriveAllAddresses;
    QTest::newRow("CCustomAddProcessorDlg") << &DriveProcessors;
    QTest::newRow("CDemoProjectConfigDlg") << &DriveDemoProject;
}

void TestHostOperations::TheDocumentNamesTheCallsOfEachStage()
{
    QFETCH(FuncDrive, funcDrive);
    const CModalAnswers answers;
    const QStringList listRecorded = Lines(funcDrive());
    const QStringList listDocumented = DocumentedRows(QString::fromLatin1(QTest::currentDataTag()));
    for (const QString& strRow : listRecorded)
        QVERIFY2(listDocumented.contains(strRow), qPrintable(QStringLiteral("the table lacks ") + strRow));
    QCOMPARE(listDocumented, listRecorded);
}

void TestHostOperations::ClosingWithoutOkCallsNothing_data()
{
    QTest::addColumn<FuncMake>("funcMake");
    QTest::newRow("CEdidSetDlg") << FuncMake(
        [] { return std::unique_ptr<QDialog>(new CEdidSetDlg(nullptr, 16, false)); });
    QTest::newRow("CSetCanvasDlg") << &Make<CSetCanvasDlg>;
    QTest::newRow("CSetDepthRateDlg") << &Make<CSetDepthRateDlg>;
    QTest::newRow("CBackgroundImageDlg") << &Make<CBackgroundImageDlg>;
    QTest::newRow("CResetCoefDlg") << FuncMake(
        [] { return std::unique_ptr<QDialog>(new CResetCoefDlg(true, nullptr)); });
    QTest::newRow("CSetIPOfflineDlg") << FuncMake(
        [] { return std::unique_ptr<QDialog>(new CSetIPOfflineDlg(0, 2, true, false, nullptr)); });
    QTest::newRow("CCustomAddProcessorDlg") << &Make<CCustomAddProcessorDlg>;
    QTest::newRow("CDemoProjectConfigDlg") << &Make<CDemoProjectConfigDlg>;
}

void TestHostOperations::ClosingWithoutOkCallsNothing()
{
    QFETCH(FuncMake, funcMake);
    UseSender(enFullSender);
    const std::unique_ptr<QDialog> pDialog = funcMake();
    pDialog->show();
    const CHostJournal& journal = CSimulator::Instance().Journal();
    CSimulator::Instance().Journal().Clear();
    if (auto* pCancel = pDialog->findChild<QPushButton*>(QStringLiteral("cancel")))
        QTest::mouseClick(pCancel, Qt::LeftButton);
    else
        pDialog->close();
    QVERIFY(!pDialog->isVisible());
    QCOMPARE(journal.Calls(), QStringList());
}

QTEST_MAIN(TestHostOperations)
#include "TestHostOperations.moc"
