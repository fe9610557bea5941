#include "instruments/edid/FieldText.h"
#include "instruments/edid/ListedTimings.h"
#include "tests/instruments/edid/EdidDecode.h"

#include <QRegularExpression>
#include <QtTest>

#include <cstdio>

namespace {

/// One line of the decoder's lists, in the decoder's own words.
QString Line(const Edid::SListedTiming& listed)
{
    const Edid::SModeTiming timing = Edid::TimingOf(listed);
    // Of a tie QString::asprintf takes the higher neighbour, the decoder the even one.
    char szLine[128];
    std::snprintf(szLine, sizeof szLine, "%dx%d%s %.6f Hz %d:%d %.3f kHz %.6f MHz", timing.horizontal.nActive,
                  timing.vertical.nActive, timing.bInterlaced ? "i" : "", timing.Rate(), listed.aspect.nWidth,
                  listed.aspect.nHeight, timing.LineRate() / 1e3, double(timing.nClock) / 1e6);
    return QString::fromLatin1(szLine);
}

/// A line of the decoder without its number, alignment and remarks.
QString Bare(const QString& strLine)
{
    static const QRegularExpression s_regMode(
        QStringLiteral("(\\d+x\\d+i?) +([0-9.]+ Hz) +(\\d+:\\d+) +([0-9.]+ kHz) +([0-9.]+ MHz)"));
    return s_regMode.match(strLine).capturedTexts().mid(1).join(QLatin1Char(' '));
}

/// Front porch, sync, back porch and polarity of one direction. A border belongs to the porch on its side.
QString Porches(const Edid::SAxis& axis)
{
    return QString::asprintf("%d %d %d %c", axis.nFront, axis.nSync, axis.nBack, axis.bPositive ? 'P' : 'N');
}

QString DecodedPorches(const QString& strText, QLatin1Char chDirection)
{
    const QRegularExpression regPorches(
        QStringLiteral("%1front +(-?\\d+) %1sync +(\\d+) %1back +(-?\\d+) %1pol (.)(?: %1border (\\d+))?")
            .arg(chDirection));
    const QRegularExpressionMatch match = regPorches.match(strText);
    const int nBorder = match.captured(5).toInt();
    return QStringLiteral("%1 %2 %3 %4")
        .arg(match.captured(1).toInt() + nBorder)
        .arg(match.captured(2))
        .arg(match.captured(3).toInt() + nBorder)
        .arg(match.captured(4));
}

bool IsReduced(const Edid::SListedTiming& listed)
{
    return QByteArray(listed.szFlags).contains('r');
}

QStringList ListedLines(const QString& strOption, const QString& strBegin)
{
    QStringList listLines;
    for (const QString& strLine : EdidDecode({strOption}).split(QLatin1Char('\n')))
        if (strLine.startsWith(strBegin))
            listLines += strLine;
    return listLines;
}

} // namespace

/// The tables are what the installed decoder lists.
class TestListedTimings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryListIsComplete_data();
    void EveryListIsComplete();
    void EveryTimingHasTheDecodersPorches_data();
    void EveryTimingHasTheDecodersPorches();
    void DisplayTimingsHaveTheDecodersCodes();
    void EstablishedTimingsAreTheDecoders();
};

void TestListedTimings::EveryListIsComplete_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("begin");
    QTest::addColumn<int>("list");
    QTest::newRow("video codes") << QStringLiteral("--list-vics") << QStringLiteral("VIC") << 0;
    QTest::newRow("HDMI video codes")
        << QStringLiteral("--list-hdmi-vics") << QStringLiteral("HDMI VIC") << 1;
    QTest::newRow("display timings") << QStringLiteral("--list-dmts") << QStringLiteral("DMT") << 2;
}

