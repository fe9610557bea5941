#include "instruments/colour/MeasurementCsv.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <QTextCodec>

#include <memory>

namespace {

QString U(const char* szText)
{
    return QString::fromUtf8(szText);
}

/// Two modules in any layout.
void CheckTheTwo(const SMeasurements& measurements, double dTolerance)
{
    QVERIFY2(!measurements.error, qPrintable(measurements.error ? measurements.error->Text() : QString()));
    QCOMPARE(int(measurements.modules.size()), 2);
    const SModule& first = measurements.modules[0];
    COMPARE_NEAR(first.primaries.red.xy.dX, 0.69, dTolerance);
    COMPARE_NEAR(first.primaries.red.xy.dY, 0.305, dTolerance);
    COMPARE_NEAR(first.primaries.red.dLuminance, 240.0, dTolerance);
    COMPARE_NEAR(first.primaries.green.xy.dY, 0.72, dTolerance);
    COMPARE_NEAR(first.primaries.blue.dLuminance, 75.5, dTolerance);
    COMPARE_NEAR(measurements.modules[1].primaries.green.dLuminance, 801.0, dTolerance);
}

Modules TwoModules()
{
    return {
        {QStringLiteral("A1"), {{{0.69, 0.305}, 240.0}, {{0.19, 0.72}, 800.0}, {{0.14, 0.055}, 75.5}}, {}},
        {QStringLiteral("A2"), {{{0.68, 0.31}, 241.0}, {{0.2, 0.71}, 801.0}, {{0.13, 0.06}, 76.0}}, {}}};
}

bool AreEqual(const SReading& a, const SReading& b)
{
    return a.xy.dX == b.xy.dX && a.xy.dY == b.xy.dY && a.dLuminance == b.dLuminance;
}

} // namespace

class TestMeasurementCsv : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryWayOfWritingIsRead_data();
    void EveryWayOfWritingIsRead();
    void NamesAreRead_data();
    void NamesAreRead();
    void AMeasuredWhiteIsKept();
    void EncodingsAreRecognised_data();
    void EncodingsAreRecognised();
    void TheFormatIsRecognised();
    void ErrorsNameLineAndColumn_data();
    void ErrorsNameLineAndColumn();
    void WhatIsWrittenIsReadBack_data();
    void WhatIsWrittenIsReadBack();
    void AnyReadingsComeBackToTheLastDigit();
    void TruncatedTextNeverFails();
};

