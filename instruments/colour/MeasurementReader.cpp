#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/MeasurementHeading.h"

#include <QHash>
#include <QSet>

#include <cmath>

namespace {

using Numbers = std::array<double, c_nReadingNumbers>;

/// One module while its readings come in, in the layout of one line a primary.
struct SPartialModule
{
    QString strName;
    int nLine = 0;
    std::array<std::optional<SReading>, c_nWallColours> arrReadings;
};

/// Turns lines into modules; ends at the first error.
class CReader
{
public:
    explicit CReader(const SCsvLines& lines)
        : m_lines(lines)
    {
        m_measurements.format.chSeparator = lines.chSeparator;
    }

    SMeasurements Read()
    {
        ReadAll();
        if (m_measurements.error)
            m_measurements.modules.clear();
        return m_measurements;
    }

private:
    void ReadAll()
    {
        if (m_lines.nOpenQuote > 0)
            return Refuse(enMeasurementFault::enOpenQuote, m_lines.nOpenQuote, 1);
        if (m_lines.vecLines.empty())
            return Refuse(enMeasurementFault::enEmpty, 1, 1);
        m_heading = MeasurementHeading::Read(m_lines.vecLines.front(), m_measurements.error);
        if (HasError())
            return;
        m_measurements.format.bChinese = m_heading.bChinese;
        m_measurements.format.bTristimulus = m_heading.bTristimulus;
        m_measurements.format.bLineAPrimary = m_heading.IsLineAPrimary();
        if (m_lines.vecLines.size() == 1)
            return Refuse(enMeasurementFault::enNoLines, m_lines.vecLines.front().nNumber + 1, 1);
        if (m_heading.IsLineAPrimary())
            ReadPrimaries();
        else
            ReadModules();
    }

    bool HasError() const { return m_measurements.error.has_value(); }

    void Refuse(enMeasurementFault fault, int nLine, int nColumn, const QString& strValue = QString(),
                enColourFault colourFault = enColourFault::enNone)
    {
        if (!HasError())
            m_measurements.error = SMeasurementError{fault, nLine, nColumn, strValue, colourFault};
    }

    void ReadModules()
    {
        m_measurements.modules.reserve(m_lines.vecLines.size() - 1);
        QSet<QString> names;
        for (std::size_t i = 1; i < m_lines.vecLines.size() && !HasError(); ++i) {
            const SCsvLine& line = m_lines.vecLines[i];
            const QString strName = NameIn(line, QString::number(i));
            if (names.contains(strName))
                return Refuse(enMeasurementFault::enRepeatedModule, line.nNumber, NameColumn(), strName);
            names.insert(strName);
            SPartialModule partial = {strName, line.nNumber, {}};
            for (std::size_t nColour = 0; nColour < c_nWallColours; ++nColour)
                if (enWallColour(nColour) != enWallColour::enWhite || m_heading.HasWhite())
                    partial.arrReadings[nColour] = ReadingIn(line, m_heading.arrColumns[nColour]);
            Finish(partial);
        }
    }

    void ReadPrimaries()
    {
        std::vector<SPartialModule> vecPartials;
        QHash<QString, std::size_t> hashPlaces;
        for (std::size_t i = 1; i < m_lines.vecLines.size() && !HasError(); ++i) {
            const SCsvLine& line = m_lines.vecLines[i];
            const QString strPrimary = line.listFields.value(m_heading.nPrimary);
            const auto colour = MeasurementHeading::ColourOf(strPrimary);
            if (!colour)
                return Refuse(enMeasurementFault::enUnknownPrimary, line.nNumber, m_heading.nPrimary + 1,
                              strPrimary);
            const QString strName = NameOfPrimary(line, vecPartials, *colour);
            if (!hashPlaces.contains(strName)) {
                hashPlaces.insert(strName, vecPartials.size());
                vecPartials.push_back({strName, line.nNumber, {}});
            }
            auto& reading = vecPartials[hashPlaces.value(strName)].arrReadings[std::size_t(*colour)];
            if (reading)
                return Refuse(enMeasurementFault::enRepeatedReading, line.nNumber, m_heading.nPrimary + 1,
                              strName);
            reading = ReadingIn(line, m_heading.arrColumns[0]);
        }
        for (const SPartialModule& partial : vecPartials)
            Finish(partial);
    }

