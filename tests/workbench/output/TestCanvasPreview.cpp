#include "workbench/output/CanvasPreview.h"

#include <QtTest>

Q_DECLARE_METATYPE(enPictureFit)

namespace {

/// A canvas of 200 by 100 with a white picture of 100 by 100.
SCanvasContent HalfPicture()
{
    SCanvasContent content;
    content.sizeCanvas = QSize(200, 100);
    content.imgPicture = QImage(100, 100, QImage::Format_RGB32);
    content.imgPicture.fill(Qt::white);
    content.sizePicture = content.imgPicture.size();
    content.byAlpha = 255;
    return content;
}

/// The brightness of the view at a place of the canvas, both parts from 0 to 1.
int BrightnessAt(CCanvasPreview& preview, double dX, double dY)
{
    const QRect rect = preview.CanvasRect();
    const QPoint ptAt(rect.x() + int(dX * rect.width()), rect.y() + int(dY * rect.height()));
    return preview.grab().toImage().pixelColor(ptAt).value();
}

} // namespace

class TestCanvasPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheFitDecidesWhatThePictureCovers_data();
    void TheFitDecidesWhatThePictureCovers();
    void TheOpacityDimsThePicture_data();
    void TheOpacityDimsThePicture();
    void WithoutPictureTheCanvasIsBlack();
    void AnImageThatWasMadeSmallerShowsTheSamePart();
    void TheSizeIsTold();
    void ACanvasWithoutAreaShowsOnlyTheNote();
    void TheNoteIsDescribedToWhoCannotSeeIt();
    void AResizedViewKeepsTheWholeCanvas();

private:
    std::unique_ptr<CCanvasPreview> m_pPreview;
};

void TestCanvasPreview::init()
{
    m_pPreview = std::make_unique<CCanvasPreview>();
    m_pPreview->resize(440, 280);
}

void TestCanvasPreview::TheFitDecidesWhatThePictureCovers_data()
{
    QTest::addColumn<enPictureFit>("fit");
    QTest::addColumn<int>("right");
    QTest::newRow("one to one: the left half") << enPictureFit::enOneToOne << 0;
    QTest::newRow("stretched: all") << enPictureFit::enStretched << 255;
}

void TestCanvasPreview::TheFitDecidesWhatThePictureCovers()
{
    QFETCH(enPictureFit, fit);
    SCanvasContent content = HalfPicture();
    content.fit = fit;
    m_pPreview->SetContent(content);
    QCOMPARE(BrightnessAt(*m_pPreview, 0.25, 0.5), 255);
    QTEST(BrightnessAt(*m_pPreview, 0.75, 0.5), "right");
}

void TestCanvasPreview::TheOpacityDimsThePicture_data()
{
    QTest::addColumn<int>("alpha");
    QTest::newRow("opaque") << 255;
    QTest::newRow("half") << 127;
    QTest::newRow("a little") << 1;
    QTest::newRow("transparent") << 0;
}

void TestCanvasPreview::TheOpacityDimsThePicture()
{
    QFETCH(int, alpha);
    SCanvasContent content = HalfPicture();
    content.byAlpha = quint8(alpha);
    m_pPreview->SetContent(content);
    // White over black at an opacity is that grey, give or take the painter's rounding.
    QVERIFY(qAbs(BrightnessAt(*m_pPreview, 0.25, 0.5) - alpha) <= 1);
}

void TestCanvasPreview::WithoutPictureTheCanvasIsBlack()
{
    SCanvasContent content;
    content.sizeCanvas = QSize(200, 100);
    m_pPreview->SetContent(content);
    QCOMPARE(BrightnessAt(*m_pPreview, 0.5, 0.5), 0);
    QVERIFY(m_pPreview->grab().toImage().pixelColor(0, 0).value() > 0);
}

void TestCanvasPreview::AnImageThatWasMadeSmallerShowsTheSamePart()
{
    SCanvasContent content = HalfPicture();
    content.imgPicture = content.imgPicture.scaled(50, 50);
    m_pPreview->SetContent(content);
    QCOMPARE(BrightnessAt(*m_pPreview, 0.45, 0.95), 255);
    QCOMPARE(BrightnessAt(*m_pPreview, 0.55, 0.5), 0);
}

void TestCanvasPreview::TheSizeIsTold()
{
    m_pPreview->SetContent(HalfPicture());
    QVERIFY(m_pPreview->SizeText().startsWith(QStringLiteral("200 × 100 像素")));
    QCOMPARE(m_pPreview->accessibleDescription(), m_pPreview->SizeText());
}

void TestCanvasPreview::ACanvasWithoutAreaShowsOnlyTheNote()
{
    SCanvasContent content = HalfPicture();
    content.sizeCanvas = QSize(0, 600);
    content.strNote = QStringLiteral("note");
    m_pPreview->SetContent(content);
    QVERIFY(m_pPreview->CanvasRect().isEmpty());
    QCOMPARE(m_pPreview->SizeText(), QString());
    QVERIFY(!m_pPreview->grab().isNull());
}

void TestCanvasPreview::TheNoteIsDescribedToWhoCannotSeeIt()
{
    SCanvasContent content = HalfPicture();
    content.strNote = QStringLiteral("note");
    m_pPreview->SetContent(content);
    QCOMPARE(m_pPreview->accessibleDescription(), QStringLiteral("note"));
}

void TestCanvasPreview::AResizedViewKeepsTheWholeCanvas()
{
    m_pPreview->SetContent(HalfPicture());
    m_pPreview->resize(900, 300);
    QVERIFY(!m_pPreview->grab().isNull()); // a hidden widget is told its size when it is painted
    const QRect rect = m_pPreview->CanvasRect();
    QVERIFY(m_pPreview->rect().contains(rect));
    QCOMPARE(rect.width(), rect.height() * 2);
}

QTEST_MAIN(TestCanvasPreview)
#include "TestCanvasPreview.moc"
