#include "workbench/Workbench.h"

#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/MainWindow.h"
#include "workbench/ProjectActions.h"
#include "workbench/tour/PageTours.h"
#include "workbench/tour/Tour.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QSettings>

#include <cstdio>
#include <cstdlib>

namespace {

enLanguage LanguageOf(const SWorkbenchOptions& options, const QSettings& settings)
{
    const QString strCode = options.strLanguage.isEmpty()
                                ? settings.value(QStringLiteral("language")).toString()
                                : options.strLanguage;
    return CLanguage::ForLocale(strCode.isEmpty() ? QLocale::system().name() : strCode);
}

/// What the tour writes beside its pictures: the project, saved and reopened, and an EDID block.
void LeaveFiles(CTour& tour, CMainWindow& window)
{
    const QString strFile = QDir(tour.Folder()).filePath(QStringLiteral("project.json"));
    tour.Check(window.Project().SaveAs(strFile),
               QStringLiteral("the project cannot be saved as %1").arg(strFile));
    SFileProblem problem;
    tour.Check(CSimulator::Instance().Document().Open(strFile, problem), problem.Text());
}

QtMessageHandler s_pMessageHandler = nullptr;

/// Suppresses the warning that the offscreen plugin prints for every window it shows.
void PassMessage(QtMsgType type, const QMessageLogContext& context, const QString& strText)
{
    if (!strText.startsWith(QLatin1String("This plugin does not support")))
        s_pMessageHandler(type, context, strText);
}

void TourOfPages(CTour& tour, CLanguage& language, QSettings& settings)
{
    CSimulator::Instance().Document().NewProject();
    CMainWindow window(language, settings);
    window.ArrangeFor(CTour::c_sizeScreen);
    window.show();
    PageTours::Everything(tour, window);
    if (language.Current() == enLanguage::enEnglish)
        LeaveFiles(tour, window);
}

int Report(const CTour& tour)
{
    for (const QString& strFailure : tour.Failures())
        std::fprintf(stderr, "sender-workbench: %s\n", qPrintable(strFailure));
    std::printf("%d pictures in %s, %d failures\n", int(tour.Pictures().size()), qPrintable(tour.Folder()),
                int(tour.Failures().size()));
    return tour.Failures().isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int RunWorkbench(const SWorkbenchOptions& options)
{
    QSettings settings;
    CLanguage language;
    language.Set(LanguageOf(options, settings));
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CMainWindow window(language, settings);
    if (options.strFile.isEmpty())
        window.Project().OpenLast();
    else if (!window.Project().Open(options.strFile))
        CSimulator::Instance().Document().NewProject();
    window.show();
    return QApplication::exec();
}

int RunTour(const SWorkbenchOptions& options)
{
    // The pictures show switches at rest, and file dialogs that the tour can answer.
    qputenv("ORVICONTROL_ANIMATIONS", "0");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    s_pMessageHandler = qInstallMessageHandler(PassMessage);
    // A tour neither reads nor writes the operator's settings.
    CTour tour(options.strTourFolder);
    QSettings settings(QDir(options.strTourFolder).filePath(QStringLiteral("settings.ini")),
                       QSettings::IniFormat);
    settings.clear();
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CLanguage language;
    for (const enLanguage current : {enLanguage::enChinese, enLanguage::enEnglish}) {
        language.Set(current);
        tour.SetPrefix(CLanguage::Code(current));
        TourOfPages(tour, language, settings);
        PageTours::Journeys(tour, language, settings);
    }
    tour.LeaveWindows();
    return Report(tour);
}
