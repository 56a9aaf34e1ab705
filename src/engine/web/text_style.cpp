// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/text_style.h"

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

QString buildFontElement(const TextItem& item, const ColorTable& colors) {
    QString element = u"  <FONT style=\" FONT-FAMILY: "_s + item.FontName + u"; FONT-SIZE: "_s +
                      QString::number(item.FontSize) + u"pt;"_s;
    if (item.Forecolor != NoColor) {
        element += u" COLOR: "_s + colors.webColor(item.Forecolor) + u';';
    }
    if (item.BackColor != NoColor) {
        element += u" BACKGROUND-COLOR: "_s + colors.webColor(item.BackColor) + u';';
    }
    if (item.FontBold) {
        element += u" FONT-WEIGHT: bold;"_s;
    }
    if (item.FontItalic) {
        element += u" FONT-STYLE: italic;"_s;
    }
    element += textDecoration(item) + u"\">"_s + item.Text + u"</FONT>"_s;
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
