// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

class Shell;

/// True for a name or address of this machine itself.
bool isLoopbackHost(const QString& host);

/// Whether trying to reach a host makes sense: a network is there, or none is needed.
bool isReachable(Shell& shell, const QString& host);

}  // namespace nubivane
