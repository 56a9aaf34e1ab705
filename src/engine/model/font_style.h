// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

/// How a text is written: what the font dialog knows of a Label, a title or a forecast item. The
/// default is that of a record that nobody has given a font.
struct FontStyle {
    QString Name = {};
    qint32 Size = 0;  ///< points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool Overline = false;
    bool Strikeout = false;
    qint32 Color = 0;  ///< 32-bit integer, red in the low byte

    bool operator==(const FontStyle&) const = default;
};

}  // namespace nubivane
