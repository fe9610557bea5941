#include "workbench/edid/HexView.h"

#include <QSignalSpy>
#include <QtTest>

class TestHexView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PlacesAndBytesUndoEachOther();
    void OutsideTheBytesThereIsNone();
    void AClickChoosesAByte();
    void TheArrowKeysMoveToOtherBytes();
};

void TestHexView::PlacesAndBytesUndoEachOther()
{
    CHexView view;
    view.SetBytes(QByteArray(128, 7));
    for (int i = 0; i < 128; ++i)
        QCOMPARE(view.ByteAt(view.ByteRect(i).center()), i);
}

void TestHexView::OutsideTheBytesThereIsNone()
{
    CHexView view;
    view.SetBytes(QByteArray(20, 7));
    QCOMPARE(view.ByteAt(QPoint(-1, 50)), -1);
    QCOMPARE(view.ByteAt(QPoint(0, 0)), -1);
    QCOMPARE(view.ByteAt(view.ByteRect(20).center()), -1);
    QCOMPARE(view.ByteAt(view.ByteRect(15).center() + QPoint(view.ByteRect(0).width(), 0)), -1);
}

void TestHexView::AClickChoosesAByte()
{
    CHexView view;
    view.SetBytes(QByteArray(128, 7));
    view.resize(view.sizeHint());
    QSignalSpy spy(&view, &CHexView::ByteChosen);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, view.ByteRect(0x36).center());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toInt(), 0x36);
}

void TestHexView::TheArrowKeysMoveToOtherBytes()
{
    CHexView view;
    view.SetBytes(QByteArray(128, 7));
    QSignalSpy spy(&view, &CHexView::ByteChosen);
    for (const Qt::Key key :
         {Qt::Key_Right, Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left})
        QTest::keyClick(&view, key);
    QList<int> listChosen;
    for (const QList<QVariant>& listArguments : spy)
        listChosen.append(listArguments.first().toInt());
    // The first key goes to the first byte; a step that would leave the bytes is not taken.
    QCOMPARE(listChosen, (QList<int>{0, 16, 17, 1, 0}));
}

QTEST_MAIN(TestHexView)
#include "TestHexView.moc"
