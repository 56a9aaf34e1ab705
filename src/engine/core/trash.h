// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// Deleting what a person could want back: it goes to the desktop's trash, and is removed for good
/// only where there is none for it. Paths are model paths; a folder's or a file's link goes, not
/// what lies behind it.
namespace trash {

/// True when the file has gone; a folder is left alone.
bool discardFile(const QString& path);

/// A folder with all its files. One that holds other folders loses its files and stays.
void discardFolder(const QString& path);

}  // namespace trash

}  // namespace nubivane
