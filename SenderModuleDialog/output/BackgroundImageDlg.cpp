#include "SenderModuleDialog/output/BackgroundImageDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/BackgroundRules.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSwitchButton.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace {

enum enAction
{
    enSwitch = 0,
    enChoose = 1,
    enFit = 2,
    enSlider = 3,
    enNumber = 4
};

// Sizes, pixels.
constexpr QSize c_sizeDialog(330, 135);
constexpr QSize c_sizeCaption(80, 24);
constexpr QSize c_sizeChoose(100, 24);
constexpr QSize c_sizeSpin(55, 22);
constexpr int c_nRowHeight = 24;
constexpr int c_nMargin = 20;
constexpr int c_nRowSpacing = 15;

constexpr const char* c_szPictureFilter = "Image File(*.PNG *.JPG *.JPEG *.JPE)";

/// A grey-scale groove under a white round handle. Qt's parser takes the missing comma in the gradient.
constexpr const char* c_szSliderStyle =
    "QSlider::groove:horizontal{background:qlineargradient(spread:pad,x1:0,y1:0,x2:1,y2:0, stop: 0 "
    "rgb(0,0,0),stop:0.6 rgb(128,128,128) stop: 1 rgb(255,255,255)); margin:0px 1px 0px 0px;border-radius: "
    "3px; "
    "height: 6px; }QSlider::handle:horizontal{width: 14px; background: rgb(255, 255, 255); margin:-4px 0px "
    "-4px 0px; "
    "border-radius: 7px;}QSlider::handle:horizontal:pressed{width: 10px; background: rgb(145, 145, 145); "
    "margin:-4px "
    "0px -4px 0px; border-radius: 7px;  border:2px solid "
    "rgb(255,255,255);}QSlider::sub-page:horizontal{background:transparent; "
    "border-radius:3px;}QSlider::add-page:horizontal{background:rgb(6,6,6); margin:0px 0px -1px 0px; "
    "border-bottom:2px "
    "solid rgb(50,50,50); "
    "border-radius:3px;}QSlider::groove:horizontal:disabled{background-color:rgb(120,120,120); "
    "margin:0px 1px 0px 0px;border-radius: 3px; height: 6px; }QSlider::handle:horizontal:disabled{width: "
    "14px; "
    "background: rgb(180, 180, 180); margin:-4px 0px -4px 0px; border-radius: 7px;}";

} // namespace

CBackgroundImageDlg::CBackgroundImageDlg(QWidget* pParent)
    : CCustomDialog(pParent, false)
{
    setFixedSize(c_sizeDialog);
    setWindowTitle(CCustomDialog::tr("背景图片设置"));
    const CSender& sender = HostAccess::CurrentSender();
    m_nAlpha = sender.BkImageAlpha;
    m_bEnable = sender.BkImageEnable;
    m_nFit = sender.BkImageFit;
    m_strImagePath = HostAccess::CurrentPicturePath();
    if (!QFile::exists(m_strImagePath))
        m_strImagePath.clear();
    InitControl();
    RefreshWindow();
}

CBackgroundImageDlg::~CBackgroundImageDlg() = default;

void CBackgroundImageDlg::InitControl()
{
    auto* pOuter = new QVBoxLayout(this);
    pOuter->setContentsMargins(c_nMargin, c_nMargin, c_nMargin, c_nMargin);
    pOuter->addLayout(CreateSwitchRow());
    pOuter->addLayout(CreateFitRow());
    pOuter->addLayout(CreateTransparencyRow());
}

CCustomLabel* CBackgroundImageDlg::CreateRowCaption(const char* szText)
{
    CCustomLabel* pCaption =
        DialogFrame::CreateCaption(this, CCustomDialog::tr(szText), Qt::AlignLeft | Qt::AlignVCenter);
    pCaption->setFixedSize(c_sizeCaption);
    return pCaption;
}

QHBoxLayout* CBackgroundImageDlg::CreateRow(CCustomLabel* pCaption)
{
    auto* pRow = new QHBoxLayout;
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(c_nRowSpacing);
    pRow->addWidget(pCaption);
    return pRow;
}

QHBoxLayout* CBackgroundImageDlg::CreateSwitchRow()
{
    CCustomLabel* pCaption = CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "启用"));
    m_pEnableSwitch = new CCustomSwitchButton(this);
    connect(m_pEnableSwitch, &CCustomSwitchButton::checked, this, [this] { ActionSlots(enSwitch); });
    m_pChooseButton = new QPushButton(CCustomDialog::tr("选取图片..."), this);
    m_pChooseButton->setFixedSize(c_sizeChoose);
    // Enter in the transparency field ends the input and opens nothing.
    m_pChooseButton->setAutoDefault(false);
    DialogFrame::StyleButton(m_pChooseButton);
    connect(m_pChooseButton, &QPushButton::clicked, this, [this] { ActionSlots(enChoose); });
    DialogFrame::NameControl(m_pEnableSwitch, "enable", pCaption);
    DialogFrame::NameControl(m_pChooseButton, "choose", m_pChooseButton->text());
    QHBoxLayout* pRow = CreateRow(pCaption);
    pRow->addWidget(m_pEnableSwitch);
    pRow->addStretch();
    pRow->addWidget(m_pChooseButton);
    return pRow;
}

