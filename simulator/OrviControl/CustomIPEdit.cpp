#include "host/OrviControl/CustomIPEdit.h"

#include <QHBoxLayout>
#include <QLineEdit>

class CCustomIPEdit::CPrivate
{
public:
    QLineEdit* pEdit = nullptr;
};

CCustomIPEdit::CCustomIPEdit(QWidget* pParent)
    : QWidget(pParent)
    , m_pPrivate(std::make_unique<CPrivate>())
{
    m_pPrivate->pEdit = new QLineEdit(this);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pPrivate->pEdit);
    setFocusProxy(m_pPrivate->pEdit);
    connect(m_pPrivate->pEdit, &QLineEdit::textChanged, this, &CCustomIPEdit::textChanged);
}

CCustomIPEdit::~CCustomIPEdit() = default;

QString CCustomIPEdit::text() const
{
    return m_pPrivate->pEdit->text();
}

void CCustomIPEdit::setText(const QString& strAddress)
{
    m_pPrivate->pEdit->setText(strAddress);
}
