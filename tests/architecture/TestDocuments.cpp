#include <QtTest>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

QString L(const char* szText)
{
    return QString::fromLatin1(szText);
}

const QDir& Root()
{
    static const QDir s_dirRoot(L(SENDER_SOURCE_DIR));
    return s_dirRoot;
}

QString Text(const QString& strPath)
{
    QFile file(Root().filePath(strPath));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    return QString::fromUtf8(file.readAll());
}

/// The documents that describe the tree as it is.
const char* const c_arrDocuments[] = {"README.md", "ARCHITECTURE.md", "CONTRIBUTING.md"};

/// Folders of the root that are made by builds and runs, not part of the tree.
const char* const c_arrProduced[] = {"build", "out", ".git"};

/// Beginnings of paths that the documents name and no clone has.
const char* const c_arrNotInTheTree[] = {
    "build/",                    // what a build makes
    "out/",                      // what ./run leaves without a display
    "share/SenderModuleDialog/", // below the prefix of an installation
};

/// Suffixes by which a word counts as a file name.
const char* const c_arrSuffixes[] = {".h",  ".cpp", ".md",  ".txt", ".cmake",
                                     ".sh", ".py",  ".png", ".map", ".json"};

struct STree
{
    QStringList listPaths;  ///< files and folders, relative to the root; folders end with a slash
    QSet<QString> setWords; ///< of the sources and scripts
};

bool IsProduced(const QString& strPath)
{
    return std::any_of(std::begin(c_arrProduced), std::end(c_arrProduced), [&](const char* szFolder) {
        return strPath.section(QLatin1Char('/'), 0, 0) == L(szFolder);
    });
}

void AddWords(const QString& strText, QSet<QString>& setWords)
{
    static const QRegularExpression s_regWord(L("[A-Za-z_]\\w*"));
    QRegularExpressionMatchIterator itWord = s_regWord.globalMatch(strText);
    while (itWord.hasNext())
        setWords.insert(itWord.next().captured());
}

