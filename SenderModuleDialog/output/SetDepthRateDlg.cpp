#include "SenderModuleDialog/output/SetDepthRateDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/DepthRateRules.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// What the buttons pass to `ButtonClicked`.
enum enButton
{
    enOkButton = 2,
    enCancelButton = 3
};

/// The result of Cancel: in this dialog alone it is not 0.
constexpr int c_nCancelled = 2;

// Sizes and places, pixels.
constexpr QSize c_sizeFirst(348, 100);   ///< before the layout
constexpr QSize c_sizePlain(348, 130);   ///< without a warning
constexpr QSize c_sizeBack(348, 155);    ///< on the way back from a warning, until the layout
constexpr QSize c_sizeWarning(348, 175); ///< with a warning
constexpr QPoint c_ptButtonsPlain(5, 80);
constexpr QPoint c_ptButtonsWarning(5, 100);
constexpr QPoint c_ptWarning(20, 108);
constexpr int c_nMenuWidth = 152;
constexpr int c_nControlHeight = 26;
constexpr int c_nOuterMargin = 5;
constexpr int c_nFieldMargin = 10;
constexpr int c_nFieldSpacing = 10;

// Stretches: the two panels, then gaps and buttons of the lower one.
constexpr int c_nFieldsStretch = 75;
constexpr int c_nButtonsStretch = 40;
constexpr int c_nOuterGap = 1;
constexpr int c_nInnerGap = 2;
constexpr int c_nButtonStretch = 2;

CCustomComboBox* CreateCombo(QWidget* pParent, const QString& strText)
{
    auto* pCombo = new CCustomComboBox(pParent);
    pCombo->setText(strText);
    pCombo->setFixedHeight(c_nControlHeight);
    return pCombo;
}

QString ChoiceText(const DepthRateRules::SChoice& choice)
{
    return QString::fromLatin1(choice.szText);
}

void AddChoice(QMenu* pMenu, const DepthRateRules::SChoice& choice)
{
    DialogFrame::AddEntry(pMenu, {ChoiceText(choice), choice.nValue});
}

/// A layout that takes the place of the one that the widget has: two on one widget would leave the controls
/// to neither.
template <class TLayout>
TLayout* FreshLayout(QWidget* pWidget)
{
    delete pWidget->layout();
    return new TLayout(pWidget);
}

} // namespace

CSetDepthRateDlg::CSetDepthRateDlg(QWidget* pParent)
    : CCustomDialog(pParent, false)
{
    setFixedSize(c_sizeFirst);
    setWindowTitle(CCustomDialog::tr("帧率和色深设置"));
    InitControl();
    InitStyle();
    // Connected before it is laid out: the menus may write the sender's record while they are built.
    InitControlConnect();
    SetControlRect();
}

CSetDepthRateDlg::~CSetDepthRateDlg() = default;

void CSetDepthRateDlg::InitControl()
{
    const CSender& sender = HostAccess::CurrentSender();
    m_pFieldsPanel = new CCustomLabel(this, Qt::WindowFlags());
    m_pButtonsPanel = new CCustomLabel(this, Qt::WindowFlags());
    m_pRateLabel = DialogFrame::CreateLabel(this, CCustomDialog::tr("支持的最大帧率"), Qt::AlignCenter);
    m_pRateComboBox = CreateCombo(this, QStringLiteral("%1Hz").arg(sender.nFrameRate));
    m_pDepthLabel = DialogFrame::CreateLabel(this, CCustomDialog::tr("输出色深"), Qt::AlignCenter);
    m_pDepthComboBox = CreateCombo(this, QStringLiteral("%1bit").arg(sender.nColorDepth));
    const auto buttons = DialogFrame::SOkCancel::Create(this, QT_TRANSLATE_NOOP("CCustomDialog", "确定"));
    m_pOkButton = buttons.pOk;
    m_pCancelButton = buttons.pCancel;
    buttons.SetFixedHeight(c_nControlHeight);
    DialogFrame::NameControl(m_pRateComboBox, "rate", m_pRateLabel);
    DialogFrame::NameControl(m_pDepthComboBox, "depth", m_pDepthLabel);
    m_pWarningLabel = DialogFrame::CreateLabel(this, m_strError);
    m_pWarningLabel->setObjectName(QStringLiteral("warning"));
    m_pWarningLabel->hide();
}

void CSetDepthRateDlg::InitStyle()
{
    DialogFrame::StyleCaption(m_pRateLabel);
    DialogFrame::StyleCaption(m_pDepthLabel);
    DialogFrame::StyleWarning(m_pWarningLabel);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Style();
}

void CSetDepthRateDlg::InitControlConnect()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    FillRateMenu(CreateMenu(m_pRateComboBox), nSender);
    FillDepthMenu(CreateMenu(m_pDepthComboBox), nSender);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Connect([this](int nID) { ButtonClicked(nID); },
                                                                 enOkButton, enCancelButton);
}

QMenu* CSetDepthRateDlg::CreateMenu(CCustomComboBox* pCombo)
{
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    pMenu->setFixedWidth(c_nMenuWidth);
    pCombo->setMenu(pMenu);
    connect(pMenu, &QMenu::triggered, this, &CSetDepthRateDlg::ComboBoxSelect);
    return pMenu;
}

