// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace nubivane {

/// Shows the picker of a symbol over a window; the path chosen (with backslashes), an empty text
/// where the person wants none, nothing where the picker was shut.
using SymbolChooser = std::function<std::optional<QString>(QWidget* over)>;

}  // namespace nubivane
