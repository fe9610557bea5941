#include "simulator/CommonClass/Simulator.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/tour/JourneyWalk.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"
#include "workbench/tour/TourNetwork.h"

#include <QDir>
#include <QFile>

namespace {

void Walk(CTour& tour, CMainWindow& window, const SJourney& journey, enHand hand)
{
    const QString strName =
        QStringLiteral("%1-%2").arg(QString::fromLatin1(journey.szName), CHand::Name(hand));
    const QString strFile = QDir(tour.Folder()).filePath(strName + QStringLiteral(".json"));
    // The dialog would ask about the file of an earlier tour.
    QFile::remove(strFile);
    const QString strProblem = CJourneyWalk(window, hand, strFile).Walk(journey, [&](int nStep) {
        tour.Picture(&window, QStringLiteral("%1-%2").arg(strName).arg(nStep));
    });
    tour.Check(strProblem.isEmpty(), QStringLiteral("%1, %2").arg(strName, strProblem));
    tour.Check(QFile::exists(strFile), QStringLiteral("%1 left no project").arg(strName));
}

} // namespace

void PageTours::Journeys(CTour& tour, CLanguage& language, QSettings& settings)
{
    const CTourNetwork network;
    tour.LeaveMessages(true);
    for (const SJourney& journey : ::Journeys::All()) {
        for (const enHand hand : {enHand::enMouse, enHand::enKeys}) {
            CMainWindow window(language, settings);
            window.ArrangeFor(CTour::c_sizeScreen);
            window.show();
            CSimulator::Instance().Journal().Clear();
            Walk(tour, window, journey, hand);
        }
    }
    tour.LeaveMessages(false);
}
