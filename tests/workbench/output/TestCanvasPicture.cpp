#include "workbench/output/CanvasPicture.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class TestCanvasPicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void APictureIsReadByItsContent();
    void AMissingFileIsMissing();
    void AFolderIsNoPicture();
    void AFileThatIsNoPictureIsUnreadable_data();
    void AFileThatIsNoPictureIsUnreadable();
    void APictureOfManyPixelsIsMadeSmaller();
    void AHugePictureIsNotRead();
    void AReplacedFileIsReadAgain();
    void AForgottenPictureIsReadAgain();
    void AFileThatVanishesIsNoticed();

private:
    QString Write(const QByteArray& baContent) const;
    QString Paint(QSize size, Qt::GlobalColor color) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
    QString m_strFile;
};

void TestCanvasPicture::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
    m_strFile = m_pFolder->filePath(QStringLiteral("sender-1"));
}

QString TestCanvasPicture::Write(const QByteArray& baContent) const
{
    QFile file(m_strFile);
    const bool bWritten = file.open(QIODevice::WriteOnly) && file.write(baContent) == baContent.size();
    return bWritten ? m_strFile : QString();
}

QString TestCanvasPicture::Paint(QSize size, Qt::GlobalColor color) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image.save(m_strFile, "PNG") ? m_strFile : QString();
}

void TestCanvasPicture::APictureIsReadByItsContent()
{
    CCanvasPictureReader reader;
    const SCanvasPicture& picture = reader.Read(Paint({30, 20}, Qt::red));
    QCOMPARE(int(picture.state), int(enPictureState::enGood));
    QCOMPARE(picture.size, QSize(30, 20));
    QCOMPARE(picture.image.pixelColor(0, 0), QColor(Qt::red));
}

void TestCanvasPicture::AMissingFileIsMissing()
{
    CCanvasPictureReader reader;
    const SCanvasPicture& picture = reader.Read(m_strFile);
    QCOMPARE(int(picture.state), int(enPictureState::enMissing));
    QCOMPARE(picture.strFile, m_strFile);
}

void TestCanvasPicture::AFolderIsNoPicture()
{
    CCanvasPictureReader reader;
    QCOMPARE(int(reader.Read(m_pFolder->path()).state), int(enPictureState::enMissing));
}

void TestCanvasPicture::AFileThatIsNoPictureIsUnreadable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture at all");
    QTest::newRow("only the head of a PNG") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
}

void TestCanvasPicture::AFileThatIsNoPictureIsUnreadable()
{
    QFETCH(QByteArray, content);
    CCanvasPictureReader reader;
    const SCanvasPicture& picture = reader.Read(Write(content));
    QCOMPARE(int(picture.state), int(enPictureState::enUnreadable));
    QVERIFY(!picture.strProblem.isEmpty());
    QVERIFY(picture.image.isNull());
}

void TestCanvasPicture::APictureOfManyPixelsIsMadeSmaller()
{
    CCanvasPictureReader reader;
    const SCanvasPicture& picture =
        reader.Read(Paint({CCanvasPictureReader::c_nMaxKeptSide * 2, 10}, Qt::red));
    QCOMPARE(int(picture.state), int(enPictureState::enGood));
    QCOMPARE(picture.size, QSize(CCanvasPictureReader::c_nMaxKeptSide * 2, 10));
    QCOMPARE(picture.image.size(), QSize(CCanvasPictureReader::c_nMaxKeptSide, 5));
}

void TestCanvasPicture::AHugePictureIsNotRead()
{
    // The head of a bitmap of 20000 by 10000 pixels, which follow nowhere.
    QByteArray baHead("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0", 18);
    baHead += QByteArray("\x20\x4e\0\0\x10\x27\0\0\1\0\x20\0", 12) + QByteArray(24, '\0');
    CCanvasPictureReader reader;
    const SCanvasPicture& picture = reader.Read(Write(baHead));
    QCOMPARE(picture.size, QSize(20000, 10000));
    QCOMPARE(int(picture.state), int(enPictureState::enTooLarge));
    QVERIFY(picture.image.isNull());
}

void TestCanvasPicture::AReplacedFileIsReadAgain()
{
    CCanvasPictureReader reader;
    reader.Read(Paint({30, 20}, Qt::red));
    const SCanvasPicture& picture = reader.Read(Paint({300, 200}, Qt::blue));
    QCOMPARE(picture.size, QSize(300, 200));
    QCOMPARE(picture.image.pixelColor(0, 0), QColor(Qt::blue));
}

void TestCanvasPicture::AForgottenPictureIsReadAgain()
{
    CCanvasPictureReader reader;
    const QString strFile = Paint({30, 20}, Qt::red);
    const qint64 nKey = reader.Read(strFile).image.cacheKey();
    QCOMPARE(reader.Read(strFile).image.cacheKey(), nKey);
    reader.Forget();
    QVERIFY(reader.Read(strFile).image.cacheKey() != nKey);
}

void TestCanvasPicture::AFileThatVanishesIsNoticed()
{
    CCanvasPictureReader reader;
    const QString strFile = Paint({30, 20}, Qt::red);
    reader.Read(strFile);
    QVERIFY(QFile::remove(strFile));
    const SCanvasPicture& picture = reader.Read(strFile);
    QCOMPARE(int(picture.state), int(enPictureState::enMissing));
    QVERIFY(picture.image.isNull());
}

QTEST_GUILESS_MAIN(TestCanvasPicture)
#include "TestCanvasPicture.moc"
