// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace nubivane {

/// Whether a page of the help can be shown without risk. What lays pages out takes time that
/// doubles with each table inside a table, and memory for each cell that a cell claims to span; no
/// page of ours comes near these limits.
bool isHarmlessPage(const QByteArray& html);

}  // namespace nubivane
