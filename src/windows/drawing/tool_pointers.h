#pragma once

#include <QCursor>

namespace nubivane {

/// The pointers that are pictures: "drawcur", "erasecur", "color".
QCursor toolPointer(const char* key);

}  // namespace nubivane
