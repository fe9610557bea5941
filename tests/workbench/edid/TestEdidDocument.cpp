#include "workbench/edid/EdidDocument.h"

#include "instruments/edid/Checksum.h"
#include "instruments/edid/FieldText.h"
#include "tests/workbench/edid/EdidBlocks.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

SEdidContent MemoryOf(const QByteArray& bytes)
{
    return {bytes, enEdidOrigin::enMemory, QStringLiteral("HDMI 1"), false};
}

SEdidContent FileOf(const QByteArray& bytes)
{
    return {bytes, enEdidOrigin::enFile, QStringLiteral("old.bin"), false};
}

int FieldWithLabel(const CEdidDocument& document, const char* szLabel)
{
    for (std::size_t i = 0; i < document.Fields().size(); ++i)
        if (Edid::LabelText(document.Fields()[i]) == QLatin1String(szLabel))
            return int(i);
    return -1;
}

} // namespace

class TestEdidDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ANewDocumentIsEmptyAndFollows();
    void WhatFollowsLeavesNoStep();
    void LoadingIsAStep();
    void AFieldIsSetInOneStep();
    void ARefusedValueLeavesNoStep();
    void AnUnchangedValueLeavesNoStep();
    void AnEditedMemoryFollowsNoMore();
    void FixingIsOneStepAndNoneWhenAllIsRight();
    void AStoredContentIsTheMemory();
    void TheDifferencesFollowTheEdits();
    void WithoutAnotherNothingIsDifferent();
};

void TestEdidDocument::ANewDocumentIsEmptyAndFollows()
{
    const CEdidDocument document;
    QVERIFY(document.IsEmpty());
    QVERIFY(document.IsFollowing());
    QVERIFY(document.Fields().empty());
}

void TestEdidDocument::WhatFollowsLeavesNoStep()
{
    CEdidDocument document;
    QSignalSpy spy(&document, &CEdidDocument::Changed);
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    QCOMPARE(spy.size(), 1);
    QVERIFY(!document.Steps().canUndo());
    QVERIFY(document.IsFollowing());
}

void TestEdidDocument::LoadingIsAStep()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    document.Load(FileOf(BlockOf(800, 600)), QStringLiteral("open"));
    QVERIFY(!document.IsFollowing());
    QCOMPARE(document.Content().strName, QStringLiteral("old.bin"));
    document.Steps().undo();
    QCOMPARE(document.Content().bytes, BlockOf(1920, 1080));
    QCOMPARE(document.Content().strName, QStringLiteral("HDMI 1"));
    document.Steps().redo();
    QCOMPARE(document.Content().bytes, BlockOf(800, 600));
}

void TestEdidDocument::AFieldIsSetInOneStep()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    QCOMPARE(document.SetField(FieldWithLabel(document, "Maker"), QStringLiteral("LED")), QString());
    QCOMPARE(document.Steps().count(), 1);
    QCOMPARE(document.Steps().undoText(), QStringLiteral("厂商"));
    QCOMPARE(document.Content().bytes.mid(8, 2), QByteArray("\x30\xA4"));
    QVERIFY(document.Content().bEdited);
    document.Steps().undo();
    QCOMPARE(document.Content().bytes, BlockOf(1920, 1080));
    QVERIFY(!document.Content().bEdited);
}

void TestEdidDocument::ARefusedValueLeavesNoStep()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    const int nField = FieldWithLabel(document, "Gamma");
    QVERIFY(document.Refusal(nField, QStringLiteral("9")).contains(QStringLiteral("3.54")));
    QVERIFY(document.SetField(nField, QStringLiteral("9")).contains(QStringLiteral("3.54")));
    QCOMPARE(document.Steps().count(), 0);
    QCOMPARE(document.Content().bytes, BlockOf(1920, 1080));
}

void TestEdidDocument::AnUnchangedValueLeavesNoStep()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    QCOMPARE(document.SetField(FieldWithLabel(document, "Gamma"), QStringLiteral("2.20")), QString());
    QCOMPARE(document.Steps().count(), 0);
}

void TestEdidDocument::AnEditedMemoryFollowsNoMore()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    document.SetField(FieldWithLabel(document, "Gamma"), QStringLiteral("2.4"));
    QVERIFY(!document.IsFollowing());
    document.Steps().undo();
    QVERIFY(document.IsFollowing());
}

void TestEdidDocument::FixingIsOneStepAndNoneWhenAllIsRight()
{
    QByteArray broken = BlockOf(1920, 1080);
    broken[0] = 'x';
    broken[Edid::c_nChecksumOffset] = '\0';
    CEdidDocument document;
    document.Follow(MemoryOf(broken));
    document.FixAll();
    QCOMPARE(document.Content().bytes, BlockOf(1920, 1080));
    QCOMPARE(document.Steps().count(), 1);
    document.FixAll();
    QCOMPARE(document.Steps().count(), 1);
}

void TestEdidDocument::AStoredContentIsTheMemory()
{
    CEdidDocument document;
    document.Load(FileOf(BlockOf(800, 600)), QStringLiteral("open"));
    document.MarkStored(QStringLiteral("DVI 2"));
    QVERIFY(document.IsFollowing());
    QCOMPARE(document.Content().strName, QStringLiteral("DVI 2"));
    QVERIFY(document.Steps().canUndo());
}

void TestEdidDocument::TheDifferencesFollowTheEdits()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    document.CompareWith(FileOf(BlockOf(1920, 1080)));
    QVERIFY(document.IsComparing());
    QVERIFY(document.Differences().isEmpty());
    document.SetField(FieldWithLabel(document, "Gamma"), QStringLiteral("2.4"));
    QCOMPARE(document.Differences().size(), 2); // the checksum too
    QCOMPARE(document.DifferentBytes(), (QVector<int>{0x17, 0x7F}));
    document.Steps().undo();
    QVERIFY(document.Differences().isEmpty());
}

void TestEdidDocument::WithoutAnotherNothingIsDifferent()
{
    CEdidDocument document;
    document.Follow(MemoryOf(BlockOf(1920, 1080)));
    document.CompareWith(FileOf(BlockOf(800, 600)));
    QVERIFY(!document.Differences().isEmpty());
    document.EndComparison();
    QVERIFY(document.Differences().isEmpty());
    QVERIFY(document.DifferentBytes().isEmpty());
}

QTEST_MAIN(TestEdidDocument)
#include "TestEdidDocument.moc"
