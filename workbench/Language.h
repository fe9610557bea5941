#ifndef WORKBENCH_LANGUAGE_H
#define WORKBENCH_LANGUAGE_H

#include <QObject>
#include <QTranslator>

#include <memory>
#include <vector>

/// The languages of the workbench.
enum class enLanguage
{
    enChinese,
    enEnglish
};

/// Switches the language of the workbench and of the library's dialogs at run time. Windows
/// follow through `QEvent::LanguageChange`.
class CLanguage : public QObject
{
    Q_OBJECT

public:
    /// Starts in Chinese.
    explicit CLanguage(QObject* pParent = nullptr);
    ~CLanguage() override;

    /// Makes a language current.
    void Set(enLanguage language);
    enLanguage Current() const { return m_language; }

    /// The language for a locale name such as "zh_CN": Chinese for any Chinese locale, else English.
    static enLanguage ForLocale(const QString& strLocale);
    /// "zh" or "en": how settings and the command line name a language.
    static QString Code(enLanguage language);

Q_SIGNALS:
    /// The language changed.
    void Changed(enLanguage language);

private:
    void InstallTranslators();
    void RemoveTranslators();

    std::vector<std::unique_ptr<QTranslator>> m_vecTranslators;
    enLanguage m_language = enLanguage::enChinese;
};

#endif // WORKBENCH_LANGUAGE_H
