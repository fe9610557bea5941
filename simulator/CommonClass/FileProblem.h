#ifndef SIMULATOR_COMMONCLASS_FILEPROBLEM_H
#define SIMULATOR_COMMONCLASS_FILEPROBLEM_H

#include "host/HostExport.h"

#include <QMetaType>
#include <QString>

/// What is wrong with a file: which file, where in it, what, and what to do about it.
struct COMMONCLASS_EXPORT SFileProblem
{
    QString strFile; ///< path of the file
    QString
        strPlace;    ///< path of the value, such as `senders[2].inputs[0].setting.width`; empty for the whole
    QString strWhat; ///< empty: there is no problem
    QString strAdvice; ///< what the person can do

    /// Whether there is a problem.
    bool IsSet() const { return !strWhat.isEmpty(); }
    /// All of it, for a message.
    QString Text() const;
};

Q_DECLARE_METATYPE(SFileProblem)

#endif // SIMULATOR_COMMONCLASS_FILEPROBLEM_H
