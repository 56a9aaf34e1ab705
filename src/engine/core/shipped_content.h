// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// Brings what a program ships, a host folder, into a user's own one. Maps and symbols come once
/// each: what the user has changed, renamed or thrown away since stays so, and a newer version adds
/// only what it is the first to ship. Help and animations follow those shipped. Raises nothing;
/// what could not be copied is tried again at the next start.
void deliverContent(const QString& shipped, const QString& own);

}  // namespace nubivane
