#ifndef WORKBENCH_CAPTIONS_H
#define WORKBENCH_CAPTIONS_H

#include <QWidget>

#include <vector>

/// The texts of a widget's controls, set again when the language changes.
class CCaptions
{
public:
    /// @param szContext translation context of the texts: the class that owns the controls
    explicit CCaptions(const char* szContext);

    /// Registers a property of a control that holds a text.
    /// @param szText source text
    void Add(QWidget* pWidget, const char* szProperty, const char* szText);
    /// Puts all texts into the current language.
    void Retranslate() const;

private:
    struct SCaption
    {
        QWidget* pWidget;
        const char* szProperty;
        const char* szText;
    };

    const char* m_szContext;
    std::vector<SCaption> m_vecCaptions;
};

#endif // WORKBENCH_CAPTIONS_H
