#include "workbench/output/CanvasPicture.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {

/// The size in which a picture is cached.
QSize KeptSize(QSize size)
{
    constexpr QSize c_sizeMax(CCanvasPictureReader::c_nMaxKeptSide, CCanvasPictureReader::c_nMaxKeptSide);
    if (size.boundedTo(c_sizeMax) == size)
        return size;
    return size.scaled(c_sizeMax, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

SCanvasPicture ReadPicture(const QString& strFile)
{
    // The stored picture's name has no extension: its content determines the format.
    QImageReader reader(strFile);
    SCanvasPicture picture;
    picture.strFile = strFile;
    picture.size = reader.size();
    if (qint64(picture.size.width()) * picture.size.height() > CCanvasPictureReader::c_nMaxPixels) {
        picture.state = enPictureState::enTooLarge;
        return picture;
    }
    if (KeptSize(picture.size) != picture.size)
        reader.setScaledSize(KeptSize(picture.size));
    if (!picture.size.isEmpty() && reader.read(&picture.image)) {
        picture.state = enPictureState::enGood;
        return picture;
    }
    picture.state = enPictureState::enUnreadable;
    picture.strProblem = reader.errorString();
    return picture;
}

} // namespace

const SCanvasPicture& CCanvasPictureReader::Read(const QString& strFile)
{
    const QFileInfo info(strFile);
    if (!info.isFile()) {
        m_picture = {};
        m_picture.strFile = strFile;
        return m_picture;
    }
    const bool bKept = m_picture.state != enPictureState::enMissing && m_picture.strFile == strFile &&
                       m_timeModified == info.lastModified() && m_nFileSize == info.size();
    if (!bKept) {
        m_picture = ReadPicture(strFile);
        m_timeModified = info.lastModified();
        m_nFileSize = info.size();
    }
    return m_picture;
}