void TestMeasurementCsv::EveryWayOfWritingIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("comma, one line a module")
        << U("module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\nA1,0.69,0.305,240,0.19,0.72,800,0.14,0.055,75.5\n"
             "A2,0.68,0.31,241,0.2,0.71,801,0.13,0.06,76\n");
    QTest::newRow("semicolon and decimal comma")
        << U("Module;R x;R y;R Lv;G x;G y;G Lv;B x;B y;B Lv\r\n"
             "A1;0,69;0,305;240;0,19;0,72;800;0,14;0,055;75,5\r\nA2;0,68;0,31;241;0,2;0,71;801;0,13;0,06;76");
    QTest::newRow("tab, with units and other columns")
        << U("row\tcabinet\tred_x\tred_y\tred_L (cd/m²)\tgreen_x\tgreen_y\tgreen_L (cd/m²)\tblue_x\tblue_y\t"
             "blue_L (cd/m²)\ttaken by\n1\tA1\t0.69\t0.305\t240\t0.19\t0.72\t800\t0.14\t0.055\t75.5\tLi\n"
             "1\tA2\t0.68\t0.31\t241\t0.2\t0.71\t801\t0.13\t0.06\t76\tLi\n");
    QTest::newRow("Chinese heading") << U("箱体编号,箱体,红x,红y,红亮度,绿x,绿y,绿亮度,蓝x,蓝y,蓝亮度\n"
                                          "1,A1,0.69,0.305,240,0.19,0.72,800,0.14,0.055,75.5\n"
                                          "2,A2,0.68,0.31,241,0.2,0.71,801,0.13,0.06,76\n");
    QTest::newRow("one line a primary")
        << U("module,primary,x,y,Y\nA1,R,0.69,0.305,240\nA1,G,0.19,0.72,800\nA1,B,0.14,0.055,75.5\n"
             "A2,red,0.68,0.31,241\nA2,green,0.2,0.71,801\nA2,blue,0.13,0.06,76\n");
    QTest::newRow("one line a primary, Chinese, the module named once, capital x and y")
        << U("模组;颜色;X;Y;亮度 (cd/m2)\nA1;红;0,69;0,305;240\n;绿;0,19;0,72;800\n;蓝;0,14;0,055;75,5\n"
             "A2;红色;0,68;0,31;241\n;绿色;0,2;0,71;801\n;蓝色;0,13;0,06;76\n");
    QTest::newRow("one line a primary without names")
        << U("x,y,Y,colour\n0.69,0.305,240,r\n0.19,0.72,800,g\n0.14,0.055,75.5,b\n"
             "0.68,0.31,241,r\n0.2,0.71,801,g\n0.13,0.06,76,b\n");
    QTest::newRow("XYZ, columns named from behind")
        << U("name,X_R,Y_R,Z_R,X_G,Y_G,Z_G,X_B,Y_B,Z_B\n"
             "A1,542.9508197,240,3.9344262,211.1111111,800,100,192.1818182,75.5,1105.0454545\n"
             "A2,528.6451613,241,7.7741935,225.6338028,801,101.5352113,164.6666667,76,1026\n");
    QTest::newRow("quotes, remarks, empty lines, spaces and a separator mark")
        << U("sep=,\n\n# taken at night\n\"module\",\"Rx\", Ry ,RY,Gx,Gy,GY,Bx,By,BY\n,,,,,,,,,\n"
             "\"A1\",\"0.69\",0.305, 240 ,0.19,0.72,800,0.14,0.055,75.5\n\n"
             "\"A\"\"2\",0.68,0.31,241,0.2,0.71,801,0.13,0.06,76");
}

void TestMeasurementCsv::EveryWayOfWritingIsRead()
{
    QFETCH(QString, text);
    CheckTheTwo(MeasurementCsv::Read(text), 1e-7);
}

void TestMeasurementCsv::NamesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    const QString strNumbers = U("0.69,0.305,240,0.19,0.72,800,0.14,0.055,75.5\n");
    const QString strHeading = U("Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n");
    QTest::newRow("numbered") << strHeading + strNumbers << U("1");
    QTest::newRow("Chinese") << U("箱体,") + strHeading + U("上排 3,") + strNumbers << U("上排 3");
    QTest::newRow("with a comma") << U("id,") + strHeading + U("\"3, left\",") + strNumbers << U("3, left");
    QTest::newRow("with quotes") << U("id,") + strHeading + U("\"the \"\"old\"\" one\",") + strNumbers
                                 << U("the \"old\" one");
    QTest::newRow("over two lines") << U("id,") + strHeading + U("\"3\nleft\",") + strNumbers << U("3\nleft");
}

void TestMeasurementCsv::NamesAreRead()
{
    QFETCH(QString, text);
    const SMeasurements measurements = MeasurementCsv::Read(text);
    QVERIFY(!measurements.error);
    QTEST(measurements.modules.front().strName, "name");
}

void TestMeasurementCsv::AMeasuredWhiteIsKept()
{
    const SMeasurements measurements =
        MeasurementCsv::Read(U("module,primary,x,y,Y\nA,R,0.69,0.305,240\nA,G,0.19,0.72,800\n"
                               "A,B,0.14,0.055,75\nA,W,0.3,0.32,1090\nB,R,0.69,0.305,240\nB,G,0.19,0.72,800\n"
                               "B,B,0.14,0.055,75\n"));
    QVERIFY(!measurements.error);
    QCOMPARE(measurements.modules[0].white->dLuminance, 1090.0);
    QVERIFY(!measurements.modules[1].white);
}

void TestMeasurementCsv::EncodingsAreRecognised_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<bool>("mark");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << false;
    QTest::newRow("UTF-8 with a mark") << QByteArray("UTF-8") << true;
    QTest::newRow("UTF-16, a spreadsheet's Unicode text") << QByteArray("UTF-16LE") << true;
    QTest::newRow("UTF-16, the other way round") << QByteArray("UTF-16BE") << true;
    QTest::newRow("GB 18030, a Chinese spreadsheet's CSV") << QByteArray("GB18030") << false;
}

