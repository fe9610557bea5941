#include "workbench/output/OutputFacts.h"

#include "simulator/CommonClass/Simulator.h"
#include "workbench/output/CanvasPicture.h"
#include "workbench/output/SenderOutput.h"

#include <QDir>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int c_nMaxAlpha = 255;

/// Shown where there is no value.
const QString c_strNone = QStringLiteral("—");

QString DepthText(int nDepth)
{
    return QStringLiteral("%1 bit").arg(nDepth);
}

QString OnOffText(bool bOn)
{
    return bOn ? COutputFacts::tr("开") : COutputFacts::tr("关");
}

QString HardwareCanvasText(const SSimulatedSender& sender)
{
    if (!SenderOutput::KeepsCanvas(sender))
        return c_strNone;
    return sender.sizeHardwareCanvas == QSize(0, 0) ? COutputFacts::tr("没有设置")
                                                    : SenderOutput::SizeText(sender.sizeHardwareCanvas);
}

QString OpacityText(int nAlpha)
{
    return QStringLiteral("%1 / %2 (%3%)")
        .arg(nAlpha)
        .arg(c_nMaxAlpha)
        .arg(qRound(nAlpha * 100.0 / c_nMaxAlpha));
}

/// The file in a word, with the picture's size.
QString FileText(const SCanvasPicture& picture)
{
    switch (picture.state) {
    case enPictureState::enMissing:
        return COutputFacts::tr("没有文件");
    case enPictureState::enUnreadable:
        return COutputFacts::tr("无法读取");
    case enPictureState::enTooLarge:
    case enPictureState::enGood:
        break;
    }
    return SenderOutput::SizeText(picture.size);
}

} // namespace

COutputFacts::COutputFacts(QWidget* pParent)
    : QWidget(pParent)
    , m_captions("COutputFacts")
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(CreateOutputGroup());
    pLayout->addWidget(CreatePictureGroup());
}

QGroupBox* COutputFacts::CreateOutputGroup()
{
    enum enColumn
    {
        enName,
        enProject,
        enHardware
    };
    auto* pGroup = new QGroupBox(this);
    m_captions.Add(pGroup, "title", QT_TR_NOOP("画布、帧率和色深"));
    auto* pGrid = new QGridLayout(pGroup);
    AddCaption(pGrid, 0, enProject, QT_TR_NOOP("工程"));
    AddCaption(pGrid, 0, enHardware, QT_TR_NOOP("硬件"));
    AddCaption(pGrid, 1, enName, QT_TR_NOOP("画布"));
    AddFact(pGrid, 1, enProject, enCanvasProject);
    AddFact(pGrid, 1, enHardware, enCanvasHardware);
    AddCaption(pGrid, 2, enName, QT_TR_NOOP("最大帧率"));
    AddFact(pGrid, 2, enProject, enRateProject);
    AddFact(pGrid, 2, enHardware, enRateHardware);
    AddCaption(pGrid, 3, enName, QT_TR_NOOP("输入的最大帧率"));
    AddFact(pGrid, 3, enHardware, enInputRate);
    AddCaption(pGrid, 4, enName, QT_TR_NOOP("输出色深"));
    AddFact(pGrid, 4, enProject, enDepthProject);
    AddFact(pGrid, 4, enHardware, enDepthHardware);
    auto* pButtons = new QHBoxLayout;
    pButtons->addWidget(
        CreateButton(pGroup, "canvas", QT_TR_NOOP("画布大小..."), &COutputFacts::CanvasWanted));
    pButtons->addWidget(
        CreateButton(pGroup, "rateAndDepth", QT_TR_NOOP("帧率和色深..."), &COutputFacts::RateAndDepthWanted));
    pGrid->addLayout(pButtons, pGrid->rowCount(), 0, 1, -1);
    return pGroup;
}

