#ifndef TESTS_OUTPUT_CANVASPROBE_H
#define TESTS_OUTPUT_CANVASPROBE_H

#include "SenderModuleDialog/output/SetCanvasDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/RecordingHost.h"

#include <QMenu>
#include <QPushButton>
#include <QtTest>

/// What the tests of the canvas dialog share.
namespace CanvasProbe {

inline const QSize c_sizeValid(300, 125);
inline const QSize c_sizeError(300, 160);

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomSpinBox& Width() const { return Control<CCustomSpinBox>(dialog, "width"); }
    CCustomSpinBox& Height() const { return Control<CCustomSpinBox>(dialog, "height"); }
    CCustomComboBox& Combo() const { return Control<CCustomComboBox>(dialog, "size"); }
    QPushButton& Ok() const { return Control<QPushButton>(dialog, "ok"); }
    QPushButton& Cancel() const { return Control<QPushButton>(dialog, "cancel"); }
    CCustomLabel& Error() const { return Control<CCustomLabel>(dialog, "error"); }
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
