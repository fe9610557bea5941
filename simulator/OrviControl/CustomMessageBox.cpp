#include "host/OrviControl/CustomMessageBox.h"

#include "host/OrviControl/Style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <array>
#include <limits>

namespace {

struct SButtonText
{
    CCustomMessageBox::StandardButton button;
    const char* szText;
};

constexpr std::array<SButtonText, 4> c_arrButtons = {{
    {CCustomMessageBox::Ok, QT_TRANSLATE_NOOP("CCustomDialog", "确定")},
    {CCustomMessageBox::Yes, QT_TRANSLATE_NOOP("CCustomDialog", "是")},
    {CCustomMessageBox::No, QT_TRANSLATE_NOOP("CCustomDialog", "否")},
    {CCustomMessageBox::Cancel, QT_TRANSLATE_NOOP("CCustomDialog", "取消")},
}};

} // namespace

CCustomMessageBox::CCustomMessageBox(QWidget* pParent, const QString& strText, StandardButtons buttons,
                                     StandardButton defaultButton)
    : CCustomDialog(pParent, false)
    , m_strText(strText)
{
    auto* pLabel = new QLabel(strText, this);
    pLabel->setWordWrap(true);
    pLabel->setMinimumWidth(260);
    pLabel->setStyleSheet(GetFontStyleSheet(g_labelNoFrameStyle, QStringLiteral("QLabel"), 12));
    auto* pRow = new QHBoxLayout;
    pRow->addStretch();
    for (const SButtonText& row : c_arrButtons) {
        if (!buttons.testFlag(row.button))
            continue;
        auto* pButton = new QPushButton(CCustomDialog::tr(row.szText), this);
        pButton->setObjectName(QStringLiteral("messageButton%1").arg(int(row.button)));
        pButton->setFixedSize(80, 24);
        pButton->setAutoDefault(false);
        pButton->setDefault(row.button == defaultButton);
        pButton->setStyleSheet(GetFontStyleSheet(g_pushButtonStyle, QStringLiteral("QPushButton"), 12));
        connect(pButton, &QPushButton::clicked, this, [this, row] {
            m_pressedButton = row.button;
            accept();
        });
        pRow->addWidget(pButton);
    }
    pRow->addStretch();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->addWidget(pLabel);
    pLayout->addLayout(pRow);
}

CCustomMessageBox::~CCustomMessageBox() = default;

QString CCustomMessageBox::text() const
{
    return m_strText;
}

CCustomMessageBox::StandardButton CCustomMessageBox::information(QWidget* pParent, const QString& strText,
                                                                 StandardButtons buttons,
                                                                 StandardButton defaultButton, int nTimeout)
{
    CCustomMessageBox box(pParent, strText, buttons, defaultButton);
    if (nTimeout != std::numeric_limits<int>::max())
        QTimer::singleShot(nTimeout, &box, &QDialog::reject);
    box.exec();
    return box.m_pressedButton;
}

CCustomMessageBox::StandardButton CCustomMessageBox::question(QWidget* pParent, const QString& strText,
                                                              StandardButtons buttons,
                                                              StandardButton defaultButton)
{
    CCustomMessageBox box(pParent, strText, buttons, defaultButton);
    box.exec();
    return box.m_pressedButton;
}
