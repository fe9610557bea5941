#ifndef WORKBENCH_COLOUR_MEASUREDWALL_H
#define WORKBENCH_COLOUR_MEASUREDWALL_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/WallAnalysis.h"

#include <QObject>

/// The measured wall of the project: its modules and their analysis. The project keeps the readings.
class CMeasuredWall : public QObject
{
    Q_OBJECT

public:
    explicit CMeasuredWall(QObject* pParent = nullptr);

    const Modules& GetModules() const { return m_modules; }
    bool IsEmpty() const { return m_modules.empty(); }
    /// The analysis of the modules; no value without modules.
    const CColourResult<SWallAnalysis>& Analysis() const { return m_analysis; }

    /// Replaces the modules by those of a text.
    /// @return what is wrong with the text; the modules are then unchanged
    std::optional<SMeasurementError> Import(const QByteArray& content);
    std::optional<SMeasurementError> Import(const QString& strText);
    /// The modules as a text.
    QString Text() const;
    /// Removes all modules.
    void Clear();

    /// The target standard of the wall, with its white.
    void SetStandard(enColorStandard standard);
    enColorStandard Standard() const { return m_standard; }

Q_SIGNALS:
    /// Modules or analysis changed.
    void Changed();
    /// The project holds measurements that cannot be read.
    void Unreadable(const SMeasurementError& error);
    /// What changes in the project from now until `StepEnded` is one step.
    void StepBegan(const QString& strText);
    void StepEnded();

private:
    std::optional<SMeasurementError> Take(const SMeasurements& measurements);
    void Store(const QString& strStep, const QStringList& listLines);
    void Load();
    void Analyse();

    Modules m_modules;
    CColourResult<SWallAnalysis> m_analysis = enColourFault::enNoModules;
    enColorStandard m_standard = enStandardRec709;
    QStringList m_listStored; ///< the project's lines from which the modules were read
};

#endif // WORKBENCH_COLOUR_MEASUREDWALL_H
