#include "SenderModuleDialog/edid/EdidWindow.h"

#include <QtTest>

/// The size of the EDID dialog for the rows that it shows.
class TestEdidWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WindowSize_data();
    void WindowSize();
    void OnlyOneSystemKeepsTheCustomRow();
};

void TestEdidWindow::WindowSize_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("keepsCustomRow");
    QTest::addColumn<int>("height");
    for (int nFlags = 0; nFlags < 32; ++nFlags) {
        const int nFollowing = (nFlags & 1) + (nFlags >> 1 & 1) + (nFlags >> 2 & 1) + (nFlags >> 3 & 1);
        const bool bCustom = (nFlags & 16) != 0;
        QTest::addRow("rows %d", nFlags) << nFlags << false << 32 * ((bCustom ? 4 : 3) + nFollowing) + 39;
        QTest::addRow("rows %d, custom row kept", nFlags) << nFlags << true << 32 * (4 + nFollowing) + 39;
    }
}

void TestEdidWindow::WindowSize()
{
    QFETCH(int, flags);
    QFETCH(bool, keepsCustomRow);
    QFETCH(int, height);
    const EdidWindow::SShownRows rows = {(flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0,
                                         (flags & 8) != 0, (flags & 16) != 0};
    QCOMPARE(EdidWindow::Size(rows, keepsCustomRow), QSize(300, height));
}

void TestEdidWindow::OnlyOneSystemKeepsTheCustomRow()
{
    const QString strType = QStringLiteral("kylin");
    const QString strVersion = QStringLiteral("4.0.2");
    QVERIFY(EdidWindow::KeepsCustomRow(strType, strVersion));
    QVERIFY(!EdidWindow::KeepsCustomRow(strType, QStringLiteral("4.0.3")));
    QVERIFY(!EdidWindow::KeepsCustomRow(QStringLiteral("debian"), strVersion));
}

QTEST_APPLESS_MAIN(TestEdidWindow)
#include "TestEdidWindow.moc"
