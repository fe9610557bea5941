#ifndef SIMULATOR_COMMONCLASS_SIMULATORTEXT_H
#define SIMULATOR_COMMONCLASS_SIMULATORTEXT_H

#include <QCoreApplication>

/// Translation context of the simulator's own texts. They are English; the texts that a dialog of the library
/// shows as a host's verdict are looked up with `CCustomDialog::tr` instead, like the dialog's own texts.
class CSimulatorText
{
    Q_DECLARE_TR_FUNCTIONS(CSimulatorText)
};

#endif // SIMULATOR_COMMONCLASS_SIMULATORTEXT_H
