#ifndef SIMULATOR_COMMONCLASS_PROJECTTEMPLATES_H
#define SIMULATOR_COMMONCLASS_PROJECTTEMPLATES_H

#include "simulator/CommonClass/SimulatedProject.h"

#include <QList>

/// The projects offered as a starting point, as values.
namespace ProjectTemplates {

/// The six sender types of a demo project, in the order of the demo dialog's menu.
SSimulatedProject Demo();
/// One sender of each type of the catalogue.
SSimulatedProject Catalogue();
/// One sender of a type.
SSimulatedProject OneSender(int nType);

/// Adds a factory-new sender as the last one.
/// @param strName its name; empty for the model's
/// @return its index; -1 for a type that is not in the catalogue, and when the ids are used up
int AddSender(SSimulatedProject& project, int nType, const QString& strName);

} // namespace ProjectTemplates

#endif // SIMULATOR_COMMONCLASS_PROJECTTEMPLATES_H