    /// Spreadsheets name a module once, beside its first primary. Without a column of names, a primary that
    /// repeats begins the next module.
    QString NameOfPrimary(const SCsvLine& line, const std::vector<SPartialModule>& vecPartials,
                          enWallColour colour) const
    {
        if (m_heading.nName >= 0)
            return NameIn(line, vecPartials.empty() ? QStringLiteral("1") : vecPartials.back().strName);
        const bool bNext = vecPartials.empty() || vecPartials.back().arrReadings[std::size_t(colour)];
        return QString::number(vecPartials.size() + std::size_t(bNext));
    }

    QString NameIn(const SCsvLine& line, const QString& strDefault) const
    {
        const QString strName = m_heading.nName < 0 ? QString() : line.listFields.value(m_heading.nName);
        return strName.isEmpty() ? strDefault : strName;
    }

    int NameColumn() const { return std::max(m_heading.nName, 0) + 1; }

    void Finish(const SPartialModule& partial)
    {
        if (HasError())
            return;
        for (const enWallColour colour : {enWallColour::enRed, enWallColour::enGreen, enWallColour::enBlue})
            if (!partial.arrReadings[std::size_t(colour)])
                return Refuse(enMeasurementFault::enMissingReading, partial.nLine, NameColumn(),
                              partial.strName);
        const SPrimaries primaries = {*partial.arrReadings[0], *partial.arrReadings[1],
                                      *partial.arrReadings[2]};
        if (const enColourFault fault = Primaries::Check(primaries); fault != enColourFault::enNone)
            return Refuse(enMeasurementFault::enNotModule, partial.nLine, NameColumn(), partial.strName,
                          fault);
        m_measurements.modules.push_back(
            {partial.strName, primaries, partial.arrReadings[std::size_t(enWallColour::enWhite)]});
    }

    std::optional<SReading> ReadingIn(const SCsvLine& line, const ReadingColumns& columns)
    {
        Numbers numbers = {};
        for (std::size_t i = 0; i < c_nReadingNumbers; ++i) {
            const auto number = NumberIn(line, columns[i]);
            if (!number)
                return std::nullopt;
            numbers[i] = *number;
        }
        const SReading reading = ToReading(numbers);
        const enColourFault fault = Primaries::CheckReading(reading);
        if (fault == enColourFault::enNone)
            return reading;
        const int nColumn = columns[WrongNumber(reading, fault)];
        Refuse(enMeasurementFault::enNotReading, line.nNumber, nColumn + 1, line.listFields[nColumn], fault);
        return std::nullopt;
    }

    SReading ToReading(const Numbers& numbers) const
    {
        if (!m_heading.bTristimulus)
            return {{numbers[0], numbers[1]}, numbers[2]};
        return {Chromaticity::FromTristimulus({numbers[0], numbers[1], numbers[2]}), numbers[1]};
    }

    /// Which of three numbers makes a reading impossible.
    std::size_t WrongNumber(const SReading& reading, enColourFault fault) const
    {
        if (m_heading.bTristimulus)
            return reading.dLuminance > 0.0 ? 0 : 1;
        if (fault == enColourFault::enNotPositive)
            return 2;
        return reading.xy.dX > 0.0 && reading.xy.dX < 1.0 ? 1 : 0;
    }

    std::optional<double> NumberIn(const SCsvLine& line, int nColumn)
    {
        const QString strField = line.listFields.value(nColumn);
        QString strNumber = strField;
        const bool bDecimalComma = m_lines.chSeparator != QLatin1Char(',') &&
                                   strField.contains(QLatin1Char(',')) &&
                                   !strField.contains(QLatin1Char('.'));
        if (bDecimalComma) {
            strNumber.replace(QLatin1Char(','), QLatin1Char('.'));
            m_measurements.format.bDecimalComma = true;
        }
        bool bOk = false;
        const double dNumber = strNumber.toDouble(&bOk);
        if (bOk && std::isfinite(dNumber))
            return dNumber;
        Refuse(enMeasurementFault::enNotNumber, line.nNumber, nColumn + 1, strField);
        return std::nullopt;
    }

    const SCsvLines& m_lines;
    SMeasurementHeading m_heading;
    SMeasurements m_measurements;
};

} // namespace

SMeasurements MeasurementCsv::Read(const QByteArray& content)
{
    if (const auto strText = CsvLines::Decode(content))
        return Read(*strText);
    return {{}, {}, SMeasurementError{enMeasurementFault::enNotText, 0, 0, QString(), enColourFault::enNone}};
}

SMeasurements MeasurementCsv::Read(const QString& strText)
{
    const SCsvLines lines = CsvLines::Split(strText);
    return CReader(lines).Read();
}
