#include "workbench/Captions.h"

#include <QCoreApplication>
#include <QVariant>

CCaptions::CCaptions(const char* szContext)
    : m_szContext(szContext)
{}

void CCaptions::Add(QWidget* pWidget, const char* szProperty, const char* szText)
{
    m_vecCaptions.push_back({pWidget, szProperty, szText});
}

void CCaptions::Retranslate() const
{
    for (const SCaption& caption : m_vecCaptions)
        caption.pWidget->setProperty(caption.szProperty,
                                     QCoreApplication::translate(m_szContext, caption.szText));
}
