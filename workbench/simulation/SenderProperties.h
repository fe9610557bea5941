#ifndef WORKBENCH_SIMULATION_SENDERPROPERTIES_H
#define WORKBENCH_SIMULATION_SENDERPROPERTIES_H

#include <QVariant>

#include <vector>

struct SSimulatedProject;

/// How a property is edited.
enum class enEditor
{
    enText,
    enSwitch,
    enNumber,
    enDecimal,
    enChoice
};

/// One choice of a property with a fixed set of values.
struct SPropertyChoice
{
    const char* szText; ///< source text in the context `CSenderPropertyText`
    int nValue;
};

/// One editable property of the simulated project: what a sender can do, what its hardware stores, how it
/// misbehaves, or how processors are addressed.
struct SSenderProperty
{
    const char* szGroup; ///< source text in the context `CSenderPropertyText`
    const char* szName;  ///< source text in the context `CSenderPropertyText`
    enEditor editor;
    int nMin; ///< for numbers
    int nMax;
    const char* szLowest; ///< source text shown for the lowest number; null: shown as a number
    std::vector<SPropertyChoice> vecChoices;
    QVariant (*funcRead)(const SSimulatedProject& project, int nSender);
    void (*funcWrite)(SSimulatedProject& project, int nSender, const QVariant& value);
};

namespace SenderProperties {

/// All properties, group by group.
const std::vector<SSenderProperty>& All();

/// A text of the table in the current language.
QString Text(const char* szText);

} // namespace SenderProperties

#endif // WORKBENCH_SIMULATION_SENDERPROPERTIES_H
