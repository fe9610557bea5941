#include "tests/tools/ToolRun.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

class TestChartCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APngHasTheSizeAsked();
    void TheSizeIsAThousandByDefault();
    void TheNameDecidesTheFormat_data();
    void TheNameDecidesTheFormat();
    void TheSvgShowsWhatThePngShows();
    void GroupsAreDrawnInTheirOrder();
    void TheLegendTellsTheCoverage();
    void TheBackgroundIsThatAsked_data();
    void TheBackgroundIsThatAsked();
    void TheGridCanBeLeftOut();
    void ADashIsStandardOutput_data();
    void ADashIsStandardOutput();
    void TheFormatAskedForWinsOverTheName();
    void LinesKeepTheirPartOfTheSize_data();
    void LinesKeepTheirPartOfTheSize();
    void APointOutsideTheDiagramIsAWarning_data();
    void APointOutsideTheDiagramIsAWarning();
    void BadInputIsOneLineAndStatus2_data();
    void BadInputIsOneLineAndStatus2();
    void AFailedRunLeavesTheFileAlone();

private:
    QByteArray File(const char* szName) const
    {
        return QFile::encodeName(m_folder.filePath(QLatin1String(szName)));
    }
    /// The picture that a run with these options gives.
    QImage Picture(const QByteArrayList& listOptions) const;
    /// The texts of the SVG that a run with these options gives.
    QByteArray SvgOf(const QByteArrayList& listOptions) const;

    QTemporaryDir m_folder;
};

namespace {

/// The same colour, give or take the rounding of coordinates in the file.
bool AreAlike(const QColor& color, const QColor& other)
{
    constexpr int c_nRounding = 4;
    return std::abs(color.red() - other.red()) <= c_nRounding &&
           std::abs(color.green() - other.green()) <= c_nRounding &&
           std::abs(color.blue() - other.blue()) <= c_nRounding;
}

} // namespace

QImage TestChartCommand::Picture(const QByteArrayList& listOptions) const
{
    const QByteArray file = File("picture.png");
    const SToolRun run = RunTool(QByteArrayList{"chart", "-o", file} + listOptions);
    return run.nStatus == 0 && run.errors.isEmpty() ? QImage(QFile::decodeName(file)) : QImage();
}

QByteArray TestChartCommand::SvgOf(const QByteArrayList& listOptions) const
{
    const QByteArray strName = File("picture.svg");
    const SToolRun run = RunTool(QByteArrayList{"chart", "-o", strName} + listOptions);
    QFile file(QFile::decodeName(strName));
    return run.nStatus == 0 && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestChartCommand::APngHasTheSizeAsked()
{
    QCOMPARE(Picture({"--size", "640x480"}).size(), QSize(640, 480));
}

void TestChartCommand::TheSizeIsAThousandByDefault()
{
    QCOMPARE(Picture({}).size(), QSize(1000, 1000));
}

void TestChartCommand::TheNameDecidesTheFormat_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("PNG") << QByteArray("chart.png") << QByteArray("\x89PNG");
    QTest::newRow("in capitals") << QByteArray("CHART.PNG") << QByteArray("\x89PNG");
    QTest::newRow("SVG") << QByteArray("chart.svg") << QByteArray("<?xml");
    QTest::newRow("PDF") << QByteArray("chart.pdf") << QByteArray("%PDF-");
}

void TestChartCommand::TheNameDecidesTheFormat()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, begin);
    const SToolRun run =
        RunTool({"chart", "-o", File(name.constData()), "--size", "200x200", "--standard", "sRGB"});
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.output, QByteArray());
    QCOMPARE(run.errors, QByteArray());
    QFile file(QFile::decodeName(File(name.constData())));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.read(begin.size()), begin);
}

void TestChartCommand::TheSvgShowsWhatThePngShows()
{
    const QByteArrayList listOptions = {"--size", "400x400", "--standard", "sRGB"};
    const QImage imgPng = Picture(listOptions);
    QSvgRenderer renderer(SvgOf(listOptions));
    QVERIFY(renderer.isValid());
    QCOMPARE(renderer.viewBox(), QRect(0, 0, 400, 400));
    QImage imgSvg(400, 400, QImage::Format_ARGB32_Premultiplied);
    imgSvg.fill(Qt::transparent);
    QPainter painter(&imgSvg);
    renderer.render(&painter);
    painter.end();
    // Background, the middle of the locus, and the red dot.
    for (const QPoint pos : {QPoint(395, 200), QPoint(150, 250), QPoint(268, 241)})
        QVERIFY(AreAlike(imgSvg.pixelColor(pos), imgPng.pixelColor(pos)));
}

void TestChartCommand::GroupsAreDrawnInTheirOrder()
{
    const QByteArray svg =
        SvgOf({"--group", "Wall: left:0.6,0.3;0.3,0.6;0.2,0.1;0.3,0.3", "--standard", "dcip3"});
    const int nFirst = svg.indexOf(">Wall: left<");
    const int nSecond = svg.indexOf(">DCIP3<");
    QVERIFY(nFirst > 0);
    QVERIFY(nSecond > nFirst);
}

