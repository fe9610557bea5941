#ifndef SIMULATOR_COMMONCLASS_SIMULATEDPROJECT_H
#define SIMULATOR_COMMONCLASS_SIMULATEDPROJECT_H

#include "host/CommonClass/EdidBlockSize.h"
#include "host/HardwareSupport/CanvasLimit.h"
#include "host/HardwareSupport/EdidSetting.h"
#include "host/HardwareSupport/SenderEdidLimitData.h"
#include "host/HostExport.h"
#include "host/TevraData/Sender.h"
#include "simulator/CommonClass/FileProblem.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QStringList>

#include <deque>
#include <optional>

/// @file
/// All state of the simulated host, as plain values.

/// Largest id of a sender. Ids are never reused; a project that has used this id accepts no more senders.
constexpr int c_nLastSenderId = 1000000000;

/// A video input: its limits and its contents.
struct SSimulatedInput
{
    int nInterfaceId = 0;       ///< as the dialogs number video interfaces; unique in its sender
    QString strName;            ///< as the operator knows the input
    CSenderEdidLimitData limit; ///< what the input takes
    /// Largest pixel clock, MHz; checked when `limit.bLimitByPixelClock` is set.
    int nMaxPixelClock = 0;

    /// The setting in force; empty: the input has none, and the EDID dialog opens with its own defaults.
    std::optional<SEdidSetting> setting;
    /// The EDID memory: the 128 bytes read by a computer, or empty.
    QByteArray baEdid;
};

/// What a sender can do. Taken from the catalogue when the sender is added; each can be changed.
struct SSenderCapability
{
    int nType = 0;                    ///< sender type code
    QString strModel;                 ///< name of the type
    bool bVideoProcessor = true;      ///< depth, canvas and rate are limited by and written to hardware
    bool bSupport10Bit = false;       ///< 10-bit output is offered
    bool bSupport12Bit = false;       ///< 12-bit output is offered
    bool bExtendedEdid = false;       ///< it accepts the full EDID record
    bool bCanvasFromHardware = false; ///< its canvas is read from the hardware
    bool bExtensionBlock = false;     ///< it can present modes that need an EDID extension block
    SCanvasLimit canvasLimit;         ///< largest canvas
};

/// How a sender misbehaves, so that an operator can provoke every message.
struct SSenderFaults
{
    qint64 nEdidWriteResult = 0;  ///< result of `SetEdidSetting`; 0 is success
    bool bBasicEdidFails = false; ///< `ApplyBasicEdid` reports that the write failed
    int nWriteDelay = 0;          ///< ms that every write to the hardware takes
};

/// A sender.
struct SSimulatedSender
{
    int nId = 0;                            ///< unique in the project; names the background picture
    QString strName;                        ///< as the operator named it
    SSenderCapability capability;           ///< what it can do
    CSender record;                         ///< the record that the dialogs read and write in place
    std::deque<SSimulatedInput> listInputs; ///< in the order of the catalogue

    QSize sizeHardwareCanvas = QSize(0, 0); ///< (0, 0): none
    int nOutputDepthMode = 0;               ///< 0, 1, 2 for 8, 10, 12 bit
    bool b50Hz = false;                     ///< the output runs at 50 Hz
    float fMaxInputFrameRate = 0;           ///< Hz; 0: unknown
    /// The output limit flags that the sender reports. Empty: computed from canvas, ports and input settings.
    std::optional<unsigned int> outputLimitFlags;
    SSenderFaults faults; ///< how it misbehaves

    /// The input with that interface id, or null. It stays where it is until the project is replaced.
    COMMONCLASS_EXPORT SSimulatedInput* FindInput(int nInterfaceId);
    /// The same, to read.
    COMMONCLASS_EXPORT const SSimulatedInput* FindInput(int nInterfaceId) const;
};

