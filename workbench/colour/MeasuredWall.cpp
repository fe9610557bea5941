#include "workbench/colour/MeasuredWall.h"

#include "SenderModuleDialog/colour/ColourStandards.h"
#include "instruments/colour/StandardGamut.h"
#include "simulator/CommonClass/Simulator.h"

namespace {

constexpr QChar c_chNewline = QLatin1Char('\n');

CProjectDocument& Document()
{
    return CSimulator::Instance().Document();
}

/// A name may hold a line break in quotes; the project's lines are joined again before they are read.
QStringList LinesOf(const Modules& modules)
{
    return modules.empty() ? QStringList() : MeasurementCsv::Write(modules, {}).chopped(1).split(c_chNewline);
}

} // namespace

CMeasuredWall::CMeasuredWall(QObject* pParent)
    : QObject(pParent)
{
    connect(&Document(), &CProjectDocument::OnProjectReplaced, this, &CMeasuredWall::Load);
    connect(&Document(), &CProjectDocument::OnProjectChanged, this, &CMeasuredWall::Load);
    Load();
}

std::optional<SMeasurementError> CMeasuredWall::Import(const QByteArray& content)
{
    return Take(MeasurementCsv::Read(content));
}

std::optional<SMeasurementError> CMeasuredWall::Import(const QString& strText)
{
    return Take(MeasurementCsv::Read(strText));
}

std::optional<SMeasurementError> CMeasuredWall::Take(const SMeasurements& measurements)
{
    if (!measurements.error)
        Store(tr("导入测量"), LinesOf(measurements.modules));
    return measurements.error;
}

void CMeasuredWall::Clear()
{
    Store(tr("清除测量"), {});
}

void CMeasuredWall::Store(const QString& strStep, const QStringList& listLines)
{
    Q_EMIT StepBegan(strStep);
    Document().Change([&listLines](SSimulatedProject& project) { project.listMeasurements = listLines; });
    Q_EMIT StepEnded();
}

void CMeasuredWall::Load()
{
    const QStringList& listLines = Document().Project().listMeasurements;
    if (listLines == m_listStored)
        return;
    m_listStored = listLines;
    SMeasurements measurements;
    if (!listLines.isEmpty())
        measurements = MeasurementCsv::Read(listLines.join(c_chNewline));
    m_modules = measurements.modules;
    Analyse();
    if (measurements.error)
        Q_EMIT Unreadable(*measurements.error);
}

QString CMeasuredWall::Text() const
{
    return MeasurementCsv::Write(m_modules, {});
}

void CMeasuredWall::SetStandard(enColorStandard standard)
{
    m_standard = standard;
    Analyse();
}

void CMeasuredWall::Analyse()
{
    const SColourStandard& standard = c_arrColourStandards[m_standard];
    m_analysis = WallAnalysis::Of(m_modules, StandardGamut::White(standard), standard);
    Q_EMIT Changed();
}