void TestChartCommand::TheLegendTellsTheCoverage()
{
    const QByteArrayList listHalf = {"--group", "half:0.25,0;0,0.5;0,0;0.1,0.1", "--group",
                                     "whole:0.5,0;0,0.5;0,0;0.1,0.1"};
    const QByteArray svg = SvgOf(listHalf + QByteArrayList{"--coverage"});
    QVERIFY(svg.contains(">Output colour space, 50% covered<"));
    QVERIFY(svg.contains(">Screen colour space (after correction)<"));
    QVERIFY(!SvgOf(listHalf).contains("%"));
}

void TestChartCommand::TheBackgroundIsThatAsked_data()
{
    QTest::addColumn<QByteArrayList>("options");
    QTest::addColumn<QString>("color");
    QTest::newRow("by default") << QByteArrayList{} << QStringLiteral("#323232");
    QTest::newRow("dark") << QByteArrayList{"--dark"} << QStringLiteral("#121212");
    QTest::newRow("another") << QByteArrayList{"--background", "#102030"} << QStringLiteral("#102030");
    QTest::newRow("by name") << QByteArrayList{"--background=navy"} << QStringLiteral("#000080");
}

void TestChartCommand::TheBackgroundIsThatAsked()
{
    QFETCH(QByteArrayList, options);
    const QImage image = Picture(options + QByteArrayList{"--size", "200x200"});
    QTEST(image.pixelColor(190, 100).name(), "color");
}

void TestChartCommand::TheGridCanBeLeftOut()
{
    // On the line at y 0.9, right of the locus.
    const QPoint pos(500, 43);
    QVERIFY(Picture({}).pixelColor(pos).name() != QLatin1String("#323232"));
    QCOMPARE(Picture({"--no-grid"}).pixelColor(pos).name(), QStringLiteral("#323232"));
}

void TestChartCommand::ADashIsStandardOutput_data()
{
    QTest::addColumn<QByteArrayList>("options");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("as PNG") << QByteArrayList{} << QByteArray("\x89PNG");
    QTest::newRow("as the format asked for") << QByteArrayList{"--format", "PDF"} << QByteArray("%PDF-");
}

void TestChartCommand::ADashIsStandardOutput()
{
    QFETCH(QByteArrayList, options);
    QFETCH(QByteArray, begin);
    const SToolRun run = RunTool(QByteArrayList{"chart", "-o", "-", "--size", "200x200"} + options);
    QCOMPARE(run.nStatus, 0);
    QCOMPARE(run.errors, QByteArray());
    QCOMPARE(run.output.left(begin.size()), begin);
}

void TestChartCommand::TheFormatAskedForWinsOverTheName()
{
    const QByteArray name = File("picture");
    QCOMPARE(RunTool({"chart", "-o", name, "--size", "200x200", "--format", "svg"}).nStatus, 0);
    QFile file(QFile::decodeName(name));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("<?xml"));
}

void TestChartCommand::LinesKeepTheirPartOfTheSize_data()
{
    QTest::addColumn<QByteArrayList>("options");
    QTest::addColumn<QByteArray>("width");
    QTest::newRow("small") << QByteArrayList{"--size", "200x200"} << QByteArray("1.5");
    QTest::newRow("by default") << QByteArrayList{} << QByteArray("1.5");
    QTest::newRow("large: by the shorter side") << QByteArrayList{"--size", "6000x4000"} << QByteArray("6");
    QTest::newRow("asked for") << QByteArrayList{"--line-width", "7.5"} << QByteArray("7.5");
}

void TestChartCommand::LinesKeepTheirPartOfTheSize()
{
    QFETCH(QByteArrayList, options);
    QFETCH(QByteArray, width);
    const QByteArray svg = SvgOf(QByteArrayList{"--standard", "sRGB"} + options);
    QVERIFY(svg.contains("stroke-width=\"" + width + "\""));
}

void TestChartCommand::APointOutsideTheDiagramIsAWarning_data()
{
    QTest::addColumn<QByteArrayList>("options");
    QTest::addColumn<QByteArray>("errors");
    QTest::newRow("red and white")
        << QByteArrayList{"--group", "wall:0.9,0.05;0.3,0.6;0.15,0.06;0.8,0.8"}
        << QByteArray(
               "sender-tool chart: warning: group 'wall': red 0.9,0.05 lies outside the CIE 1931 diagram\n"
               "sender-tool chart: warning: group 'wall': white 0.8,0.8 lies outside the CIE 1931 diagram\n");
    QTest::newRow("on the outline but for the rounding of its digits")
        << QByteArrayList{"--standard", "DCIP3", "--standard", "Rec2020"} << QByteArray();
}

void TestChartCommand::APointOutsideTheDiagramIsAWarning()
{
    QFETCH(QByteArrayList, options);
    const SToolRun run = RunTool(QByteArrayList{"chart", "-o", "-", "--size", "200x200"} + options);
    QCOMPARE(run.nStatus, 0);
    QVERIFY(run.output.startsWith("\x89PNG"));
    QTEST(run.errors, "errors");
}

