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

enum enButton
{
    enOk = 2,
    enCancel = 3
};

/// The result of Cancel: here alone it is not 0.
constexpr int c_nResultCancel = 2;

/// What the host is told after a write.
constexpr int c_nRateDepthEvent = 0xC00;

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

CCustomLabel* CreateLabel(QWidget* pParent, const QString& strText)
{
    auto* pLabel = new CCustomLabel(strText, pParent, Qt::WindowFlags());
    pLabel->setAlignment(Qt::AlignCenter);
    return pLabel;
}

CCustomComboBox* CreateCombo(QWidget* pParent, const QString& strText)
{
    auto* pCombo = new CCustomComboBox(pParent);
    pCombo->setText(strText);
    pCombo->setFixedHeight(c_nControlHeight);
    return pCombo;
}

QPushButton* CreateButton(QWidget* pParent, const QString& strText)
{
    auto* pButton = new QPushButton(strText, pParent);
    pButton->setFixedHeight(c_nControlHeight);
    return pButton;
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
    m_pPanelFields = new CCustomLabel(this, Qt::WindowFlags());
    m_pPanelButtons = new CCustomLabel(this, Qt::WindowFlags());
    m_pLabelRate = CreateLabel(this, CCustomDialog::tr("支持的最大帧率"));
    m_pComboRate = CreateCombo(this, QStringLiteral("%1Hz").arg(sender.nFrameRate));
    m_pLabelDepth = CreateLabel(this, CCustomDialog::tr("输出色深"));
    m_pComboDepth = CreateCombo(this, QStringLiteral("%1bit").arg(sender.nColorDepth));
    m_pBtnOk = CreateButton(this, CCustomDialog::tr("确定"));
    m_pBtnCancel = CreateButton(this, CCustomDialog::tr("取消"));
    m_pLabelWarning = new CCustomLabel(m_strError, this, Qt::WindowFlags());
    m_pLabelWarning->hide();
}

void CSetDepthRateDlg::InitStyle()
{
    DialogFrame::StyleCaption(m_pLabelRate);
    DialogFrame::StyleCaption(m_pLabelDepth);
    DialogFrame::StyleWarning(m_pLabelWarning);
    DialogFrame::StyleButton(m_pBtnOk);
    DialogFrame::StyleButton(m_pBtnCancel);
}

void CSetDepthRateDlg::InitControlConnect()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    FillRateMenu(CreateMenu(m_pComboRate), nSender);
    FillDepthMenu(CreateMenu(m_pComboDepth), nSender);
    connect(m_pBtnOk, &QPushButton::clicked, this, [this] { ButtonClicked(enOk); });
    connect(m_pBtnCancel, &QPushButton::clicked, this, [this] { ButtonClicked(enCancel); });
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
        // A sender without a choice is set to its one depth merely by opening the dialog; the field still
        // shows the depth that it had.
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
    pOuter->addWidget(m_pPanelFields, c_nFieldsStretch);
    pOuter->addWidget(m_pPanelButtons, c_nButtonsStretch);

    auto* pFields = FreshLayout<QGridLayout>(m_pPanelFields);
    pFields->setContentsMargins(c_nFieldMargin, c_nFieldMargin, c_nFieldMargin, c_nFieldMargin);
    pFields->setSpacing(c_nFieldSpacing);
    pFields->setColumnStretch(0, 1);
    pFields->setColumnStretch(1, 1);
    pFields->addWidget(m_pLabelRate, 0, 0, Qt::AlignCenter);
    pFields->addWidget(m_pComboRate, 0, 1);
    pFields->addWidget(m_pLabelDepth, 1, 0, Qt::AlignCenter);
    pFields->addWidget(m_pComboDepth, 1, 1);

    auto* pButtons = FreshLayout<QHBoxLayout>(m_pPanelButtons);
    pButtons->setContentsMargins(0, 0, 0, 0);
    pButtons->setSpacing(0);
    pButtons->addStretch(c_nOuterGap);
    pButtons->addWidget(m_pBtnOk, c_nButtonStretch);
    pButtons->addStretch(c_nInnerGap);
    pButtons->addWidget(m_pBtnCancel, c_nButtonStretch);
    pButtons->addStretch(c_nOuterGap);

    m_pPanelButtons->move(c_ptButtonsPlain);
    setFixedSize(c_sizePlain);
}

/// The panels' places are those that the layout gives them once it is active; the warning is in no layout.
void CSetDepthRateDlg::ShowWarning()
{
    SetControlRect();
    m_pLabelWarning->setText(m_strError);
    m_pPanelButtons->move(c_ptButtonsWarning);
    setFixedSize(c_sizeWarning);
    m_pBtnOk->setEnabled(false);
    m_pLabelWarning->adjustSize();
    m_pLabelWarning->show();
    m_pLabelWarning->move(c_ptWarning);
}

void CSetDepthRateDlg::ChangeWndSize(bool bShowError)
{
    if (bShowError) {
        ShowWarning();
        return;
    }
    m_pPanelButtons->move(c_ptButtonsPlain);
    setFixedSize(c_sizeBack);
    m_pBtnOk->setEnabled(true);
    m_pLabelWarning->hide();
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
        m_pComboRate->setText(strText);
    else if (DepthRateRules::DepthOf(strText))
        m_pComboDepth->setText(strText);
}

void CSetDepthRateDlg::ComboBoxSelect(QAction* action)
{
    ShowChoice(Deref(action, "action != nullptr").text());
    // 50 Hz is exempt from every limit, also where the depth is what changed.
    if (DepthRateRules::RateOf(m_pComboRate->text()) == DepthRateRules::c_nExemptRate)
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
    if (id == enOk)
        Accept();
    else if (id == enCancel)
        done(c_nResultCancel);
}

/// A text that is not in its menu leaves the value as it is: what a sender came with is not kept.
void CSetDepthRateDlg::TakeFields()
{
    m_nFrameRate = DepthRateRules::RateOf(m_pComboRate->text()).value_or(m_nFrameRate);
    m_nColorDepth = DepthRateRules::DepthOf(m_pComboDepth->text()).value_or(m_nColorDepth);
}

/// @return true when the rate may be saved
bool CSetDepthRateDlg::ConfirmRate(int nSender)
{
    const float fInputRate = HostAccess::VideoSourceLogic().GetMaxInputFrameRate(nSender);
    if (!DepthRateRules::IsBelowInput(m_nFrameRate, fInputRate))
        return true;
    return DialogFrame::Ask(
        this, CCustomDialog::tr("工程设置支持的最大帧率(%1Hz)小于实际输入的最大帧率(%2Hz)，是否继续？")
                  .arg(m_nFrameRate)
                  .arg(double(fInputRate), 0, 'f', 2));
}

void CSetDepthRateDlg::Accept()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    TakeFields();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender)) {
        if (!ConfirmRate(nSender))
            return;
        logic.SetOutput50Hz(nSender, m_nFrameRate == DepthRateRules::c_nExemptRate, 0);
    }
    SaveData();
    HostAccess::Label().PostLabelEvent(c_nRateDepthEvent, 0, 1, 0);
    done(1);
}

void CSetDepthRateDlg::SaveData()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender)) {
        const int nMode = DepthRateRules::DepthMode(m_nColorDepth);
        if (logic.GetOutputDepthMode(nSender) != nMode)
            logic.SetOutputDepthMode(nSender, nMode, 1);
    }
    CSender& sender = HostAccess::CurrentSender();
    sender.nColorDepth = m_nColorDepth;
    sender.nFrameRate = m_nFrameRate;
}
