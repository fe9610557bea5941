#include "workbench/edid/FieldModel.h"

#include "instruments/edid/Conforming.h"
#include "tests/workbench/edid/EdidBlocks.h"
#include "workbench/edid/EdidDocument.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

namespace {

SEdidContent FileOf(const QByteArray& bytes)
{
    return {bytes, enEdidOrigin::enFile, QStringLiteral("a.bin"), false};
}

QByteArray TwoBlocks()
{
    return Edid::MakeConforming({7680, 1080, 60.0F, QStringLiteral("LED"), {}, 0, 0}).edid;
}

} // namespace

class TestFieldModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheTreeIsThatOfTheExplanation();
    void AByteFindsItsField_data();
    void AByteFindsItsField();
    void EveryByteBelongsToAField();
    void AValueIsSet();
    void ARefusedValueIsReported();
    void OnlyValuesThatCanBeSetAreEditable();
    void AChangedValueKeepsTheRows();
    void OtherFieldsMakeOtherRows();
    void DifferencesAreWalkedRoundAndRound();
    void WhatOnlyTheOtherHasIsInAGroup();
    void AGroupThatSaysNothingIsSilent();

private:
    QModelIndex Row(const char* szLabel) const;

    std::unique_ptr<CEdidDocument> m_pDocument;
    std::unique_ptr<CFieldModel> m_pModel;
};

void TestFieldModel::init()
{
    m_pModel.reset();
    m_pDocument = std::make_unique<CEdidDocument>();
    m_pModel = std::make_unique<CFieldModel>(*m_pDocument);
    m_pDocument->Follow(FileOf(BlockOf(1920, 1080)));
}

