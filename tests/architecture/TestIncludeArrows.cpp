#include <QtTest>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {

/// A folder (or a set of files that stands for one), and what it may include of the project.
struct SLayer
{
    QString strName;
    QStringList listMembers; ///< beginnings of the paths that belong to it
    QStringList listAllowed; ///< beginnings of the include paths that it may name
    bool bPure;              ///< calculation: of Qt, only values
};

/// What every folder of the library may use: marks, checks and number conversions without any behaviour.
const QStringList& Base()
{
    static const QStringList s_listBase = {QStringLiteral("SenderModuleDialog/SenderModuleDialogGlobal.h"),
                                           QStringLiteral("SenderModuleDialog/Fault.h"),
                                           QStringLiteral("SenderModuleDialog/Saturate.h"),
                                           QStringLiteral("SenderModuleDialog/Constants.h")};
    return s_listBase;
}

QString L(const char* szText)
{
    return QString::fromLatin1(szText);
}

/// The first layer that a path belongs to counts.
const std::vector<SLayer>& Layers()
{
    static const QStringList s_listFrame = {L("SenderModuleDialog/DialogFrame.h"),
                                            L("SenderModuleDialog/HostAccess.h"),
                                            L("SenderModuleDialog/SenderModuleDialogInit.h"), L("host/")};
    static const QStringList s_listChartValues = {L("SenderModuleDialog/chart/ChartGroupPoints.h"),
                                                  L("SenderModuleDialog/chart/ChartMapping.h"),
                                                  L("SenderModuleDialog/chart/ChartTriangle.h"),
                                                  L("SenderModuleDialog/chart/ChromaGroupInfo.h"),
                                                  L("SenderModuleDialog/chart/ChromaPalette.h"),
                                                  L("SenderModuleDialog/colour/"),
                                                  L("SenderModuleDialog/geometry/"),
                                                  L("host/CommonClass/")};
    static const std::vector<SLayer> s_vecLayers = {
        {L("geometry"),
         {L("SenderModuleDialog/geometry/")},
         Base() + QStringList{L("SenderModuleDialog/geometry/"), L("host/CommonClass/")},
         true},
        {L("colour"),
         {L("SenderModuleDialog/colour/")},
         Base() + QStringList{L("SenderModuleDialog/colour/"), L("SenderModuleDialog/geometry/"),
                              L("host/CommonClass/")},
         true},
        // The rooms of the chart know neither the widget nor each other.
        {L("chart/bitmap"),
         {L("SenderModuleDialog/chart/bitmap/")},
         Base() + s_listChartValues + QStringList{L("SenderModuleDialog/chart/bitmap/")},
         false},
        {L("chart/solve"),
         {L("SenderModuleDialog/chart/solve/")},
         Base() + s_listChartValues + QStringList{L("SenderModuleDialog/chart/solve/")},
         true},
        {L("chart/paint"),
         {L("SenderModuleDialog/chart/paint/")},
         Base() + s_listChartValues +
             QStringList{L("SenderModuleDialog/chart/paint/"), L("host/OrviControl/")},
         false},
        // What the rooms share: plain values.
        {L("chart values"),
         {L("SenderModuleDialog/chart/ChartGroupPoints.h"), L("SenderModuleDialog/chart/ChartMapping.h"),
          L("SenderModuleDialog/chart/ChartTriangle.h"), L("SenderModuleDialog/chart/ChromaGroupInfo.h"),
          L("SenderModuleDialog/chart/ChromaPalette.h")},
         Base() + s_listChartValues,
         false},
        // The widget takes the host's font and text context; it reaches no handle.
        {L("chart"),
         {L("SenderModuleDialog/chart/")},
         Base() + QStringList{L("SenderModuleDialog/chart/"), L("SenderModuleDialog/colour/"),
                              L("SenderModuleDialog/geometry/"), L("host/CommonClass/"),
                              L("host/OrviControl/")},
         false},
        {L("EDID block"),
         {L("SenderModuleDialog/edid/CvtTiming."), L("SenderModuleDialog/edid/EDIDRaw."),
          L("SenderModuleDialog/edid/EdidBlock."), L("SenderModuleDialog/edid/EdidLayout."),
          L("SenderModuleDialog/edid/MonitorName."), L("SenderModuleDialog/edid/TimingTable."),
          L("SenderModuleDialog/edid/VideoTiming.")},
         Base() +
             QStringList{L("SenderModuleDialog/edid/CvtTiming.h"), L("SenderModuleDialog/edid/EDIDRaw.h"),
                         L("SenderModuleDialog/edid/EdidBlock.h"), L("SenderModuleDialog/edid/EdidLayout.h"),
                         L("SenderModuleDialog/edid/MonitorName.h"), L("host/CommonClass/"),
                         L("SenderModuleDialog/edid/TimingTable.h"),
                         L("SenderModuleDialog/edid/VideoTiming.h")},
         true},
        // Beyond the library: above the calculation, below the applications. The texts of what is wrong with
        // an EDID are looked up in the program's language.
        {L("instruments"),
         {L("instruments/")},
         Base() +
             QStringList{
                 L("instruments/"), L("SenderModuleDialog/geometry/"), L("SenderModuleDialog/colour/"),
                 L("SenderModuleDialog/edid/CvtTiming.h"), L("SenderModuleDialog/edid/EDIDRaw.h"),
                 L("SenderModuleDialog/edid/EdidBlock.h"), L("SenderModuleDialog/edid/EdidLayout.h"),
                 L("SenderModuleDialog/edid/MonitorName.h"), L("SenderModuleDialog/edid/TimingTable.h"),
                 L("SenderModuleDialog/edid/VideoTiming.h"), L("host/CommonClass/"), L("QCoreApplication")},
         true},
        {L("EDID dialog"),
         {L("SenderModuleDialog/edid/")},
         Base() + s_listFrame + QStringList{L("SenderModuleDialog/edid/")},
         false},
        {L("output"),
         {L("SenderModuleDialog/output/")},
         Base() + s_listFrame + QStringList{L("SenderModuleDialog/output/")},
         false},
        {L("addressing"),
         {L("SenderModuleDialog/addressing/")},
         Base() + s_listFrame + QStringList{L("SenderModuleDialog/addressing/")},
         false},
        {L("module frame"), {L("SenderModuleDialog/")}, Base() + s_listFrame, false},
        {L("host"), {L("host/")}, {L("host/")}, false},
        {L("simulator"), {L("simulator/")}, {L("host/"), L("simulator/")}, false},
        {L("tools"),
         {L("tools/")},
         {L("SenderModuleDialog/"), L("host/"), L("instruments/"), L("reports/"), L("simulator/"),
          L("tools/")},
         false},
        // What the tool and the workbench paint alike.
        {L("reports"),
         {L("reports/")},
         Base() + QStringList{L("reports/"), L("instruments/"), L("SenderModuleDialog/chart/"),
                              L("SenderModuleDialog/colour/"), L("SenderModuleDialog/geometry/"),
                              L("host/CommonClass/")},
         false},
        {L("workbench"),
         {L("workbench/")},
         {L("reports/"), L("SenderModuleDialog/"), L("host/"), L("instruments/"), L("simulator/"),
          L("workbench/")},
         false},
    };
    return s_vecLayers;
}

