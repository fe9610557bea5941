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

/// What the buttons pass to `ButtonClicked`.
enum enButton
{
    enOkButton = 3,
    enCancelButton = 4
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
    m_pSizeComboBox = new CCustomComboBox(this);
    m_pWidthLabel = DialogFrame::CreateLabel(this, CCustomDialog::tr("宽"), Qt::AlignCenter);
    m_pWidthSpinBox = new CCustomSpinBox(0, this);
    m_pWidthSpinBox->SetMinMax(CanvasRules::c_nMinSide, CanvasRules::c_nMaxWidth);
    m_pHeightLabel = DialogFrame::CreateLabel(this, CCustomDialog::tr("高"), Qt::AlignCenter);
    m_pHeightSpinBox = new CCustomSpinBox(0, this);
    m_pHeightSpinBox->SetMinMax(CanvasRules::c_nMinSide, CanvasRules::c_nMaxHeight);
    for (CCustomSpinBox* pSpin : {m_pWidthSpinBox, m_pHeightSpinBox})
        pSpin->setAlignment(Qt::AlignCenter);
    m_pErrorLabel = DialogFrame::CreateLabel(this, m_strError);
    m_pErrorLabel->setWordWrap(true);
    m_pErrorLabel->setObjectName(QStringLiteral("error"));
    const auto buttons = DialogFrame::SOkCancel::Create(this, QT_TRANSLATE_NOOP("CCustomDialog", "确定"));
    m_pOkButton = buttons.pOk;
    m_pCancelButton = buttons.pCancel;
    DialogFrame::NameControl(m_pSizeComboBox, "size", windowTitle());
    DialogFrame::NameControl(m_pWidthSpinBox, "width", m_pWidthLabel);
    DialogFrame::NameControl(m_pHeightSpinBox, "height", m_pHeightLabel);
    InitControlValue();
}

void CSetCanvasDlg::InitControlValue()
{
    const int nSender = HostAccess::CurrentSenderIndex();
    QSize size = HostAccess::CurrentSender().GetCanvasSize();
    CSenderLogic& logic = HostAccess::SenderLogic();
    if (logic.IsVideoProcessor(nSender) && logic.IsSupportCanvasSize(nSender))
        size = CanvasRules::OpeningSize(logic.GetHardwareCanvasSize(nSender));
    m_pWidthSpinBox->setValue(size.width());
    m_pHeightSpinBox->setValue(size.height());
    // Kept as it was read: what the fields cannot show is still what Cancel leaves behind.
    m_sizeCanvas = size;
    IsShowError();
}

void CSetCanvasDlg::InitStyle()
{
    DialogFrame::StyleCaption(m_pWidthLabel);
    DialogFrame::StyleCaption(m_pHeightLabel);
    DialogFrame::StyleWarning(m_pErrorLabel);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Style();
}

void CSetCanvasDlg::SetControlRect()
{
    for (QWidget* pControl : std::initializer_list<QWidget*>{m_pSizeComboBox, m_pWidthLabel, m_pWidthSpinBox,
                                                             m_pHeightLabel, m_pHeightSpinBox})
        pControl->setFixedHeight(c_nControlHeight);
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.SetFixedHeight(c_nControlHeight);

    auto* pFields = new QWidget(this);
    auto* pGrid = new QGridLayout(pFields);
    pGrid->setContentsMargins(0, 0, 0, 0);
    pGrid->setSpacing(c_nGridSpacing);
    for (int i = 0; i < c_nColumns; ++i)
        pGrid->setColumnStretch(i, c_arrColumnStretches[i]);
    pGrid->addWidget(m_pSizeComboBox, 0, 0, 1, c_nColumns);
    pGrid->addWidget(m_pWidthLabel, 1, 0);
    pGrid->addWidget(m_pWidthSpinBox, 1, 1);
    pGrid->addWidget(m_pHeightLabel, 1, 3);
    pGrid->addWidget(m_pHeightSpinBox, 1, 4);

    auto* pButtons = new QHBoxLayout;
    pButtons->setContentsMargins(0, 0, 0, 0);
    pButtons->setSpacing(0);
    pButtons->addStretch(c_nButtonGap);
    for (QPushButton* pButton : {m_pOkButton, m_pCancelButton}) {
        pButtons->addWidget(pButton, c_nButtonStretch);
        pButtons->addStretch(c_nButtonGap);
    }

    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(c_margins);
    pOuter->addWidget(pFields);
    pOuter->addWidget(m_pErrorLabel);
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
    m_pSizeComboBox->setMenu(pMenu);

    for (CCustomSpinBox* pSpin : {m_pWidthSpinBox, m_pHeightSpinBox})
        connect(pSpin, &QDoubleSpinBox::textChanged, this, [this] { IsShowError(); });
    DialogFrame::SOkCancel{m_pOkButton, m_pCancelButton}.Connect([this](int nID) { ButtonClicked(nID); },
                                                                 enOkButton, enCancelButton);
}

QSize CSetCanvasDlg::GetCanvasSize() const
{
    return m_sizeCanvas;
}

/// A preset's text moves the fields to that preset; a custom text matches none.
void CSetCanvasDlg::SetControlValue()
{
    const QString strText = m_pSizeComboBox->text();
    for (const CanvasRules::SPreset& preset : CanvasRules::c_arrPresets) {
        if (strText != QString::fromUtf8(preset.szText))
            continue;
        m_pWidthSpinBox->setValue(preset.size.width());
        m_pHeightSpinBox->setValue(preset.size.height());
        return;
    }
}

QSize CSetCanvasDlg::FieldSize() const
{
    return {int(m_pWidthSpinBox->value()), int(m_pHeightSpinBox->value())};
}

/// The text tells the size, not the menu: it names a preset also where the sender's menu lacks it.
void CSetCanvasDlg::ShowSizeText(QSize size)
{
    const int nPreset = CanvasRules::PresetOf(size);
    m_pSizeComboBox->setText(nPreset < 0
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
    if (m_pWidthSpinBox->value() > CanvasRules::c_nMaxWidth)
        m_pWidthSpinBox->setValue(CanvasRules::c_nMaxWidth);
    if (m_pHeightSpinBox->value() > CanvasRules::c_nMaxHeight)
        m_pHeightSpinBox->setValue(CanvasRules::c_nMaxHeight);
    const QSize size = FieldSize();
    ShowSizeText(size);
    m_strError = Judge(size);
    const bool bValid = m_strError.isEmpty();
    if (!bValid)
        m_pErrorLabel->setText(m_strError);
    ChangeSize(!bValid);
    return bValid;
}

void CSetCanvasDlg::ChangeSize(bool bShowError)
{
    m_pErrorLabel->setVisible(bShowError);
    m_pOkButton->setEnabled(!bShowError);
    DialogFrame::FixSize(this, bShowError ? c_sizeError : c_sizeValid);
}

void CSetCanvasDlg::ComboBoxSelect(int id)
{
    if (id >= 0 && id < int(CanvasRules::c_arrPresets.size()))
        m_pSizeComboBox->setText(PresetText(id));
    SetControlValue();
    IsShowError();
}

void CSetCanvasDlg::SpinBoxValueChanged()
{
    IsShowError();
}

void CSetCanvasDlg::ButtonClicked(int id)
{
    if (id == enOkButton)
        Accept();
    else if (id == enCancelButton)
        done(DialogFrame::enCancelled);
}

void CSetCanvasDlg::Accept()
{
    if (!m_strError.isEmpty()) {
        DialogFrame::ShowMessage(this, m_strError);
        return;
    }
    m_sizeCanvas = FieldSize();
    done(DialogFrame::enAccepted);
}
