#include "host/OrviControl/CustomProgressbar.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/Theme.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>

namespace {

constexpr int c_nMaximum = 100; ///< per cent
constexpr int c_nWidth = 300;   ///< pixels

QString BarStyle()
{
    return GetFontStyleSheet(
        Theme::Resolve(
            "QProgressBar{background:@field@; color:@text@; border:1px solid @edge@; border-radius:4px;"
            " text-align:center; min-height:18px; max-height:18px;}"
            "QProgressBar::chunk{background:@selection@; border-radius:3px;}"),
        QStringLiteral("QProgressBar"), Theme::c_nFontSize);
}

} // namespace

CCustomProgressbar::CCustomProgressbar(QWidget* pParent, bool bCancelable)
    : QProgressDialog(pParent)
    , m_bCancelable(bCancelable)
{
    Theme::Apply(this);
    auto* pBar = new QProgressBar(this);
    pBar->setStyleSheet(BarStyle());
    setBar(pBar);
    auto* pLabel = new QLabel(this);
    pLabel->setAlignment(Qt::AlignCenter);
    pLabel->setStyleSheet(
        GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), Theme::c_nFontSize));
    setLabel(pLabel);
    setRange(0, c_nMaximum);
    setMinimumDuration(0);
    setAutoClose(false);
    setAutoReset(false);
    setMinimumWidth(c_nWidth);
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    if (pParent != nullptr)
        setWindowTitle(pParent->window()->windowTitle());
    if (!bCancelable) {
        setCancelButton(nullptr);
        setWindowFlag(Qt::WindowCloseButtonHint, false);
    }
}

CCustomProgressbar::~CCustomProgressbar() = default;

void CCustomProgressbar::SetProgressValue(int nValue)
{
    if (!isVisible())
        show();
    // Only the caller's thread can paint, so a modal progress dialog processes events here. Only this dialog
    // receives input, so no processed event can start the caller's work again.
    setValue(nValue);
}

void CCustomProgressbar::CloseProgress()
{
    // Pending clicks were made during the progress: they must not reach the dialog below.
    if (isVisible())
        QCoreApplication::processEvents();
    reset();
    hide();
}

SProgressOwnerRecord& CCustomProgressbar::GetProgressOwnerRecord()
{
    return m_ownerRecord;
}

void CCustomProgressbar::keyPressEvent(QKeyEvent* pEvent)
{
    // Esc would hide the dialog while the work continues.
    if (m_bCancelable)
        QProgressDialog::keyPressEvent(pEvent);
    else
        pEvent->accept();
}

void CCustomProgressbar::closeEvent(QCloseEvent* pEvent)
{
    if (m_bCancelable)
        QProgressDialog::closeEvent(pEvent);
    else
        pEvent->ignore();
}
