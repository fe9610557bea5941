#include "host/QtCompat.h"
#include "simulator/OrviControl/Theme.h"
#include "workbench/Workbench.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int c_nUsageError = 2; ///< exit status of a wrong call

/// Reads the command line; ends the program on --help and on a wrong call.
SWorkbenchOptions ReadOptions(const QCoreApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Sets up simulated LED-display senders with the dialogs of SenderModuleDialog."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption tourOption(
        QStringLiteral("tour"), QStringLiteral("Walk through the workbench and save pictures to <folder>."),
        QStringLiteral("folder"));
    const QCommandLineOption languageOption(QStringLiteral("language"), QStringLiteral("Language: zh or en."),
                                            QStringLiteral("language"));
    parser.addOptions({tourOption, languageOption});
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Project to open."),
                                 QStringLiteral("[file]"));

    QString strError;
    if (!parser.parse(application.arguments()))
        strError = parser.errorText();
    else if (parser.positionalArguments().size() > 1)
        strError = QStringLiteral("More than one project file was given.");
    else if (parser.isSet(languageOption) &&
             !QStringList{QStringLiteral("zh"), QStringLiteral("en")}.contains(parser.value(languageOption)))
        strError = QStringLiteral("There is no language '%1'; there are zh and en.")
                       .arg(parser.value(languageOption));
    if (!strError.isEmpty()) {
        std::fprintf(stderr, "sender-workbench: %s See sender-workbench --help.\n", qPrintable(strError));
        std::exit(c_nUsageError);
    }
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp();
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    return {parser.positionalArguments().value(0), parser.value(tourOption), parser.value(languageOption)};
}

/// What a program says about itself needs no display.
bool AsksAboutProgram(int nArguments, char** ppArguments)
{
    const QStringList listQuestions = {QStringLiteral("-h"), QStringLiteral("--help"),
                                       QStringLiteral("--help-all"), QStringLiteral("-v"),
                                       QStringLiteral("--version")};
    return std::any_of(ppArguments + 1, ppArguments + nArguments, [&listQuestions](const char* szArgument) {
        return listQuestions.contains(QString::fromLocal8Bit(szArgument));
    });
}

void NameProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("sender-workbench"));
    QCoreApplication::setOrganizationName(QStringLiteral("SenderModuleDialog"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SENDER_VERSION));
}

} // namespace

int main(int argc, char* argv[])
{
    NameProgram();
    if (AsksAboutProgram(argc, argv))
        ReadOptions(QCoreApplication(argc, argv));
    QtCompat::EnableHighDpi();
    const QApplication application(argc, argv);
    QApplication::setStyle(Theme::CreateStyle());
    QApplication::setPalette(Theme::Palette());
    QApplication::setFont(Theme::Font());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/workbench/sender-workbench.svg")));
    const SWorkbenchOptions options = ReadOptions(application);
    return options.strTourFolder.isEmpty() ? RunWorkbench(options) : RunTour(options);
}
