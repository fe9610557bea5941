#include "workbench/edid/EdidPage.h"

#include "instruments/edid/Conforming.h"
#include "instruments/edid/Reading.h"
#include "instruments/edid/Writing.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/workbench/DialogOperator.h"
#include "tests/workbench/edid/EdidBlocks.h"
#include "workbench/edid/FieldModel.h"
#include "workbench/edid/FieldTree.h"
#include "workbench/edid/FindingList.h"
#include "workbench/edid/HexView.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QUrl>
#include <QtTest>

#include <optional>

namespace {

QByteArray Memory()
{
    return BlockOf(1920, 1080);
}

QByteArray TwoBlocks()
{
    return Edid::MakeConforming({7680, 1080, 60.0F, QStringLiteral("LED"), {}, 0, 0}).edid;
}

/// What `xrandr --prop` prints of two displays.
QString XrandrText()
{
    QString strText;
    for (const auto& [szOutput, block] :
         {std::pair("HDMI-1", BlockOf(1280, 720)), std::pair("DP-2", Memory())}) {
        strText += QStringLiteral("%1 connected\n\tEDID: \n").arg(QLatin1String(szOutput));
        for (int i = 0; i < block.size(); i += 16)
            strText += QStringLiteral("\t\t%1\n").arg(QString::fromLatin1(block.mid(i, 16).toHex()));
    }
    return strText;
}

} // namespace

/// The page over the first input of the simulator's first sender, whose memory holds a block.
class TestEdidPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void TheFindingsOfTheMemoryAreShown();
    void AChosenFindingMarksItsBytes();
    void TheSuffixNamesTheForm_data();
    void TheSuffixNamesTheForm();
    void AnEmptyMemorySaysWhyAndOffersTheBlock();
    void WithoutAnInputThePageSaysWhatToDo();
    void BeforeAnythingIsSelectedThePageSaysWhatToDo();
    void OnANarrowPageValuesKeepAUsefulWidth();
    void OnANarrowPageBothValuesOfAComparisonShow();
    void WhatTheBlockCutsIsSaidBeforeAndAfterWriting();
    void ADroppedFileIsShown();
    void DroppedTextIsShown();
    void WhatCannotBeReadIsSaid();
    void HexTextIsPastedByKey();
    void HexTextIsPastedByTheButton();
    void OfSeveralDisplaysOneIsChosen();
    void ThePageFollowsTheMemoryUntilSomethingElseIsShown();
    void TheMemoryComesBackByKeyAndUndoTakesItAway();
    void AValueIsEditedInPlace_data();
    void AValueIsEditedInPlace();
    void ARefusedValueStaysInTheEditorWithTheReason();
    void EscapeGivesUpAnEdit();
    void AChoiceIsMadeByKeys();
    void UndoAndRedoByKeys();
    void FixingSaysWhatIsLeft();
    void AComparisonColoursFieldsAndBytes();
    void TheNextDifferenceIsAKeyAway();
    void TheMenuEndsAComparison();
    void WritingPutsTheBlockIntoTheMemory();
    void OfSeveralBlocksTheBaseAloneIsWrittenWhenConfirmed();
    void SeveralBlocksAreNotWrittenWhenDeclined();
    void AByteThatIsClickedSelectsItsField();
    void ButtonsAreReachedByTab();

private:
    QByteArray Stored() const;
    void SetMemory(const QByteArray& bytes);
    void SetMode(int nWidth, int nHeight);
    void ShowPage();
    CFieldTree& Fields() { return *m_page->findChild<CFieldTree*>(); }
    QModelIndex Row(const char* szLabel);
    QString ValueOf(const char* szLabel);
    void Select(const char* szLabel);
    QString Text(const char* szName) const;
    void Click(const char* szButton);
    void Drop(QMimeData& data);

    SSelection m_selection;
    std::optional<CEdidPage> m_page;
};

void TestEdidPage::init()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    const SSimulatedSender* pSender = simulator.Project().FindSender(0);
    QVERIFY(pSender != nullptr && !pSender->listInputs.empty());
    m_selection = {0, pSender->listInputs.front().nInterfaceId};
    SetMemory(Memory());
    m_page.emplace();
}

void TestEdidPage::cleanup()
{
    m_page.reset();
}

