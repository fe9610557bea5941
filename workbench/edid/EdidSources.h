#ifndef WORKBENCH_EDID_EDIDSOURCES_H
#define WORKBENCH_EDID_EDIDSOURCES_H

#include "workbench/edid/EdidDocument.h"

class QMimeData;

/// What was read, or why nothing was.
struct SEdidSource
{
    QVector<SEdidContent> vecContents; ///< one for each display; none with an error
    QString strError;                  ///< what is wrong with which source, and what to do
};

/// Reading EDIDs from files, the clipboard and what is dropped, in any form.
namespace EdidSources {

/// Reads no more of a file than the largest text that holds an EDID.
SEdidSource FromFile(const QString& strFile);
/// Text from the clipboard.
SEdidSource FromText(const QString& strText);
/// Whether something dropped may hold an EDID: a file or text.
bool CanRead(const QMimeData& data);
SEdidSource FromMime(const QMimeData& data);

} // namespace EdidSources

#endif // WORKBENCH_EDID_EDIDSOURCES_H
