#include "SenderModuleDialog/DialogFrame.h"

#include "SenderModuleDialog/Constants.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "host/OrviControl/Style.h"
#include "host/QtCompat.h"

#include <QAction>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStringList>
#include <QTextLayout>
#include <QTextOption>

#include <limits>

namespace DialogFrame {

namespace {

// The message box knows its buttons by number. A message has button 1 alone. A question has 2 (yes) and 4
// (no), and its default is the button 8 that is not shown: Enter alone agrees to nothing.
constexpr auto c_btnOk = CCustomMessageBox::StandardButton(1);
constexpr auto c_btnYes = CCustomMessageBox::StandardButton(2);
constexpr auto c_btnQuestionDefault = CCustomMessageBox::StandardButton(8);
constexpr int c_nQuestionButtons = 6;

/// A message waits for the operator, however long.
constexpr int c_nNoTimeout = std::numeric_limits<int>::max();

QString StyleSheet(const QString& strStyle, const char* szSelector)
{
    return GetFontStyleSheet(strStyle, QString::fromLatin1(szSelector), c_nFontSize);
}

/// The lines of a text when it is wrapped at a width, pixels; a word that is too long is wrapped too.
QStringList WrappedLines(QString strText, const QFont& font, int nWidth)
{
    strText.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(strText, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList listLines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(nWidth);
        listLines.append(strText.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return listLines;
}

/// The first lines of a text, the last of them with an ellipsis; the text itself when it has no more lines.
QString FirstLines(const QString& strText, const QFont& font, int nWidth, int nLines)
{
    constexpr QChar c_chEllipsis(0x2026);
    QStringList listLines = WrappedLines(strText, font, nWidth);
    if (listLines.size() <= nLines)
        return strText;
    listLines = listLines.mid(0, nLines);
    listLines.last() = QFontMetrics(font).elidedText(listLines.last() + c_chEllipsis, Qt::ElideRight, nWidth);
    return listLines.join(QLatin1Char('\n'));
}

} // namespace

void StyleCaption(CCustomLabel* pLabel)
{
    pLabel->setStyleSheet(StyleSheet(g_labelNoFrameStyle, "QLabel"));
}

void StyleCaption(QWidget* pLabel)
{
    pLabel->setStyleSheet(StyleSheet(g_labelNoFrameStyle, "QLabel"));
}

void StyleWarning(CCustomLabel* pLabel)
{
    pLabel->setStyleSheet(StyleSheet(g_labelWarnStyle, "QLabel"));
}

void StyleButton(QPushButton* pButton)
{
    pButton->setStyleSheet(StyleSheet(g_pushButtonStyle, "QPushButton"));
}

void StyleMenu(QMenu* pMenu)
{
    pMenu->setStyleSheet(StyleSheet(g_menuStyle, "QMenu"));
}

void StyleCheckBox(QWidget* pCheckBox)
{
    pCheckBox->setStyleSheet(StyleSheet(g_checkBoxStyle, "QCheckBox"));
}

void StyleSpinBox(QWidget* pSpinBox, const char* szSelector)
{
    pSpinBox->setStyleSheet(StyleSheet(g_doubleSpinBoxStyle, szSelector));
}

void StyleWith(QWidget* pWidget, const char* szStyle, const char* szSelector)
{
    pWidget->setStyleSheet(StyleSheet(QString::fromLatin1(szStyle), szSelector));
}

void ShowMessage(QWidget* pParent, const QString& strText)
{
    CCustomMessageBox::information(pParent, strText, c_btnOk, c_btnOk, c_nNoTimeout);
}

bool Ask(QWidget* pParent, const QString& strText)
{
    const auto buttons = CCustomMessageBox::StandardButtons(QFlag(c_nQuestionButtons));
    return CCustomMessageBox::question(pParent, strText, buttons, c_btnQuestionDefault) == c_btnYes;
}

QMenu* CreateMenu(QWidget* pParent, const std::vector<SMenuEntry>& vecEntries)
{
    auto* pMenu = new QMenu(pParent);
    StyleMenu(pMenu);
    for (const SMenuEntry& entry : vecEntries)
        AddEntry(pMenu, entry);
    return pMenu;
}

QAction* AddEntry(QMenu* pMenu, const SMenuEntry& entry)
{
    auto* pAction = new QAction(entry.strText, pMenu->parent());
    pAction->setData(entry.nData);
    pMenu->addAction(pAction);
    return pAction;
}

void CheckEntry(const QList<QAction*>& listActions, int nData)
{
    bool bFound = false;
    for (QAction* pAction : listActions) {
        const bool bMatches = !bFound && pAction->data() == nData;
        pAction->setCheckable(true);
        pAction->setChecked(bMatches);
        bFound = bFound || bMatches;
    }
}

void NameControl(QWidget* pControl, const char* szName, const QString& strAccessibleName)
{
    pControl->setObjectName(QString::fromLatin1(szName));
    pControl->setAccessibleName(strAccessibleName);
}

void NameControl(QWidget* pControl, const char* szName, QLabel* pCaption)
{
    NameControl(pControl, szName, pCaption->text());
    pCaption->setBuddy(pControl);
}

CCustomLabel* CreateLabel(QWidget* pParent, const QString& strText, Qt::Alignment alignment)
{
    auto* pLabel = new CCustomLabel(strText, pParent, Qt::WindowFlags());
    pLabel->setAlignment(alignment);
    return pLabel;
}

CCustomLabel* CreateCaption(QWidget* pParent, const QString& strText, Qt::Alignment alignment)
{
    CCustomLabel* pLabel = CreateLabel(pParent, strText, alignment);
    StyleCaption(pLabel);
    return pLabel;
}

SOkCancel SOkCancel::Create(QWidget* pParent, const char* szOk)
{
    SOkCancel buttons;
    buttons.pOk = new QPushButton(CCustomDialog::tr(szOk), pParent);
    buttons.pCancel = new QPushButton(CCustomDialog::tr("取消"), pParent);
    NameControl(buttons.pOk, "ok", buttons.pOk->text());
    NameControl(buttons.pCancel, "cancel", buttons.pCancel->text());
    return buttons;
}

void SOkCancel::Style() const
{
    StyleButton(pOk);
    StyleButton(pCancel);
}

void SOkCancel::SetFixedSize(QSize size) const
{
    pOk->setFixedSize(size);
    pCancel->setFixedSize(size);
}

void SOkCancel::SetFixedHeight(int nHeight) const
{
    pOk->setFixedHeight(nHeight);
    pCancel->setFixedHeight(nHeight);
}

void SOkCancel::Connect(const std::function<void(int nID)>& funcAction, int nOk, int nCancel) const
{
    QObject::connect(pOk, &QPushButton::clicked, pOk->parentWidget(), [=] { funcAction(nOk); });
    QObject::connect(pCancel, &QPushButton::clicked, pCancel->parentWidget(), [=] { funcAction(nCancel); });
}

QHBoxLayout* CreateOkCancelRow(QWidget* pParent, const std::function<void(int nID)>& funcAction)
{
    const SOkCancel buttons = SOkCancel::Create(pParent, QT_TRANSLATE_NOOP("CCustomDialog", "确定"));
    buttons.Style();
    buttons.SetFixedSize(c_sizeButton);
    buttons.Connect(funcAction);
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(buttons.pOk);
    pRow->addWidget(buttons.pCancel);
    return pRow;
}

void Finish(QDialog* pDialog, enResult result)
{
    pDialog->done(result);
    QtCompat::CloseHidden(*pDialog);
}

void ShowWrapped(CCustomLabel* pLabel, const QString& strText, int nLines)
{
    pLabel->ensurePolished(); // the style sheet decides the font
    const QString strShown = FirstLines(strText, pLabel->font(), pLabel->contentsRect().width(), nLines);
    pLabel->setText(strShown);
    pLabel->setToolTip(strShown == strText ? QString() : strText);
}

void FixSize(QWidget* pWidget, QSize size)
{
    if (pWidget->size() != size)
        pWidget->setFixedSize(size);
}

} // namespace DialogFrame
