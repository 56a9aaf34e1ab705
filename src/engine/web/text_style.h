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
    QString style = QStringLiteral(" TEXT-DECORATION:");
    if (object.FontUnderline) {
        style += QStringLiteral(" underline;");
    }
    if (object.FontOverline) {
        style += QStringLiteral(" overline;");
    }
    if (object.FontStrikethourht) {
        style += QStringLiteral(" line-through;");
    }
    return style;
}

/// CSS of a title, subtitle or label. Raises `Error` for a colour that pages cannot show.
template <class Styled>
QString buildTextStyle(const Styled& object, const ColorTable& colors) {
    QString style;
    if (object.BackColor != NoColor) {
        style += QStringLiteral(" BACKGROUND-COLOR: ") + colors.webColor(object.BackColor) + u';';
    }
    style += QStringLiteral(" COLOR: ") + colors.webColor(object.Forecolor) + u';';
    style += QStringLiteral(" FONT-FAMILY: ") + object.FontName + u';';
    style +=
        QStringLiteral(" FONT-SIZE: ") + QString::number(object.FontSize) + QStringLiteral("pt;");
    if (object.FontItalic) {
        style += QStringLiteral(" FONT-STYLE: italic;");
    }
    if (object.FontBold) {
        style += QStringLiteral(" FONT-WEIGHT: bold;");
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