/// How processors are found and addressed.
struct SAddressing
{
    bool bIPAddressMode = true;           ///< processors are addressed by IP
    int nDetectStrategy = 2;              ///< 2 asks for a start address when processors are added by hand
    std::optional<int> nAddedSenderCount; ///< empty: the number of senders in the project
    int nCountLimitByIP = 255;            ///< largest number of processors when they are addressed by IP
    int nCountLimitOtherwise = 20;        ///< largest number of processors when they are not
    QStringList listDetected;             ///< addresses found by the network search, dotted decimal
};

/// The lists of processor addresses: entries `address(name)`. All three have the same length.
struct SAddressLists
{
    QStringList listStored;   ///< the list that is in force
    QStringList listOriginal; ///< each entry as it was first stored
    QStringList listCurSet;   ///< the copy that is being set
};

/// A chromaticity, CIE 1931 xy.
struct SProjectPoint
{
    float fX = 0; ///< x
    float fY = 0; ///< y
};

/// A point of a colour group.
struct SProjectColourPoint
{
    SProjectPoint place;   ///< where it is
    bool bMovable = false; ///< the operator may drag it
    bool bDotShown = true; ///< its dot is drawn
};

/// A colour group of the chromaticity chart, as the chart keeps it.
struct SProjectColourGroup
{
    int nKey = 0;              ///< the chart's key of the group
    QString strName;           ///< legend text
    bool bRgb = true;          ///< primaries; else secondary colours
    SProjectColourPoint red;   ///< red, or cyan of secondary colours
    SProjectColourPoint green; ///< green, or magenta of secondary colours
    SProjectColourPoint blue;  ///< blue, or yellow of secondary colours
    SProjectColourPoint white; ///< white point
    bool bVisible = true;      ///< the group is drawn
    bool bNoteShown = true;    ///< it has a row in the legend
    bool bOwnColour = false;   ///< else the chart's palette gives the colour of the lines
    quint8 byRed = 0;          ///< red of the lines' colour
    quint8 byGreen = 0;        ///< green of the lines' colour
    quint8 byBlue = 0;         ///< blue of the lines' colour
    int nPenStyle = 0;         ///< `Qt::PenStyle` of the lines
    float fPenWidth = 1;       ///< width of the lines, pixels
};

/// What the operator made of the chromaticity chart.
struct SProjectColour
{
    QList<SProjectColourGroup> listGroups; ///< in key order
    QList<SProjectPoint> listRegion;       ///< vertices of the feasible region
    bool bRegionOn = false;                ///< dragged points are held in the region
};

/// The project.
struct SSimulatedProject
{
    bool bDemoMode = true;   ///< nothing but simulated senders: there is no hardware to wait for
    int nDemoSenderType = 0; ///< sender type of the demo project, an `enDemoSenderType`
    int nCurSender = 0;      ///< index of the sender that the dialogs edit
    int nNextSenderId = 1;   ///< id of the next sender that is added
    std::deque<SSimulatedSender>
        listSenders;         ///< a deque: records stay where they are while senders are added
    SAddressing addressing;  ///< how processors are found
    SAddressLists addresses; ///< the lists that the addressing dialogs edit
    /// Measurements of a wall's modules, the lines of a CSV text with its heading; empty without any.
    QStringList listMeasurements;
    std::optional<SProjectColour> colour; ///< empty: the chart is as it starts

    /// The sender with that index, or null.
    COMMONCLASS_EXPORT SSimulatedSender* FindSender(int nSender);
    /// The same, to read.
    COMMONCLASS_EXPORT const SSimulatedSender* FindSender(int nSender) const;
};

/// The project as JSON, without the header of a project file.
COMMONCLASS_EXPORT QJsonObject ProjectToJson(const SSimulatedProject& project);

/// Reads and checks a project. On a problem the result is of no use.
COMMONCLASS_EXPORT SSimulatedProject ProjectFromJson(const QJsonObject& object, SFileProblem& problem);

/// The address lists alone, as they stand in the project's JSON under "addresses".
COMMONCLASS_EXPORT QJsonObject AddressListsToJson(const SAddressLists& lists);

#endif // SIMULATOR_COMMONCLASS_SIMULATEDPROJECT_H