QHBoxLayout* CBackgroundImageDlg::CreateFitRow()
{
    CCustomLabel* pCaption = CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "契合度"));
    m_pFitComboBox = new CCustomComboBox(this);
    m_pFitComboBox->setFixedHeight(c_nRowHeight);
    QMenu* pMenu = DialogFrame::CreateMenu(this, {});
    const QString arrTexts[] = {QString::fromLatin1(BackgroundRules::c_szOneToOne),
                                CCustomDialog::tr("拉伸")};
    int nFit = 0;
    for (const QString& strText : arrTexts) {
        QAction* pAction = DialogFrame::AddEntry(pMenu, {strText, nFit});
        pAction->setCheckable(true);
        pAction->setChecked(m_nFit == nFit);
        ++nFit;
    }
    // First the box's own handling, which changes the text, then ours, which reads it.
    m_pFitComboBox->SetMenu(pMenu, true, true, true);
    connect(pMenu, &QMenu::triggered, this, [this] { ActionSlots(enFit); });
    DialogFrame::NameControl(m_pFitComboBox, "fit", pCaption);
    QHBoxLayout* pRow = CreateRow(pCaption);
    pRow->addWidget(m_pFitComboBox);
    return pRow;
}

QHBoxLayout* CBackgroundImageDlg::CreateTransparencyRow()
{
    CCustomLabel* pCaption = CreateRowCaption(QT_TRANSLATE_NOOP("CCustomDialog", "透明度"));
    m_pTransparencySlider = new QSlider(Qt::Horizontal, this);
    m_pTransparencySlider->setRange(0, BackgroundRules::c_nMaxPercent);
    m_pTransparencySlider->setFixedHeight(c_nRowHeight);
    m_pTransparencySlider->setStyleSheet(QString::fromLatin1(c_szSliderStyle));
    m_pTransparencySpinBox = new QDoubleSpinBox(this);
    m_pTransparencySpinBox->setRange(0, BackgroundRules::c_nMaxPercent);
    m_pTransparencySpinBox->setDecimals(0);
    m_pTransparencySpinBox->setSuffix(QStringLiteral("%"));
    m_pTransparencySpinBox->setFixedSize(c_sizeSpin);
    DialogFrame::StyleSpinBox(m_pTransparencySpinBox, "QDoubleSpinBox");
    connect(m_pTransparencySlider, &QAbstractSlider::valueChanged, this, [this] { ActionSlots(enSlider); });
    connect(m_pTransparencySpinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { ActionSlots(enNumber); });
    // The caption stands for both, and its buddy is the number.
    DialogFrame::NameControl(m_pTransparencySlider, "transparencySlider", pCaption->text());
    DialogFrame::NameControl(m_pTransparencySpinBox, "transparency", pCaption);
    QHBoxLayout* pRow = CreateRow(pCaption);
    pRow->addWidget(m_pTransparencySlider, 0, Qt::AlignVCenter);
    pRow->addWidget(m_pTransparencySpinBox);
    return pRow;
}

void CBackgroundImageDlg::RefreshWindow()
{
    m_bRefreshing = true;
    // A stored picture that has vanished shows as switched off, while the setting stays on.
    m_pEnableSwitch->setOpen(m_bEnable && !m_strImagePath.isEmpty(), true);
    m_pFitComboBox->setText(m_nFit == 0 ? QString::fromLatin1(BackgroundRules::c_szOneToOne)
                                        : CCustomDialog::tr("拉伸"));
    const int nPercent = BackgroundRules::PercentOfAlpha(m_nAlpha);
    m_pTransparencySlider->setValue(nPercent);
    m_pTransparencySpinBox->setValue(nPercent);
    EnableControls();
    m_bRefreshing = false;
}

void CBackgroundImageDlg::EnableControls()
{
    const bool bOpen = m_pEnableSwitch->isOpen();
    for (QWidget* pControl : std::initializer_list<QWidget*>{m_pChooseButton, m_pFitComboBox,
                                                             m_pTransparencySlider, m_pTransparencySpinBox})
        pControl->setEnabled(bOpen);
}

void CBackgroundImageDlg::ActionSlots(int nID)
{
    switch (nID) {
    case enSwitch:
        return ToggleEnable();
    case enChoose:
        return ChooseImage();
    case enFit:
        return ChooseFit();
    case enSlider:
        return SliderMoved();
    case enNumber:
        return SpinChanged();
    default:
        return;
    }
}

void CBackgroundImageDlg::ToggleEnable()
{
    m_bEnable = !m_bEnable;
    m_pEnableSwitch->setOpen(m_bEnable, true);
    EnableControls();
    RefreshView(true);
}

void CBackgroundImageDlg::ChooseImage()
{
    const QString strPath = QFileDialog::getOpenFileName(this, CCustomDialog::tr("选取图片..."), QString(),
                                                         QString::fromLatin1(c_szPictureFilter));
    if (strPath.isEmpty())
        return;
    m_strImagePath = strPath;
    RefreshView(true);
}

void CBackgroundImageDlg::ChooseFit()
{
    m_nFit = BackgroundRules::FitOfText(m_pFitComboBox->text());
    RefreshView(false);
}

/// Saving is left to the number, which changes when the slider really moved.
void CBackgroundImageDlg::SliderMoved()
{
    if (m_pTransparencySlider == nullptr || m_pTransparencySpinBox == nullptr || m_bRefreshing)
        return;
    const int nPercent = m_pTransparencySlider->value();
    m_pTransparencySpinBox->setValue(nPercent);
    m_nAlpha = BackgroundRules::AlphaOfPercent(nPercent);
}

void CBackgroundImageDlg::SpinChanged()
{
    if (m_pTransparencySlider == nullptr || m_pTransparencySpinBox == nullptr || m_bRefreshing)
        return;
    const int nPercent = int(m_pTransparencySpinBox->value());
    m_pTransparencySlider->setValue(nPercent);
    m_nAlpha = BackgroundRules::AlphaOfPercent(nPercent);
    RefreshView(false);
}
