#include "tests/edid/EdidDialogHost.h"

#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "host/OrviControl/CustomProgressbar.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMenu>

#include <algorithm>

CEdidHost::CEdidHost()
    : m_environmentBefore(EdidEnvironment())
{
    videoSourceLogic.limit.nMaxWidth = 4096;
    videoSourceLogic.limit.nMaxHeight = 2160;
    videoSourceLogic.limit.nMaxArea = 2304000;
    videoSourceLogic.limit.listResolution = {QSize(1280, 720), QSize(1920, 1080), QSize(1920, 1200)};
    EdidEnvironment() = {
        [this](unsigned int nMicroseconds) { NoteWait(nMicroseconds); },
        [this] { return strProductType; },
        [this] { return strProductVersion; },
    };
    qApp->installEventFilter(this);
}

CEdidHost::~CEdidHost()
{
    EdidEnvironment() = m_environmentBefore;
}

SEdidSetting CEdidHost::Setting(QSize size, quint8 byRate, quint8 byFlags)
{
    SEdidSetting setting;
    setting.wWidth = quint16(size.width());
    setting.wHeight = quint16(size.height());
    setting.byRate = byRate;
    setting.byFormatFlags = byFlags;
    return setting;
}

void CEdidHost::NoteWait(unsigned int nMicroseconds)
{
    vecWaits.push_back(nMicroseconds);
    for (const QWidget* pWidget : QApplication::topLevelWidgets()) {
        if (const auto* pProgressbar = qobject_cast<const CCustomProgressbar*>(pWidget))
            vecPercents.push_back(pProgressbar->value());
    }
    record.Add(QStringLiteral("wait(%1)").arg(nMicroseconds));
    if (funcOnWait)
        funcOnWait();
}

bool CEdidHost::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (qobject_cast<CCustomProgressbar*>(pWatched) != nullptr) {
        if (pEvent->type() == QEvent::Show)
            record.Add(QStringLiteral("bar shown"));
        if (pEvent->type() == QEvent::Hide)
            record.Add(QStringLiteral("bar hidden"));
    }
    if (qobject_cast<CCustomMessageBox*>(pWatched) != nullptr && pEvent->type() == QEvent::Show)
        record.Add(QStringLiteral("message"));
    return QObject::eventFilter(pWatched, pEvent);
}

CEdidDialog::CEdidDialog(CEdidHost& hostOfDialog, int nInterfaceId, bool bLowRateOnly)
    : host(hostOfDialog)
    , dlg(nullptr, nInterfaceId, bLowRateOnly)
    , probe(dlg)
{}

namespace EdidDialog {

namespace {

QList<QAction*> Actions(const QPushButton& comboBox)
{
    return comboBox.menu() == nullptr ? QList<QAction*>() : comboBox.menu()->actions();
}

} // namespace

QStringList MenuTexts(const QPushButton& comboBox)
{
    QStringList listTexts;
    for (const QAction* pAction : Actions(comboBox))
        listTexts.append(pAction->text());
    return listTexts;
}

QStringList CheckedTexts(const QPushButton& comboBox)
{
    QStringList listTexts;
    for (const QAction* pAction : Actions(comboBox)) {
        if (pAction->isChecked())
            listTexts.append(pAction->text());
    }
    return listTexts;
}

void Choose(const QPushButton& comboBox, const QString& strText)
{
    const QList<QAction*> listActions = Actions(comboBox);
    const auto itAction = std::find_if(listActions.cbegin(), listActions.cend(),
                                       [&](const QAction* pAction) { return pAction->text() == strText; });
    if (itAction == listActions.cend())
        qFatal("the menu has no entry \"%s\"", qPrintable(strText));
    (*itAction)->trigger();
}

} // namespace EdidDialog
