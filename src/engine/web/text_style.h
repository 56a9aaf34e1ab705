// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/color_table.h"
#include "engine/model/forecast.h"

#include <QString>

namespace nubivane {

/// " TEXT-DECORATION:" and what is set of underline, overline and line-through; empty when nothing
/// is.
QString textDecoration(const FontStyle& font);

/// CSS of a title, subtitle or label. Raises `Error` for a colour that pages cannot show.
QString buildTextStyle(const FontStyle& font, qint32 backColor, const ColorTable& colors);

/// The same for a record.
template <class Styled>
QString buildTextStyle(const Styled& object, const ColorTable& colors) {
    return buildTextStyle(object.Font, object.BackColor, colors);
}

/// A FONT element of the forecast text. Bold stands before italic here.
QString buildFontElement(const TextItem& item, const ColorTable& colors);

/// " TEXT-ALIGN: …;" of an `Align` index; empty for one without a meaning.
QString alignment(qint16 align);

/// The border style of an index of `cDiv`, " solid;" to " outset;"; empty for one without a
/// meaning.
QString borderStyle(qint16 border);

}  // namespace nubivane
