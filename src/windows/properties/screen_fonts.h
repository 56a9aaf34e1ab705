// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>

namespace nubivane {

/// Font families and, in their places among them, the names that web pages build on where the
/// platform draws them with a family of the same widths. `familyDrawn` tells which one draws a
/// name.
QStringList withWebFonts(QStringList families,
                         const std::function<QString(const QString&)>& familyDrawn);

/// The fonts of the screen in the order in which the platform reports them. The names that web
/// pages build on stand among them also where the platform draws them with a font of the same
/// widths under another name.
QStringList screenFonts();

}  // namespace nubivane
