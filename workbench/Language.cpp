#include "workbench/Language.h"

#include <QCoreApplication>

namespace {

/// A translation that is built into the workbench. The library's texts and the workbench's are Chinese in the
/// source, the simulator's are English.
struct STranslation
{
    enLanguage language;
    const char* szFile;
};

constexpr STranslation c_arrTranslations[] = {
    {enLanguage::enEnglish, ":/translations/SenderModuleDialog_en.qm"},
    {enLanguage::enEnglish, ":/translations/SenderWorkbench_en.qm"},
    {enLanguage::enChinese, ":/translations/SenderSimulator_zh.qm"},
};

} // namespace

CLanguage::CLanguage(QObject* pParent)
    : QObject(pParent)
{
    InstallTranslators();
}

CLanguage::~CLanguage()
{
    RemoveTranslators();
}

void CLanguage::Set(enLanguage language)
{
    if (language == m_language)
        return;
    RemoveTranslators();
    m_language = language;
    InstallTranslators();
    Q_EMIT Changed(language);
}

enLanguage CLanguage::ForLocale(const QString& strLocale)
{
    return strLocale.startsWith(QLatin1String("zh")) ? enLanguage::enChinese : enLanguage::enEnglish;
}

QString CLanguage::Code(enLanguage language)
{
    return language == enLanguage::enChinese ? QStringLiteral("zh") : QStringLiteral("en");
}

void CLanguage::InstallTranslators()
{
    for (const STranslation& row : c_arrTranslations) {
        if (row.language != m_language)
            continue;
        auto pTranslator = std::make_unique<QTranslator>();
        if (!pTranslator->load(QString::fromLatin1(row.szFile))) {
            qWarning("The translation %s is missing from the program.", row.szFile);
            continue;
        }
        QCoreApplication::installTranslator(pTranslator.get());
        m_vecTranslators.push_back(std::move(pTranslator));
    }
}

void CLanguage::RemoveTranslators()
{
    for (const auto& pTranslator : m_vecTranslators)
        QCoreApplication::removeTranslator(pTranslator.get());
    m_vecTranslators.clear();
}