/// Of Qt, what calculation may use: values, containers and JSON of QtCore, and value types of QtGui.
const QStringList& QtValues()
{
    static const QStringList s_listValues = {L("QByteArray"),
                                             L("QHash"),
                                             L("QJsonArray"),
                                             L("QJsonDocument"),
                                             L("QJsonObject"),
                                             L("QJsonValue"),
                                             L("QLatin1Char"),
                                             L("QLatin1String"),
                                             L("QLine"),
                                             L("QLineF"),
                                             L("QList"),
                                             L("QLocale"),
                                             L("QMap"),
                                             L("QPair"),
                                             L("QPoint"),
                                             L("QPointF"),
                                             L("QPolygonF"),
                                             L("QRectF"),
                                             L("QRegularExpression"),
                                             L("QSet"),
                                             L("QSize"),
                                             L("QSizeF"),
                                             L("QString"),
                                             L("QStringList"),
                                             L("QStringView"),
                                             L("QTextCodec"),
                                             L("QVariant"),
                                             L("QVector"),
                                             L("QtAlgorithms"),
                                             L("QtEndian"),
                                             L("QtGlobal"),
                                             L("QtMath"),
                                             L("QtNumeric")};
    return s_listValues;
}

bool StartsWithAny(const QString& strPath, const QStringList& listBeginnings)
{
    return std::any_of(listBeginnings.cbegin(), listBeginnings.cend(),
                       [&](const QString& strBeginning) { return strPath.startsWith(strBeginning); });
}

