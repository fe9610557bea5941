#ifndef SENDERMODULEDIALOG_EDID_EDIDSETDLG_H
#define SENDERMODULEDIALOG_EDID_EDIDSETDLG_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/OrviControl/CustomDialog.h"

#include <QList>
#include <QSize>
#include <QString>

#include <memory>

class CCustomSpinBox;
class QAction;
class QMenu;
struct SEdidControls;
struct SEdidModel;
struct SEdidSetting;

/// The modal dialog in which the operator sets the EDID that one video interface of the current sender shows
/// to a computer: resolution, frame rate, colour depth, timing standard and the option "connect to computer".
///
/// The sender's type decides what is offered. The host judges each choice; a verdict stands in the error line
/// and disables OK. OK writes the choice, keeps the GUI thread behind a progress bar for up to 19.4 seconds
/// while the device stores it, and ends with `done(1)` whether the write took or not. Cancel ends with
/// `done(0)`; closing the window writes nothing.
class SENDERMODULEDIALOG_EXPORT CEdidSetDlg : public CCustomDialog
{
    Q_OBJECT

public:
    /// Reads the current sender, its limits and the present setting. A video processor that offers only 8 bit
    /// gets colour depth 8 in its project record, as soon as the dialog opens.
    /// @param nInterfaceId video interface, as the host numbers them
    /// @param bLowRateOnly true leaves out all rates above 50 Hz
    CEdidSetDlg(QWidget* pParent, int nInterfaceId, bool bLowRateOnly);
    ~CEdidSetDlg() override;

    /// What the host said of a basic write. False before OK, after any failure, and after every full write,
    /// a good one too: a full write has no answer to give.
    bool IsSetSuccessed() const;

    /// @name Index translation
    /// Between what a record holds and the indices that the dialog keeps. False: there is no such index.
    /// @{

    /// 0, which is the custom size, when no listed resolution equals the size; false then.
    bool GetIndexByResolution(QSize size, int& nIndex) const;
    /// @param byRate integer rate, Hz; another than the table's leaves the index alone
    bool GetIndexByFrameRate(unsigned char byRate, bool bFractional, int& nIndex) const;
    /// Stores the index in the dialog's present depth, not in the argument, and is always true: intentional.
    bool GetIndexByColorDepth(unsigned char byFlags, int& nIndex);
    /// Always true: flags without a format are taken as the first one.
    bool GetIndexByColorFormat(unsigned char byFlags, int& nIndex) const;
    /// The custom size for 0, a listed resolution above.
    bool GetResolutionByIndex(int nIndex, QSize& size) const;
    /// Clears both results when the index is none of the table's.
    bool GetFrameRateByIndex(int nIndex, unsigned char& byRate, bool& bFractional) const;
    /// Puts the dialog's present depth into the flags: the index counts only where it is above the
    /// table, which gives false. Intentional. A present depth outside the table leaves the flags
    /// without a depth.
    bool GetColorDepthByIndex(int nIndex, unsigned char& byFlags) const;
    /// Puts a format into the flags, which stay as they are when there is none.
    bool GetColorFormatByIndex(int nIndex, unsigned char& byFlags) const;
    /// @}

    /// @name Queries
    /// @{

    /// The option "connect to computer" is shown.
    bool IsShowConnectPC() const;
    /// The connect byte is written as 1 whatever the option says.
    bool IsSenderConnectPC() const;
    /// 2 where all rates above 50 Hz are left out, else 4. Nothing here asks for it; it is for the host.
    int GetRateIndexMax() const;
    /// Largest area at the present rate, pixels.
    int GetMaxAreaByRate() const;
    /// @}

    /// @name Building and refreshing
    /// The stages of the construction, in this order, and the parts of the refresh that follows each change.
    /// The constructor has run the first three: running one again adds a second set of controls, entries
    /// or connections.
    /// @{

    /// Creates the controls and lays them out.
    void InitControl();
    /// Builds the menus from what sender type, interface and host offer. Here a video processor that offers
    /// only 8 bit sets the depth of its project.
    void InitComboBox();
    /// Connects the controls to the slots.
    void InitControlConnect();
    /// Brings every row, the verdict and the window's size into line with the present choice.
    void RefreshWindow();
    /// The resolution's text, and the fields of the custom size. A listed resolution takes the verdict away.
    void RefreshResolution();
    /// The text and the marked entry of the frame rate.
    void RefreshFrameRate();
    /// The text and the marked entry of the colour depth.
    void RefreshColorDepth();
    /// The text and the marked entry of the colour format.
    void RefreshColorFormat();
    /// The timing standard, on the sender types that show it.
    void RefreshEdidStandard();
    /// The option "connect to computer", where `IsShowConnectPC`.
    void RefreshConnectPC();
    /// Has the host judge the present choice (`CVideoSourceLogic::CheckEdidLimit`) and shows its verdict. OK
    /// is disabled unless the verdict is empty or only a notice.
    void RefreshErrorInfo();
    /// @}

public Q_SLOTS:
    /// The width was changed: it is held to 0 and the limit's greatest width, then everything is refreshed.
    void OnWidthSpinBoxValueChanged();
    /// As `OnWidthSpinBoxValueChanged`, for the height.
    void OnHeightSpinBoxValueChanged();
    /// @param index 0 for the custom size, else the place in the resolution list plus one; has no upper bound
    void OnResolutionComboBoxSelect(int index);
    /// @param action its data is a row of the rate table
    void OnRateComboBoxSelect(QAction* action);
    /// @param index 0, 1, 2 for 8, 10, 12 bit; any other value does nothing
    void OnColorDepthComboBoxSelect(int index);
    /// @param index 0 to 3: RGB, YCbCr 4:4:4, 4:2:2, 4:4:0; any other value does nothing
    void OnColorFormatComboBoxSelect(int index);
    /// @param index accepted below the number of colour formats, not of timing standards: intentional
    void OnTimingStandardComboBoxSelect(int index);
    /// Writes the choice to the sender and ends with `done(1)`; a failed write shows a message first. With a
    /// resolution or rate that is not offered, and for a full record a depth or format, it writes nothing,
    /// and the dialog stays open.
    void OnOKPushButtonClicked();
    /// Ends with `done(0)` and writes nothing.
    void OnCancelPushButtonClicked();

private:
    friend class CEdidSetDlgProbe; // tests reach the values that no control can set

    void InitResolutionMenu();
    QAction* AddResolution(QMenu* pMenu, int nIndex, const QString& strText);

    void HoldToLimit(CCustomSpinBox* pSpinBox, int nMaximum);
    void ShowVerdict(const QString& strVerdict);
    void RefreshSize();

    bool Commit();
    bool ChosenSize(QSize& size) const;
    void CommitBasic(int nSender, QSize size, unsigned char byRate);
    bool CommitFull(int nSender, QSize size);
    void WriteFull(int nSender, const SEdidSetting& setting);

    const std::unique_ptr<SEdidModel> m_pModel;
    std::unique_ptr<SEdidControls> m_pControls;
    QList<QAction*> m_listResolutionActions; ///< the custom action too where the menu lacks it
};

#endif // SENDERMODULEDIALOG_EDID_EDIDSETDLG_H
