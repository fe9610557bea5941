#ifndef WORKBENCH_OUTPUT_CANVASPICTURE_H
#define WORKBENCH_OUTPUT_CANVASPICTURE_H

#include <QDateTime>
#include <QImage>
#include <QString>

/// The result of reading a picture file.
enum class enPictureState
{
    enMissing,    ///< there is no such file
    enUnreadable, ///< it holds no picture that could be shown
    enTooLarge,   ///< it has more pixels than a view should spend memory on
    enGood
};

/// A background picture as it is read from its file.
struct SCanvasPicture
{
    enPictureState state = enPictureState::enMissing;
    QString strFile;
    QString strProblem; ///< why it is unreadable
    QSize size;         ///< pixels, as in the file
    QImage image;       ///< the picture, made smaller where it is larger than any view
};

/// Reads background pictures, and caches the last one until its file changes: a moving slider requests the
/// same picture repeatedly.
class CCanvasPictureReader
{
public:
    /// Longest side of a picture that is kept as it is, pixels: more than a view shows.
    static constexpr int c_nMaxKeptSide = 4096;
    /// Most pixels of a picture that is read; while it is read they take 4 bytes each.
    static constexpr qint64 c_nMaxPixels = 128LL * 1024 * 1024;

    /// The picture of a file as it is now.
    const SCanvasPicture& Read(const QString& strFile);
    /// Reads the file again next time, whether it seems to have changed or not.
    void Forget() { m_picture = {}; }

private:
    SCanvasPicture m_picture;
    QDateTime m_timeModified;
    qint64 m_nFileSize = 0;
};

#endif // WORKBENCH_OUTPUT_CANVASPICTURE_H
