#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace nubivane {

/// The quality (0 to 100) of every JPEG picture that the program makes: maps of pages and Frames
/// of projects. High enough that thin drawn lines survive being saved again and again.
inline constexpr int JpegQuality = 92;

/// Pictures beyond these limits are refused from their header, before memory is taken.
inline constexpr int MaxPictureSide = 16384;            ///< pixels
inline constexpr qint64 MaxPicturePixels = 25'000'000;  ///< 100 MB decoded
/// Encoded: what the largest picture takes where nothing is compressed, so that all that can be
/// written can be read.
inline constexpr qint64 MaxPictureBytes = 4 * MaxPicturePixels + qint64{1024} * 1024;

/// Scans of a JPEG: each costs a walk over the whole picture.
inline constexpr int MaxJpegScans = 100;

enum class PictureFormat { Bmp, Gif, Jpeg, Png, Tiff };

/// What a picture's header tells.
struct PictureInfo {
    PictureFormat format;
    QSize size;  ///< pixels
};

/// The format that a file name's extension (without point, in any case) stands for. Raises `Error`
/// (InvalidArgument) for one that the program does not write.
PictureFormat formatOfExtension(const QString& extension);

/// Reads the header of an encoded picture. Raises `Error` (InvalidPicture) when the bytes are no
/// picture of the five formats, are cut short where that shows, or exceed the limits.
PictureInfo probePicture(const QByteArray& bytes);

/// Decodes a picture; of a moving one, the first image. Raises as `probePicture`.
QImage decodePicture(const QByteArray& bytes);

/// Encodes a picture. Raises `Error` (InvalidPicture) when the encoder fails.
QByteArray encodePicture(const QImage& image, PictureFormat format);

}  // namespace nubivane
