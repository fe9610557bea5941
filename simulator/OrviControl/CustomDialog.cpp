#include "host/OrviControl/CustomDialog.h"

#include "simulator/OrviControl/FieldWheel.h"
#include "simulator/OrviControl/Theme.h"

#include <QAbstractSpinBox>
#include <QEvent>
#include <QLineEdit>

namespace {

/// Prepares the fields of a dialog that opens: the content of the field with the focus is selected, so that
/// typing replaces it, and the mouse wheel changes none but that field.
class CFieldPreparer : public QObject
{
public:
    explicit CFieldPreparer(QDialog* pDialog)
        : QObject(pDialog)
    {
        pDialog->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Show && !pEvent->spontaneous()) {
            m_bOpening = true;
            FieldWheel::NeedsFocusInAll(qobject_cast<QWidget*>(pWatched));
        }
        // The first field gets the focus while the window becomes active, after this event.
        if (pEvent->type() == QEvent::WindowActivate && m_bOpening) {
            m_bOpening = false;
            QMetaObject::invokeMethod(
                this, [this] { Select(); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(pWatched, pEvent);
    }

private:
    void Select() const
    {
        QWidget* pField = qobject_cast<QWidget*>(parent())->focusWidget();
        if (auto* pSpinBox = qobject_cast<QAbstractSpinBox*>(pField))
            pSpinBox->selectAll();
        else if (auto* pLineEdit = qobject_cast<QLineEdit*>(pField))
            pLineEdit->selectAll();
    }

    bool m_bOpening = false; ///< shown, and not active since
};

} // namespace

CCustomDialog::CCustomDialog(QWidget* pParent, bool bResizable)
    : QDialog(pParent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint, !bResizable);
    Theme::Apply(this);
    new CFieldPreparer(this);
}

CCustomDialog::~CCustomDialog() = default;
