#ifndef TESTS_EDID_EDIDDIALOGHOST_H
#define TESTS_EDID_EDIDDIALOGHOST_H

#include "SenderModuleDialog/edid/EdidControls.h"
#include "SenderModuleDialog/edid/EdidEnvironment.h"
#include "SenderModuleDialog/edid/EdidModel.h"
#include "SenderModuleDialog/edid/EdidSetDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "tests/support/Controls.h"
#include "tests/support/RecordingHost.h"

#include <QCheckBox>
#include <QObject>
#include <QPushButton>

#include <memory>
#include <optional>
#include <vector>

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

    CCustomComboBox& Resolution() const { return Control<CCustomComboBox>(m_dlg, "resolution"); }
    CCustomComboBox& Rate() const { return Control<CCustomComboBox>(m_dlg, "rate"); }
    CCustomComboBox& Depth() const { return Control<CCustomComboBox>(m_dlg, "depth"); }
    CCustomComboBox& Format() const { return Control<CCustomComboBox>(m_dlg, "format"); }
    CCustomComboBox& Standard() const { return Control<CCustomComboBox>(m_dlg, "standard"); }
    CCustomLabel& FormatLabel() const { return *m_dlg.m_pControls->rowFormat.pLabel; }
    CCustomLabel& StandardLabel() const { return *m_dlg.m_pControls->rowStandard.pLabel; }
    CCustomLabel& SizeLabel() const { return *m_dlg.m_pControls->pSizeLabel; }
    CCustomLabel& TimesLabel() const { return *m_dlg.m_pControls->pTimesLabel; }
    CCustomSpinBox& Width() const { return Control<CCustomSpinBox>(m_dlg, "width"); }
    CCustomSpinBox& Height() const { return Control<CCustomSpinBox>(m_dlg, "height"); }
    QCheckBox& ConnectPC() const { return Control<QCheckBox>(m_dlg, "connectPC"); }
    CCustomLabel& Error() const { return Control<CCustomLabel>(m_dlg, "error"); }
    QPushButton& OK() const { return Control<QPushButton>(m_dlg, "ok"); }
    QPushButton& Cancel() const { return Control<QPushButton>(m_dlg, "cancel"); }
    const QList<QAction*>& ResolutionActions() const { return m_dlg.m_listResolutionActions; }

    int& ResolutionIndex() const { return m_dlg.m_pModel->nResolutionIndex; }
    int& RateIndex() const { return m_dlg.m_pModel->nRateIndex; }
    int& DepthIndex() const { return m_dlg.m_pModel->nDepthIndex; }
    int& FormatIndex() const { return m_dlg.m_pModel->nFormatIndex; }
    unsigned char& FormatFlags() const { return m_dlg.m_pModel->byFormatFlags; }
    unsigned char& TimingStandard() const { return m_dlg.m_pModel->byTimingStandard; }
    unsigned char& ConnectByte() const { return m_dlg.m_pModel->byConnectPC; }

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
