#ifndef SIMULATOR_COMMONCLASS_PROJECTFINGERPRINT_H
#define SIMULATOR_COMMONCLASS_PROJECTFINGERPRINT_H

#include "simulator/CommonClass/SimulatedProject.h"

#include <QByteArray>
#include <QMetaType>
#include <QSet>

#include <vector>

/// The differences between two states of a project, so that a view redraws only what changed.
struct COMMONCLASS_EXPORT SProjectChange
{
    QSet<int> setSenderIds;      ///< ids of the senders that were added or whose values changed
    bool bSenderList = false;    ///< senders were added, removed or moved
    bool bAddresses = false;     ///< the address lists changed
    bool bSettings = false;      ///< anything else in the file changed
    bool bCurrentSender = false; ///< another sender is edited; this alone is no reason to save

    /// True when nothing changed.
    bool IsEmpty() const;
    /// True when there is something to save.
    bool ConcernsFile() const;
};

Q_DECLARE_METATYPE(SProjectChange)

/// The values of a project as bytes, part by part: equal bytes are equal values. The bytes come
/// from the same descriptions as the project file in a fraction of the time, so every change
/// can be compared.
struct SProjectFingerprint
{
    /// One sender.
    struct SSender
    {
        int nId;             ///< `SSimulatedSender::nId`
        QByteArray baValues; ///< everything that the file holds of it
    };

    int nCurSender = 0;              ///< index of the sender that is edited
    QByteArray baSettings;           ///< what belongs to no sender and to no address list
    QByteArray baAddresses;          ///< the address lists
    std::vector<SSender> vecSenders; ///< in the project's order
};

/// The present values of a project.
COMMONCLASS_EXPORT SProjectFingerprint FingerprintOf(const SSimulatedProject& project);

/// The differences between one state and the next.
COMMONCLASS_EXPORT SProjectChange Difference(const SProjectFingerprint& before,
                                             const SProjectFingerprint& after);

#endif // SIMULATOR_COMMONCLASS_PROJECTFINGERPRINT_H