QModelIndex TestFieldModel::Row(const char* szLabel) const
{
    return m_pModel
        ->match(m_pModel->index(0, 0), Qt::DisplayRole, QString::fromUtf8(szLabel), 1,
                Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

void TestFieldModel::TheTreeIsThatOfTheExplanation()
{
    const QAbstractItemModelTester tester(m_pModel.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_pDocument->Load(FileOf(TwoBlocks()), QStringLiteral("open"));
    QCOMPARE(m_pModel->rowCount(), 2);
    QCOMPARE(m_pModel->index(0, 0).data().toString(), QStringLiteral("基本块"));
    QCOMPARE(m_pModel->index(1, 0).data().toString(), QStringLiteral("DisplayID 扩展 1"));
    QCOMPARE(Row("厂商").parent().data().toString(), QStringLiteral("厂商和产品"));
    m_pDocument->CompareWith(FileOf(BlockOf(800, 600)));
    m_pDocument->Steps().undo();
    m_pDocument->EndComparison();
}

void TestFieldModel::AByteFindsItsField_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<QString>("label");
    QTest::newRow("header") << 0 << QStringLiteral("标头");
    QTest::newRow("gamma") << 0x17 << QStringLiteral("伽马");
    QTest::newRow("first byte of the clock") << 0x36 << QStringLiteral("像素时钟");
    QTest::newRow("checksum") << 0x7F << QStringLiteral("校验和");
    QTest::newRow("name") << 0x60 << QStringLiteral("名称");
}

void TestFieldModel::AByteFindsItsField()
{
    QFETCH(int, byte);
    QFETCH(QString, label);
    QCOMPARE(m_pModel->IndexOfByte(byte).data().toString(), label);
    QVERIFY(m_pModel->BytesOf(m_pModel->IndexOfByte(byte)).contains(byte));
}

void TestFieldModel::EveryByteBelongsToAField()
{
    m_pDocument->Load(FileOf(TwoBlocks()), QStringLiteral("open"));
    for (int i = 0; i < 2 * c_nEdidBlockSize; ++i)
        QVERIFY2(m_pModel->rowCount(m_pModel->IndexOfByte(i)) == 0 ||
                     m_pModel->IndexOfByte(i).parent().isValid(),
                 qPrintable(QString::number(i, 16)));
    QVERIFY(!m_pModel->IndexOfByte(2 * c_nEdidBlockSize).isValid());
}

void TestFieldModel::AValueIsSet()
{
    const QModelIndex index = Row("伽马").siblingAtColumn(CFieldModel::enValue);
    QCOMPARE(index.data().toString(), QStringLiteral("2.20"));
    QVERIFY(m_pModel->setData(index, QStringLiteral("2.4")));
    QCOMPARE(index.data().toString(), QStringLiteral("2.40"));
    QCOMPARE(quint8(m_pDocument->Content().bytes.at(0x17)), quint8(140));
}

void TestFieldModel::ARefusedValueIsReported()
{
    QSignalSpy spy(m_pModel.get(), &CFieldModel::Refused);
    QVERIFY(!m_pModel->setData(Row("伽马").siblingAtColumn(CFieldModel::enValue), QStringLiteral("steep")));
    QCOMPARE(spy.size(), 1);
    QVERIFY(spy.constFirst().constFirst().toString().contains(QStringLiteral("3.54")));
}

void TestFieldModel::OnlyValuesThatCanBeSetAreEditable()
{
    const auto IsEditable = [this](const char* szLabel, int nColumn) {
        return bool(m_pModel->flags(Row(szLabel).siblingAtColumn(nColumn)) & Qt::ItemIsEditable);
    };
    QVERIFY(IsEditable("伽马", CFieldModel::enValue));
    QVERIFY(!IsEditable("伽马", CFieldModel::enField));
    QVERIFY(!IsEditable("校验和", CFieldModel::enValue));
    QVERIFY(!IsEditable("基本块", CFieldModel::enValue));
}

void TestFieldModel::AChangedValueKeepsTheRows()
{
    QSignalSpy spyReset(m_pModel.get(), &CFieldModel::modelReset);
    QSignalSpy spyChanged(m_pModel.get(), &CFieldModel::dataChanged);
    m_pModel->setData(Row("伽马").siblingAtColumn(CFieldModel::enValue), QStringLiteral("2.4"));
    QVERIFY(spyReset.isEmpty());
    QVERIFY(!spyChanged.isEmpty());
}

void TestFieldModel::OtherFieldsMakeOtherRows()
{
    QSignalSpy spyReset(m_pModel.get(), &CFieldModel::modelReset);
    m_pDocument->Load(FileOf(TwoBlocks()), QStringLiteral("open"));
    QCOMPARE(spyReset.size(), 1);
}

void TestFieldModel::DifferencesAreWalkedRoundAndRound()
{
    QVERIFY(!m_pModel->NextDifference({}, true).isValid());
    QByteArray other = BlockOf(1920, 1080);
    other[0x17] = char(100);
    other[0x36] = '\x01';
    m_pDocument->CompareWith(FileOf(other));
    QStringList listLabels;
    QModelIndex index;
    for (int i = 0; i < 3; ++i) {
        index = m_pModel->NextDifference(index, true);
        QVERIFY(m_pModel->IsDifferent(index));
        listLabels += index.data().toString();
    }
    QCOMPARE(listLabels,
             (QStringList{QStringLiteral("伽马"), QStringLiteral("像素时钟"), QStringLiteral("校验和")}));
    QCOMPARE(m_pModel->NextDifference(index, true).data().toString(), QStringLiteral("伽马"));
    QCOMPARE(m_pModel->NextDifference(index, false).data().toString(), QStringLiteral("像素时钟"));
    QCOMPARE(Row("伽马").siblingAtColumn(CFieldModel::enOther).data().toString(), QStringLiteral("2.00"));
}

void TestFieldModel::WhatOnlyTheOtherHasIsInAGroup()
{
    m_pDocument->CompareWith(FileOf(TwoBlocks()));
    const QModelIndex group = m_pModel->index(m_pModel->rowCount() - 1, 0);
    QCOMPARE(group.data().toString(), QStringLiteral("只在另一个中"));
    QVERIFY(m_pModel->rowCount(group) > 0);
    const QModelIndex index = m_pModel->index(0, 0, group);
    QVERIFY(m_pModel->IsDifferent(index));
    QVERIFY(m_pModel->BytesOf(index).isEmpty());
    QVERIFY(!m_pModel->OtherBytesOf(index).isEmpty());
}

void TestFieldModel::AGroupThatSaysNothingIsSilent()
{
    QVERIFY(m_pModel->IsSilentGroup(Row("标准时序列表")));
    QVERIFY(!m_pModel->IsSilentGroup(Row("厂商和产品")));
    QVERIFY(!m_pModel->IsSilentGroup(Row("伽马")));
}

QTEST_MAIN(TestFieldModel)
#include "TestFieldModel.moc"
