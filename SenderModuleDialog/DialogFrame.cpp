#include "SenderModuleDialog/DialogFrame.h"

#include "SenderModuleDialog/Constants.h"
#include "host/OrviControl/CustomDialog.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomMessageBox.h"
#include "host/OrviControl/Style.h"

#include <QAction>
#include <QFontMetrics>
#include <QHBoxLayout>
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

QPushButton* CreateButton(QWidget* pParent, const SButton& button)
{
    auto* pButton = new QPushButton(CCustomDialog::tr(button.szText), pParent);
    StyleButton(pButton);
    if (button.size.isValid())
        pButton->setFixedSize(button.size);
    if (button.funcClick)
        QObject::connect(pButton, &QPushButton::clicked, pParent, button.funcClick);
    return pButton;
}

QHBoxLayout* CreateOkCancelRow(QWidget* pParent, const std::function<void(int nID)>& funcAction)
{
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(CreateButton(pParent, {QT_TRANSLATE_NOOP("CCustomDialog", "确定"), c_sizeButton,
                                           [funcAction] { funcAction(enOk); }}));
    pRow->addWidget(CreateButton(pParent, {QT_TRANSLATE_NOOP("CCustomDialog", "取消"), c_sizeButton,
                                           [funcAction] { funcAction(enCancel); }}));
    return pRow;
}

void Finish(QDialog* pDialog, int nResult)
{
    pDialog->done(nResult);
    pDialog->close();
}

CCustomLabel* CreateCaption(QWidget* pParent, const QString& strText, Qt::Alignment alignment)
{
    auto* pLabel = new CCustomLabel(strText, pParent, Qt::WindowFlags());
    StyleCaption(pLabel);
    pLabel->setAlignment(alignment);
    return pLabel;
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