QGroupBox* COutputFacts::CreatePictureGroup()
{
    struct SRow
    {
        const char* szCaption;
        enFact fact;
    };
    constexpr SRow c_arrRows[] = {{QT_TR_NOOP("启用"), enPictureSwitch},
                                  {QT_TR_NOOP("不透明度"), enPictureOpacity},
                                  {QT_TR_NOOP("契合度"), enPictureFitting},
                                  {QT_TR_NOOP("图片"), enPictureFile}};
    auto* pGroup = new QGroupBox(this);
    m_captions.Add(pGroup, "title", QT_TR_NOOP("背景图片"));
    auto* pGrid = new QGridLayout(pGroup);
    int nRow = 0;
    for (const SRow& row : c_arrRows) {
        AddCaption(pGrid, nRow, 0, row.szCaption);
        AddFact(pGrid, nRow, 1, row.fact);
        ++nRow;
    }
    pGrid->addWidget(
        CreateButton(pGroup, "background", QT_TR_NOOP("设置背景图片..."), &COutputFacts::BackgroundWanted),
        nRow, 0, 1, -1);
    return pGroup;
}

void COutputFacts::AddCaption(QGridLayout* pGrid, int nRow, int nColumn, const char* szText)
{
    auto* pLabel = new QLabel(pGrid->parentWidget());
    pGrid->addWidget(pLabel, nRow, nColumn);
    m_captions.Add(pLabel, "text", szText);
}

void COutputFacts::AddFact(QGridLayout* pGrid, int nRow, int nColumn, enFact fact)
{
    auto* pLabel = new QLabel(pGrid->parentWidget());
    pGrid->addWidget(pLabel, nRow, nColumn);
    m_arrFacts[fact] = pLabel;
}

QPushButton* COutputFacts::CreateButton(QWidget* pParent, const char* szName, const char* szText,
                                        void (COutputFacts::*pSignal)())
{
    auto* pButton = new QPushButton(pParent);
    pButton->setObjectName(QString::fromLatin1(szName));
    connect(pButton, &QPushButton::clicked, this, pSignal);
    m_captions.Add(pButton, "text", szText);
    m_vecButtons.push_back(pButton);
    return pButton;
}

void COutputFacts::Retranslate()
{
    m_captions.Retranslate();
}

void COutputFacts::EnableButtons(bool bEnabled)
{
    for (QPushButton* pButton : m_vecButtons)
        pButton->setEnabled(bEnabled);
}

void COutputFacts::Show(const SSimulatedSender& sender, const SCanvasPicture& picture)
{
    EnableButtons(true);
    ShowOutput(sender);
    ShowPicture(sender, picture);
}

void COutputFacts::ShowNothing()
{
    EnableButtons(false);
    for (QLabel* pFact : m_arrFacts)
        pFact->setText(c_strNone);
}

void COutputFacts::Set(enFact fact, const QString& strText)
{
    m_arrFacts[fact]->setText(strText);
}

void COutputFacts::ShowOutput(const SSimulatedSender& sender)
{
    // A sender that is not a video processor has no hardware that stores rate and depth.
    const bool bHardware = sender.capability.bVideoProcessor;
    Set(enCanvasProject, SenderOutput::SizeText(sender.record.sizeCanvas));
    Set(enCanvasHardware, HardwareCanvasText(sender));
    Set(enRateProject, QStringLiteral("%1 Hz").arg(sender.record.nFrameRate));
    Set(enRateHardware, bHardware ? tr("50 Hz：%1").arg(OnOffText(sender.b50Hz)) : c_strNone);
    Set(enInputRate, sender.fMaxInputFrameRate > 0
                         ? QStringLiteral("%1 Hz").arg(double(sender.fMaxInputFrameRate), 0, 'f', 2)
                         : tr("未知"));
    Set(enDepthProject, DepthText(sender.record.nColorDepth));
    Set(enDepthHardware, bHardware ? DepthText(SenderOutput::HardwareDepth(sender)) : c_strNone);
}

void COutputFacts::ShowPicture(const SSimulatedSender& sender, const SCanvasPicture& picture)
{
    Set(enPictureSwitch, OnOffText(sender.record.BkImageEnable));
    Set(enPictureOpacity, OpacityText(sender.record.BkImageAlpha));
    Set(enPictureFitting, sender.record.BkImageFit == 0 ? QStringLiteral("1:1") : tr("拉伸"));
    Set(enPictureFile, FileText(picture));
    m_arrFacts[enPictureFile]->setToolTip(QDir::toNativeSeparators(picture.strFile));
}
