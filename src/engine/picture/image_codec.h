// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/picture_limits.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace nubivane {

/// The quality (0 to 100) of every JPEG picture that the program makes: maps of pages and Frames
/// of projects. High enough that thin drawn lines survive being saved again and again.
inline constexpr int JpegQuality = 92;

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
