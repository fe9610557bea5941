#include <QApplication>
#include <QTimer>
#include <QtTest>

// Linked into the example program: types a canvas into its dialog and confirms it.
namespace {

void Operate()
{
    QTimer::singleShot(0, qApp, [] {
        const QWidget* pDialog = QApplication::activeModalWidget();
        for (const auto& [szField, szSide] : {std::pair("width", "2560"), std::pair("height", "1440")}) {
            auto* pField = pDialog->findChild<QWidget*>(QString::fromLatin1(szField));
            pField->setFocus();
            QTest::keyClick(pField, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(pField, QString::fromLatin1(szSide));
        }
        QTest::keyClick(pDialog->findChild<QWidget*>(QStringLiteral("ok")), Qt::Key_Space);
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Operate)
