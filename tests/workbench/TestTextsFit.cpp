#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/OrviControl/Theme.h"
#include "tests/support/CutTexts.h"
#include "tests/workbench/FilledPages.h"
#include "tests/workbench/ShownWorkbench.h"
#include "workbench/AddSenderDialog.h"
#include "workbench/KeysDialog.h"
#include "workbench/WorkbenchPage.h"
#include "workbench/colour/PictureSizeDialog.h"

#include <QHeaderView>
#include <QTabWidget>
#include <QtTest>

#include <functional>
#include <memory>

Q_DECLARE_METATYPE(enLanguage)

namespace {

using FuncMake = std::function<std::unique_ptr<QDialog>()>;

constexpr enLanguage c_arrLanguages[] = {enLanguage::enChinese, enLanguage::enEnglish};

} // namespace

Q_DECLARE_METATYPE(FuncMake)

/// The texts of the workbench in both languages, at the scale of QT_SCALE_FACTOR.
class TestTextsFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void NoTextOfAPageIsCut_data();
    void NoTextOfAPageIsCut();
    void NoHeadingOfATableIsCut_data();
    void NoHeadingOfATableIsCut();
    void NoTextOfADialogIsCut_data();
    void NoTextOfADialogIsCut();
};

void TestTextsFit::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
    QApplication::setStyle(Theme::CreateStyle());
    QApplication::setPalette(Theme::Palette());
    QApplication::setFont(Theme::Font());
}

void TestTextsFit::NoTextOfAPageIsCut_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QSize>("sizeScreen");
    QTest::addColumn<enLanguage>("language");
    constexpr const char* c_arrPages[] = {"EDID", "Colour", "Output", "Addresses", "Simulation"};
    int nPage = 0;
    for (const char* szPage : c_arrPages) {
        for (const QSize size : {QSize(1024, 700), QSize(1920, 1040)})
            for (const enLanguage language : c_arrLanguages)
                QTest::addRow("%s, %dx%d, %s", szPage, size.width(), size.height(),
                              qPrintable(CLanguage::Code(language)))
                    << nPage << size << language;
        ++nPage;
    }
}

void TestTextsFit::NoTextOfAPageIsCut()
{
    QFETCH(int, page);
    QFETCH(QSize, sizeScreen);
    QFETCH(enLanguage, language);
    CWorkbenchFixture workbench;
    workbench.language.Set(language);
    workbench.window.ArrangeFor(sizeScreen);
    workbench.window.ShowPage(workbench.window.Pages()[std::size_t(page)]);
    workbench.window.Tree().Select({0, 0});
    workbench.Activate();
    // Texts in another language are laid out by an event.
    QTRY_COMPARE(CutTexts::Of(workbench.window).join(QLatin1Char('|')), QString());
}

void TestTextsFit::NoHeadingOfATableIsCut_data()
{
    FilledPages::AddRows();
}

/// The headings of a window's columns that are wider than their columns.
QStringList CutHeadings(const QWidget& window)
{
    QStringList listCut;
    for (const QHeaderView* pHeader : window.findChildren<QHeaderView*>()) {
        if (!pHeader->isVisible() || pHeader->orientation() != Qt::Horizontal)
            continue;
        const int nMargins = 2 * pHeader->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, pHeader);
        for (int nColumn = 0; nColumn < pHeader->count(); ++nColumn) {
            const QString strHeading = pHeader->model()->headerData(nColumn, Qt::Horizontal).toString();
            const int nNeeded = CutTexts::TextWidth(*pHeader, strHeading) + nMargins;
            if (!pHeader->isSectionHidden(nColumn) && pHeader->sectionSize(nColumn) < nNeeded)
                listCut.append(strHeading);
        }
    }
    return listCut;
}

void TestTextsFit::NoHeadingOfATableIsCut()
{
    QFETCH(int, page);
    QFETCH(int, tab);
    for (const enLanguage language : c_arrLanguages) {
        CWorkbenchFixture workbench;
        workbench.language.Set(language);
        workbench.window.ArrangeFor({1024, 700});
        workbench.Activate();
        FilledPages::Show(workbench.window, page, tab);
        QTRY_COMPARE(CutHeadings(workbench.window).join(QLatin1Char('|')), QString());
        QTRY_COMPARE(CutTexts::Of(workbench.window).join(QLatin1Char('|')), QString());
    }
}

void TestTextsFit::NoTextOfADialogIsCut_data()
{
    QTest::addColumn<FuncMake>("funcMake");
    QTest::addColumn<enLanguage>("language");
    const std::pair<const char*, FuncMake> arrDialogs[] = {
        {"add senders", [] { return std::make_unique<CAddSenderDialog>(nullptr); }},
        {"keys", [] { return std::make_unique<CKeysDialog>(); }},
        {"picture size",
         [] {
             return std::make_unique<CPictureSizeDialog>(SPictureSize{QSize(1000, 1000)},
                                                         CPictureSizeDialog::enPixels, QString(), nullptr);
         }},
    };
    for (const auto& [szName, funcMake] : arrDialogs)
        for (const enLanguage language : c_arrLanguages)
            QTest::addRow("%s, %s", szName, qPrintable(CLanguage::Code(language))) << funcMake << language;
}

void TestTextsFit::NoTextOfADialogIsCut()
{
    QFETCH(FuncMake, funcMake);
    QFETCH(enLanguage, language);
    CLanguage current;
    current.Set(language);
    const std::unique_ptr<QDialog> pDialog = funcMake();
    pDialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(pDialog.get()));
    QCOMPARE(CutTexts::Of(*pDialog).join(QLatin1Char('|')), QString());
}

QTEST_MAIN(TestTextsFit)
#include "TestTextsFit.moc"