QByteArray TestEdidPage::Stored() const
{
    return CSimulator::Instance().Project().FindSender(0)->FindInput(m_selection.nInterfaceId)->baEdid;
}

void TestEdidPage::SetMemory(const QByteArray& bytes)
{
    CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
        project.FindSender(0)->FindInput(m_selection.nInterfaceId)->baEdid = bytes;
    });
}

void TestEdidPage::SetMode(int nWidth, int nHeight)
{
    CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
        SEdidSetting setting;
        setting.wWidth = quint16(nWidth);
        setting.wHeight = quint16(nHeight);
        setting.byRate = 60;
        project.FindSender(0)->FindInput(m_selection.nInterfaceId)->setting = setting;
    });
}

void TestEdidPage::ShowPage()
{
    m_page->ShowSelection(m_selection);
    m_page->resize(1000, 700);
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*m_page));
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*m_page));
    Fields().setFocus();
}

QModelIndex TestEdidPage::Row(const char* szLabel)
{
    const QAbstractItemModel& model = *Fields().model();
    return model
        .match(model.index(0, 0), Qt::DisplayRole, QString::fromUtf8(szLabel), 1,
               Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

QString TestEdidPage::ValueOf(const char* szLabel)
{
    return Row(szLabel).siblingAtColumn(CFieldModel::enValue).data().toString();
}

void TestEdidPage::Select(const char* szLabel)
{
    Fields().ShowRow(Row(szLabel));
}

QString TestEdidPage::Text(const char* szName) const
{
    return m_page->findChild<QLabel*>(QString::fromLatin1(szName))->text();
}

void TestEdidPage::Click(const char* szButton)
{
    QTest::mouseClick(m_page->findChild<QToolButton*>(QString::fromLatin1(szButton)), Qt::LeftButton);
}

void TestEdidPage::Drop(QMimeData& data)
{
    const QPoint pt = m_page->rect().center();
    QDragEnterEvent enter(pt, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&*m_page, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(pt, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&*m_page, &drop);
}

void TestEdidPage::TheFindingsOfTheMemoryAreShown()
{
    const auto* pFindings = m_page->findChild<CFindingList*>();
    QCOMPARE(pFindings->topLevelItemCount(), 0);
    m_page->ShowSelection(m_selection);
    QCOMPARE(pFindings->topLevelItemCount(), 1);
    QCOMPARE(pFindings->Findings().front().rule, Edid::enRule::enMaker);
}

void TestEdidPage::AChosenFindingMarksItsBytes()
{
    ShowPage();
    auto* pFindings = m_page->findChild<CFindingList*>();
    QTest::mouseClick(pFindings->viewport(), Qt::LeftButton, Qt::NoModifier,
                      pFindings->visualItemRect(pFindings->topLevelItem(0)).center());
    QCOMPARE(m_page->findChild<CHexView*>()->Marked(), (QVector<int>{8, 9}));
    QCOMPARE(Fields().currentIndex(), Row("厂商"));
}

void TestEdidPage::TheSuffixNamesTheForm_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("binary") << QStringLiteral("edid.bin") << QByteArray("\x00\xFF\xFF", 3);
    QTest::newRow("hexadecimal text")
        << QStringLiteral("edid.hex") << QByteArray("00 FF FF FF FF FF FF 00 7B DE");
    QTest::newRow("a C array") << QStringLiteral("edid.h")
                               << QByteArray("/* EDID */\nstatic const unsigned char");
    QTest::newRow("JSON") << QStringLiteral("edid.JSON") << QByteArray("{\n");
}

void TestEdidPage::TheSuffixNamesTheForm()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, begin);
    QTemporaryDir folder;
    m_page->ShowSelection(m_selection);
    QVERIFY(m_page->SaveBlock(folder.filePath(file)));
    QFile saved(folder.filePath(file));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const QByteArray content = saved.readAll();
    QVERIFY2(content.startsWith(begin), content.constData());
    QCOMPARE(Edid::Read(content).vecEdids.value(0).bytes, Memory());
}