void CSetDepthRateDlg::FillRateMenu(QMenu* pMenu, int nSender)
{
    CSenderLogic& logic = HostAccess::SenderLogic();
    const bool bVideoProcessor = logic.IsVideoProcessor(nSender);
    const int nType = bVideoProcessor ? logic.GetSenderType(nSender) : 0;
    for (const DepthRateRules::SChoice& choice : DepthRateRules::c_arrRates) {
        const bool bExempt = choice.nValue == DepthRateRules::c_nExemptRate;
        if (!bExempt || DepthRateRules::IsExemptRateOffered(bVideoProcessor, nType))
            AddChoice(pMenu, choice);
    }
}

void CSetDepthRateDlg::FillDepthMenu(QMenu* pMenu, int nSender)
{
    const auto& [choice8, choice10, choice12] = DepthRateRules::c_arrDepths;
    DepthRateRules::SDepthOffer offer = {true, true};
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender)) {
        const bool bSupport10Bit = logic.IsSupport10Bit(nSender);
        const bool bSupport12Bit = logic.IsSupport12Bit(nSender);
        offer = DepthRateRules::OfferDepths(bSupport10Bit, bSupport12Bit);
        // Opening the dialog sets a sender with one depth to that depth; the field still shows the old one.
        if (!offer.b10Bit)
            HostAccess::CurrentSender().nColorDepth = choice8.nValue;
    }
    AddChoice(pMenu, choice8);
    if (offer.b10Bit)
        AddChoice(pMenu, choice10);
    if (offer.b12Bit)
        AddChoice(pMenu, choice12);
}

void CSetDepthRateDlg::SetControlRect()
{
    auto* pOuter = FreshLayout<QVBoxLayout>(this);
    pOuter->setContentsMargins(c_nOuterMargin, c_nOuterMargin, c_nOuterMargin, c_nOuterMargin);
    pOuter->setSpacing(0);
    pOuter->addWidget(m_pFieldsPanel, c_nFieldsStretch);
    pOuter->addWidget(m_pButtonsPanel, c_nButtonsStretch);

    auto* pFields = FreshLayout<QGridLayout>(m_pFieldsPanel);
    pFields->setContentsMargins(c_nFieldMargin, c_nFieldMargin, c_nFieldMargin, c_nFieldMargin);
    pFields->setSpacing(c_nFieldSpacing);
    pFields->setColumnStretch(0, 1);
    pFields->setColumnStretch(1, 1);
    pFields->addWidget(m_pRateLabel, 0, 0, Qt::AlignCenter);
    pFields->addWidget(m_pRateComboBox, 0, 1);
    pFields->addWidget(m_pDepthLabel, 1, 0, Qt::AlignCenter);
    pFields->addWidget(m_pDepthComboBox, 1, 1);

    auto* pButtons = FreshLayout<QHBoxLayout>(m_pButtonsPanel);
    pButtons->setContentsMargins(0, 0, 0, 0);
    pButtons->setSpacing(0);
    pButtons->addStretch(c_nOuterGap);
    pButtons->addWidget(m_pOkButton, c_nButtonStretch);
    pButtons->addStretch(c_nInnerGap);
    pButtons->addWidget(m_pCancelButton, c_nButtonStretch);
    pButtons->addStretch(c_nOuterGap);

    m_pButtonsPanel->move(c_ptButtonsPlain);
    setFixedSize(c_sizePlain);
}

/// The panels' places are those that the layout gives them once it is active; the warning is in no layout.
void CSetDepthRateDlg::ShowWarning()
{
    SetControlRect();
    m_pWarningLabel->setText(m_strError);
    m_pButtonsPanel->move(c_ptButtonsWarning);
    setFixedSize(c_sizeWarning);
    m_pOkButton->setEnabled(false);
    m_pWarningLabel->adjustSize();
    m_pWarningLabel->show();
    m_pWarningLabel->move(c_ptWarning);
}

void CSetDepthRateDlg::ChangeWndSize(bool bShowError)
{
    if (bShowError) {
        ShowWarning();
        return;
    }
    m_pButtonsPanel->move(c_ptButtonsPlain);
    setFixedSize(c_sizeBack);
    m_pOkButton->setEnabled(true);
    m_pWarningLabel->hide();
    SetControlRect();
    m_strError.clear();
}

bool CSetDepthRateDlg::IsShowError()
{
    return false;
}

void CSetDepthRateDlg::SetControlValue() {}

void CSetDepthRateDlg::ShowChoice(const QString& strText)
{
    if (DepthRateRules::RateOf(strText))
        m_pRateComboBox->setText(strText);
    else if (DepthRateRules::DepthOf(strText))
        m_pDepthComboBox->setText(strText);
}

void CSetDepthRateDlg::ComboBoxSelect(QAction* action)
{
    ShowChoice(Deref(action, "action != nullptr").text());
    // 50 Hz is exempt from every limit, also where the depth is what changed.
    if (DepthRateRules::RateOf(m_pRateComboBox->text()) == DepthRateRules::c_nExemptRate)
        return;
    const int nSender = HostAccess::CurrentSenderIndex();
    const int nType = HostAccess::SenderLogic().GetSenderType(nSender);
    unsigned int nFlags = 0;
    if (!HostAccess::VideoSourceLogic().GetOutputLimitFlags(nSender, &nFlags))
        return;
    // A host that objects without naming a known limit disables OK all the same, with the text there was.
    if (const char* szMessage = DepthRateRules::LimitMessage(nFlags, nType))
        m_strError = CCustomDialog::tr(szMessage);
    ShowWarning();
}

void CSetDepthRateDlg::ButtonClicked(int id)
{
    if (id == enOkButton)
        Accept();
    else if (id == enCancelButton)
        done(c_nCancelled);
}
