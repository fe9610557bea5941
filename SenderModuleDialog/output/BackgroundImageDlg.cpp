#include "SenderModuleDialog/output/BackgroundImageDlg.h"

#include "SenderModuleDialog/Constants.h"
#include "SenderModuleDialog/DialogFrame.h"
#include "SenderModuleDialog/HostAccess.h"
#include "SenderModuleDialog/output/BackgroundRules.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSwitchButton.h"

#include <QAction>
#include <QDir>
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

// What the host is told: the picture or its switch changed, or only how it is shown.
constexpr int c_nPictureEvent = 0x24000;
constexpr int c_nViewEvent = 0x4000;

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

/// The sender's place for its picture.
QString StoredPicture()
{
    return HostAccess::ConstantData().GetSenderBKImgName(HostAccess::CurrentSenderIndex(), true);
}

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
    m_strImagePath = StoredPicture();
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
    const auto AddRow = [this, pOuter](const QString& strCaption,
                                       void (CBackgroundImageDlg::*pInit)(QHBoxLayout*)) {
        QHBoxLayout* pRow = CreateRow(strCaption);
        (this->*pInit)(pRow);
        pOuter->addLayout(pRow);
    };
    AddRow(CCustomDialog::tr("启用"), &CBackgroundImageDlg::InitSwitchRow);
    AddRow(CCustomDialog::tr("契合度"), &CBackgroundImageDlg::InitFitRow);
    AddRow(CCustomDialog::tr("透明度"), &CBackgroundImageDlg::InitTransparencyRow);
}

QHBoxLayout* CBackgroundImageDlg::CreateRow(const QString& strCaption)
{
    auto* pLabel = new CCustomLabel(strCaption, this, Qt::WindowFlags());
    pLabel->setFixedSize(c_sizeCaption);
    pLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    DialogFrame::StyleCaption(pLabel);
    auto* pRow = new QHBoxLayout;
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->setSpacing(c_nRowSpacing);
    pRow->addWidget(pLabel);
    return pRow;
}

void CBackgroundImageDlg::InitSwitchRow(QHBoxLayout* pRow)
{
    m_pSwitchEnable = new CCustomSwitchButton(this);
    connect(m_pSwitchEnable, &CCustomSwitchButton::checked, this, [this] { ActionSlots(enSwitch); });
    m_pBtnChoose = DialogFrame::CreateButton(this, {QT_TRANSLATE_NOOP("CCustomDialog", "选取图片..."),
                                                    c_sizeChoose, [this] { ActionSlots(enChoose); }});
    pRow->addWidget(m_pSwitchEnable);
    pRow->addStretch();
    pRow->addWidget(m_pBtnChoose);
}

void CBackgroundImageDlg::InitFitRow(QHBoxLayout* pRow)
{
    m_pComboFit = new CCustomComboBox(this);
    m_pComboFit->setFixedHeight(c_nRowHeight);
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
    m_pComboFit->SetMenu(pMenu, true, true, true);
    connect(pMenu, &QMenu::triggered, this, [this] { ActionSlots(enFit); });
    pRow->addWidget(m_pComboFit);
}

void CBackgroundImageDlg::InitTransparencyRow(QHBoxLayout* pRow)
{
    m_pSliderTransparency = new QSlider(Qt::Horizontal, this);
    m_pSliderTransparency->setRange(0, BackgroundRules::c_nMaxPercent);
    m_pSliderTransparency->setFixedHeight(c_nRowHeight);
    m_pSliderTransparency->setStyleSheet(QString::fromLatin1(c_szSliderStyle));
    m_pSpinTransparency = new QDoubleSpinBox(this);
    m_pSpinTransparency->setRange(0, BackgroundRules::c_nMaxPercent);
    m_pSpinTransparency->setDecimals(0);
    m_pSpinTransparency->setSuffix(QStringLiteral("%"));
    m_pSpinTransparency->setFixedSize(c_sizeSpin);
    DialogFrame::StyleSpinBox(m_pSpinTransparency, "QDoubleSpinBox");
    connect(m_pSliderTransparency, &QAbstractSlider::valueChanged, this, [this] { ActionSlots(enSlider); });
    connect(m_pSpinTransparency, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { ActionSlots(enNumber); });
    pRow->addWidget(m_pSliderTransparency, 0, Qt::AlignVCenter);
    pRow->addWidget(m_pSpinTransparency);
}

