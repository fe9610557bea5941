#include "instruments/colour/MeasurementHeading.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

namespace {

struct SColourWord
{
    const char* szWord; ///< in small letters
    enWallColour colour;
};

/// What fields and headings call a colour. The first of each language is what is written.
constexpr SColourWord c_arrColourWords[] = {
    {"red", enWallColour::enRed},     {"r", enWallColour::enRed},       {"红", enWallColour::enRed},
    {"红色", enWallColour::enRed},    {"green", enWallColour::enGreen}, {"g", enWallColour::enGreen},
    {"绿", enWallColour::enGreen},    {"绿色", enWallColour::enGreen},  {"blue", enWallColour::enBlue},
    {"b", enWallColour::enBlue},      {"蓝", enWallColour::enBlue},     {"蓝色", enWallColour::enBlue},
    {"white", enWallColour::enWhite}, {"w", enWallColour::enWhite},     {"白", enWallColour::enWhite},
    {"白色", enWallColour::enWhite},
};

constexpr const char* c_arrEnglishNames[c_nWallColours] = {"red", "green", "blue", "white"};
constexpr const char* c_arrEnglishPrefixes[c_nWallColours] = {"R", "G", "B", "W"};
constexpr const char* c_arrChineseNames[c_nWallColours] = {"红", "绿", "蓝", "白"};

constexpr const char* c_arrNameWords[] = {"module", "name",     "cabinet", "panel", "tile",
                                          "id",     "no",       "number",  "模组",  "模块",
                                          "箱体",   "模组编号", "名称",    "编号",  "序号"};
constexpr const char* c_arrPrimaryWords[] = {"primary", "colour", "color", "channel",
                                             "颜色",    "基色",   "原色",  "通道"};
constexpr const char* c_arrLuminanceWords[] = {"luminance", "lum", "lv", "l", "brightness", "亮度"};

/// What a column holds.
enum class enQuantity
{
    enSmallX,
    enSmallY,
    enLuminance, ///< called so, and not by a letter
    enCapitalX,
    enCapitalY,
    enCapitalZ,
};

struct SQuantityLetter
{
    char ch;
    enQuantity quantity;
};

constexpr SQuantityLetter c_arrLetters[] = {
    {'x', enQuantity::enSmallX},   {'y', enQuantity::enSmallY},   {'X', enQuantity::enCapitalX},
    {'Y', enQuantity::enCapitalY}, {'Z', enQuantity::enCapitalZ},
};

QString Word(const char* szWord)
{
    return QString::fromUtf8(szWord);
}

template <std::size_t nCount>
bool IsOneOf(const char* const (&arrWords)[nCount], const QString& strWord)
{
    return std::any_of(std::begin(arrWords), std::end(arrWords),
                       [&](const char* szWord) { return strWord == Word(szWord); });
}

/// A heading without its unit and without what joins its words.
QString Key(QString strField)
{
    static const QRegularExpression s_unit(QStringLiteral("[(（\\[【].*$"));
    static const QRegularExpression s_joints(QStringLiteral("[\\s_./:-]"));
    return strField.remove(s_unit).remove(s_joints);
}

std::optional<enQuantity> QuantityOf(const QString& strKey)
{
    if (IsOneOf(c_arrLuminanceWords, strKey.toLower()))
        return enQuantity::enLuminance;
    for (const SQuantityLetter& letter : c_arrLetters)
        if (strKey == QLatin1Char(letter.ch))
            return letter.quantity;
    return std::nullopt;
}

/// A reading's column: of one colour, or of whatever colour the line names.
struct SReadingColumn
{
    std::optional<enWallColour> colour;
    enQuantity quantity = enQuantity::enSmallX;
};

std::optional<SReadingColumn> ReadingColumnOf(const QString& strKey)
{
    if (const auto quantity = QuantityOf(strKey))
        return SReadingColumn{std::nullopt, *quantity};
    for (const SColourWord& word : c_arrColourWords) {
        const QString strWord = Word(word.szWord);
        if (strKey.startsWith(strWord, Qt::CaseInsensitive))
            if (const auto quantity = QuantityOf(strKey.mid(strWord.size())))
                return SReadingColumn{word.colour, *quantity};
        if (strKey.endsWith(strWord, Qt::CaseInsensitive))
            if (const auto quantity = QuantityOf(strKey.chopped(strWord.size())))
                return SReadingColumn{word.colour, *quantity};
    }
    return std::nullopt;
}

bool IsChinese(const QString& strField)
{
    return std::any_of(strField.begin(), strField.end(),
                       [](QChar ch) { return ch.script() == QChar::Script_Han; });
}

/// All columns that a heading names.
class CColumns
{
public:
    explicit CColumns(const SCsvLine& line)
        : m_line(line)
    {
        for (int i = 0; i < line.listFields.size(); ++i)
            Note(line.listFields[i], i);
    }

