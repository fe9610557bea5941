#ifndef SENDERMODULEDIALOG_EDID_EDIDMODEL_H
#define SENDERMODULEDIALOG_EDID_EDIDMODEL_H

#include "SenderModuleDialog/edid/EdidWindow.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"

#include <QSize>
#include <QString>

#include <optional>

struct SEdidSetting;

/// What a row with one choice shows.
struct SEdidRow
{
    std::optional<QString> text; ///< of the combo box; nothing leaves it as it is
    int nChecked = 0;            ///< data of the menu entry that is checked
    bool bVisible = true;
};

/// The model of the EDID dialog: what it was opened for, what the host allows, and what is chosen. Each
/// handler changes one value and refreshes the window from them all.
struct SEdidModel
{
    SEdidModel(int nInterface, bool bLowRate)
        : nInterfaceId(nInterface)
        , bLowRateOnly(bLowRate)
    {}

    const int nInterfaceId;
    const bool bLowRateOnly; ///< no rate above 50 Hz
    int nSenderType = 0;
    CSenderEdidLimitData limit;

    QSize sizeCustom = QSize(-1, -1); ///< the size that the dialog opened with
    unsigned char byFormatFlags = 0;  ///< bits 1 to 3 colour depth, bits 4 to 7 colour format
    unsigned char byTimingStandard = 0;
    unsigned char byConnectPC = 0;
    int nResolutionIndex = 0; ///< 0 custom, n entry n - 1 of the resolution list
    int nRateIndex = 0;
    int nDepthIndex = 0;
    int nFormatIndex = 0;

    EdidWindow::SShownRows rows;
    bool bSetSuccessed = false; ///< what the host said of a basic write

    /// Takes the choices from a setting of the host.
    void Read(const SEdidSetting& setting);
    /// The place of a listed resolution plus one, 0 when it is not listed.
    int ResolutionIndexOf(QSize size) const;
    /// The custom size for 0, a listed resolution above; nothing beyond the list.
    std::optional<QSize> ResolutionAt(int nIndex) const;
    /// The size to judge: a listed one, else the typed one.
    QSize JudgedSize(QSize sizeTyped) const;
    /// The largest area in pixels, or the pixel clock in MHz, by which the host judges a size.
    int LimitOf(QSize size) const;

    /// @name Rows with one choice
    /// @{
    SEdidRow RateRow() const;
    SEdidRow FormatRow() const;
    SEdidRow StandardRow() const;
    /// @}
};

#endif // SENDERMODULEDIALOG_EDID_EDIDMODEL_H