const SLayer* LayerOf(const QString& strPath)
{
    const std::vector<SLayer>& vecLayers = Layers();
    const auto itLayer = std::find_if(vecLayers.cbegin(), vecLayers.cend(), [&](const SLayer& layer) {
        return StartsWithAny(strPath, layer.listMembers);
    });
    return itLayer == vecLayers.cend() ? nullptr : &*itLayer;
}

bool IsAllowed(const SLayer& layer, const QString& strInclude, bool bSystem)
{
    if (!bSystem)
        return StartsWithAny(strInclude, layer.listAllowed);
    return !layer.bPure || !strInclude.startsWith(QLatin1Char('Q')) || QtValues().contains(strInclude) ||
           layer.listAllowed.contains(strInclude);
}

/// What is wrong with a file, empty when nothing is.
QString Complaint(const QString& strPath, const QString& strText)
{
    static const QRegularExpression s_regInclude(L("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"),
                                                 QRegularExpression::MultilineOption);
    const SLayer* pLayer = LayerOf(strPath);
    if (pLayer == nullptr)
        return L("%1 belongs to no layer").arg(strPath);
    QRegularExpressionMatchIterator itMatch = s_regInclude.globalMatch(strText);
    while (itMatch.hasNext()) {
        const QRegularExpressionMatch match = itMatch.next();
        const QString strInclude = match.captured(2);
        // AUTOMOC writes this file, and the source includes it.
        if (strInclude.endsWith(L(".moc")) || IsAllowed(*pLayer, strInclude, match.captured(1) == L("<")))
            continue;
        return L("%1: %2 may not include %3").arg(strPath, pLayer->strName, strInclude);
    }
    return QString();
}

QStringList SourceFiles()
{
    const QDir dirRoot(L(SENDER_SOURCE_DIR));
    QStringList listFiles;
    for (const char* szFolder :
         {"SenderModuleDialog", "host", "instruments", "reports", "simulator", "workbench", "tools"}) {
        QDirIterator itFile(dirRoot.filePath(L(szFolder)), {L("*.h"), L("*.cpp")}, QDir::Files,
                            QDirIterator::Subdirectories);
        while (itFile.hasNext())
            listFiles.append(dirRoot.relativeFilePath(itFile.next()));
    }
    return listFiles;
}

} // namespace

/// Calls go one way: the include lines of each folder name nothing that lies above it or beside it.
class TestIncludeArrows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFileNamesOnlyWhatItsLayerMayKnow();
    void AWrongArrowIsNoticed_data();
    void AWrongArrowIsNoticed();
};

void TestIncludeArrows::EveryFileNamesOnlyWhatItsLayerMayKnow()
{
    const QStringList listFiles = SourceFiles();
    QVERIFY(listFiles.size() > 50);
    QStringList listComplaints;
    for (const QString& strPath : listFiles) {
        QFile file(QDir(L(SENDER_SOURCE_DIR)).filePath(strPath));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(strPath));
        const QString strComplaint = Complaint(strPath, QString::fromUtf8(file.readAll()));
        if (!strComplaint.isEmpty())
            listComplaints.append(strComplaint);
    }
    QVERIFY2(listComplaints.isEmpty(), qPrintable(listComplaints.join(QLatin1Char('\n'))));
}

