#include "SenderModuleDialog/output/ResetCoefDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

/// Title and caption of a use of the dialog, source texts in the context `CCustomDialog`.
struct SWording
{
    const char* szTitle;
    const char* szCaption;
};

constexpr SWording c_wordingCorrection = {QT_TRANSLATE_NOOP("CCustomDialog", "重置校正系数"),
                                          QT_TRANSLATE_NOOP("CCustomDialog", "校正系数")};
constexpr SWording c_wordingSeamRepair = {QT_TRANSLATE_NOOP("CCustomDialog", "重置修缝系数"),
                                          QT_TRANSLATE_NOOP("CCustomDialog", "修缝系数")};

constexpr QSize c_sizeDialog(270, 105); ///< pixels
constexpr QSize c_sizeSpin(70, 24);     ///< pixels
constexpr int c_nMargin = 10;           ///< pixels
constexpr int c_nDecimals = 3;
constexpr double c_dStep = 0.001;

} // namespace

CResetCoefDlg::CResetCoefDlg(bool bCorrection, QWidget* pParent)
    : CCustomDialog(pParent, false)
    , m_bCorrection(bCorrection)
{
    setFixedSize(c_sizeDialog);
    InitControl();
}

CResetCoefDlg::~CResetCoefDlg() = default;

void CResetCoefDlg::InitControl()
{
    const SWording& wording = m_bCorrection ? c_wordingCorrection : c_wordingSeamRepair;
    setWindowTitle(CCustomDialog::tr(wording.szTitle));

    auto* pLabel = new QLabel(CCustomDialog::tr(wording.szCaption), this);
    pLabel->setAlignment(Qt::AlignCenter);
    DialogFrame::StyleCaption(pLabel);
    // The field starts at 0 although the value is 1: it shows what the host presets, and nothing before.
    m_pValueSpinBox = new QDoubleSpinBox(this);
    m_pValueSpinBox->setDecimals(c_nDecimals);
    m_pValueSpinBox->setRange(0.0, 1.0);
    m_pValueSpinBox->setSingleStep(c_dStep);
    m_pValueSpinBox->setFixedSize(c_sizeSpin);
    DialogFrame::StyleSpinBox(m_pValueSpinBox, "QDoubleSpinBox");
    DialogFrame::NameControl(m_pValueSpinBox, "coefficient", pLabel);

    auto* pFields = new QHBoxLayout;
    pFields->setContentsMargins(0, 0, 0, 0);
    pFields->addStretch();
    pFields->addWidget(pLabel);
    pFields->addStretch();
    pFields->addWidget(m_pValueSpinBox);
    pFields->addStretch();

    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(c_nMargin, c_nMargin, c_nMargin, c_nMargin);
    pOuter->addLayout(pFields);
    pOuter->addLayout(DialogFrame::CreateOkCancelRow(this, [this](int nID) { ActionSlots(nID); }));
}

void CResetCoefDlg::SetValue(float fValue)
{
    m_fValue = fValue;
    m_pValueSpinBox->setValue(double(fValue));
}

float CResetCoefDlg::GetValue() const
{
    return m_fValue;
}

void CResetCoefDlg::ActionSlots(int nID)
{
    if (nID == DialogFrame::enOk)
        Accept();
    else if (nID == DialogFrame::enCancel)
        close();
}

void CResetCoefDlg::Accept()
{
    m_fValue = float(m_pValueSpinBox->value());
    DialogFrame::Finish(this, DialogFrame::enAccepted);
}
