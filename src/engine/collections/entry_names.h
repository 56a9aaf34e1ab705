// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// True for a name that a person may give to a collection or, without its extension, to a map: it
/// stays in its folder and means the same on every system to which a project may travel.
bool isValidEntryName(const QString& name);

/// A file name as it may stand in our folders: what could not is replaced by "_".
QString validFileName(const QString& name);

/// The name under which a file of that name comes into a folder: its own where that is free,
/// otherwise with the first number that is.
QString freeFileName(const QString& folder, const QString& name);

/// "newCollection" and the first number from 1 to 10000 that is free; empty when none is.
QString newCollectionName(const QString& symbolsFolder);

}  // namespace nubivane