STree ReadTree()
{
    STree tree;
    QDirIterator itEntry(Root().path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (itEntry.hasNext()) {
        const QString strPath = Root().relativeFilePath(itEntry.next());
        if (IsProduced(strPath))
            continue;
        const bool bFolder = itEntry.fileInfo().isDir();
        tree.listPaths.append(bFolder ? strPath + QLatin1Char('/') : strPath);
        const QString strSuffix = itEntry.fileInfo().suffix();
        if (!bFolder && strSuffix != L("md") && strSuffix != L("png"))
            AddWords(Text(strPath), tree.setWords);
    }
    return tree;
}

const STree& Tree()
{
    static const STree s_tree = ReadTree();
    return s_tree;
}

/// A path of a document names its end: `geometry/` is any folder of that name, `chart/PlainChart` a file
/// pair, `ChromaBitmapRow*` several.
bool Exists(const QString& strNamed)
{
    QString strPattern = QRegularExpression::escape(strNamed);
    strPattern.replace(L("\\*"), L("[^/]*"));
    if (!strNamed.endsWith(QLatin1Char('/')))
        strPattern += L("(/|\\.[a-z]+)?");
    const QRegularExpression regEnd(L("(^|/)%1$").arg(strPattern));
    return std::any_of(Tree().listPaths.cbegin(), Tree().listPaths.cend(),
                       [&](const QString& strPath) { return regEnd.match(strPath).hasMatch(); });
}

bool IsPath(const QString& strWord)
{
    static const QRegularExpression s_regPath(L("^(?=.*\\w)[\\w.*/-]+$"));
    if (!s_regPath.match(strWord).hasMatch())
        return false;
    const bool bSuffix =
        std::any_of(std::begin(c_arrSuffixes), std::end(c_arrSuffixes), [&](const char* szSuffix) {
            return strWord.endsWith(L(szSuffix)) && strWord != L(szSuffix);
        });
    return bSuffix || strWord.contains(QLatin1Char('/'));
}

bool IsInTheTree(const QString& strPath)
{
    return std::none_of(std::begin(c_arrNotInTheTree), std::end(c_arrNotInTheTree),
                        [&](const char* szBeginning) { return strPath.startsWith(L(szBeginning)); });
}

/// What stands between backquotes.
QStringList CodeSpans(const QString& strText)
{
    static const QRegularExpression s_regSpan(L("(?<!`)`([^`\\n]+)`(?!`)"));
    QStringList listSpans;
    QRegularExpressionMatchIterator itSpan = s_regSpan.globalMatch(strText);
    while (itSpan.hasNext())
        listSpans.append(itSpan.next().captured(1));
    return listSpans;
}

/// The anchors of a document's headings: lower case, with dashes for blanks.
QSet<QString> Anchors(const QString& strText)
{
    static const QRegularExpression s_regHeading(L("^#+ (.*)$"), QRegularExpression::MultilineOption);
    QSet<QString> setAnchors;
    QRegularExpressionMatchIterator itHeading = s_regHeading.globalMatch(strText);
    while (itHeading.hasNext()) {
        QString strAnchor = itHeading.next().captured(1).toLower();
        strAnchor.remove(QRegularExpression(L("[^\\w -]"))).replace(QLatin1Char(' '), QLatin1Char('-'));
        setAnchors.insert(strAnchor);
    }
    return setAnchors;
}

/// The lines of a document that are code: indented by four, or between fences.
struct SCodeBlock
{
    QStringList listLines;
    int nFirstLine = 0; ///< number of the first line in the document, from 1
};

std::vector<SCodeBlock> CodeBlocks(const QString& strText)
{
    std::vector<SCodeBlock> vecBlocks;
    bool bFenced = false;
    bool bInBlock = false;
    int nLine = 0;
    for (const QString& strLine : strText.split(QLatin1Char('\n'))) {
        ++nLine;
        if (strLine.startsWith(L("```"))) {
            bFenced = !bFenced;
            bInBlock = false;
            continue;
        }
        if (!bFenced && !strLine.startsWith(L("    "))) {
            bInBlock = false;
            continue;
        }
        if (!bInBlock)
            vecBlocks.push_back({{}, nLine});
        bInBlock = true;
        vecBlocks.back().listLines.append(bFenced ? strLine : strLine.mid(4));
    }
    return vecBlocks;
}

/// One command of the README and the output below it.
struct SExample
{
    QString strSetup; ///< the commands before it in its block, whose files it may use
    QString strCommand;
    QString strOutput;
    int nLine = 0;
};

QString SetupAfter(const std::vector<SExample>& vecExamples)
{
    return vecExamples.empty() ? QString()
                               : vecExamples.back().strSetup + vecExamples.back().strCommand + L("\n");
}

/// Splits a block at its lines with a dollar sign; a backslash continues the command.
std::vector<SExample> ExamplesOf(const SCodeBlock& block)
{
    std::vector<SExample> vecExamples;
    bool bContinued = false;
    int nLine = block.nFirstLine;
    for (const QString& strLine : block.listLines) {
        if (bContinued)
            vecExamples.back().strCommand += QLatin1Char('\n') + strLine;
        else if (strLine.startsWith(L("$ ")))
            vecExamples.push_back({SetupAfter(vecExamples), strLine.mid(2), QString(), nLine});
        else if (!vecExamples.empty())
            vecExamples.back().strOutput += strLine + QLatin1Char('\n');
        bContinued = !vecExamples.empty() && vecExamples.back().strOutput.isEmpty() &&
                     strLine.endsWith(QLatin1Char('\\'));
        ++nLine;
    }
    return vecExamples;
}

std::vector<SExample> Examples()
{
    std::vector<SExample> vecExamples;
    for (const SCodeBlock& block : CodeBlocks(Text(L("README.md")))) {
        const std::vector<SExample> vecOfBlock = ExamplesOf(block);
        vecExamples.insert(vecExamples.end(), vecOfBlock.begin(), vecOfBlock.end());
    }
    return vecExamples;
}

/// The lines of a source without indentation and without the empty ones.
QStringList TrimmedLines(const QString& strText)
{
    QStringList listLines;
    for (const QString& strLine : strText.split(QLatin1Char('\n'))) {
        if (!strLine.trimmed().isEmpty())
            listLines.append(strLine.simplified());
    }
    return listLines;
}

/// Whether all lines occur in this order, possibly with others between them.
bool ContainsInOrder(const QStringList& listAll, const QStringList& listSome)
{
    auto itNext = listSome.cbegin();
    for (const QString& strLine : listAll) {
        if (itNext != listSome.cend() && strLine == *itNext)
            ++itNext;
    }
    return itNext == listSome.cend();
}

/// What commands print in a folder, with the built tool in the path.
QString RunIn(const QString& strFolder, const QString& strCommands)
{
    QProcess process;
    process.setWorkingDirectory(strFolder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(L("PATH"), L("%1:%2").arg(L(SENDER_TOOL_FOLDER), environment.value(L("PATH"))));
    process.setProcessEnvironment(environment);
    process.start(L("bash"), {L("-c"), strCommands});
    if (!process.waitForFinished())
        qFatal("%s does not end", qPrintable(strCommands));
    return QString::fromUtf8(process.readAll()).trimmed();
}

/// The names behind a text, up to the end of its line, in order.
QStringList NamesAfter(const QString& strText, const QString& strLead)
{
    const int nStart = strText.indexOf(strLead);
    if (nStart < 0)
        return {};
    const QString strLine = strText.mid(nStart + strLead.size()).section(QLatin1Char('\n'), 0, 0);
    QStringList listNames = strLine.split(QRegularExpression(L("[,\\s]+")), Qt::SkipEmptyParts);
    listNames.sort();
    return listNames;
}

QString HelpOfRun()
{
    QProcess process;
    process.start(Root().filePath(L("run")), {L("--help")});
    if (!process.waitForFinished())
        qFatal("./run --help does not end");
    return QString::fromUtf8(process.readAllStandardOutput());
}

#ifdef SENDER_BENCHMARKS
/// The benchmarks that this build has.
QStringList BuiltBenchmarks()
{
    QStringList listNames = L(SENDER_BENCHMARKS).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    listNames.sort();
    return listNames;
}
#endif

} // namespace

/// The documents say what is true of the tree.
class TestDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryHeadingHasAText_data();
    void EveryHeadingHasAText();
    void EveryPictureAndLinkExists_data();
    void EveryPictureAndLinkExists();
    void EveryLinkWithinADocumentHasItsHeading_data();
    void EveryLinkWithinADocumentHasItsHeading();
    void EveryFileAndFolderExists_data();
    void EveryFileAndFolderExists();
    void EveryNameOccursInTheSources_data();
    void EveryNameOccursInTheSources();
    void TheHelpAndTheReadmeNameTheSameBenchmarks();
#ifdef SENDER_BENCHMARKS
    void TheHelpNamesTheBenchmarksThatAreBuilt();
#endif
    void ASnippetIsPartOfAnExampleProgram_data();
    void ASnippetIsPartOfAnExampleProgram();
    void AnExamplePrintsWhatStandsThere_data();
    void AnExamplePrintsWhatStandsThere();

private:
    static void AddDocuments();
};

