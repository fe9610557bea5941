#ifndef SIMULATOR_COMMONCLASS_CATALOGUE_H
#define SIMULATOR_COMMONCLASS_CATALOGUE_H

#include "host/HostExport.h"
#include "simulator/CommonClass/SimulatedProject.h"

#include <QList>

#include <map>
#include <optional>

/// The senders that the simulator knows: every sender type that the dialogs distinguish, with realistic
/// capabilities and inputs. Read from a resource; see catalogue.json.
class COMMONCLASS_EXPORT CCatalogue
{
public:
    /// The built-in catalogue.
    static const CCatalogue& Instance();

    /// Reads a catalogue. On a problem the result is empty.
    static CCatalogue FromJson(const QByteArray& baJson, SFileProblem& problem);

    /// All sender type codes, ascending.
    QList<int> Types() const;
    /// Whether the catalogue has a sender type code.
    bool Contains(int nType) const { return m_mapSenders.count(nType) > 0; }
    /// Name of a type; empty for an unknown one.
    QString ModelName(int nType) const;
    /// A factory-new sender of a type, without id and name; empty for an unknown type.
    std::optional<SSimulatedSender> NewSender(int nType) const;

private:
    std::map<int, SSimulatedSender> m_mapSenders;
};

#endif // SIMULATOR_COMMONCLASS_CATALOGUE_H
