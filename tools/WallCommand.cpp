#include "tools/WallCommand.h"

#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/StandardGamut.h"
#include "instruments/colour/StandardNames.h"
#include "reports/WallReport.h"
#include "tools/Arguments.h"
#include "tools/Chromaticity.h"
#include "tools/Output.h"
#include "tools/Report.h"
#include "tools/WallText.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>

#include <cstdio>

namespace {

/// A larger file holds no measurements; it is not read into memory.
constexpr qint64 c_nLargestFile = qint64(256) * 1024 * 1024;

const QString c_strStandardInput = QStringLiteral("-");

QByteArray Content(const QString& strFile)
{
    QFile file(strFile);
    const bool bOpen = strFile == c_strStandardInput ? file.open(stdin, QIODevice::ReadOnly)
                                                     : file.open(QIODevice::ReadOnly);
    if (!bOpen)
        throw CToolError(
            QStringLiteral("cannot read '%1': %2; give a CSV file").arg(strFile, file.errorString()));
    QByteArray content = file.read(c_nLargestFile + 1);
    if (content.size() > c_nLargestFile)
        throw CToolError(QStringLiteral("'%1' is too large for measurements; give a CSV file").arg(strFile));
    return content;
}

Modules ReadModules(const QString& strFile)
{
    const SMeasurements measurements = MeasurementCsv::Read(Content(strFile));
    if (measurements.error)
        throw CToolError(QStringLiteral("'%1', %2").arg(strFile, measurements.error->Text()));
    return measurements.modules;
}

const SColourStandard& ParseStandard(const QString& strName)
{
    const SColourStandard* const pStandard = FindColourStandard(strName);
    if (pStandard == nullptr)
        throw CToolError(
            QStringLiteral("unknown standard '%1'; give one of: %2").arg(strName, StandardLabels()));
    return *pStandard;
}

/// The report's own texts are Chinese; the tool speaks English.
QByteArray EnglishReport(const Modules& modules, const SWallAnalysis& analysis,
                         const SColourStandard& standard, const QString& strFile)
{
    QTranslator arrTranslators[2];
    const char* const arrNames[] = {":/translations/SenderModuleDialog_en.qm",
                                    ":/translations/SenderWorkbench_en.qm"};
    for (int i = 0; i < 2; ++i)
        if (arrTranslators[i].load(QString::fromLatin1(arrNames[i])))
            QCoreApplication::installTranslator(&arrTranslators[i]);
    return WallReport::Pdf(modules, analysis, standard, QFileInfo(strFile).fileName());
}

void Run(const CArguments& arguments)
{
    const SColourStandard& standard = ParseStandard(arguments.Value("standard", QStringLiteral("Rec709")));
    const SChromaticity white =
        arguments.Has("white") ? ParseWhite(arguments.Value("white")) : StandardGamut::White(standard);
    const QString strFile = arguments.Positional().constFirst();
    const Modules modules = ReadModules(strFile);
    const auto analysis = WallAnalysis::Of(modules, white, standard);
    if (!analysis)
        throw CToolError(QStringLiteral("'%1' cannot be analysed: %2")
                             .arg(strFile, QString::fromLatin1(ColourFaultText(analysis.Fault()))));
    if (arguments.Has("report"))
        Output::ToFile(arguments.Value("report"), EnglishReport(modules, *analysis, standard, strFile));
    Output::ToStandardOutput(arguments.Has("json") ? WallText::Json(modules, *analysis)
                                                   : WallText::Text(modules, *analysis));
}

} // namespace

SSubcommand WallSubcommand()
{
    return {
        "wall",
        "FILE.csv",
        1,
        1,
        "tell what the measured modules of a wall can show, and which are odd",
        "FILE.csv holds readings of red, green and blue (and white, if measured) of each module: one line a\n"
        "module, with a heading such as module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY, or one line a primary, such as\n"
        "module,primary,x,y,Y; or X,Y,Z instead of x,y,Y. Headings may be Chinese; semicolons, tabs and\n"
        "decimal commas are understood. - reads standard input.\n",
        {
            {"standard", 0, "NAME", "the standard that the wall is to show; default Rec709"},
            {"white", 0, "WHITE", "its white: x,y, D65, D50, D55, D75, A, E or DCI; default the standard's"},
            {"json", 0, nullptr, "print JSON with every number, each module's matrix among them"},
            {"report", 0, "FILE.pdf", "write two pages as well: the chart with all modules, and the tables"},
        },
        enApplication::enWidgets,
        &Run,
    };
}
