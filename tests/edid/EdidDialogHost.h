#ifndef TESTS_EDID_EDIDDIALOGHOST_H
#define TESTS_EDID_EDIDDIALOGHOST_H

#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "tests/support/RecordingHost.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

class CCustomComboBox;
class CCustomLabel;
class CCustomSpinBox;
class QCheckBox;
class QPushButton;

/// A recording host with one 1080p interface, on a machine that never waits. The record also notes the waits
/// and what the progress bar and the message boxes do, between the host calls.
class CEdidHost : public QObject, public CRecordingHost
{
    Q_OBJECT

public:
    CEdidHost();
    ~CEdidHost() override;

    /// A setting as the host would hold it.
    static SEdidSetting Setting(QSize size, quint8 byRate, quint8 byFlags = 0x12);

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

    std::vector<unsigned int> vecWaits; ///< microseconds, in order
    std::vector<int> vecPercents;       ///< what the progress bar showed at each wait
    std::function<void()> funcOnWait;   ///< run at each wait
    QString strProductType = QStringLiteral("debian");
    QString strProductVersion = QStringLiteral("12");

private:
    void NoteWait(unsigned int nMicroseconds);

    SEdidEnvironment m_environmentBefore;
};

/// The inside of a dialog: its controls, and the values that no control can set.
class CEdidSetDlgProbe
{
public:
    explicit CEdidSetDlgProbe(CEdidSetDlg& dlg)
        : m_dlg(dlg)
    {}

    CCustomComboBox& Resolution() const { return *m_dlg.m_pResolutionComboBox; }
    CCustomComboBox& Rate() const { return *m_dlg.m_rowRate.pComboBox; }
    CCustomComboBox& Depth() const { return *m_dlg.m_rowDepth.pComboBox; }
    CCustomComboBox& Format() const { return *m_dlg.m_rowFormat.pComboBox; }
    CCustomComboBox& Standard() const { return *m_dlg.m_rowStandard.pComboBox; }
    CCustomLabel& FormatLabel() const { return *m_dlg.m_rowFormat.pLabel; }
    CCustomLabel& StandardLabel() const { return *m_dlg.m_rowStandard.pLabel; }
    CCustomLabel& SizeLabel() const { return *m_dlg.m_pSizeLabel; }
    CCustomLabel& TimesLabel() const { return *m_dlg.m_pTimesLabel; }
    CCustomSpinBox& Width() const { return *m_dlg.m_pWidthSpinBox; }
    CCustomSpinBox& Height() const { return *m_dlg.m_pHeightSpinBox; }
    QCheckBox& ConnectPC() const { return *m_dlg.m_pConnectPCCheckBox; }
    CCustomLabel& Error() const { return *m_dlg.m_pErrorLabel; }
    QPushButton& OK() const { return *m_dlg.m_pOkButton; }
    QPushButton& Cancel() const { return *m_dlg.m_pCancelButton; }
    const QList<QAction*>& ResolutionActions() const { return m_dlg.m_listResolutionActions; }

    int& ResolutionIndex() const { return m_dlg.m_nResolutionIndex; }
    int& RateIndex() const { return m_dlg.m_nRateIndex; }
    int& DepthIndex() const { return m_dlg.m_nColorDepthIndex; }
    int& FormatIndex() const { return m_dlg.m_nColorFormatIndex; }
    unsigned char& FormatFlags() const { return m_dlg.m_byFormatFlags; }
    unsigned char& TimingStandard() const { return m_dlg.m_byTimingStandard; }
    unsigned char& ConnectByte() const { return m_dlg.m_bConnectPC; }

private:
    CEdidSetDlg& m_dlg;
};

/// A dialog with its host: what most tests start from.
class CEdidDialog
{
public:
    /// @param host set up beforehand: the dialog reads it while it is built
    explicit CEdidDialog(CEdidHost& host, int nInterfaceId = 1, bool bLowRateOnly = false);

    CEdidHost& host;
    CEdidSetDlg dlg;
    CEdidSetDlgProbe probe;
};

namespace EdidDialog {

/// The texts of a combo box's menu; empty when it has none.
QStringList MenuTexts(const QPushButton& comboBox);
/// The texts of the checked actions of a combo box's menu.
QStringList CheckedTexts(const QPushButton& comboBox);
/// Chooses the entry with that text as the operator would, by the action's own signal.
void Choose(const QPushButton& comboBox, const QString& strText);

} // namespace EdidDialog

#endif // TESTS_EDID_EDIDDIALOGHOST_H
