#include <QtTest>

#include <QProcess>

#include <algorithm>
#include <vector>

namespace {

/// One exported class: a member function that must be there, and whether it is a Qt object, which brings its
/// meta-object and its virtual table.
struct SClass
{
    const char* szName;
    const char* szMember;
    bool bObject;
};

const std::vector<SClass> c_vecClasses = {
    {"CEDIDRaw", "ChangeWH(int, int, float)", false},
    {"CPolygon", "GrahamScan(", false},
    {"CLine", "CLine(", false},
    {"CCalcChromaRatio", "CalcChromaRatio(", false},
    {"CCCT2ColorCoord", "CCTtoColorCoord(", false},
    {"CChromaGamutInterpolation", "CChromaGamutInterpolation(", false},
    {"CChromaticityDlgWnd", "CChromaticityDlgWnd(", true},
    {"CChromaGamutThread", "run()", true},
    {"CEdidSetDlg", "CEdidSetDlg(QWidget*, int, bool)", true},
    {"CSetCanvasDlg", "CSetCanvasDlg(QWidget*)", true},
    {"CSetDepthRateDlg", "CSetDepthRateDlg(QWidget*)", true},
    {"CBackgroundImageDlg", "CBackgroundImageDlg(QWidget*)", true},
    {"CResetCoefDlg", "CResetCoefDlg(bool, QWidget*)", true},
    {"CSetIPOfflineDlg", "CSetIPOfflineDlg(int, int, bool, bool, QWidget*)", true},
    {"CCustomAddProcessorDlg", "CCustomAddProcessorDlg(", true},
    {"CDemoProjectConfigDlg", "CDemoProjectConfigDlg(QWidget*)", true},
};

const char* const c_arrData[] = {"g_pIKelvaroLabel",     "g_pProjectData",      "g_pConstantData",
                                 "g_pConfigData",        "g_pRuntimeData",      "g_pMonitorData",
                                 "g_pSenderLogic",       "g_pReceiverLogic",    "g_pVideoSourceLogic",
                                 "g_pCaliSoftEdgeLogic", "g_pAdvSoftEdgeLogic", "g_pColorBrightLogic",
                                 "g_pMonitorLogic",      "timingData"};

/// One line of nm.
struct SSymbol
{
    char chType; ///< lower case: local
    QString strName;
};

QString L(const char* szText)
{
    return QString::fromLatin1(szText);
}

std::vector<SSymbol> Symbols(const QStringList& listOptions)
{
    QProcess process;
    process.start(L("nm"), listOptions + QStringList{L("-C"), L("--defined-only"), L(SENDER_LIBRARY)});
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("nm failed: %s", process.readAllStandardError().constData());
    std::vector<SSymbol> vecSymbols;
    const QStringList listLines = QString::fromUtf8(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    for (const QString& strLine : listLines) {
        const int nBlank = strLine.indexOf(QLatin1Char(' '));
        if (nBlank > 0)
            vecSymbols.push_back({strLine.at(nBlank + 1).toLatin1(), strLine.mid(nBlank + 3)});
    }
    return vecSymbols;
}

bool Contains(const std::vector<SSymbol>& vecSymbols, const QString& strName)
{
    return std::any_of(vecSymbols.cbegin(), vecSymbols.cend(),
                       [&](const SSymbol& symbol) { return symbol.strName.startsWith(strName); });
}

/// What may come with an exported class.
bool BelongsTo(const SClass& row, const QString& strName)
{
    const QString strClass = L(row.szName);
    return strName.startsWith(strClass + L("::")) || strName == L("vtable for ") + strClass ||
           strName == L("typeinfo for ") + strClass || strName == L("typeinfo name for ") + strClass ||
           strName.startsWith(L("non-virtual thunk to ") + strClass + L("::"));
}

bool IsExpected(const QString& strName)
{
    return strName == L("SenderModuleDialogInit(IKelvaroLabel*)") ||
           std::any_of(std::begin(c_arrData), std::end(c_arrData),
                       [&](const char* szData) { return strName == L(szData); }) ||
           std::any_of(c_vecClasses.cbegin(), c_vecClasses.cend(),
                       [&](const SClass& row) { return BelongsTo(row, strName); });
}

/// What a class's local symbols hold beside members: parts that the compiler splits off, what stands inside a
/// function, the dispatcher that Qt hides in every class, and destructors that nobody declared, which each
/// user compiles for himself.
bool IsNoMember(const QString& strMember)
{
    return strMember.contains(L("[clone")) || strMember.contains(L(")::")) ||
           strMember.contains(L("{lambda")) || strMember.startsWith(L("qt_static_metacall(")) ||
           strMember.startsWith(QLatin1Char('~'));
}

} // namespace

/// What the shared library offers to a program that links it: this, whole, and nothing else.
class TestExportedSurface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheEntryPointIsThere();
    void DataIsThere_data();
    void DataIsThere();
    void ClassIsThere_data();
    void ClassIsThere();
    void NoMemberOfAnExportedClassIsHidden_data();
    void NoMemberOfAnExportedClassIsHidden();
    void NothingElseIsExported();
};

