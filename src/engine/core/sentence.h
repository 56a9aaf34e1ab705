// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// A reason as people are told it: with a large letter at its beginning and a full stop at its end.
/// A path or another single word is no sentence and stays as it is, also at the beginning of one,
/// and so does what a server has answered, which begins with its number.
QString sentence(const QString& text);

}  // namespace nubivane
