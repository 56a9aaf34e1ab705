// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// Looks at a picture file (path with backslashes) that is to become a symbol, or a map. The result
/// is what the person is to be told why it cannot; empty when it can. Raises nothing.
///
/// A file beyond the largest size is judged by its headers, so that no decoder ever meets a picture
/// larger than a map; one within it is decoded to its last byte.
QString checkSymbolFile(const QString& path);
QString checkMapFile(const QString& path);

/// What a file dialog offers for import.
inline constexpr QLatin1String ImportFilter(
    "All image files |*.gif;*.png;*.jpg;*.jpeg;|gif (*.gif)|*.gif|png (*.png)|*.png|"
    "jpg (*.jpg)|*.jpg|jpeg (*.jpeg)|*.jpeg|");

/// No symbol or map is larger: several times what the largest picture takes uncompressed.
inline constexpr qint64 MaxImportBytes = qint64{32} * 1024 * 1024;

/// True for a file name with one of the extensions of symbols and maps, in any case.
bool hasPictureExtension(const QString& name);

}  // namespace nubivane
