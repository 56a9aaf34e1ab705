// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// The text without what XML 1.0 forbids: most control characters, lone surrogates and the last
/// two characters of the basic plane.
QString allowedInXml(const QString& text);

}  // namespace nubivane