void TestMeasurementCsv::EncodingsAreRecognised()
{
    QFETCH(QByteArray, codec);
    QFETCH(bool, mark);
    const QString strText = U("箱体,红x,红y,红亮度,绿x,绿y,绿亮度,蓝x,蓝y,蓝亮度\n"
                              "上排,0.69,0.305,240,0.19,0.72,800,0.14,0.055,75.5\n");
    const QString strMarked = mark ? QChar(QChar::ByteOrderMark) + strText : strText;
    const auto pEncoder =
        std::unique_ptr<QTextEncoder>(QTextCodec::codecForName(codec)->makeEncoder(QTextCodec::IgnoreHeader));
    const SMeasurements measurements = MeasurementCsv::Read(pEncoder->fromUnicode(strMarked));
    QVERIFY(!measurements.error);
    QCOMPARE(measurements.modules.front().strName, U("上排"));
    QVERIFY(measurements.format.bChinese);
}

void TestMeasurementCsv::TheFormatIsRecognised()
{
    const SMeasurementFormat format =
        MeasurementCsv::Read(U("模组\t颜色\tX\tY\tZ\n1\t红\t542,9\t240\t3,9\n1\t绿\t211\t800\t100\n"
                               "1\t蓝\t192\t75\t1105\n"))
            .format;
    QCOMPARE(format.chSeparator, QChar(QLatin1Char('\t')));
    QVERIFY(format.bDecimalComma && format.bChinese && format.bTristimulus && format.bLineAPrimary);
}

void TestMeasurementCsv::ErrorsNameLineAndColumn_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    const QByteArray heading = "id,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY\n";
    const QByteArray good = "1,0.69,0.305,240,0.19,0.72,800,0.14,0.055,75\n";
    QTest::newRow("nothing") << QByteArray() << U("line 1, column 1: there is nothing");
    QTest::newRow("no heading") << good << U("line 1, column 1: '1' begins no heading");
    QTest::newRow("heading alone") << heading << U("line 2, column 1: nothing follows the heading");
    QTest::newRow("missing column") << QByteArray("id,Rx,Ry,RY,Gx,Gy,Bx,By,BY\n")
                                    << U("line 1, column 10: the heading has no column GY");
    QTest::newRow("missing Z") << QByteArray("id,RX,RY,RZ,GX,GY,GZ,BX,BY\n")
                               << U("line 1, column 10: the heading has no column BZ");
    QTest::newRow("missing luminance")
        << QByteArray("id,primary,x,y\n") << U("line 1, column 5: the heading has no column Y");
    QTest::newRow("column twice") << QByteArray("id,Rx,Ry,red x,RY\n")
                                  << U("line 1, column 4: the heading has column 'red x' twice");
    QTest::newRow("a word for a number") << heading + good + "2,0.69,0.3o5,240,0.19,0.72,800,0.14,0.055,75\n"
                                         << U("line 3, column 3: '0.3o5' is not a number");
    QTest::newRow("too few fields") << heading + "2,0.69,0.305,240,0.19\n"
                                    << U("line 2, column 6: '' is not a number");
    QTest::newRow("NaN") << heading + "2,0.69,nan,240,0.19,0.72,800,0.14,0.055,75\n"
                         << U("line 2, column 3: 'nan' is not a number");
    QTest::newRow("decimal comma beside commas")
        << heading + "2,\"0,69\",0.305,240,0.19,0.72,800,0.14,0.055,75\n"
        << U("line 2, column 2: '0,69' is not a number");
    QTest::newRow("zero luminance")
        << heading + "2,0.69,0.305,240,0.19,0.72,0,0.14,0.055,75\n"
        << U("line 2, column 7: '0' is not possible: a luminance must be above 0");
    QTest::newRow("y of zero") << heading + "2,0.69,0.305,240,0.19,0,800,0.14,0.055,75\n"
                               << U("line 2, column 6: '0' is not possible: x and y must be above 0");
    QTest::newRow("per cent") << heading + "2,69,30.5,240,0.19,0.72,800,0.14,0.055,75\n"
                              << U("line 2, column 2: '69' is not possible");
    QTest::newRow("one line")
        << heading + "2,0.2,0.2,240,0.3,0.3,800,0.4,0.4,75\n"
        << U("line 2, column 1: module '2' is not possible: the three primaries lie on");
    QTest::newRow("module twice") << heading + good + good
                                  << U("line 3, column 1: module '1' is there twice");
    QTest::newRow("unknown primary") << QByteArray("id,primary,x,y,Y\n1,cyan,0.2,0.3,4\n")
                                     << U("line 2, column 2: 'cyan' is no primary");
    QTest::newRow("primary twice") << QByteArray("id,primary,x,y,Y\n1,R,0.6,0.3,4\n1,red,0.6,0.3,4\n")
                                   << U("line 3, column 2: module '1' has this primary twice");
    QTest::newRow("primary missing") << QByteArray("id,primary,x,y,Y\n1,R,0.6,0.3,4\n1,G,0.2,0.7,4\n")
                                     << U("line 2, column 1: module '1' lacks a primary");
    QTest::newRow("open quote") << heading + good + "\"2,0.69\n" << U("line 3, column 1: the quoted field");
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16) << U("the file is no text");
}

