#include "workbench/edid/FindingList.h"

#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "workbench/edid/FindingText.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

QByteArray Block()
{
    CEDIDRaw edid;
    edid.ChangeWH(800, 600, 60.0F);
    return QByteArray(reinterpret_cast<const char*>(&edid), sizeof edid);
}

} // namespace

class TestFindingList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryRuleHasWords();
    void NumbersStandInTheWords();
    void EveryFindingHasARow();
    void AClickNamesTheBytes();
    void TheArrowKeysNameTheBytes();
    void NoBytesHaveNoFinding();
};

void TestFindingList::EveryRuleHasWords()
{
    for (int i = 0; i < int(Edid::enRule::enCount); ++i) {
        const auto rule = Edid::enRule(i);
        QVERIFY2(FindingText::HasWords(rule), Edid::RuleOf(rule).szName);
        const Edid::SFinding finding = {rule, 0, 1, 65, 66};
        QVERIFY(!FindingText::Remedy(finding).isEmpty());
        // The same numbers as in the words of the command line.
        QVERIFY2(!FindingText::Wrong(finding).contains(QLatin1Char('%')), Edid::RuleOf(rule).szName);
        const bool bFirst = QByteArray(Edid::RuleOf(rule).szWrong).contains("%1");
        QCOMPARE(FindingText::Wrong(finding) != FindingText::Wrong({rule, 0, 1, 66, 66}), bFirst);
    }
}

void TestFindingList::NumbersStandInTheWords()
{
    QCOMPARE(FindingText::Wrong({Edid::enRule::enChecksum, 127, 1, 0x12, 0xAB}),
             QStringLiteral("校验和是 12，应为 AB"));
}

void TestFindingList::EveryFindingHasARow()
{
    CFindingList list;
    list.ShowFindingsOf(Block());
    // Letters beyond the alphabet, and a name without its end: both are what the product writes.
    QCOMPARE(list.topLevelItemCount(), 2);
    QCOMPARE(list.topLevelItem(0)->text(0), QStringLiteral("错误"));
    QCOMPARE(list.topLevelItem(0)->text(1), QStringLiteral("08"));
    QCOMPARE(list.topLevelItem(0)->text(2), QStringLiteral("厂商编号不代表三个字母"));
}

void TestFindingList::AClickNamesTheBytes()
{
    CFindingList list;
    list.ShowFindingsOf(Block());
    list.resize(800, 200);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QSignalSpy spy(&list, &CFindingList::FindingChosen);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.topLevelItem(1)).center());
    QVERIFY(!spy.isEmpty());
    QCOMPARE(spy.constLast(), (QVariantList{0x6B, 1}));
}

void TestFindingList::TheArrowKeysNameTheBytes()
{
    CFindingList list;
    list.ShowFindingsOf(Block());
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    list.setCurrentItem(list.topLevelItem(1));
    QSignalSpy spy(&list, &CFindingList::FindingChosen);
    QTest::keyClick(&list, Qt::Key_Up);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.constFirst(), (QVariantList{0x08, 2}));
}

void TestFindingList::NoBytesHaveNoFinding()
{
    CFindingList list;
    list.ShowFindingsOf(Block());
    list.ShowFindingsOf({});
    QCOMPARE(list.topLevelItemCount(), 0);
}

QTEST_MAIN(TestFindingList)
#include "TestFindingList.moc"
