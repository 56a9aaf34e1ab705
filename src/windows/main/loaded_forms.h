// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// True when a window of that name (its object name, such as "frmDrawAction", in any case) is
/// loaded, shown or not.
bool isFormLoaded(const QString& name);

}  // namespace nubivane