void CBackgroundImageDlg::RefreshWindow()
{
    m_bRefreshing = true;
    // A stored picture that has vanished shows as switched off, while the setting stays on.
    m_pSwitchEnable->setOpen(m_bEnable && !m_strImagePath.isEmpty(), true);
    m_pComboFit->setText(m_nFit == 0 ? QString::fromLatin1(BackgroundRules::c_szOneToOne)
                                     : CCustomDialog::tr("拉伸"));
    const int nPercent = BackgroundRules::PercentOfAlpha(m_nAlpha);
    m_pSliderTransparency->setValue(nPercent);
    m_pSpinTransparency->setValue(nPercent);
    EnableControls();
    m_bRefreshing = false;
}

void CBackgroundImageDlg::EnableControls()
{
    const bool bOpen = m_pSwitchEnable->isOpen();
    for (QWidget* pControl : std::initializer_list<QWidget*>{m_pBtnChoose, m_pComboFit, m_pSliderTransparency,
                                                             m_pSpinTransparency})
        pControl->setEnabled(bOpen);
}

/// Saves and announces. The host is told also when there was nothing to save.
void CBackgroundImageDlg::RefreshView(bool bImageChanged)
{
    if (m_bRefreshing)
        return;
    const QDir dirImages(HostAccess::ConstantData().GetBKImagePath());
    if (!dirImages.exists())
        dirImages.mkpath(QStringLiteral("."));
    if (QFile::exists(m_strImagePath))
        StorePicture();
    HostAccess::Label().PostLabelEvent(bImageChanged ? c_nPictureEvent : c_nViewEvent, 1, 0, 0);
}

/// The record is cleared first and filled last: while the picture is not in place the sender has none.
void CBackgroundImageDlg::StorePicture()
{
    const QString strStored = StoredPicture();
    CSender& sender = HostAccess::CurrentSender();
    sender.BkImageAlpha = 0;
    sender.BkImageEnable = false;
    sender.BkImageFit = 0;
    if (!BackgroundRules::IsSameFile(m_strImagePath, strStored)) {
        QFile::remove(strStored);
        if (!QFile::copy(m_strImagePath, strStored))
            return;
    }
    sender.BkImageAlpha = BackgroundRules::AlphaByte(m_nAlpha);
    sender.BkImageEnable = m_bEnable;
    sender.BkImageFit = m_nFit != 0 ? 1 : 0;
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
    m_pSwitchEnable->setOpen(m_bEnable, true);
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
    m_nFit = BackgroundRules::FitOfText(m_pComboFit->text());
    RefreshView(false);
}

/// Saving is left to the number, which changes when the slider really moved.
void CBackgroundImageDlg::SliderMoved()
{
    if (m_pSliderTransparency == nullptr || m_pSpinTransparency == nullptr || m_bRefreshing)
        return;
    const int nPercent = m_pSliderTransparency->value();
    m_pSpinTransparency->setValue(nPercent);
    m_nAlpha = BackgroundRules::AlphaOfPercent(nPercent);
}

void CBackgroundImageDlg::SpinChanged()
{
    if (m_pSliderTransparency == nullptr || m_pSpinTransparency == nullptr || m_bRefreshing)
        return;
    const int nPercent = int(m_pSpinTransparency->value());
    m_pSliderTransparency->setValue(nPercent);
    m_nAlpha = BackgroundRules::AlphaOfPercent(nPercent);
    RefreshView(false);
}