void TestEdidPage::AnEmptyMemorySaysWhyAndOffersTheBlock()
{
    SetMemory({});
    SetMode(1280, 720);
    ShowPage();
    QVERIFY(Text("edidEmpty").contains(QStringLiteral("存储器是空的")));
    auto* pBuild = m_page->findChild<QToolButton*>(QStringLiteral("edidBuildButton"));
    QVERIFY(pBuild->isVisible());
    QCOMPARE(pBuild->text(), QStringLiteral("构建 1280 × 720 @ 60 Hz 的块"));
    QTest::mouseClick(pBuild, Qt::LeftButton);
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(1280, 720));
    QVERIFY(!pBuild->isVisible());
    QVERIFY(Stored().isEmpty());
    Click("edidWriteButton");
    QCOMPARE(Stored(), BlockOf(1280, 720));
}

void TestEdidPage::WithoutAnInputThePageSaysWhatToDo()
{
    m_page->ShowSelection({});
    QVERIFY(Text("edidEmpty").contains(QStringLiteral("请在左边选择一个输入")));
    QVERIFY(!m_page->findChild<QToolButton*>(QStringLiteral("edidWriteButton"))->isEnabled());
}

void TestEdidPage::BeforeAnythingIsSelectedThePageSaysWhatToDo()
{
    m_page->ShowSelection({0, -1});
    m_page->show();
    QVERIFY(m_page->findChild<QLabel*>(QStringLiteral("edidEmpty"))->isVisible());
}

void TestEdidPage::OnANarrowPageValuesKeepAUsefulWidth()
{
    constexpr double c_dLeast = 0.4; // of the width of names and values
    ShowPage();
    m_page->resize(700, 600);
    QCoreApplication::processEvents();
    const QHeaderView* pHeader = Fields().header();
    QVERIFY(pHeader->sectionSize(CFieldModel::enValue) >= c_dLeast * Fields().viewport()->width());
    QVERIFY(pHeader->length() <= Fields().viewport()->width());
}

void TestEdidPage::OnANarrowPageBothValuesOfAComparisonShow()
{
    constexpr double c_dLeast = 0.25; // of the width of names and values
    ShowPage();
    m_page->resize(700, 600);
    QGuiApplication::clipboard()->setText(QString::fromLatin1(Memory().toHex()));
    m_page->findChild<QAction*>(QStringLiteral("edidComparePaste"))->trigger();
    QCoreApplication::processEvents();
    const QHeaderView* pHeader = Fields().header();
    for (const int nColumn : {CFieldModel::enValue, CFieldModel::enOther})
        QVERIFY(pHeader->sectionSize(nColumn) >= c_dLeast * Fields().viewport()->width());
}

void TestEdidPage::WhatTheBlockCutsIsSaidBeforeAndAfterWriting()
{
    SetMemory({});
    SetMode(8192, 1080);
    ShowPage();
    const QString strBefore = Text("edidCuts");
    QVERIFY2(strBefore.contains(QStringLiteral("8192")), qPrintable(strBefore));
    QVERIFY(m_page->findChild<QLabel*>(QStringLiteral("edidCuts"))->isVisible());
    Click("edidBuildButton");
    Click("edidWriteButton");
    QCOMPARE(Text("edidCuts"), strBefore);
    SetMode(1920, 1080);
    QVERIFY(!m_page->findChild<QLabel*>(QStringLiteral("edidCuts"))->isVisible());
}

void TestEdidPage::ADroppedFileIsShown()
{
    ShowPage();
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("office.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Edid::JsonForm(TwoBlocks()));
    file.close();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file.fileName())});
    Drop(data);
    QCOMPARE(m_page->Document().Content().bytes, TwoBlocks());
    QCOMPARE(Text("edidSource"), QStringLiteral("显示：文件 office.json，2 个块"));
}

void TestEdidPage::DroppedTextIsShown()
{
    ShowPage();
    QMimeData data;
    data.setText(QString::fromLatin1(BlockOf(800, 600).toHex(' ')));
    Drop(data);
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(800, 600));
}

void TestEdidPage::WhatCannotBeReadIsSaid()
{
    ShowPage();
    QSignalSpy spy(&*m_page, &CEdidPage::Failed);
    QMimeData data;
    data.setText(QStringLiteral("00 FF XX"));
    Drop(data);
    QCOMPARE(spy.size(), 1);
    QVERIFY2(spy.constFirst().constFirst().toString().contains(QStringLiteral("column 7")),
             qPrintable(spy.constFirst().constFirst().toString()));
    m_page->OpenFile(QStringLiteral("/no/such/file"));
    QCOMPARE(spy.size(), 2);
    QCOMPARE(m_page->Document().Content().bytes, Memory());
}

