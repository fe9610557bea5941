#include "workbench/Language.h"

#include "host/QtCompat.h"

#include <QCoreApplication>

namespace {

/// A translation. The library's texts and the workbench's are Chinese in the source, the simulator's and
/// those of Qt itself (buttons, file dialogs) are English.
struct STranslation
{
    enLanguage language;
    const char* szFile;
    bool bOfQt; ///< installed with Qt, not built into the workbench
};

constexpr STranslation c_arrTranslations[] = {
    {enLanguage::enEnglish, ":/translations/SenderModuleDialog_en.qm", false},
    {enLanguage::enEnglish, ":/translations/SenderWorkbench_en.qm", false},
    {enLanguage::enChinese, ":/translations/SenderSimulator_zh.qm", false},
    {enLanguage::enChinese, "qtbase_zh_CN.qm", true},
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
        const QString strFolder = row.bOfQt ? QtCompat::TranslationsFolder() : QString();
        if (!pTranslator->load(QString::fromLatin1(row.szFile), strFolder)) {
            // Without Qt's translations everything works; its buttons are English.
            if (!row.bOfQt)
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
