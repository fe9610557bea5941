#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/MeasurementHeading.h"

#include <QLocale>

#include <algorithm>

namespace {

QString NumberText(double dNumber, bool bDecimalComma)
{
    QString strNumber = QString::number(dNumber, 'g', QLocale::FloatingPointShortest);
    return bDecimalComma ? strNumber.replace(QLatin1Char('.'), QLatin1Char(',')) : strNumber;
}

/// Lines of one format.
class CWriter
{
public:
    CWriter(const SMeasurementFormat& format, bool bWhite)
        : m_format(format)
        , m_bWhite(bWhite)
    {
        // A decimal comma cannot stand beside the separator comma.
        m_format.bDecimalComma = format.bDecimalComma && format.chSeparator != QLatin1Char(',');
        Add(MeasurementHeading::Write(m_format, bWhite));
    }

    void Add(const SModule& module)
    {
        if (!m_format.bLineAPrimary) {
            QStringList listFields = {module.strName};
            for (std::size_t i = 0; i < (m_bWhite ? c_nWallColours : c_nWallColours - 1); ++i)
                listFields += Fields(ModuleWall::ReadingOf(module, enWallColour(i)));
            return Add(listFields);
        }
        for (std::size_t i = 0; i < (module.white ? c_nWallColours : c_nWallColours - 1); ++i)
            Add(QStringList{module.strName, MeasurementHeading::NameOf(enWallColour(i), m_format.bChinese)} +
                Fields(ModuleWall::ReadingOf(module, enWallColour(i))));
    }

    QString Text() const { return m_strText; }

private:
    void Add(const QStringList& listFields)
    {
        for (int i = 0; i < listFields.size(); ++i) {
            if (i > 0)
                m_strText += m_format.chSeparator;
            m_strText += CsvLines::Quoted(listFields[i], m_format.chSeparator);
        }
        m_strText += QLatin1Char('\n');
    }

    QStringList Fields(const SReading& reading) const
    {
        const auto Text = [this](double dNumber) { return NumberText(dNumber, m_format.bDecimalComma); };
        if (!m_format.bTristimulus)
            return {Text(reading.xy.dX), Text(reading.xy.dY), Text(reading.dLuminance)};
        const STristimulus xyz = Chromaticity::ToTristimulus(reading.xy, reading.dLuminance);
        return {Text(xyz.dX), Text(xyz.dY), Text(xyz.dZ)};
    }

    SMeasurementFormat m_format;
    bool m_bWhite;
    QString m_strText;
};

} // namespace

QString MeasurementCsv::Write(const Modules& modules, const SMeasurementFormat& format)
{
    // One line a module has the columns of white where any module has the reading; the sum stands in
    // for the others.
    const bool bWhite = std::any_of(modules.begin(), modules.end(),
                                    [](const SModule& module) { return module.white.has_value(); });
    CWriter writer(format, bWhite);
    for (const SModule& module : modules)
        writer.Add(module);
    return writer.Text();
}
