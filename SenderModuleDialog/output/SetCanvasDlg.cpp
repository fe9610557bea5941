#include "SenderModuleDialog/output/SetCanvasDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/CanvasRules.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSpinBox.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum enButton
{
    enOk = 3,
    enCancel = 4
};

// Sizes, pixels.
constexpr QSize c_sizeValid(300, 125);
constexpr QSize c_sizeError(300, 160);
constexpr int c_nControlHeight = 26;
constexpr int c_nMenuWidth = 242;
constexpr QMargins c_margins(25, 10, 25, 10);
constexpr int c_nGridSpacing = 5;

/// Stretches of the grid's columns: caption, field, gap, caption, field.
constexpr int c_arrColumnStretches[] = {1, 2, 1, 1, 2};
constexpr int c_nColumns = 5;

/// Stretches of the button row: gaps and buttons.
constexpr int c_nButtonGap = 2;
constexpr int c_nButtonStretch = 3;

QString PresetText(int nPreset)
{
    return QString::fromUtf8(CanvasRules::c_arrPresets.at(std::size_t(nPreset)).szText);
}

CCustomLabel* CreateLabel(QWidget* pParent, const QString& strText)
{
    return new CCustomLabel(strText, pParent, Qt::WindowFlags());
}

} // namespace

CSetCanvasDlg::CSetCanvasDlg(QWidget* pParent)
    : CCustomDialog(pParent, false)
{
    setFixedSize(c_sizeValid);
    setWindowTitle(CCustomDialog::tr("画布大小设置"));
    InitControl();
    InitStyle();
    SetControlRect();
    InitControlConnect();
    SetControlValue();
}

CSetCanvasDlg::~CSetCanvasDlg() = default;

void CSetCanvasDlg::InitControl()
{
    m_pComboSize = new CCustomComboBox(this);
    m_pLabelWidth = CreateLabel(this, CCustomDialog::tr("宽"));
    m_pSpinWidth = new CCustomSpinBox(0, this);
    m_pSpinWidth->SetMinMax(CanvasRules::c_nMinSide, CanvasRules::c_nMaxWidth);
    m_pLabelHeight = CreateLabel(this, CCustomDialog::tr("高"));
    m_pSpinHeight = new CCustomSpinBox(0, this);
    m_pSpinHeight->SetMinMax(CanvasRules::c_nMinSide, CanvasRules::c_nMaxHeight);
    for (CCustomSpinBox* pSpin : {m_pSpinWidth, m_pSpinHeight})
        pSpin->setAlignment(Qt::AlignCenter);
    for (CCustomLabel* pLabel : {m_pLabelWidth, m_pLabelHeight})
        pLabel->setAlignment(Qt::AlignCenter);
    m_pLabelError = CreateLabel(this, m_strError);
    m_pLabelError->setWordWrap(true);
    m_pBtnOk = new QPushButton(CCustomDialog::tr("确定"), this);
    m_pBtnCancel = new QPushButton(CCustomDialog::tr("取消"), this);
    InitControlValue();
}

void CSetCanvasDlg::InitControlValue()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    QSize size = HostAccess::CurrentSender().GetCanvasSize();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender) && logic.IsSupportCanvasSize(nSender))
        size = CanvasRules::OpeningSize(logic.GetHardwareCanvasSize(nSender));
    m_pSpinWidth->setValue(size.width());
    m_pSpinHeight->setValue(size.height());
    // Kept as it was read: what the fields cannot show is still what Cancel leaves behind.
    m_sizeCanvas = size;
    IsShowError();
}

void CSetCanvasDlg::InitStyle()
{
    DialogFrame::StyleCaption(m_pLabelWidth);
    DialogFrame::StyleCaption(m_pLabelHeight);
    DialogFrame::StyleWarning(m_pLabelError);
    DialogFrame::StyleButton(m_pBtnOk);
    DialogFrame::StyleButton(m_pBtnCancel);
}

void CSetCanvasDlg::SetControlRect()
{
    for (QWidget* pControl :
         std::initializer_list<QWidget*>{m_pComboSize, m_pLabelWidth, m_pSpinWidth, m_pLabelHeight,
                                         m_pSpinHeight, m_pBtnOk, m_pBtnCancel})
        pControl->setFixedHeight(c_nControlHeight);

    auto* pFields = new QWidget(this);
    auto* pGrid = new QGridLayout(pFields);
    pGrid->setContentsMargins(0, 0, 0, 0);
    pGrid->setSpacing(c_nGridSpacing);
    for (int i = 0; i < c_nColumns; ++i)
        pGrid->setColumnStretch(i, c_arrColumnStretches[i]);
    pGrid->addWidget(m_pComboSize, 0, 0, 1, c_nColumns);
    pGrid->addWidget(m_pLabelWidth, 1, 0);
    pGrid->addWidget(m_pSpinWidth, 1, 1);
    pGrid->addWidget(m_pLabelHeight, 1, 3);
    pGrid->addWidget(m_pSpinHeight, 1, 4);

    auto* pButtons = new QHBoxLayout;
    pButtons->setContentsMargins(0, 0, 0, 0);
    pButtons->setSpacing(0);
    pButtons->addStretch(c_nButtonGap);
    for (QPushButton* pButton : {m_pBtnOk, m_pBtnCancel}) {
        pButtons->addWidget(pButton, c_nButtonStretch);
        pButtons->addStretch(c_nButtonGap);
    }

    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(c_margins);
    pOuter->addWidget(pFields);
    pOuter->addWidget(m_pLabelError);
    pOuter->addLayout(pButtons);
}