    bool HasReadings() const { return !m_mapReadings.isEmpty(); }
    const std::optional<SMeasurementError>& Error() const { return m_error; }

    SMeasurementHeading Heading()
    {
        SMeasurementHeading heading;
        heading.nName = m_nName;
        heading.nPrimary = m_nPrimary;
        heading.bChinese = m_bChinese;
        for (ReadingColumns& columns : heading.arrColumns)
            columns.fill(-1);
        heading.bTristimulus = HasZ();
        if (heading.IsLineAPrimary()) {
            heading.arrColumns[0] = Find(std::nullopt, heading.bTristimulus);
            return heading;
        }
        for (std::size_t i = 0; i < c_nWallColours; ++i)
            if (enWallColour(i) != enWallColour::enWhite || Names(enWallColour(i)))
                heading.arrColumns[i] = Find(enWallColour(i), heading.bTristimulus);
        return heading;
    }

private:
    /// The colour as a number, with one more for columns of no colour.
    static int ColourKey(std::optional<enWallColour> colour)
    {
        return colour ? int(*colour) : int(c_nWallColours);
    }

    void Note(const QString& strField, int nColumn)
    {
        const QString strKey = Key(strField);
        m_bChinese = m_bChinese || IsChinese(strField);
        if (IsOneOf(c_arrNameWords, strKey.toLower()))
            return Keep(m_nName, nColumn, strField);
        if (IsOneOf(c_arrPrimaryWords, strKey.toLower()))
            return Keep(m_nPrimary, nColumn, strField);
        if (const auto column = ReadingColumnOf(strKey)) {
            int nKept = m_mapReadings.value({ColourKey(column->colour), column->quantity}, -1);
            Keep(nKept, nColumn, strField);
            m_mapReadings.insert({ColourKey(column->colour), column->quantity}, nKept);
        }
    }

    void Keep(int& nKept, int nColumn, const QString& strField)
    {
        if (nKept >= 0)
            return Refuse(enMeasurementFault::enRepeatedColumn, nColumn + 1, strField);
        nKept = nColumn;
    }

    void Refuse(enMeasurementFault fault, int nColumn, const QString& strValue)
    {
        if (!m_error)
            m_error = SMeasurementError{fault, m_line.nNumber, nColumn, strValue, enColourFault::enNone};
    }

    bool HasZ() const
    {
        for (auto it = m_mapReadings.cbegin(); it != m_mapReadings.cend(); ++it)
            if (it.key().second == enQuantity::enCapitalZ)
                return true;
        return false;
    }

    bool Names(enWallColour colour) const
    {
        for (auto it = m_mapReadings.cbegin(); it != m_mapReadings.cend(); ++it)
            if (it.key().first == int(colour))
                return true;
        return false;
    }

