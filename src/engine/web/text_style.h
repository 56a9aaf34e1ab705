// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/color_table.h"
#include "engine/model/forecast.h"

#include <QString>

namespace nubivane {

/// " TEXT-DECORATION:" and what is set of underline, overline and line-through; empty when nothing
/// is. Serves every object with these three flags.
template <class Styled>
QString textDecoration(const Styled& object) {
    if (!object.FontUnderline && !object.FontOverline && !object.FontStrikethourht) {
        return {};
    }
    QString style = " TEXT-DECORATION:";
    if (object.FontUnderline) {
        style += " underline;";
    }
    if (object.FontOverline) {
        style += " overline;";
    }
    if (object.FontStrikethourht) {
        style += " line-through;";
    }
    return style;
}

/// CSS of a title, subtitle or label. Raises `Error` for a colour that pages cannot show.
template <class Styled>
QString buildTextStyle(const Styled& object, const ColorTable& colors) {
    QString style;
    if (object.BackColor != NoColor) {
        style += " BACKGROUND-COLOR: " + colors.webColor(object.BackColor) + ';';
    }
    style += " COLOR: " + colors.webColor(object.Forecolor) + ';';
    style += " FONT-FAMILY: " + object.FontName + ';';
    style += " FONT-SIZE: " + QString::number(object.FontSize) + "pt;";
    if (object.FontItalic) {
        style += " FONT-STYLE: italic;";
    }
    if (object.FontBold) {
        style += " FONT-WEIGHT: bold;";
    }
    return style + textDecoration(object);
}

/// A FONT element of the forecast text. Bold stands before italic here.
QString buildFontElement(const TextItem& item, const ColorTable& colors);

/// " TEXT-ALIGN: …;" of an `Align` index; empty for one without a meaning.
QString alignment(qint16 align);

/// The border style of an index of `cDiv`, " solid;" to " outset;"; empty for one without a
/// meaning.
QString borderStyle(qint16 border);

}  // namespace nubivane
