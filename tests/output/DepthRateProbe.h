#ifndef TESTS_OUTPUT_DEPTHRATEPROBE_H
#define TESTS_OUTPUT_DEPTHRATEPROBE_H

#include "SenderModuleDialog/output/SetDepthRateDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/RecordingHost.h"

#include <QAction>
#include <QLayout>
#include <QMenu>
#include <QPushButton>
#include <QtTest>

/// What the tests of the rate and depth dialog share.
namespace DepthRateProbe {

using OutputDialogSupport::List;

inline const QSize c_sizePlain(348, 130);
inline const QSize c_sizeWarning(348, 175);

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomComboBox& Rate() const { return Control<CCustomComboBox>(dialog, "rate"); }
    CCustomComboBox& Depth() const { return Control<CCustomComboBox>(dialog, "depth"); }
    QPushButton& Ok() const { return Control<QPushButton>(dialog, "ok"); }
    QPushButton& Cancel() const { return Control<QPushButton>(dialog, "cancel"); }
    QWidget& ButtonPanel() const { return *Ok().parentWidget(); }
    QWidget& FieldPanel() const { return *Rate().parentWidget(); }
    CCustomLabel& Warning() const { return Control<CCustomLabel>(dialog, "warning"); }
    /// Chooses an entry of either menu, as its own signal would.
    void Choose(const char* szText)
    {
        for (CCustomComboBox* pCombo : {&Rate(), &Depth()}) {
            for (QAction* pAction : pCombo->menu()->actions()) {
                if (pAction->text() == QString::fromLatin1(szText))
                    pAction->trigger();
            }
        }
    }
    void Press(int nId) { QVERIFY(QMetaObject::invokeMethod(&dialog, "ButtonClicked", Q_ARG(int, nId))); }

    CSetDepthRateDlg dialog{nullptr};
};

inline void SetRecord(CRecordingHost& host, int nRate, int nDepth)
{
    host.projectData.sender.nFrameRate = nRate;
    host.projectData.sender.nColorDepth = nDepth;
}

inline QPair<int, int> Record(const CRecordingHost& host)
{
    return {host.projectData.sender.nFrameRate, host.projectData.sender.nColorDepth};
}

inline const QStringList& Writes()
{
    static const QStringList s_listNames = List({"SetOutput50Hz", "SetOutputDepthMode", "PostLabelEvent"});
    return s_listNames;
}

} // namespace DepthRateProbe

#endif // TESTS_OUTPUT_DEPTHRATEPROBE_H
