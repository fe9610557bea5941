#include "SenderModuleDialog/addressing/DemoProjectConfigDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/addressing/DemoProjectRules.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// What the controls pass to `ControlClicked`.
enum enControl
{
    enTypePicked = 0,
    enOkButton = 1,
    enCancelButton = 2
};

constexpr QSize c_sizeDialog(285, 120);
constexpr QSize c_sizeLabel(90, 24);
constexpr QSize c_sizeComboBox(160, 28);
constexpr QSize c_sizeButton(80, 26);

} // namespace

CDemoProjectConfigDlg::CDemoProjectConfigDlg(QWidget* pParent)
    : CCustomDialog(pParent, false)
{
    setFixedSize(c_sizeDialog);
    setWindowTitle(CCustomDialog::tr("演示工程配置"));
    InitControl();
    InitStyle();
    SetControlRect();
}

CDemoProjectConfigDlg::~CDemoProjectConfigDlg() = default;

void CDemoProjectConfigDlg::InitControl()
{
    m_pTypeLabel = DialogFrame::CreateLabel(this, CCustomDialog::tr("主控类型"));
    m_pTypeComboBox = new CCustomComboBox(this);
    m_pTypeComboBox->setText(DemoProjectRules::NameAt(m_nTypeIndex));
    const auto buttons = DialogFrame::SOkCancel::Create(this, QT_TRANSLATE_NOOP("CCustomDialog", "确认"));
    m_pOkButton = buttons.pOk;
    m_pCancelButton = buttons.pCancel;
    DialogFrame::NameControl(m_pTypeComboBox, "type", m_pTypeLabel);

    auto* pMenu = new QMenu(this);
    for (int i = 0; i < int(DemoProjectRules::c_arrTypes.size()); ++i) {
        const QAction* pAction = DialogFrame::AddEntry(pMenu, {DemoProjectRules::NameAt(i), i});
        connect(pAction, &QAction::triggered, this, [this, i] { ControlClicked(enTypePicked, i); });
    }
    DialogFrame::StyleMenu(pMenu);
    pMenu->setFixedWidth(c_sizeComboBox.width());
    m_pTypeComboBox->setMenu(pMenu);

    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Connect([this](int nID) { ControlClicked(nID); },
                                                                 enOkButton, enCancelButton);
}

void CDemoProjectConfigDlg::InitStyle()
{
    DialogFrame::StyleCaption(m_pTypeLabel);
    m_pTypeLabel->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Style();
}

void CDemoProjectConfigDlg::SetControlRect()
{
    m_pTypeLabel->setFixedSize(c_sizeLabel);
    m_pTypeComboBox->setFixedSize(c_sizeComboBox);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.SetFixedSize(c_sizeButton);

    auto* pTypeRow = new QHBoxLayout;
    pTypeRow->setSpacing(0);
    pTypeRow->setContentsMargins(0, 0, 0, 0);
    pTypeRow->addWidget(m_pTypeLabel);
    pTypeRow->addWidget(m_pTypeComboBox);

    auto* pButtonRow = new QHBoxLayout;
    pButtonRow->addStretch();
    pButtonRow->addWidget(m_pOkButton);
    pButtonRow->addStretch();
    pButtonRow->addWidget(m_pCancelButton);
    pButtonRow->addStretch();

    auto* pOuter = new QVBoxLayout(this);
    pOuter->addLayout(pTypeRow);
    pOuter->addLayout(pButtonRow);
}

void CDemoProjectConfigDlg::ControlClicked(int id, int sub)
{
    switch (id) {
    case enTypePicked:
        PickType(sub);
        break;
    case enOkButton:
        OpenDemoProject();
        break;
    case enCancelButton:
        DialogFrame::Finish(this, DialogFrame::enCancelled);
        break;
    default:
        break;
    }
}

void CDemoProjectConfigDlg::PickType(int nIndex)
{
    m_nTypeIndex = nIndex;
    m_pTypeComboBox->setText(DemoProjectRules::NameAt(nIndex));
}
