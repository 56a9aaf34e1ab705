// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>

namespace nubivane {

/// The pointers that are pictures: "drawcur", "erasecur", "color".
QCursor toolPointer(const char* key);

}  // namespace nubivane
