#include "workbench/colour/PictureSizeDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

namespace {

/// Side below which a chart cannot be read, pixels of its layout; and the largest of a picture, pixels.
constexpr int c_nLeastSide = 200;
constexpr int c_nGreatestSide = 8192;

constexpr int c_nLeastResolution = 48;
constexpr int c_nGreatestResolution = 600;

} // namespace

CPictureSizeDialog::CPictureSizeDialog(const SPictureSize& proposal, enPictureKind kind,
                                       const QString& strTitle, QWidget* pParent)
    : QDialog(pParent)
{
    setWindowTitle(strTitle);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* pForm = new QFormLayout;
    m_pWidth = AddField(*pForm, "width", tr("宽"), tr(" 像素"));
    m_pHeight = AddField(*pForm, "height", tr("高"), tr(" 像素"));
    if (kind == enPixels) {
        m_pResolution = AddField(*pForm, "resolution", tr("分辨率"), tr(" dpi"));
        m_pResolution->setRange(c_nLeastResolution, c_nGreatestResolution);
        m_pResolution->setValue(proposal.nResolution);
        m_pResolution->setToolTip(tr("分辨率越高，线条和文字占的像素越多；屏幕为 96 dpi"));
        connect(m_pResolution, QOverload<int>::of(&QSpinBox::valueChanged), this,
                &CPictureSizeDialog::SetLimits);
    }
    SetLimits();
    m_pWidth->setValue(proposal.size.width());
    m_pHeight->setValue(proposal.size.height());
    // The first field has the focus: what is typed replaces the proposal.
    m_pWidth->selectAll();
    auto* pButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pForm);
    pLayout->addWidget(pButtons);
    pLayout->setSizeConstraint(QLayout::SetFixedSize);
}

QSpinBox* CPictureSizeDialog::AddField(QFormLayout& form, const char* szName, const QString& strCaption,
                                       const QString& strUnit)
{
    auto* pField = new QSpinBox(this);
    pField->setObjectName(QString::fromLatin1(szName));
    pField->setAccessibleName(strCaption);
    pField->setSuffix(strUnit);
    form.addRow(strCaption, pField);
    return pField;
}

void CPictureSizeDialog::SetLimits()
{
    const int nLeast = int(std::ceil(c_nLeastSide * Size().Ratio()));
    for (QSpinBox* pSide : {m_pWidth, m_pHeight})
        pSide->setRange(nLeast, c_nGreatestSide);
}

SPictureSize CPictureSizeDialog::Size() const
{
    const int nResolution = m_pResolution == nullptr ? c_nScreenResolution : m_pResolution->value();
    return {QSize(m_pWidth->value(), m_pHeight->value()), nResolution};
}

std::optional<SPictureSize> CPictureSizeDialog::Ask(const SPictureSize& proposal, enPictureKind kind,
                                                    const QString& strTitle, QWidget* pParent)
{
    CPictureSizeDialog dialog(proposal, kind, strTitle, pParent);
    return dialog.exec() == QDialog::Accepted ? std::make_optional(dialog.Size()) : std::nullopt;
}