void CSetCanvasDlg::InitControlConnect()
{
    const int nPresets =
        CanvasRules::PresetCount(HostAccess::SenderLogic().GetSenderType(HostAccess::CurrentSenderIndex()));
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    pMenu->setFixedWidth(c_nMenuWidth);
    for (int i = 0; i < nPresets; ++i) {
        QAction* pAction = DialogFrame::AddEntry(pMenu, {PresetText(i), i});
        connect(pAction, &QAction::triggered, this,
                [this, pAction] { ComboBoxSelect(pAction->data().toInt()); });
    }
    m_pComboSize->setMenu(pMenu);

    for (CCustomSpinBox* pSpin : {m_pSpinWidth, m_pSpinHeight})
        connect(pSpin, &QDoubleSpinBox::textChanged, this, [this] { IsShowError(); });
    connect(m_pBtnOk, &QPushButton::clicked, this, [this] { ButtonClicked(enOk); });
    connect(m_pBtnCancel, &QPushButton::clicked, this, [this] { ButtonClicked(enCancel); });
}

QSize CSetCanvasDlg::GetCanvasSize() const
{
    return m_sizeCanvas;
}

/// A preset's text moves the fields to that preset; a custom text matches none.
void CSetCanvasDlg::SetControlValue()
{
    const QString strText = m_pComboSize->text();
    for (const CanvasRules::SPreset& preset : CanvasRules::c_arrPresets) {
        if (strText != QString::fromUtf8(preset.szText))
            continue;
        m_pSpinWidth->setValue(preset.size.width());
        m_pSpinHeight->setValue(preset.size.height());
        return;
    }
}

QSize CSetCanvasDlg::FieldSize() const
{
    return {int(m_pSpinWidth->value()), int(m_pSpinHeight->value())};
}

/// The text tells the size, not the menu: it names a preset also where the sender's menu lacks it.
void CSetCanvasDlg::ShowSizeText(QSize size)
{
    const int nPreset = CanvasRules::PresetOf(size);
    m_pComboSize->setText(nPreset < 0
                              ? CCustomDialog::tr("自定义(%1×%2)").arg(size.width()).arg(size.height())
                              : PresetText(nPreset));
}

/// The error text of a size, empty when it is valid. Only a video processor has limits of its own.
QString CSetCanvasDlg::Judge(QSize size) const
{
    std::optional<CanvasRules::SProblem> problem = CanvasRules::CheckMinimum(size);
    if (!problem) {
        const int nSender = HostAccess::CurrentSenderIndex();
        CSenderLogic& logic = HostAccess::SenderLogic();
        if (!logic.IsVideoProcessor(nSender))
            return {};
        SCanvasLimit limit;
        logic.GetCanvasLimit(nSender, &limit);
        problem = CanvasRules::CheckLimit(size, limit);
    }
    return problem ? CCustomDialog::tr(problem->szText).arg(problem->nLimit) : QString();
}

bool CSetCanvasDlg::IsShowError()
{
    if (m_pSpinWidth->value() > CanvasRules::c_nMaxWidth)
        m_pSpinWidth->setValue(CanvasRules::c_nMaxWidth);
    if (m_pSpinHeight->value() > CanvasRules::c_nMaxHeight)
        m_pSpinHeight->setValue(CanvasRules::c_nMaxHeight);
    const QSize size = FieldSize();
    ShowSizeText(size);
    m_strError = Judge(size);
    const bool bValid = m_strError.isEmpty();
    if (!bValid)
        m_pLabelError->setText(m_strError);
    ChangeSize(!bValid);
    return bValid;
}

void CSetCanvasDlg::ChangeSize(bool bShowError)
{
    m_pLabelError->setVisible(bShowError);
    m_pBtnOk->setEnabled(!bShowError);
    DialogFrame::FixSize(this, bShowError ? c_sizeError : c_sizeValid);
}

void CSetCanvasDlg::ComboBoxSelect(int id)
{
    if (id >= 0 && id < int(CanvasRules::c_arrPresets.size()))
        m_pComboSize->setText(PresetText(id));
    SetControlValue();
    IsShowError();
}

void CSetCanvasDlg::SpinBoxValueChanged()
{
    IsShowError();
}

void CSetCanvasDlg::ButtonClicked(int id)
{
    if (id == enOk)
        Accept();
    else if (id == enCancel)
        done(0);
}

void CSetCanvasDlg::Accept()
{
    if (!m_strError.isEmpty()) {
        DialogFrame::ShowMessage(this, m_strError);
        return;
    }
    m_sizeCanvas = FieldSize();
    done(1);
}