void TestDocuments::AddDocuments()
{
    QTest::addColumn<QString>("document");
    for (const char* szDocument : c_arrDocuments)
        QTest::newRow(szDocument) << L(szDocument);
}

void TestDocuments::EveryHeadingHasAText_data()
{
    AddDocuments();
}

void TestDocuments::EveryHeadingHasAText()
{
    QFETCH(QString, document);
    static const QRegularExpression s_regHeading(L("^(#+) "));
    // A heading needs a text below it, or a deeper heading that has one.
    QString strOpen;
    int nOpenLevel = 0;
    QStringList listEmpty;
    for (const QString& strLine : (Text(document) + L("\n# end")).split(QLatin1Char('\n'))) {
        const QRegularExpressionMatch heading = s_regHeading.match(strLine);
        if (heading.hasMatch()) {
            if (!strOpen.isEmpty() && heading.capturedLength(1) <= nOpenLevel)
                listEmpty.append(strOpen);
            strOpen = strLine;
            nOpenLevel = heading.capturedLength(1);
        } else if (!strLine.trimmed().isEmpty()) {
            strOpen.clear();
        }
    }
    QVERIFY2(listEmpty.isEmpty(), qPrintable(listEmpty.join(QLatin1Char('\n'))));
}

void TestDocuments::EveryPictureAndLinkExists_data()
{
    AddDocuments();
}

void TestDocuments::EveryPictureAndLinkExists()
{
    QFETCH(QString, document);
    static const QRegularExpression s_regLink(L("\\[[^\\]]+\\]\\(([^)#\\s]+)[^)]*\\)"));
    QRegularExpressionMatchIterator itLink = s_regLink.globalMatch(Text(document));
    QStringList listMissing;
    while (itLink.hasNext()) {
        const QString strTarget = itLink.next().captured(1);
        if (!strTarget.contains(L("://")) && !QFile::exists(Root().filePath(strTarget)))
            listMissing.append(strTarget);
    }
    QVERIFY2(listMissing.isEmpty(), qPrintable(listMissing.join(QLatin1Char('\n'))));
}

void TestDocuments::EveryLinkWithinADocumentHasItsHeading_data()
{
    AddDocuments();
}

void TestDocuments::EveryLinkWithinADocumentHasItsHeading()
{
    QFETCH(QString, document);
    static const QRegularExpression s_regLink(L("\\]\\(#([^)\\s]+)\\)"));
    const QString strText = Text(document);
    const QSet<QString> setAnchors = Anchors(strText);
    QRegularExpressionMatchIterator itLink = s_regLink.globalMatch(strText);
    QStringList listMissing;
    while (itLink.hasNext()) {
        const QString strAnchor = itLink.next().captured(1);
        if (!setAnchors.contains(strAnchor))
            listMissing.append(strAnchor);
    }
    QVERIFY2(listMissing.isEmpty(), qPrintable(listMissing.join(QLatin1Char('\n'))));
}

void TestDocuments::EveryFileAndFolderExists_data()
{
    AddDocuments();
}

