// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace nubivane {

/// What a server said, fit to be shown: one line without a control character (C0, DEL, C1), which
/// could move a terminal's cursor or change its title, and without marks that turn the direction
/// of text. Bytes that are no UTF-8 become replacement characters.
QString cleanText(QByteArrayView bytes);

}  // namespace nubivane
