// Makes docs/GALLERY.md and its pictures from the folder of a tour, or tells whether they still belong to it.
//
//     make-gallery TOUR DOCS           writes the page and docs/gallery/*.png
//     make-gallery --check TOUR DOCS   fails when a window of the tour has no entry, an entry names no
//     window, or the
//                                      page or a picture is missing; pixels are not compared

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QMap>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>
#include <vector>

namespace {

constexpr const char* c_arrLanguages[] = {"en", "zh"};

struct SEntry
{
    QString strWindow;
    QString strPicture;
    QString strTitle;
    QString strPurpose;

    QString File(const char* szLanguage) const
    {
        return QStringLiteral("%1-%2.png").arg(QString::fromLatin1(szLanguage), strPicture);
    }
};

using Entries = std::vector<SEntry>;

QByteArray ReadFile(const QString& strFile)
{
    QFile file(strFile);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(strFile));
    return file.readAll();
}

Entries ReadEntries(const QDir& docs)
{
    constexpr int c_nFields = 4;
    Entries vecEntries;
    for (const QString& strLine :
         QString::fromUtf8(ReadFile(docs.filePath(QStringLiteral("gallery/windows.txt"))))
             .split(QLatin1Char('\n'))) {
        if (strLine.isEmpty() || strLine.startsWith(QLatin1Char('#')))
            continue;
        const QStringList listFields = strLine.split(QStringLiteral(" | "));
        if (listFields.size() != c_nFields)
            qFatal("gallery/windows.txt: '%s' does not have four fields", qPrintable(strLine));
        vecEntries.push_back({listFields[0], listFields[1], listFields[2], listFields[3]});
    }
    return vecEntries;
}

/// The window that each picture of the tour shows.
QMap<QString, QString> ReadWindows(const QDir& tour)
{
    QMap<QString, QString> mapWindows;
    for (const QString& strLine :
         QString::fromUtf8(ReadFile(tour.filePath(QStringLiteral("windows.txt")))).split(QLatin1Char('\n')))
        if (!strLine.isEmpty())
            mapWindows.insert(strLine.section(QLatin1Char(' '), 0, 0), strLine.section(QLatin1Char(' '), 1));
    return mapWindows;
}

QByteArray Page(const Entries& vecEntries)
{
    QString strPage = QStringLiteral("# Gallery\n\n"
                                     "Every window of the workbench and of the library in both languages, "
                                     "from the tour (`./run --tour DIR`).\n"
                                     "`docs/make-gallery.sh` makes this page and its pictures; "
                                     "`docs/gallery/windows.txt` has its entries.\n");
    for (const SEntry& entry : vecEntries)
        strPage +=
            QStringLiteral("\n## %1\n\n%2 (`%3`)\n\n| English | Chinese |\n|---|---|\n"
                           "| ![%1](gallery/%4) | ![%1](gallery/%5) |\n")
                .arg(entry.strTitle, entry.strPurpose, entry.strWindow, entry.File("en"), entry.File("zh"));
    return strPage.toUtf8();
}

// Pictures

/// Enough to read the texts, and no more.
constexpr int c_nWidest = 800;

/// A colour and the number of its pixels.
struct SColour
{
    QRgb rgb;
    int nCount;
};

/// Colours that one entry of a palette stands for.
struct SBox
{
    std::vector<SColour> vecColours;

    int Count() const
    {
        return std::accumulate(vecColours.begin(), vecColours.end(), 0,
                               [](int nSum, const SColour& colour) { return nSum + colour.nCount; });
    }
    /// How far apart the colours are in one channel.
    int Range(int (*pChannel)(QRgb)) const
    {
        const auto [itLow, itHigh] = std::minmax_element(
            vecColours.begin(), vecColours.end(),
            [&](const SColour& a, const SColour& b) { return pChannel(a.rgb) < pChannel(b.rgb); });
        return pChannel(itHigh->rgb) - pChannel(itLow->rgb);
    }
};

using Channel = int (*)(QRgb);

Channel WidestChannel(const SBox& box)
{
    constexpr Channel c_arrChannels[] = {qRed, qGreen, qBlue};
    return *std::max_element(std::begin(c_arrChannels), std::end(c_arrChannels),
                             [&](Channel a, Channel b) { return box.Range(a) < box.Range(b); });
}

/// What a box gains from being split.
double Spread(const SBox& box)
{
    return box.Range(WidestChannel(box)) * std::sqrt(double(box.Count()));
}

/// Splits a box of several colours in two halves of its widest channel.
SBox TakeHalf(SBox& box)
{
    const Channel pChannel = WidestChannel(box);
    std::sort(box.vecColours.begin(), box.vecColours.end(),
              [&](const SColour& a, const SColour& b) { return pChannel(a.rgb) < pChannel(b.rgb); });
    const auto itHalf = box.vecColours.begin() + int(box.vecColours.size() / 2);
    SBox half = {{itHalf, box.vecColours.end()}};
    box.vecColours.erase(itHalf, box.vecColours.end());
    return half;
}

/// The colour of a box that most pixels have: texts and lines keep theirs.
QRgb ColourOf(const SBox& box)
{
    return std::max_element(box.vecColours.begin(), box.vecColours.end(),
                            [](const SColour& a, const SColour& b) { return a.nCount < b.nCount; })
        ->rgb;
}

