// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/ftp_settings.h"

#include <QStringList>

namespace nubivane {

class Workspace;

/// Files and folders of the chosen groups that no plan can hold because of their names: no UTF-8, a
/// control character such as a line end, a separator. Each as "path: what is wrong", bytes that
/// cannot be shown as "\x" and two digits.
QStringList unsendableNames(const Workspace& workspace, const UploadGroups& groups);

}  // namespace nubivane
