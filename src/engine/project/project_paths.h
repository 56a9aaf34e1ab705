// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// A project is two files side by side: "x.nvpf", an XML document, and "x.nvpx", the pictures.

/// The data file of a project file: everything up to the last point of the file's name, and
/// "nvpx". Empty for a name without a point.
QString dataFileOf(const QString& projectFile);

/// True when the extension is "nvpf" in any case and both files exist.
bool isValidProjectFile(const QString& projectFile);

/// What a file dialog offers for projects.
inline constexpr QLatin1String ProjectFilter("Nubivane files (*.nvpf)|*.nvpf|");

}  // namespace nubivane
