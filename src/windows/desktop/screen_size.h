// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

namespace nubivane {

class Shell;

/// Asks whether to go on where a screen (pixels) is too narrow. The height alone is never tested.
bool screenSuffices(Shell& shell, QSize screen);

}  // namespace nubivane
