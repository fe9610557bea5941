#ifndef WORKBENCH_COLOUR_MEASUREMENTPROBLEM_H
#define WORKBENCH_COLOUR_MEASUREMENTPROBLEM_H

#include "instruments/colour/MeasurementCsv.h"

/// What is wrong with measurements, in the language of the workbench.
namespace MeasurementProblem {

/// One line that names line and column.
QString Text(const SMeasurementError& error);

/// Why a colour cannot be used in calculations.
QString Text(enColourFault fault);

} // namespace MeasurementProblem

#endif // WORKBENCH_COLOUR_MEASUREMENTPROBLEM_H
