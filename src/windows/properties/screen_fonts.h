// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace nubivane {

/// The fonts of the screen in the order in which the platform reports them. The names that web
/// pages build on stand among them also where the platform draws them with a font of the same
/// widths under another name.
QStringList screenFonts();

}  // namespace nubivane
