#ifndef SENDERMODULEDIALOG_EDID_EDIDWINDOW_H
#define SENDERMODULEDIALOG_EDID_EDIDWINDOW_H

#include <QSize>
#include <QString>

/// The size of the EDID dialog, which follows the rows that it shows.
namespace EdidWindow {

/// The rows that come and go.
struct SShownRows
{
    bool bConnectPC = true;
    bool bTimingStandard = true;
    bool bError = true;
    bool bFrameRate = true;
    bool bCustomSize = true;
};

/// True on the one system whose dialog keeps the space of the custom row when the row is hidden.
bool KeepsCustomRow(const QString& strProductType, const QString& strProductVersion);

/// The window's size, pixels.
QSize Size(const SShownRows& rows, bool bKeepsCustomRow);

} // namespace EdidWindow

#endif // SENDERMODULEDIALOG_EDID_EDIDWINDOW_H
