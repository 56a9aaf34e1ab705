// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QString>

namespace nubivane {

/// True when a Symbol of any Frame lies in that folder, or is that file. Paths are compared as they
/// stand, case included.
bool usesCollection(const cFrames& frames, const QString& folder);
bool usesSymbol(const cFrames& frames, const QString& file);

/// What a person does to the collections and their symbols. Where a text is returned, it tells why
/// nothing was done; it is empty after success, and also where the disk refused, which the next
/// scan shows. What the palette shows is marked as changed.

/// Makes a collection; the result is its name, or empty.
QString createCollection(Workspace& workspace);
QString renameCollection(Workspace& workspace, const QString& key, const QString& newName);
QString deleteCollection(Workspace& workspace, const QString& key);
QString deleteSymbol(Workspace& workspace, const QString& file);

}  // namespace nubivane
