#include "Host.h"

#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "host/TevraData/ProjectData.h"

#include <QtTest>

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

/// Clicks every button of the example host: each opens its dialog over the host's own objects, or the chart.
class DriveMinimalHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheLibraryReachesTheHostsOwnObjects();
    void EachDialogOpensAndCloses_data();
    void EachDialogOpensAndCloses();
    void TheChartOpens();
};

namespace {

QPushButton* Button(const CHostWindow& window, const QString& strText)
{
    const QList<QPushButton*> listButtons = window.findChildren<QPushButton*>();
    const auto it = std::find_if(listButtons.begin(), listButtons.end(),
                                 [&](const QPushButton* pButton) { return pButton->text() == strText; });
    return it == listButtons.end() ? nullptr : *it;
}

} // namespace

void DriveMinimalHost::TheLibraryReachesTheHostsOwnObjects()
{
    const CHostWindow window;
    QCOMPARE(g_pProjectData, GetProjectData());
    QCOMPARE(g_pProjectData->GetSender(1), nullptr); // the simulated host has more senders
}

void DriveMinimalHost::EachDialogOpensAndCloses_data()
{
    QTest::addColumn<QString>("button");
    for (const char* szButton :
         {"EDID...", "Canvas...", "Rate and depth...", "Background...", "Coefficient...", "Addresses...",
          "Processors by hand...", "Demo project..."})
        QTest::newRow(szButton) << QString::fromLatin1(szButton);
}

void DriveMinimalHost::EachDialogOpensAndCloses()
{
    QFETCH(QString, button);
    const CHostWindow window;
    bool bOpened = false;
    QTimer::singleShot(0, this, [&] {
        auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        bOpened = pDialog != nullptr && pDialog->isVisible();
        if (bOpened)
            pDialog->close();
    });
    QTest::mouseClick(Button(window, button), Qt::LeftButton);
    QVERIFY(bOpened);
}

void DriveMinimalHost::TheChartOpens()
{
    const CHostWindow window;
    QTest::mouseClick(Button(window, QStringLiteral("Chart")), Qt::LeftButton);
    const auto* pChart = window.findChild<CChromaticityDlgWnd*>();
    QVERIFY(pChart != nullptr);
    QVERIFY(pChart->isVisible());
}

QTEST_MAIN(DriveMinimalHost)
#include "DriveMinimalHost.moc"