void TestIncludeArrows::AWrongArrowIsNoticed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("include");
    QTest::newRow("geometry knows no other folder") << "SenderModuleDialog/geometry/Line.cpp"
                                                    << "\"SenderModuleDialog/colour/CCT2ColorCoord.h\"";
    QTest::newRow("colour knows no chart") << "SenderModuleDialog/colour/CCT2ColorCoord.cpp"
                                           << "\"SenderModuleDialog/chart/ChromaGroupInfo.h\"";
    QTest::newRow("calculation knows no widget") << "SenderModuleDialog/geometry/Line.h"
                                                 << "<QWidget>";
    QTest::newRow("the block knows no widget") << "SenderModuleDialog/edid/EDIDRaw.cpp"
                                               << "<QDialog>";
    QTest::newRow("the block knows no host") << "SenderModuleDialog/edid/EDIDRaw.cpp"
                                             << "\"host/TevraData/ProjectData.h\"";
    QTest::newRow("the block knows no dialog") << "SenderModuleDialog/edid/EDIDRaw.cpp"
                                               << "\"SenderModuleDialog/edid/EdidSetDlg.h\"";
    QTest::newRow("a room of the chart does not know the widget")
        << "SenderModuleDialog/chart/bitmap/ChromaBitmapStore.cpp"
        << "\"SenderModuleDialog/chart/CChromaticityDlgWnd.h\"";
    QTest::newRow("a room of the chart does not know another")
        << "SenderModuleDialog/chart/solve/ChartHitTest.cpp"
        << "\"SenderModuleDialog/chart/paint/ChartGroupOverlay.h\"";
    QTest::newRow("the values of the chart know no room")
        << "SenderModuleDialog/chart/ChartGroupPoints.h"
        << "\"SenderModuleDialog/chart/solve/ChartGeometry.h\"";
    QTest::newRow("the chart knows no handle") << "SenderModuleDialog/chart/CChromaticityDlgWnd.cpp"
                                               << "\"SenderModuleDialog/HostAccess.h\"";
    QTest::newRow("no dialog knows another") << "SenderModuleDialog/output/SetCanvasDlg.cpp"
                                             << "\"SenderModuleDialog/edid/EdidSetDlg.h\"";
    QTest::newRow("no dialog knows the chart") << "SenderModuleDialog/edid/EdidSetDlg.cpp"
                                               << "\"SenderModuleDialog/chart/CChromaticityDlgWnd.h\"";
    QTest::newRow("the frame knows no dialog") << "SenderModuleDialog/DialogFrame.cpp"
                                               << "\"SenderModuleDialog/edid/EdidSetDlg.h\"";
    QTest::newRow("the library knows no instrument") << "SenderModuleDialog/edid/EDIDRaw.cpp"
                                                     << "\"instruments/edid/Checksum.h\"";
    QTest::newRow("an instrument knows no widget") << "instruments/edid/Checksum.cpp"
                                                   << "<QWidget>";
    QTest::newRow("a report knows no program") << "reports/WallPainter.cpp"
                                               << "\"workbench/colour/MeasuredWall.h\"";
    QTest::newRow("an instrument knows no dialog") << "instruments/edid/Checksum.cpp"
                                                   << "\"SenderModuleDialog/edid/EdidLimit.h\"";
    QTest::newRow("the library knows no simulator") << "SenderModuleDialog/edid/EdidSetDlg.cpp"
                                                    << "\"simulator/OrviControl/Theme.h\"";
    QTest::newRow("the simulator knows no library") << "simulator/HardwareSupport/SenderLogic.cpp"
                                                    << "\"SenderModuleDialog/edid/EDIDRaw.h\"";
    QTest::newRow("declarations know nothing but each other") << "host/TevraData/Sender.h"
                                                              << "\"simulator/OrviControl/Theme.h\"";
    QTest::newRow("a folder without a layer") << "elsewhere/File.cpp"
                                              << "<vector>";
}

void TestIncludeArrows::AWrongArrowIsNoticed()
{
    QFETCH(QString, path);
    QFETCH(QString, include);
    QVERIFY(!Complaint(path, L("#include %1\n").arg(include)).isEmpty());
}

QTEST_APPLESS_MAIN(TestIncludeArrows)
#include "TestIncludeArrows.moc"
