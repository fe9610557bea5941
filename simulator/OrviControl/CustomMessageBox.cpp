#include "host/OrviControl/CustomMessageBox.h"

#include "host/OrviControl/Style.h"
#include "simulator/OrviControl/Theme.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>

namespace {

/// Width of a message's text, pixels: short texts keep the window readable, long ones wrap. A longer word
/// widens the window up to the size of the screen.
constexpr int c_nMinTextWidth = 180;
constexpr int c_nMaxTextWidth = 380;

/// Maximum width of a message, per cent of the screen's width.
constexpr int c_nScreenShare = 80;

constexpr int c_nIconSize = 32;
constexpr int c_nMargin = 18;
constexpr int c_nSpacing = 16;
constexpr QSize c_sizeButton(80, 24);

struct SButtonText
{
    CCustomMessageBox::StandardButton button;
    const char* szText;
};

/// In the order of the row.
constexpr std::array<SButtonText, 4> c_arrButtons = {{
    {CCustomMessageBox::Ok, QT_TRANSLATE_NOOP("CCustomDialog", "确定")},
    {CCustomMessageBox::Yes, QT_TRANSLATE_NOOP("CCustomDialog", "是")},
    {CCustomMessageBox::No, QT_TRANSLATE_NOOP("CCustomDialog", "否")},
    {CCustomMessageBox::Cancel, QT_TRANSLATE_NOOP("CCustomDialog", "取消")},
}};

QString LabelStyle(const QString& strStyle)
{
    return GetFontStyleSheet(strStyle, QStringLiteral("QLabel"), Theme::c_nFontSize);
}

QLabel* CreateIcon(QWidget* pParent, const char* szName)
{
    auto* pIcon = new QLabel(pParent);
    pIcon->setFixedSize(c_nIconSize, c_nIconSize);
    pIcon->setStyleSheet(
        QStringLiteral("QLabel{image:url(:/OrviControl/icons/%1.svg);}").arg(QLatin1String(szName)));
    return pIcon;
}

/// The size that fits the whole text.
QSize TextSize(const QLabel& label, const QString& strText)
{
    const QFontMetrics metrics = label.fontMetrics();
    const QRect rcWrapped = metrics.boundingRect(QRect(0, 0, c_nMaxTextWidth, 0), Qt::TextWordWrap, strText);
    const int nScreen = QGuiApplication::primaryScreen()->availableGeometry().width() * c_nScreenShare / 100;
    const int nWidth = std::clamp(rcWrapped.width() + 2, c_nMinTextWidth, std::max(c_nMinTextWidth, nScreen));
    return {nWidth, std::max(label.heightForWidth(nWidth), c_nIconSize)};
}

QLabel* CreateText(QWidget* pParent, const QString& strText)
{
    auto* pLabel = new QLabel(pParent);
    // Names and paths in a message must not be read as markup.
    pLabel->setTextFormat(Qt::PlainText);
    pLabel->setText(strText);
    pLabel->setWordWrap(true);
    pLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    pLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    pLabel->setStyleSheet(LabelStyle(g_labelNoFrameStyle));
    pLabel->ensurePolished();
    pLabel->setFixedSize(TextSize(*pLabel, strText));
    return pLabel;
}

} // namespace

CCustomMessageBox::CCustomMessageBox(QWidget* pParent, const QString& strText, const char* szIcon,
                                     StandardButtons buttons, StandardButton defaultButton)
    : CCustomDialog(pParent, false)
    , m_strText(strText)
{
    setWindowTitle(pParent == nullptr ? QGuiApplication::applicationDisplayName()
                                      : pParent->window()->windowTitle());
    auto* pMessage = new QHBoxLayout;
    pMessage->addWidget(CreateIcon(this, szIcon), 0, Qt::AlignTop);
    pMessage->addWidget(CreateText(this, strText), 1);

    auto* pRow = new QHBoxLayout;
    pRow->addStretch();
    for (const SButtonText& row : c_arrButtons) {
        if (buttons.testFlag(row.button))
            pRow->addWidget(CreateButton(row.button, row.szText, row.button == defaultButton));
    }
    pRow->addStretch();

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(c_nMargin, c_nMargin, c_nMargin, c_nMargin);
    pLayout->setSpacing(c_nSpacing); // of the rows too
    pLayout->addLayout(pMessage);
    pLayout->addLayout(pRow);
    pLayout->setSizeConstraint(QLayout::SetFixedSize);
}

CCustomMessageBox::~CCustomMessageBox() = default;

QPushButton* CCustomMessageBox::CreateButton(StandardButton button, const char* szText, bool bDefault)
{
    auto* pButton = new QPushButton(CCustomDialog::tr(szText), this);
    pButton->setObjectName(QStringLiteral("messageButton%1").arg(int(button)));
    pButton->setFixedSize(c_sizeButton);
    pButton->setDefault(bDefault);
    pButton->setStyleSheet(
        GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), Theme::c_nFontSize));
    connect(pButton, &QPushButton::clicked, this, [this, button] {
        m_pressedButton = button;
        accept();
    });
    // Without a default button the last one starts with the focus: it is the one that declines.
    const bool bFocusIsSet =
        focusWidget() != nullptr && qobject_cast<QPushButton*>(focusWidget())->isDefault();
    if (!bFocusIsSet)
        pButton->setFocus();
    return pButton;
}

QString CCustomMessageBox::text() const
{
    return m_strText;
}

CCustomMessageBox::StandardButton CCustomMessageBox::information(QWidget* pParent, const QString& strText,
                                                                 StandardButtons buttons,
                                                                 StandardButton defaultButton, int nTimeout)
{
    CCustomMessageBox box(pParent, strText, "information", buttons, defaultButton);
    if (nTimeout != std::numeric_limits<int>::max())
        QTimer::singleShot(nTimeout, &box, &QDialog::reject);
    box.exec();
    return box.m_pressedButton;
}

CCustomMessageBox::StandardButton CCustomMessageBox::question(QWidget* pParent, const QString& strText,
                                                              StandardButtons buttons,
                                                              StandardButton defaultButton)
{
    CCustomMessageBox box(pParent, strText, "question", buttons, defaultButton);
    box.exec();
    return box.m_pressedButton;
}