    /// The first of some quantities that is there.
    int Take(std::optional<enWallColour> colour, std::initializer_list<enQuantity> quantities, char chName)
    {
        for (const enQuantity quantity : quantities)
            if (const int nColumn = m_mapReadings.value({ColourKey(colour), quantity}, -1); nColumn >= 0)
                return nColumn;
        const QString strColour = colour ? Word(c_arrEnglishPrefixes[std::size_t(*colour)]) : QString();
        Refuse(enMeasurementFault::enMissingColumn, int(m_line.listFields.size()) + 1,
               strColour + QLatin1Char(chName));
        return -1;
    }

    ReadingColumns Find(std::optional<enWallColour> colour, bool bTristimulus)
    {
        if (bTristimulus)
            return {Take(colour, {enQuantity::enCapitalX}, 'X'),
                    Take(colour, {enQuantity::enCapitalY, enQuantity::enLuminance}, 'Y'),
                    Take(colour, {enQuantity::enCapitalZ}, 'Z')};
        // Where the luminance has a name, capitals may stand for x and y.
        const bool bNamed = m_mapReadings.contains({ColourKey(colour), enQuantity::enLuminance});
        const int nX = Take(colour, {enQuantity::enSmallX, enQuantity::enCapitalX}, 'x');
        const int nY = bNamed ? Take(colour, {enQuantity::enSmallY, enQuantity::enCapitalY}, 'y')
                              : Take(colour, {enQuantity::enSmallY}, 'y');
        return {nX, nY, Take(colour, {enQuantity::enLuminance, enQuantity::enCapitalY}, 'Y')};
    }

    const SCsvLine& m_line;
    QMap<std::pair<int, enQuantity>, int> m_mapReadings;
    int m_nName = -1;
    int m_nPrimary = -1;
    bool m_bChinese = false;
    std::optional<SMeasurementError> m_error;
};

/// The three headings of one colour's columns.
QStringList ReadingHeadings(const QString& strColour, const SMeasurementFormat& format)
{
    if (format.bTristimulus)
        return {strColour + QLatin1Char('X'), strColour + QLatin1Char('Y'), strColour + QLatin1Char('Z')};
    const QString strLuminance = format.bChinese ? Word("亮度") : QStringLiteral("Y");
    return {strColour + QLatin1Char('x'), strColour + QLatin1Char('y'), strColour + strLuminance};
}

} // namespace

SMeasurementHeading MeasurementHeading::Read(const SCsvLine& line, std::optional<SMeasurementError>& error)
{
    CColumns columns(line);
    if (!columns.HasReadings()) {
        error = SMeasurementError{enMeasurementFault::enNoHeading, line.nNumber, 1, line.listFields.value(0),
                                  enColourFault::enNone};
        return {};
    }
    const SMeasurementHeading heading = columns.Heading();
    error = columns.Error();
    return heading;
}

QStringList MeasurementHeading::Write(const SMeasurementFormat& format, bool bWhite)
{
    QStringList listFields = {format.bChinese ? Word("模组") : QStringLiteral("module")};
    if (format.bLineAPrimary) {
        listFields += format.bChinese ? Word("颜色") : QStringLiteral("primary");
        return listFields + ReadingHeadings(QString(), format);
    }
    for (std::size_t i = 0; i < (bWhite ? c_nWallColours : c_nWallColours - 1); ++i)
        listFields +=
            ReadingHeadings(Word(format.bChinese ? c_arrChineseNames[i] : c_arrEnglishPrefixes[i]), format);
    return listFields;
}

std::optional<enWallColour> MeasurementHeading::ColourOf(const QString& strField)
{
    const QString strWord = strField.toLower();
    for (const SColourWord& word : c_arrColourWords)
        if (strWord == Word(word.szWord))
            return word.colour;
    return std::nullopt;
}

QString MeasurementHeading::NameOf(enWallColour colour, bool bChinese)
{
    return Word(bChinese ? c_arrChineseNames[std::size_t(colour)] : c_arrEnglishNames[std::size_t(colour)]);
}
