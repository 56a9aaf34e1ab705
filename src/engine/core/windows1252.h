// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace nubivane {

/// Text as Windows-1252 (IANA name windows-1252, WHATWG Encoding Standard), for files that
/// browsers read. Nothing is lost: a character outside the code page becomes an escape.

/// For HTML: a character outside the code page becomes one decimal reference, "&#128512;".
QByteArray toWindows1252Html(const QString& text);

/// For script: a character outside the code page becomes "\uXXXX" with upper-case digits, one for
/// each UTF-16 unit.
QByteArray toWindows1252Script(const QString& text);

}  // namespace nubivane
