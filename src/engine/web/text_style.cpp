// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/text_style.h"

#include <array>

namespace nubivane {

QString buildFontElement(const TextItem& item, const ColorTable& colors) {
    QString element = "  <FONT style=\" FONT-FAMILY: " + item.FontName +
                      "; FONT-SIZE: " + QString::number(item.FontSize) + "pt;";
    if (item.Forecolor != NoColor) {
        element += " COLOR: " + colors.webColor(item.Forecolor) + ';';
    }
    if (item.BackColor != NoColor) {
        element += " BACKGROUND-COLOR: " + colors.webColor(item.BackColor) + ';';
    }
    if (item.FontBold) {
        element += " FONT-WEIGHT: bold;";
    }
    if (item.FontItalic) {
        element += " FONT-STYLE: italic;";
    }
    element += textDecoration(item) + "\">" + item.Text + "</FONT>";
    return element;
}

QString alignment(qint16 align) {
    constexpr std::array values = {" TEXT-ALIGN: left;", " TEXT-ALIGN: right;",
                                   " TEXT-ALIGN: center;"};
    return align >= 0 && align < static_cast<qint16>(values.size())
               ? QString(QLatin1String(values[static_cast<std::size_t>(align)]))
               : QString();
}

QString borderStyle(qint16 border) {
    constexpr std::array values = {"",        " solid;", " double;", " groove;",
                                   " ridge;", " inset;", " outset;"};
    return border >= 0 && border < static_cast<qint16>(values.size())
               ? QString(QLatin1String(values[static_cast<std::size_t>(border)]))
               : QString();
}

}  // namespace nubivane