void TestDocuments::EveryFileAndFolderExists()
{
    QFETCH(QString, document);
    const QString strText = Text(document);
    QStringList listNamed = CodeSpans(strText);
    for (const SCodeBlock& block : CodeBlocks(strText)) {
        // Of examples only the commands name files; their output may hold anything.
        const std::vector<SExample> vecExamples = ExamplesOf(block);
        QStringList listLines;
        for (const SExample& example : vecExamples)
            listLines.append(example.strCommand);
        for (const QString& strLine : vecExamples.empty() ? block.listLines : listLines) {
            for (const QString& strWord : strLine.split(QRegularExpression(L("[\\s\"<>();,']+"))))
                listNamed.append(strWord);
        }
    }
    QStringList listMissing;
    for (QString strNamed : listNamed) {
        strNamed = strNamed.section(QLatin1Char(' '), 0, 0);
        if (strNamed.startsWith(L("./")))
            strNamed.remove(0, 2);
        if (IsPath(strNamed) && IsInTheTree(strNamed) && !Exists(strNamed))
            listMissing.append(strNamed);
    }
    QVERIFY2(listMissing.isEmpty(), qPrintable(listMissing.join(QLatin1Char('\n'))));
}

void TestDocuments::EveryNameOccursInTheSources_data()
{
    AddDocuments();
}

void TestDocuments::EveryNameOccursInTheSources()
{
    QFETCH(QString, document);
    static const QRegularExpression s_regName(L("^([A-Za-z_]\\w*)(?:::(\\w+))?(?:\\(.*\\))?$"));
    QStringList listUnknown;
    for (const QString& strSpan : CodeSpans(Text(document))) {
        const QRegularExpressionMatch match = s_regName.match(strSpan);
        if (!match.hasMatch() || Exists(match.captured(1)))
            continue;
        const bool bKnown = Tree().setWords.contains(match.captured(1)) &&
                            (match.captured(2).isEmpty() || Tree().setWords.contains(match.captured(2)));
        if (!bKnown)
            listUnknown.append(strSpan);
    }
    QVERIFY2(listUnknown.isEmpty(), qPrintable(listUnknown.join(QLatin1Char('\n'))));
}

void TestDocuments::TheHelpAndTheReadmeNameTheSameBenchmarks()
{
    const QStringList listHelp = NamesAfter(HelpOfRun(), L("or the one named: "));
    QVERIFY(!listHelp.isEmpty());
    QCOMPARE(NamesAfter(Text(L("README.md")), L("./run --bench colour     one: ")), listHelp);
}

#ifdef SENDER_BENCHMARKS
void TestDocuments::TheHelpNamesTheBenchmarksThatAreBuilt()
{
    QVERIFY(!BuiltBenchmarks().isEmpty());
    QCOMPARE(NamesAfter(HelpOfRun(), L("or the one named: ")), BuiltBenchmarks());
}
#endif

void TestDocuments::ASnippetIsPartOfAnExampleProgram_data()
{
    QTest::addColumn<QStringList>("lines");
    static const QRegularExpression s_regSnippet(L("```cpp\\n(.*?)```"),
                                                 QRegularExpression::DotMatchesEverythingOption);
    QRegularExpressionMatchIterator itSnippet = s_regSnippet.globalMatch(Text(L("README.md")));
    QVERIFY(itSnippet.hasNext());
    for (int i = 1; itSnippet.hasNext(); ++i)
        QTest::addRow("snippet %d", i) << TrimmedLines(itSnippet.next().captured(1));
}

void TestDocuments::ASnippetIsPartOfAnExampleProgram()
{
    QFETCH(QStringList, lines);
    const QStringList& listPaths = Tree().listPaths;
    const bool bFound = std::any_of(listPaths.cbegin(), listPaths.cend(), [&](const QString& strPath) {
        return strPath.startsWith(L("examples/")) && strPath.endsWith(L(".cpp")) &&
               ContainsInOrder(TrimmedLines(Text(strPath)), lines);
    });
    QVERIFY2(bFound, qPrintable(lines.join(QLatin1Char('\n'))));
}

void TestDocuments::AnExamplePrintsWhatStandsThere_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("output");
    const std::vector<SExample> vecExamples = Examples();
    QVERIFY(vecExamples.size() >= 10);
    for (const SExample& example : vecExamples)
        QTest::addRow("line %d: %s", example.nLine, qPrintable(example.strCommand))
            << example.strSetup << example.strCommand << example.strOutput;
}

void TestDocuments::AnExamplePrintsWhatStandsThere()
{
    QFETCH(QString, setup);
    QFETCH(QString, command);
    QFETCH(QString, output);
    const QTemporaryDir folder;
    QVERIFY(QFile::link(Root().filePath(L("docs")), folder.filePath(L("docs"))));
    RunIn(folder.path(), setup);
    QCOMPARE(RunIn(folder.path(), command), output.trimmed());
}

QTEST_GUILESS_MAIN(TestDocuments)
#include "TestDocuments.moc"
