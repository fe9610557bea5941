#include "tests/output/OutputDialogSupport.h"

#include "host/OrviControl/CustomComboBox.h"
#include "tests/support/Controls.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMetaMethod>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <algorithm>

namespace OutputDialogSupport {

namespace {

const char* const c_szLibraryContext = "CCustomDialog";

QStringList s_listWarnings;
QtMessageHandler s_funcPrevious = nullptr;

void KeepWarning(QtMsgType type, const QMessageLogContext& context, const QString& strText)
{
    if (type == QtWarningMsg)
        s_listWarnings.append(strText);
    s_funcPrevious(type, context, strText);
}

bool IsLatin(const QString& strText)
{
    return std::all_of(strText.cbegin(), strText.cend(), [](QChar ch) { return ch.unicode() < 0x100; });
}

} // namespace

QStringList List(std::initializer_list<const char*> listTexts)
{
    QStringList listResult;
    for (const char* szText : listTexts)
        listResult.append(QString::fromUtf8(szText));
    return listResult;
}

QStringList Entries(const CCustomComboBox& combo)
{
    QStringList listTexts;
    for (const QAction* pAction : combo.menu()->actions())
        listTexts.append(pAction->text());
    return listTexts;
}

bool ClickEntry(CCustomComboBox* pCombo, const QString& strText)
{
    bool bClicked = false;
    QMenu* pMenu = pCombo->menu();
    QTimer::singleShot(0, pMenu, [&] {
        for (QAction* pAction : pMenu->actions()) {
            if (pAction->text() != strText || !pMenu->isVisible())
                continue;
            QTest::mouseClick(pMenu, Qt::LeftButton, Qt::NoModifier, pMenu->actionGeometry(pAction).center());
            bClicked = true;
            return;
        }
        pMenu->close();
    });
    QTest::mouseClick(pCombo, Qt::LeftButton);
    return bClicked;
}

void ClickInLoop(QDialog* pDialog, const char* szName)
{
    QTimer::singleShot(0, pDialog, [pDialog, szName] {
        QTest::mouseClick(&Control<QPushButton>(*pDialog, szName), Qt::LeftButton);
    });
}

QStringList Slots(const QMetaObject& metaObject)
{
    QStringList listSlots;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        QStringList listParameters;
        for (int j = 0; j < method.parameterCount(); ++j)
            listParameters.append(
                QString::fromLatin1(method.parameterTypes().at(j) + ' ' + method.parameterNames().at(j)));
        if (method.methodType() == QMetaMethod::Slot)
            listSlots.append(QStringLiteral("%1(%2)").arg(QString::fromLatin1(method.name()),
                                                          listParameters.join(QStringLiteral(", "))));
    }
    return listSlots;
}

CContextTranslator::CContextTranslator()
{
    QCoreApplication::installTranslator(this);
}

CContextTranslator::~CContextTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QString CContextTranslator::translate(const char* szContext, const char* szSource,
                                      const char* szDisambiguation, int n) const
{
    const QString strSource = QString::fromUtf8(szSource);
    if (IsLatin(strSource))
        return {};
    if (!m_listSources.contains(strSource))
        m_listSources.append(strSource);
    if (qstrcmp(szContext, c_szLibraryContext) != 0 || szDisambiguation != nullptr || n != -1)
        m_listStrays.append(strSource);
    return QStringLiteral("<%1>").arg(strSource);
}

QString Marked(const char* szSource)
{
    return QStringLiteral("<%1>").arg(QString::fromUtf8(szSource));
}

CWarnings::CWarnings()
{
    s_listWarnings.clear();
    s_funcPrevious = qInstallMessageHandler(KeepWarning);
}

CWarnings::~CWarnings()
{
    qInstallMessageHandler(s_funcPrevious);
}

QStringList CWarnings::With(const QString& strWord) const
{
    return s_listWarnings.filter(strWord);
}

CFileAnswers::CFileAnswers()
{
    qApp->installEventFilter(this);
}

CFileAnswers::~CFileAnswers()
{
    qApp->removeEventFilter(this);
}

bool CFileAnswers::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    auto* pDialog = qobject_cast<QFileDialog*>(pWatched);
    if (pDialog == nullptr || pEvent->type() != QEvent::Show)
        return QObject::eventFilter(pWatched, pEvent);
    m_listShown.append({pDialog->windowTitle(), pDialog->nameFilters(), pDialog->directory().absolutePath(),
                        pDialog->parentWidget()});
    const QString strPath = m_listPlanned.isEmpty() ? QString() : m_listPlanned.takeFirst();
    // Answered from the dialog's own event loop, as an operator would.
    QTimer::singleShot(0, pDialog, [pDialog, strPath] {
        if (strPath.isEmpty()) {
            pDialog->reject();
            return;
        }
        pDialog->selectFile(strPath);
        QMetaObject::invokeMethod(pDialog, "accept");
    });
    return QObject::eventFilter(pWatched, pEvent);
}

} // namespace OutputDialogSupport
