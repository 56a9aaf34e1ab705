// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace nubivane {

/// Makes addresses of captions: "Sunday morning" becomes "sunday-morning". Letters and digits of
/// every script stay, all else becomes a hyphen, so an id never holds an underscore and names that
/// have one are free for other parts of a page. One that was issued gets a number behind it.
QStringList periodIds(const QStringList& captions);

}  // namespace nubivane
