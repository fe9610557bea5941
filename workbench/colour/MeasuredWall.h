#ifndef WORKBENCH_COLOUR_MEASUREDWALL_H
#define WORKBENCH_COLOUR_MEASUREDWALL_H

#include "SenderModuleDialog/chart/ChromaGroupInfo.h"
#include "instruments/colour/MeasurementCsv.h"
#include "instruments/colour/WallAnalysis.h"

#include <QObject>

/// The measured wall of the project: its modules, and what is told of them. The project keeps the readings.
class CMeasuredWall : public QObject
{
    Q_OBJECT

public:
    explicit CMeasuredWall(QObject* pParent = nullptr);

    const Modules& GetModules() const { return m_modules; }
    bool IsEmpty() const { return m_modules.empty(); }
    /// What is told of the modules; no value without any.
    const CColourResult<SWallAnalysis>& Analysis() const { return m_analysis; }

    /// Takes the modules of a text in the place of those that are there.
    /// @return what is wrong with the text; the modules then stay
    std::optional<SMeasurementError> Import(const QByteArray& content);
    std::optional<SMeasurementError> Import(const QString& strText);
    /// The modules as a text.
    QString Text() const;
    /// Removes all modules.
    void Clear();

    /// The standard that the wall is to show, with its white.
    void SetStandard(enColorStandard standard);
    enColorStandard Standard() const { return m_standard; }

Q_SIGNALS:
    /// Modules or analysis changed.
    void Changed();
    /// The project holds measurements that cannot be read.
    void Unreadable(const SMeasurementError& error);

private:
    std::optional<SMeasurementError> Take(const SMeasurements& measurements);
    void Store(const QStringList& listLines);
    void Load();
    void Analyse();

    Modules m_modules;
    CColourResult<SWallAnalysis> m_analysis = enColourFault::enNoModules;
    enColorStandard m_standard = enStandardRec709;
    QStringList m_listStored; ///< the project's lines that the modules stand for
};

#endif // WORKBENCH_COLOUR_MEASUREDWALL_H
