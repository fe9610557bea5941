#ifndef TESTS_OUTPUT_CANVASPROBE_H
#define TESTS_OUTPUT_CANVASPROBE_H

#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/RecordingHost.h"

#include <QMenu>
#include <QPushButton>
#include <QtTest>

/// What the tests of the canvas dialog share.
namespace CanvasProbe {

using OutputDialogSupport::Button;

inline const QSize c_sizeValid(300, 125);
inline const QSize c_sizeError(300, 160);

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomSpinBox& Width() const { return *dialog.findChildren<CCustomSpinBox*>().at(0); }
    CCustomSpinBox& Height() const { return *dialog.findChildren<CCustomSpinBox*>().at(1); }
    CCustomComboBox& Combo() const { return *dialog.findChild<CCustomComboBox*>(); }
    QPushButton& Ok() const { return *Button(dialog, "确定"); }
    CCustomLabel& Error() const
    {
        for (CCustomLabel* pLabel : dialog.findChildren<CCustomLabel*>()) {
            if (pLabel->wordWrap())
                return *pLabel;
        }
        qFatal("no error label");
    }
    QSize Fields() const { return {int(Width().value()), int(Height().value())}; }
    /// The error that shows, empty when none does.
    QString ShownError() const { return Error().isHidden() ? QString() : Error().text(); }
    void Call(const char* szSlot, int nId)
    {
        QVERIFY(QMetaObject::invokeMethod(&dialog, szSlot, Q_ARG(int, nId)));
    }

    CSetCanvasDlg dialog{nullptr};
};

/// What an operator does: the whole text of a field is replaced by keys.
inline void TypeOver(CCustomSpinBox& spin, int nValue)
{
    spin.selectAll();
    QTest::keyClicks(&spin, QString::number(nValue));
}

inline CRecordingHost& Limited(CRecordingHost& host)
{
    host.senderLogic.canvasLimit = SCanvasLimit{3840, 2160, 8294400};
    return host;
}

} // namespace CanvasProbe

#endif // TESTS_OUTPUT_CANVASPROBE_H
