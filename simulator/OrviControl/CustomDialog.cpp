#include "host/OrviControl/CustomDialog.h"

#include "simulator/OrviControl/Theme.h"

#include <QAbstractSpinBox>
#include <QEvent>
#include <QLineEdit>

namespace {

/// Selects the content of the field that has the focus when a dialog opens, so that typing replaces it.
class CFirstFieldSelector : public QObject
{
public:
    explicit CFirstFieldSelector(QDialog* pDialog)
        : QObject(pDialog)
    {
        pDialog->installEventFilter(this);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Show && !pEvent->spontaneous())
            m_bOpening = true;
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
    new CFirstFieldSelector(this);
}

CCustomDialog::~CCustomDialog() = default;