void TestEdidPage::HexTextIsPastedByKey()
{
    ShowPage();
    QApplication::clipboard()->setText(QString::fromLatin1(BlockOf(800, 600).toHex(' ')));
    QTest::keyClick(&Fields(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(800, 600));
    QCOMPARE(Text("edidSource"), QStringLiteral("显示：粘贴的文本"));
}

void TestEdidPage::HexTextIsPastedByTheButton()
{
    ShowPage();
    QApplication::clipboard()->setText(QString::fromLatin1(Edid::CForm(BlockOf(800, 600), {})));
    Click("edidPasteButton");
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(800, 600));
}

void TestEdidPage::OfSeveralDisplaysOneIsChosen()
{
    ShowPage();
    QApplication::clipboard()->setText(XrandrText());
    QStringList listOffered;
    const CDialogOperator dialogOperator([&](QDialog* pDialog) {
        auto* pNames = pDialog->findChild<QComboBox*>();
        for (int i = 0; i < pNames->count(); ++i)
            listOffered += pNames->itemText(i);
        QTest::keyClick(pNames, Qt::Key_Up);
        QTest::keyClick(pDialog, Qt::Key_Return);
    });
    Click("edidPasteButton");
    QCOMPARE(listOffered, (QStringList{QStringLiteral("1. HDMI-1"), QStringLiteral("2. DP-2")}));
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(1280, 720));
}