void TestChartCommand::BadInputIsOneLineAndStatus2_data()
{
    QTest::addColumn<QByteArrayList>("options");
    QTest::addColumn<QByteArray>("text");
    const QByteArray file = File("bad.png");
    QTest::newRow("no file") << QByteArrayList{}
                             << QByteArray("no output file; give one that ends in .png, .svg");
    QTest::newRow("another format") << QByteArrayList{"-o", "chart.bmp"}
                                    << QByteArray("'chart.bmp' has no supported suffix");
    QTest::newRow("no suffix") << QByteArrayList{"-o", "chart"}
                               << QByteArray("'chart' has no supported suffix");
    QTest::newRow("a folder that is not there")
        << QByteArrayList{"-o", "/nowhere/at/all.png"} << QByteArray("cannot write '/nowhere/at/all.png'");
    QTest::newRow("size without an x")
        << QByteArrayList{"-o", file, "--size", "1000"} << QByteArray("'1000' is not a size");
    QTest::newRow("size too small") << QByteArrayList{"-o", file, "--size", "100x500"}
                                    << QByteArray("100 is out of range; it must be from 101");
    QTest::newRow("size too large") << QByteArrayList{"-o", file, "--size", "500x16385"}
                                    << QByteArray("16385 is out of range");
    QTest::newRow("negative size") << QByteArrayList{"-o", file, "--size", "-500x500"}
                                   << QByteArray("-500 is out of range");
    QTest::newRow("size beyond numbers") << QByteArrayList{"-o", file, "--size", "99999999999x500"}
                                         << QByteArray("99999999999 is out of range");
    QTest::newRow("unknown standard")
        << QByteArrayList{"-o", file, "--standard", "Rec2021"}
        << QByteArray("unknown standard 'Rec2021'; give one of: sRGB, AdobeRGB");
    QTest::newRow("group without a name") << QByteArrayList{"-o", file, "--group", "0.1,0.1;0.2,0.2"}
                                          << QByteArray("is not a group; write NAME:");
    QTest::newRow("group of three points")
        << QByteArrayList{"-o", file, "--group", "a:0.1,0.1;0.2,0.2;0.3,0.3"}
        << QByteArray("has 3 points; write four");
    QTest::newRow("point without y") << QByteArrayList{"-o", file, "--group", "a:0.1,0.1;0.2;0.3,0.3;0.4,0.4"}
                                     << QByteArray("'0.2' is not a chromaticity");
    QTest::newRow("coordinate that is none")
        << QByteArrayList{"-o", file, "--group", "a:0.1,0.1;0.2,b;0.3,0.3;0.4,0.4"}
        << QByteArray("'b' is not a coordinate");
    QTest::newRow("coordinate out of range")
        << QByteArrayList{"-o", file, "--group", "a:0.1,0.1;0.2,1.5;0.3,0.3;0.4,0.4"}
        << QByteArray("chromaticity '0.2,1.5': x and y must be from 0 to 1");
    QTest::newRow("coordinate that is NaN")
        << QByteArrayList{"-o", file, "--group", "a:0.1,0.1;0.2,nan;0.3,0.3;0.4,0.4"}
        << QByteArray("'nan' is not a coordinate");
    QTest::newRow("coverage of one group") << QByteArrayList{"-o", file, "--standard", "sRGB", "--coverage"}
                                           << QByteArray("--coverage needs two groups");
    QTest::newRow("another --format") << QByteArrayList{"-o", file, "--format", "gif"}
                                      << QByteArray("unknown format 'gif'; give one of: png, svg, pdf");
    QTest::newRow("line without a width")
        << QByteArrayList{"-o", file, "--line-width", "0"} << QByteArray("the line width 0 is out of range");
    QTest::newRow("line too wide") << QByteArrayList{"-o", file, "--line-width", "100.1"}
                                   << QByteArray("the line width 100.1 is out of range");
    QTest::newRow("line width that is none") << QByteArrayList{"-o", file, "--line-width", "bold"}
                                             << QByteArray("'bold' is not a line width in pixels");
    QTest::newRow("two backgrounds") << QByteArrayList{"-o", file, "--dark", "--background", "#000000"}
                                     << QByteArray("both given");
    QTest::newRow("colour that is none")
        << QByteArrayList{"-o", file, "--background", "#12345"} << QByteArray("'#12345' is not a colour");
    QTest::newRow("an argument") << QByteArrayList{"-o", file, "sRGB"}
                                 << QByteArray("surplus argument 'sRGB'");
}

void TestChartCommand::BadInputIsOneLineAndStatus2()
{
    QFETCH(QByteArrayList, options);
    QFETCH(QByteArray, text);
    VERIFY_BAD_INPUT(RunTool(QByteArrayList{"chart"} + options), text);
    QVERIFY(!QFile::exists(QFile::decodeName(File("bad.png"))));
}

void TestChartCommand::AFailedRunLeavesTheFileAlone()
{
    QFile file(QFile::decodeName(File("kept.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("kept");
    file.close();
    VERIFY_BAD_INPUT(RunTool({"chart", "-o", File("kept.png"), "--size", "1x1"}), "out of range");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("kept"));
}

QTEST_MAIN(TestChartCommand)
#include "TestChartCommand.moc"
