#ifndef TESTS_OUTPUT_OUTPUTDIALOGSUPPORT_H
#define TESTS_OUTPUT_OUTPUTDIALOGSUPPORT_H

#include <QList>
#include <QObject>
#include <QPair>
#include <QStringList>
#include <QTranslator>

class CCustomComboBox;
class QAction;
class QDialog;
class QWidget;

/// What the tests of the output dialogs share.
namespace OutputDialogSupport {

/// Texts given as UTF-8 literals.
QStringList List(std::initializer_list<const char*> listTexts);

/// The texts of a combo box's menu.
QStringList Entries(const CCustomComboBox& combo);

/// Opens a combo box with the mouse and clicks the entry with that text.
/// @return false when the menu did not open or has no such entry
bool ClickEntry(CCustomComboBox* pCombo, const QString& strText);

/// Clicks the button with that object name as soon as the dialog's own event loop runs.
void ClickInLoop(QDialog* pDialog, const char* szName);

/// The slots of a class with their parameter names: "ButtonClicked(int id)".
QStringList Slots(const QMetaObject& metaObject);

/// Marks every text that is translated with its context, and keeps what was asked for.
class CContextTranslator : public QTranslator
{
    Q_OBJECT

public:
    CContextTranslator();
    ~CContextTranslator() override;

    bool isEmpty() const override { return false; }
    QString translate(const char* szContext, const char* szSource, const char* szDisambiguation,
                      int n) const override;

    /// The Chinese source texts asked for so far, each once, in order.
    QStringList Sources() const { return m_listSources; }
    /// Those of them that were asked for in another context than that of the library, or with a
    /// disambiguation or a number.
    QStringList Strays() const { return m_listStrays; }

private:
    mutable QStringList m_listSources;
    mutable QStringList m_listStrays;
};

/// What a translated text looks like under `CContextTranslator`.
QString Marked(const char* szSource);

/// Keeps the warnings that Qt prints while it lives.
class CWarnings
{
public:
    CWarnings();
    ~CWarnings();
    CWarnings(const CWarnings&) = delete;
    CWarnings& operator=(const CWarnings&) = delete;

    /// Warnings that have this word in them.
    QStringList With(const QString& strWord) const;
};

/// Answers file dialogs, in order; without an answer they are cancelled.
class CFileAnswers : public QObject
{
    Q_OBJECT

public:
    /// What a file dialog looked like when it came up.
    struct SShown
    {
        QString strTitle;
        QStringList listFilters;
        QString strFolder;
        QWidget* pParent;
    };

    CFileAnswers();
    ~CFileAnswers() override;

    /// The next file dialog will be answered with this file.
    void Plan(const QString& strPath) { m_listPlanned.append(strPath); }
    QList<SShown> Shown() const { return m_listShown; }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    QStringList m_listPlanned;
    QList<SShown> m_listShown;
};

} // namespace OutputDialogSupport

#endif // TESTS_OUTPUT_OUTPUTDIALOGSUPPORT_H
