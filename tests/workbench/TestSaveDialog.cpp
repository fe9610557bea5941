#include "tests/workbench/DialogOperator.h"
#include "workbench/SaveDialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>

class TestSaveDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFilterStandsForItsExtension_data();
    void AFilterStandsForItsExtension();
    void ANameWithoutAnExtensionGetsTheFilters_data();
    void ANameWithoutAnExtensionGetsTheFilters();
};

void TestSaveDialog::AFilterStandsForItsExtension_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("one pattern") << QStringLiteral("PNG 图片 (*.png)") << QStringLiteral("png");
    QTest::newRow("the first of several") << QStringLiteral("TIFF (*.tif *.tiff)") << QStringLiteral("tif");
    QTest::newRow("all files") << QStringLiteral("所有文件 (*)") << QString();
}

void TestSaveDialog::AFilterStandsForItsExtension()
{
    QFETCH(QString, filter);
    QTEST(SaveDialog::SuffixOf(filter), "suffix");
}

void TestSaveDialog::ANameWithoutAnExtensionGetsTheFilters_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("without an extension") << QStringLiteral("wall") << QStringLiteral("wall.json");
    QTest::newRow("with one") << QStringLiteral("wall.json") << QStringLiteral("wall.json");
    QTest::newRow("with another") << QStringLiteral("wall.txt") << QStringLiteral("wall.txt");
}

void TestSaveDialog::ANameWithoutAnExtensionGetsTheFilters()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    const QTemporaryDir folder;
    const CDialogOperator dialogOperator([&](QDialog* pDialog) {
        auto* pName = pDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        pName->setText(folder.filePath(typed));
        QTest::keyClick(pName, Qt::Key_Return);
    });
    const QString strFile = SaveDialog::Ask(nullptr, QStringLiteral("Save"), QStringLiteral("project.json"),
                                            QStringLiteral("Project (*.json);;All files (*)"));
    QCOMPARE(strFile, folder.filePath(expected));
}

QTEST_MAIN(TestSaveDialog)
#include "TestSaveDialog.moc"
