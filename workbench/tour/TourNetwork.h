#ifndef WORKBENCH_TOUR_TOURNETWORK_H
#define WORKBENCH_TOUR_TOURNETWORK_H

#include <QtGlobal>

/// Puts a network of a few addresses in the machine's place as long as it exists, so that addresses are
/// judged alike on every machine.
class CTourNetwork
{
public:
    CTourNetwork();
    ~CTourNetwork();
    Q_DISABLE_COPY(CTourNetwork)
};

#endif // WORKBENCH_TOUR_TOURNETWORK_H