void TestListedTimings::EveryListIsComplete()
{
    QFETCH(QString, option);
    QFETCH(QString, begin);
    QFETCH(int, list);
    const Edid::STimingList arrLists[] = {Edid::VideoCodes(), Edid::HdmiVideoCodes(), Edid::DisplayTimings()};
    const QRegularExpression regNumber(begin + QStringLiteral(" +(0x[0-9a-f]+|\\d+):"));
    const QStringList listLines = ListedLines(option, begin);
    QCOMPARE(arrLists[list].nCount, listLines.size());
    for (const QString& strLine : listLines) {
        const int nId = regNumber.match(strLine).captured(1).toInt(nullptr, 0);
        const Edid::SListedTiming* pListed = Edid::FindListed(arrLists[list], nId);
        QVERIFY2(pListed != nullptr, qPrintable(strLine));
        QCOMPARE(Line(*pListed), Bare(strLine));
        QCOMPARE(IsReduced(*pListed), strLine.contains(QLatin1String("(RB")));
    }
}

void TestListedTimings::EveryTimingHasTheDecodersPorches_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("list");
    QTest::newRow("video codes") << QStringLiteral("--vic") << 0;
    QTest::newRow("HDMI video codes") << QStringLiteral("--hdmi-vic") << 1;
    QTest::newRow("display timings") << QStringLiteral("--dmt") << 2;
}

void TestListedTimings::EveryTimingHasTheDecodersPorches()
{
    QFETCH(QString, option);
    QFETCH(int, list);
    const Edid::STimingList arrLists[] = {Edid::VideoCodes(), Edid::HdmiVideoCodes(), Edid::DisplayTimings()};
    for (const Edid::SListedTiming& listed : arrLists[list]) {
        const QString strText = EdidDecode({option, QString::number(listed.nId)});
        const Edid::SModeTiming timing = Edid::TimingOf(listed);
        QCOMPARE(Porches(timing.horizontal), DecodedPorches(strText, QLatin1Char('H')));
        QCOMPARE(Porches(timing.vertical), DecodedPorches(strText, QLatin1Char('V')));
    }
}

void TestListedTimings::DisplayTimingsHaveTheDecodersCodes()
{
    for (const QString& strLine : ListedLines(QStringLiteral("--list-dmts"), QStringLiteral("DMT"))) {
        const int nId = strLine.mid(4, 4).toInt(nullptr, 16);
        const Edid::SListedTiming& listed = *Edid::FindListed(Edid::DisplayTimings(), nId);
        const QString strStandard = QString::asprintf("STD: 0x%02x 0x%02x", listed.wStandard >> 8U,
                                                      unsigned(listed.wStandard) & 0xFFU);
        const QString strCvt = QString::asprintf("CVT: 0x%02x 0x%02x 0x%02x", listed.nCvtCode >> 16U,
                                                 listed.nCvtCode >> 8U & 0xFFU, listed.nCvtCode & 0xFFU);
        QCOMPARE(listed.wStandard != 0, strLine.contains(QLatin1String("STD")));
        QCOMPARE(listed.nCvtCode != 0, strLine.contains(QLatin1String("CVT")));
        QVERIFY(listed.wStandard == 0 || strLine.contains(strStandard));
        QVERIFY(listed.nCvtCode == 0 || strLine.contains(strCvt));
    }
}

void TestListedTimings::EstablishedTimingsAreTheDecoders()
{
    QStringList listExpected;
    for (const QString& strLine :
         ListedLines(QStringLiteral("--list-established-timings"), QStringLiteral("Byte")))
        listExpected += strLine.left(17) + QLatin1Char(' ') + Bare(strLine);
    QStringList listOurs;
    for (const Edid::EstablishedList* pList : {&Edid::EstablishedTimings(), &Edid::EstablishedTimingsIII()})
        for (const Edid::SEstablished& established : *pList)
            listOurs +=
                QString::asprintf("Byte 0x%02x, Bit %d ", unsigned(established.byByte), established.byBit) +
                Line(*established.pTiming);
    for (QString& strLine : listExpected)
        strLine.replace(QLatin1String(":  "), QLatin1String(" "))
            .replace(QLatin1String(": "), QLatin1String(" "));
    QCOMPARE(listOurs, listExpected);
}

QTEST_GUILESS_MAIN(TestListedTimings)
#include "TestListedTimings.moc"