void TestEdidPage::ThePageFollowsTheMemoryUntilSomethingElseIsShown()
{
    ShowPage();
    SetMemory(BlockOf(800, 600));
    QCOMPARE(m_page->Document().Content().bytes, BlockOf(800, 600));
    m_page->Document().Load({TwoBlocks(), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    SetMemory(Memory());
    QCOMPARE(m_page->Document().Content().bytes, TwoBlocks());
}

void TestEdidPage::TheMemoryComesBackByKeyAndUndoTakesItAway()
{
    ShowPage();
    m_page->Document().Load({TwoBlocks(), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    QTest::keyClick(&Fields(), Qt::Key_F5);
    QCOMPARE(m_page->Document().Content().bytes, Memory());
    QTest::keyClick(&Fields(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_page->Document().Content().bytes, TwoBlocks());
}

void TestEdidPage::AValueIsEditedInPlace_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("a double click") << 0;
    QTest::newRow("F2") << int(Qt::Key_F2);
    QTest::newRow("Enter") << int(Qt::Key_Return);
}

void TestEdidPage::AValueIsEditedInPlace()
{
    QFETCH(int, key);
    ShowPage();
    Select("厂商");
    if (key == 0)
        QTest::mouseDClick(Fields().viewport(), Qt::LeftButton, Qt::NoModifier,
                           Fields().visualRect(Row("厂商")).center());
    else
        QTest::keyClick(&Fields(), Qt::Key(key));
    auto* pLine = Fields().findChild<QLineEdit*>();
    QVERIFY(pLine != nullptr);
    QTest::keyClicks(pLine, QStringLiteral("LED"));
    QTest::keyClick(pLine, Qt::Key_Return);
    QTRY_COMPARE(ValueOf("厂商"), QStringLiteral("LED"));
    QCOMPARE(m_page->findChild<CFindingList*>()->topLevelItemCount(), 0);
    QCOMPARE(Text("edidSource").right(5), QStringLiteral("（已修改）"));
    QCOMPARE(Stored(), Memory());
}

void TestEdidPage::ARefusedValueStaysInTheEditorWithTheReason()
{
    ShowPage();
    Select("伽马");
    QTest::keyClick(&Fields(), Qt::Key_F2);
    auto* pLine = Fields().findChild<QLineEdit*>();
    QVERIFY(pLine != nullptr);
    QTest::keyClicks(pLine, QStringLiteral("9.5"));
    QTest::keyClick(pLine, Qt::Key_Return);
    QVERIFY(pLine->isVisible());
    QCOMPARE(pLine->text(), QStringLiteral("9.5"));
    QVERIFY2(Text("edidMessage").contains(QStringLiteral("from 1.00 to 3.54")),
             qPrintable(Text("edidMessage")));
    QCOMPARE(m_page->Document().Content().bytes, Memory());
    pLine->selectAll();
    QTest::keyClicks(pLine, QStringLiteral("2.4"));
    QTest::keyClick(pLine, Qt::Key_Return);
    QTRY_COMPARE(ValueOf("伽马"), QStringLiteral("2.40"));
    QCOMPARE(Text("edidMessage"), QString());
}

void TestEdidPage::EscapeGivesUpAnEdit()
{
    ShowPage();
    Select("伽马");
    QTest::keyClick(&Fields(), Qt::Key_F2);
    auto* pLine = Fields().findChild<QLineEdit*>();
    QTest::keyClicks(pLine, QStringLiteral("2.4"));
    QTest::keyClick(pLine, Qt::Key_Escape);
    QCOMPARE(m_page->Document().Content().bytes, Memory());
}

void TestEdidPage::AChoiceIsMadeByKeys()
{
    ShowPage();
    Select("待机");
    QTest::keyClick(&Fields(), Qt::Key_F2);
    auto* pChoices = Fields().findChild<QComboBox*>();
    QVERIFY(pChoices != nullptr);
    const QString strBefore = ValueOf("待机");
    QTest::keyClick(pChoices, strBefore == QStringLiteral("是") ? Qt::Key_Up : Qt::Key_Down);
    QTest::keyClick(pChoices, Qt::Key_Return);
    QTRY_VERIFY(ValueOf("待机") != strBefore);
}

void TestEdidPage::UndoAndRedoByKeys()
{
    ShowPage();
    Select("伽马");
    QTest::keyClick(&Fields(), Qt::Key_F2);
    auto* pLine = Fields().findChild<QLineEdit*>();
    QTest::keyClicks(pLine, QStringLiteral("2.4"));
    QTest::keyClick(pLine, Qt::Key_Return);
    QTRY_COMPARE(ValueOf("伽马"), QStringLiteral("2.40"));
    QTest::keyClick(&Fields(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ValueOf("伽马"), QStringLiteral("2.20"));
    QTest::keyClick(&Fields(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(ValueOf("伽马"), QStringLiteral("2.40"));
    QCOMPARE(Fields().currentIndex().siblingAtColumn(0), Row("伽马"));
}

void TestEdidPage::FixingSaysWhatIsLeft()
{
    QByteArray broken = Memory();
    broken[127] = '\0';
    broken[0] = '\x01';
    SetMemory(broken);
    ShowPage();
    Click("edidFixButton");
    QCOMPARE(m_page->Document().Content().bytes, Memory());
    QCOMPARE(Text("edidMessage"), QStringLiteral("更正了 2 个字节。还有 1 个问题，处理方法见下表。"));
}

void TestEdidPage::AComparisonColoursFieldsAndBytes()
{
    ShowPage();
    auto* pOther = m_page->findChild<CHexView*>(QStringLiteral("edidOtherBytes"));
    QVERIFY(!pOther->isVisible());
    QVERIFY(Fields().isColumnHidden(CFieldModel::enOther));
    QByteArray other = Memory();
    other[0x17] = char(100);
    QApplication::clipboard()->setText(QString::fromLatin1(other.toHex()));
    QTest::keyClick(&Fields(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(pOther->isVisible());
    QCOMPARE(pOther->Bytes(), other);
    QCOMPARE(pOther->Changed(), QVector<int>{0x17});
    QCOMPARE(m_page->findChild<CHexView*>()->Changed(), QVector<int>{0x17});
    QVERIFY(!Fields().isColumnHidden(CFieldModel::enOther));
    QVERIFY(Row("伽马").data(Qt::ForegroundRole).isValid());
    QVERIFY(!Row("厂商").data(Qt::ForegroundRole).isValid());
    QCOMPARE(m_page->Document().Content().bytes, Memory());
}

void TestEdidPage::TheNextDifferenceIsAKeyAway()
{
    ShowPage();
    m_page->Document().CompareWith({BlockOf(800, 600), enEdidOrigin::enFile, QStringLiteral("a.bin"), false});
    QTest::keyClick(&Fields(), Qt::Key_F8);
    const QModelIndex first = Fields().currentIndex();
    QVERIFY(first.data(Qt::ForegroundRole).isValid());
    QVERIFY(!m_page->findChild<CHexView*>(QStringLiteral("edidOtherBytes"))->Marked().isEmpty());
    QTest::keyClick(&Fields(), Qt::Key_F8);
    QVERIFY(Fields().currentIndex() != first);
    QTest::keyClick(&Fields(), Qt::Key_F8, Qt::ShiftModifier);
    QCOMPARE(Fields().currentIndex(), first);
}

void TestEdidPage::TheMenuEndsAComparison()
{
    ShowPage();
    m_page->Document().Load({BlockOf(800, 600), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    QTest::keyClick(&Fields(), Qt::Key_F5, Qt::ShiftModifier);
    QVERIFY(m_page->Document().IsComparing());
    QCOMPARE(m_page->Document().Other().bytes, Memory());
    auto* pButton = m_page->findChild<QToolButton*>(QStringLiteral("edidCompareButton"));
    QTimer::singleShot(0, pButton->menu(), [pButton] {
        QTest::keyClick(pButton->menu(), Qt::Key_Up); // the last entry
        QTest::keyClick(pButton->menu(), Qt::Key_Return);
    });
    pButton->setFocus();
    QTest::keyClick(pButton, Qt::Key_Space);
    QVERIFY(!m_page->Document().IsComparing());
}

void TestEdidPage::WritingPutsTheBlockIntoTheMemory()
{
    ShowPage();
    QSignalSpy spy(&*m_page, &CEdidPage::Reported);
    m_page->Document().Load({BlockOf(800, 600), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    Click("edidWriteButton");
    QCOMPARE(Stored(), BlockOf(800, 600));
    QVERIFY(spy.constLast().constFirst().toString().contains(QStringLiteral("更改了")));
    QVERIFY(m_page->Document().IsFollowing());
    QVERIFY(!m_page->findChild<CHexView*>()->Changed().isEmpty());
}

void TestEdidPage::OfSeveralBlocksTheBaseAloneIsWrittenWhenConfirmed()
{
    ShowPage();
    m_page->Document().Load({TwoBlocks(), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "&Yes"); });
    Click("edidWriteButton");
    QCOMPARE(Stored().size(), c_nEdidBlockSize);
    QCOMPARE(Stored().at(0x7E), '\0');
    QCOMPARE(m_page->Document().Content().bytes, Stored());
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*m_page));
    QTest::keyClick(&Fields(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_page->Document().Content().bytes, TwoBlocks());
}

void TestEdidPage::SeveralBlocksAreNotWrittenWhenDeclined()
{
    ShowPage();
    m_page->Document().Load({TwoBlocks(), enEdidOrigin::enFile, QStringLiteral("a.bin"), false}, {});
    const CDialogOperator dialogOperator([](QDialog* pDialog) { Press(pDialog, "&No"); });
    Click("edidWriteButton");
    QCOMPARE(Stored(), Memory());
}

void TestEdidPage::AByteThatIsClickedSelectsItsField()
{
    ShowPage();
    auto* pBytes = m_page->findChild<CHexView*>();
    QTest::mouseClick(pBytes, Qt::LeftButton, Qt::NoModifier, pBytes->ByteRect(0x17).center());
    QCOMPARE(Fields().currentIndex(), Row("伽马"));
    QCOMPARE(pBytes->Marked(), QVector<int>{0x17});
}

void TestEdidPage::ButtonsAreReachedByTab()
{
    ShowPage();
    QStringList listNames;
    m_page->findChild<QToolButton*>(QStringLiteral("edidOpenButton"))->setFocus();
    for (int i = 0; i < 12; ++i) {
        listNames += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const char* szName : {"edidPasteButton", "edidMemoryButton", "edidCompareButton", "edidFixButton",
                               "edidSaveButton", "edidWriteButton"})
        QVERIFY2(listNames.contains(QString::fromLatin1(szName)), szName);
}

QTEST_MAIN(TestEdidPage)
#include "TestEdidPage.moc"
