// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// A project is two files side by side: "x.nvpf", an XML document, and "x.nvpx", the pictures.

/// The data file of a project file: everything up to the last point of the file's name, and
/// "nvpx". Empty for a name without a point.
QString dataFileOf(const QString& projectFile);

/// The same for a project that is to be written. Raises `Error` (FileAccess) for a name from which
/// none can be made.
QString requireDataFileOf(const QString& projectFile);

/// True where a project file stands at a host path, or one that an interrupted save has left is to
/// take this place.
bool projectStands(const QString& hostProjectFile);

/// True when the extension is "nvpf" in any case and both files stand.
bool isValidProjectFile(const QString& projectFile);

/// What a file dialog offers for projects.
inline constexpr QLatin1String ProjectFilter("Nubivane files (*.nvpf)|*.nvpf|");

}  // namespace nubivane