void TestMeasurementCsv::ErrorsNameLineAndColumn()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, error);
    const SMeasurements measurements = MeasurementCsv::Read(content);
    QVERIFY(measurements.error.has_value());
    QVERIFY2(measurements.error->Text().startsWith(error), qPrintable(measurements.error->Text()));
    QVERIFY(measurements.modules.empty());
}

void TestMeasurementCsv::WhatIsWrittenIsReadBack_data()
{
    QTest::addColumn<QString>("separator");
    QTest::addColumn<int>("flags");
    for (const char* szSeparator : {",", ";", "\t"})
        for (int nFlags = 0; nFlags < 16; ++nFlags)
            QTest::addRow("separator %d, flags %d", szSeparator[0], nFlags) << U(szSeparator) << nFlags;
}

void TestMeasurementCsv::WhatIsWrittenIsReadBack()
{
    QFETCH(QString, separator);
    QFETCH(int, flags);
    const SMeasurementFormat format = {separator.at(0), (flags & 1) != 0, (flags & 2) != 0, (flags & 4) != 0,
                                       (flags & 8) != 0};
    const SMeasurements measurements = MeasurementCsv::Read(MeasurementCsv::Write(TwoModules(), format));
    CheckTheTwo(measurements, 1e-12);
    QCOMPARE(measurements.modules[1].strName, U("A2"));
    QCOMPARE(measurements.format.chSeparator, format.chSeparator);
    QCOMPARE(measurements.format.bChinese, format.bChinese);
    QCOMPARE(measurements.format.bTristimulus, format.bTristimulus);
    QCOMPARE(measurements.format.bLineAPrimary, format.bLineAPrimary);
}

void TestMeasurementCsv::AnyReadingsComeBackToTheLastDigit()
{
    QVERIFY(PropertyHolds("every digit is written", [] {
        const Modules modules = {{QStringLiteral("m"), AnyPrimaries(), SReading{{0.31, 0.33}, AnyPart()}}};
        const SMeasurements measurements = MeasurementCsv::Read(MeasurementCsv::Write(modules, {}));
        RC_ASSERT(!measurements.error);
        for (std::size_t i = 0; i < c_nWallColours; ++i)
            RC_ASSERT(AreEqual(ModuleWall::ReadingOf(measurements.modules[0], enWallColour(i)),
                               ModuleWall::ReadingOf(modules[0], enWallColour(i))));
    }));
}

void TestMeasurementCsv::TruncatedTextNeverFails()
{
    const QString strText = MeasurementCsv::Write(TwoModules(), {QLatin1Char(';'), true, true, false, true});
    for (int i = 0; i < strText.size(); ++i) {
        const SMeasurements measurements = MeasurementCsv::Read(strText.left(i) + QLatin1Char('"'));
        QVERIFY(measurements.error || !measurements.modules.empty());
    }
}

QTEST_APPLESS_MAIN(TestMeasurementCsv)
#include "TestMeasurementCsv.moc"
