#include "workbench/ElidedTips.h"

#include <QHelpEvent>
#include <QStandardItemModel>
#include <QTableView>
#include <QToolTip>
#include <QtTest>

namespace {

const QString c_strLong = QStringLiteral("1920 x 1080 at 59.94 Hz, reduced blanking");

} // namespace

class TestElidedTips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ACellThatIsTooNarrowTellsItsText();
    void ACellThatShowsItsTextHasNoTip();
    void ATipOfTheModelStays();
    void WhereThereIsNoCellThereIsNoTip();

private:
    QString TipAt(const QTableView& table, int nColumn);
    void Rest(const QTableView& table, QPoint pt);

    QStandardItemModel m_model;
};

void TestElidedTips::init()
{
    m_model.clear();
    m_model.appendRow({new QStandardItem(c_strLong), new QStandardItem(QStringLiteral("short"))});
    QToolTip::hideText();
}

/// What the mouse is told that rests at a point of the cells.
void TestElidedTips::Rest(const QTableView& table, QPoint pt)
{
    QHelpEvent event(QEvent::ToolTip, pt, table.viewport()->mapToGlobal(pt));
    QApplication::sendEvent(table.viewport(), &event);
}

QString TestElidedTips::TipAt(const QTableView& table, int nColumn)
{
    Rest(table, table.visualRect(m_model.index(0, nColumn)).center());
    return QToolTip::text();
}

void TestElidedTips::ACellThatIsTooNarrowTellsItsText()
{
    const CElidedTips tips;
    QTableView table;
    table.setModel(&m_model);
    table.setColumnWidth(0, 60);
    table.show();
    QCOMPARE(TipAt(table, 0), c_strLong);
}

void TestElidedTips::ACellThatShowsItsTextHasNoTip()
{
    const CElidedTips tips;
    QTableView table;
    table.setModel(&m_model);
    table.setColumnWidth(1, 200);
    table.show();
    QCOMPARE(TipAt(table, 1), QString());
}

void TestElidedTips::ATipOfTheModelStays()
{
    const CElidedTips tips;
    m_model.item(0, 0)->setToolTip(QStringLiteral("its own"));
    QTableView table;
    table.setModel(&m_model);
    table.setColumnWidth(0, 60);
    table.show();
    QCOMPARE(TipAt(table, 0), QStringLiteral("its own"));
}

void TestElidedTips::WhereThereIsNoCellThereIsNoTip()
{
    const CElidedTips tips;
    QTableView table;
    table.setModel(&m_model);
    table.resize(400, 400);
    table.show();
    Rest(table, QPoint(300, 300));
    QCOMPARE(QToolTip::text(), QString());
}

QTEST_MAIN(TestElidedTips)
#include "TestElidedTips.moc"