void TestExportedSurface::TheEntryPointIsThere()
{
    QVERIFY(Contains(Symbols({L("-D")}), L("SenderModuleDialogInit(IKelvaroLabel*)")));
}

void TestExportedSurface::DataIsThere_data()
{
    QTest::addColumn<QString>("name");
    for (const char* szName : c_arrData)
        QTest::newRow(szName) << L(szName);
}

void TestExportedSurface::DataIsThere()
{
    QFETCH(QString, name);
    QVERIFY(Contains(Symbols({L("-D")}), name));
}

void TestExportedSurface::ClassIsThere_data()
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < c_vecClasses.size(); ++i)
        QTest::newRow(c_vecClasses[i].szName) << int(i);
}

void TestExportedSurface::ClassIsThere()
{
    QFETCH(int, row);
    const SClass& expected = c_vecClasses[std::size_t(row)];
    const std::vector<SSymbol> vecSymbols = Symbols({L("-D")});
    const QString strPrefix = L(expected.szName) + L("::");
    QVERIFY(Contains(vecSymbols, strPrefix + L(expected.szMember)));
    if (!expected.bObject)
        return;
    QVERIFY(Contains(vecSymbols, strPrefix + L("staticMetaObject")));
    QVERIFY(Contains(vecSymbols, strPrefix + L("qt_metacall(")));
    QVERIFY(Contains(vecSymbols, L("vtable for ") + L(expected.szName)));
    QVERIFY(Contains(vecSymbols, L("typeinfo for ") + L(expected.szName)));
}

void TestExportedSurface::NoMemberOfAnExportedClassIsHidden_data()
{
    ClassIsThere_data();
}

void TestExportedSurface::NoMemberOfAnExportedClassIsHidden()
{
    QFETCH(int, row);
    const QString strPrefix = L(c_vecClasses[std::size_t(row)].szName) + L("::");
    QStringList listHidden;
    for (const SSymbol& symbol : Symbols({})) {
        const bool bLocal = symbol.chType == 't' || symbol.chType == 'd' || symbol.chType == 'b';
        if (bLocal && symbol.strName.startsWith(strPrefix) &&
            !IsNoMember(symbol.strName.mid(strPrefix.size())))
            listHidden.append(symbol.strName);
    }
    QVERIFY2(listHidden.isEmpty(), qPrintable(listHidden.join(QLatin1Char('\n'))));
}

void TestExportedSurface::NothingElseIsExported()
{
    QStringList listUnexpected;
    for (const SSymbol& symbol : Symbols({L("-D")})) {
        if (!IsExpected(symbol.strName))
            listUnexpected.append(symbol.strName);
    }
    QVERIFY2(listUnexpected.isEmpty(), qPrintable(listUnexpected.join(QLatin1Char('\n'))));
}

QTEST_APPLESS_MAIN(TestExportedSurface)
#include "TestExportedSurface.moc"