SBox AllColours(const QImage& image)
{
    QHash<QRgb, int> hashCounts;
    for (int nY = 0; nY < image.height(); ++nY)
        for (int nX = 0; nX < image.width(); ++nX)
            ++hashCounts[image.pixel(nX, nY)];
    SBox box;
    for (auto it = hashCounts.cbegin(); it != hashCounts.cend(); ++it)
        box.vecColours.push_back({it.key(), it.value()});
    // A hash has no order of its own: the same picture gives the same file.
    std::sort(box.vecColours.begin(), box.vecColours.end(),
              [](const SColour& a, const SColour& b) { return a.rgb < b.rgb; });
    return box;
}

/// Few enough colours for one byte a pixel, by median cut (P. Heckbert, 1982).
QVector<QRgb> Palette(const QImage& image)
{
    constexpr std::size_t c_nColours = 256;
    std::vector<SBox> vecBoxes = {AllColours(image)};
    while (vecBoxes.size() < c_nColours) {
        const auto itWidest =
            std::max_element(vecBoxes.begin(), vecBoxes.end(),
                             [](const SBox& a, const SBox& b) { return Spread(a) < Spread(b); });
        if (itWidest->vecColours.size() < 2)
            break;
        SBox half = TakeHalf(*itWidest);
        vecBoxes.push_back(std::move(half));
    }
    QVector<QRgb> vecPalette;
    for (const SBox& box : vecBoxes)
        vecPalette.append(ColourOf(box));
    return vecPalette;
}

QImage Small(const QImage& picture)
{
    const QImage image =
        picture.width() <= c_nWidest ? picture : picture.scaledToWidth(c_nWidest, Qt::SmoothTransformation);
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    return opaque.convertToFormat(QImage::Format_Indexed8, Palette(opaque), Qt::AvoidDither);
}

void Require(bool bDone, const QString& strFile)
{
    if (!bDone)
        qFatal("%s cannot be written", qPrintable(strFile));
}

void WritePicture(const QDir& tour, const QDir& docs, const QString& strName)
{
    constexpr int c_nSmallest = 0; // the most compression
    const QImage picture(tour.filePath(strName));
    if (picture.isNull())
        qFatal("%s is no picture", qPrintable(tour.filePath(strName)));
    const QString strFile = docs.filePath(QStringLiteral("gallery/") + strName);
    Require(Small(picture).save(strFile, "PNG", c_nSmallest), strFile);
}

void Write(const QDir& tour, const QDir& docs)
{
    const Entries vecEntries = ReadEntries(docs);
    for (const SEntry& entry : vecEntries)
        for (const char* szLanguage : c_arrLanguages)
            WritePicture(tour, docs, entry.File(szLanguage));
    const QByteArray page = Page(vecEntries);
    QFile file(docs.filePath(QStringLiteral("GALLERY.md")));
    Require(file.open(QIODevice::WriteOnly) && file.write(page) == page.size(), file.fileName());
}

/// One line for each thing that is not as it should be.
QStringList Problems(const QDir& tour, const QDir& docs)
{
    QStringList listProblems;
    const Entries vecEntries = ReadEntries(docs);
    const QMap<QString, QString> mapWindows = ReadWindows(tour);
    QSet<QString> setEntered;
    for (const SEntry& entry : vecEntries) {
        setEntered.insert(entry.strWindow);
        for (const char* szLanguage : c_arrLanguages) {
            const QString strFile = entry.File(szLanguage);
            if (mapWindows.value(strFile) != entry.strWindow)
                listProblems +=
                    QStringLiteral("the tour's %1 does not show %2").arg(strFile, entry.strWindow);
            if (!docs.exists(QStringLiteral("gallery/") + strFile))
                listProblems += QStringLiteral("docs/gallery has no %1").arg(strFile);
        }
    }
    const QStringList listWindows = mapWindows.values();
    for (const QString& strWindow : QSet<QString>(listWindows.begin(), listWindows.end()) - setEntered)
        listProblems += QStringLiteral("the tour shows %1, which has no entry").arg(strWindow);
    if (ReadFile(docs.filePath(QStringLiteral("GALLERY.md"))) != Page(vecEntries))
        listProblems += QStringLiteral("docs/GALLERY.md is not what the entries give");
    return listProblems;
}

int Check(const QDir& tour, const QDir& docs)
{
    const QStringList listProblems = Problems(tour, docs);
    for (const QString& strProblem : listProblems)
        std::fprintf(stderr, "%s; put docs/gallery/windows.txt right and run docs/make-gallery.sh\n",
                     qPrintable(strProblem));
    return listProblems.isEmpty() ? 0 : 1;
}

} // namespace

int main(int nCount, char** arrArguments)
{
    const QGuiApplication application(nCount, arrArguments);
    const QStringList listArguments = QCoreApplication::arguments().mid(1);
    const bool bCheck = listArguments.value(0) == QLatin1String("--check");
    if (listArguments.size() != (bCheck ? 3 : 2)) {
        std::fputs("usage: make-gallery [--check] TOUR DOCS\n", stderr);
        return 2;
    }
    const QDir tour(listArguments[listArguments.size() - 2]);
    const QDir docs(listArguments.last());
    if (bCheck)
        return Check(tour, docs);
    Write(tour, docs);
    return 0;
}
