// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/text_style.h"

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

QString textDecoration(const FontStyle& font) {
    if (!font.Underline && !font.Overline && !font.Strikeout) {
        return {};
    }
    QString style = u" TEXT-DECORATION:"_s;
    if (font.Underline) {
        style += u" underline;"_s;
    }
    if (font.Overline) {
        style += u" overline;"_s;
    }
    if (font.Strikeout) {
        style += u" line-through;"_s;
    }
    return style;
}

QString buildTextStyle(const FontStyle& font, qint32 backColor, const ColorTable& colors) {
    QString style;
    if (backColor != NoColor) {
        style += u" BACKGROUND-COLOR: "_s + colors.webColor(backColor) + u';';
    }
    style += u" COLOR: "_s + colors.webColor(font.Color) + u';';
    style += u" FONT-FAMILY: "_s + font.Name + u';';
    style += u" FONT-SIZE: "_s + QString::number(font.Size) + u"pt;"_s;
    if (font.Italic) {
        style += u" FONT-STYLE: italic;"_s;
    }
    if (font.Bold) {
        style += u" FONT-WEIGHT: bold;"_s;
    }
    return style + textDecoration(font);
}

QString buildFontElement(const TextItem& item, const ColorTable& colors) {
    QString element = u"  <FONT style=\" FONT-FAMILY: "_s + item.Font.Name + u"; FONT-SIZE: "_s +
                      QString::number(item.Font.Size) + u"pt;"_s;
    if (item.Font.Color != NoColor) {
        element += u" COLOR: "_s + colors.webColor(item.Font.Color) + u';';
    }
    if (item.BackColor != NoColor) {
        element += u" BACKGROUND-COLOR: "_s + colors.webColor(item.BackColor) + u';';
    }
    if (item.Font.Bold) {
        element += u" FONT-WEIGHT: bold;"_s;
    }
    if (item.Font.Italic) {
        element += u" FONT-STYLE: italic;"_s;
    }
    element += textDecoration(item.Font) + u"\">"_s + item.Text + u"</FONT>"_s;
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
