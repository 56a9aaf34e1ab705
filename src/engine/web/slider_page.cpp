// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/slider_page.h"

#include "engine/core/error.h"
#include "engine/core/number_text.h"

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Border and place in the stack that track and ticks have in common.
QString raisedBox(int zIndex) {
    return u"BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #ffffff 1px solid; DISPLAY: inline; "
           "FONT-SIZE: 1pt; Z-INDEX: "_s +
           QString::number(zIndex) +
           u"; BORDER-LEFT: #ffffff 1px solid; BORDER-BOTTOM: #000000 1px solid; "_s;
}

constexpr QLatin1String LeftEnd("cursor.style.left = tracker.style.left;");
constexpr QLatin1String RightEnd(
    "cursor.style.left = parseInt(tracker.style.left) + parseInt(tracker.style.width) - "
    "parseInt(cursor.style.width);");
constexpr QLatin1String BelowLeft("if ((posXY[0] - posX) < parseInt(tracker.style.left))");
constexpr QLatin1String TickUnderCursor(
    "Math.round(((posXY[0] - posX) - parseInt(tracker.style.left)) / tick_len)");

/// The mouse position in page coordinates, for all browsers.
void writeGetXY(TextLines& out) {
    out << "function getXY(e)"
        << "{"
        << "    if( !e ) { e = window.event; } if( !e || ( typeof( e.pageX ) != 'number' && "
           "typeof( "
           "e.clientX ) != 'number' ) ) { return [0,0]; }"
        << "    if( typeof( e.pageX ) == 'number' ) { var xcoord = e.pageX; var ycoord = e.pageY; "
           "} "
           "else {"
        << "        var xcoord = e.clientX; var ycoord = e.clientY;"
        << "        if( !( ( window.navigator.userAgent.indexOf( 'Opera' ) + 1 ) || ( "
           "window.ScriptEngine && ScriptEngine().indexOf( 'InScript' ) + 1 ) || "
           "window.navigator.vendor == 'KDE' ) ) {"
        << "            if( document.documentElement && ( document.documentElement.scrollTop || "
           "document.documentElement.scrollLeft ) ) {"
        << "                xcoord += document.documentElement.scrollLeft; ycoord += "
           "document.documentElement.scrollTop;"
        << "            } else if( document.body && ( document.body.scrollTop || "
           "document.body.scrollLeft ) ) {"
        << "                xcoord += document.body.scrollLeft; ycoord += document.body.scrollTop; "
           "} "
           "} }"
        << EmptyLine << "    return [xcoord,ycoord];"
        << "}";
}

}  // namespace

QString SliderPage::bodyAttributes() const {
    return hasSlider() ? u" onmouseup=\"javascript:doUp();\" onmousemove=\"javascript:doMove();\""_s
                       : u""_s;
}

void SliderPage::writeAfterMaps(TextLines& out) const {
    if (!hasSlider()) {
        return;
    }
    const qint64 top = input().map.height() + mapTop(1);
    out << "<!-- SLIDER -->";
    out << u"<DIV id=\"tracker\" style=\""_s + raisedBox(100) + u"POSITION: absolute; LEFT: "_s +
               num(Left) + u"px; TOP: "_s + num(top + 12) + u"px; WIDTH: "_s +
               num(input().map.width() + 2) +
               u"px; HEIGHT: 5px; BACKGROUND-COLOR: #d3d3d3\"></DIV>"_s
        << EmptyLine;
    if (settings().sliderTicks) {
        writeTicks(out, top);
    }
    writeCursor(out, top);
    if (settings().sliderTooltip) {
        writeTickLabel(out, top);
    }
}

void SliderPage::writeTicks(TextLines& out, qint64 top) const {
    const qint64 step = roundedQuotient(input().map.width() - 2, frameCount() - 1);
    for (qint32 i = 1; i <= frameCount(); ++i) {
        out << u"<DIV style=\""_s + raisedBox(102) + u"POSITION: absolute; LEFT: "_s +
                   num((i - 1) * step + Left) + u"px; TOP: "_s + num(top + 12) +
                   u"px; WIDTH: 4px; HEIGHT: 6px; BACKGROUND-COLOR: #d3d3d3\"></DIV>"_s
            << EmptyLine;
    }
}

void SliderPage::writeCursor(TextLines& out, qint64 top) const {
    QString element =
        u"<IMG id=\"cursor\" onmouseup=\"javascript:doUp();\" onmousedown=\"javascript:doDown();\" "
        "style=\"BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #ffffff 1px solid; DISPLAY: inline; "
        "Z-INDEX: 103; BORDER-LEFT: #ffffff 1px solid; CURSOR: hand; BORDER-BOTTOM: #000000 1px "
        "solid; POSITION: absolute; LEFT: "_s +
        num(Left) + u"px; TOP: "_s + num(top + 5) + u"px; WIDTH: 12px; HEIGHT: 16px; "_s;
    if (!settings().sliderColor) {
        throw Error(error_number::TypeMismatch, u"page"_s,
                    u"The colour of the slider is no number."_s);
    }
    if (*settings().sliderColor != NoColor) {
        element +=
            u"BACKGROUND-COLOR: "_s + input().colors.webColor(*settings().sliderColor) + u';';
    }
    out << element + u"\" alt=\"\" src=\"\">"_s << EmptyLine;
}

void SliderPage::writeTickLabel(TextLines& out, qint64 top) const {
    qsizetype longest = 1;
    for (qint32 i = 1; i <= frameCount(); ++i) {
        longest = std::max(longest, input().frames.Item(i).Texts().Label.size());
    }
    out << u"<DIV id=\"lblTick\" style=\"BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #000000 1px "
           "solid; FONT-SIZE: 10pt; Z-INDEX: 109; VISIBILITY: hidden; BORDER-LEFT: #000000 1px "
           "solid; BORDER-BOTTOM: #000000 1px solid; FONT-FAMILY: Arial; POSITION: absolute; "
           "LEFT: "_s +
               num(Left) + u"px; TOP: "_s + num(top + 30) + u"px; WIDTH: "_s + num(9 * longest) +
               u"px; HEIGHT: 18px; BACKGROUND-COLOR: #ffffcc; TEXT-ALIGN: center\"></DIV>"_s
        << EmptyLine;
}

void SliderPage::writeScript(TextLines& out) const {
    writeSpriteIndexes(out);
    out << "var currFrame = 1;" << EmptyLine;
    if (hasSlider()) {
        writeVariables(out);
        writeGetXY(out);
        writeDoDown(out);
        writeDoMove(out);
        writeDoUp(out);
    }
    writeFrameFunctions(out, false);
}

void SliderPage::writeVariables(TextLines& out) const {
    QStringList labels;
    for (qint32 i = 1; i <= frameCount(); ++i) {
        labels << u"'"_s + input().frames.Item(i).Texts().Label + u"'"_s;
    }
    out << "var posX;"
        << "var posY;"
        << "var posXY;" << u"var tick_num = "_s + num(frameCount()) + u';' << u"var abs_posX = 1;"_s
        << u"var tick_len = "_s + num(roundedQuotient(input().map.width(), frameCount() - 1)) + u';'
        << u"var m_down = false;"_s << u"var labelTick = ["_s + labels.join(u',') + u"];"_s
        << EmptyLine;
}

void SliderPage::writeDoDown(TextLines& out) const {
    out << "function doDown(e)"
        << "{"
        << "    m_down = true;";
    if (settings().sliderTooltip) {
        out << "    lblTick.style.visibility='hidden';" << EmptyLine;
    }
    out << "    posXY = getXY(e);"
        << "    posX = posXY[0] - parseInt(cursor.style.left);"
        << "    posY = posXY[1] - parseInt(cursor.style.top);"
        << "}";
}

void SliderPage::writeDoMove(TextLines& out) const {
    out << "function doMove(e)"
        << "{"
        << "    if (m_down)"
        << "    {"
        << "        posXY = getXY(e);" << u"        "_s + QLatin1String(BelowLeft) << u"        {"_s
        << u"            "_s + QLatin1String(LeftEnd) << u"            return;"_s << "        }"
        << "        if ((posXY[0] + posX) >= parseInt(tracker.style.left) + "
           "parseInt(tracker.style.width))"
        << "        {" << u"            "_s + QLatin1String(RightEnd) << u"            return;"_s
        << "        }"
        << "        cursor.style.left = posXY[0] - posX;"
        << u"        if (abs_posX != "_s + QLatin1String(TickUnderCursor) + u')';
    const QString step = u"            abs_posX = "_s + QLatin1String(TickUnderCursor) + u';';
    if (settings().sliderTooltip) {
        out << "        {" << step << "            lblTick.innerText = labelTick[abs_posX];"
            << "            lblTick.style.visibility='hidden';"
            << "            if (abs_posX == 0)"
            << "                lblTick.style.left = 20;"
            << "            else"
            << "                lblTick.style.left = parseInt(tracker.style.left) + (tick_len * "
               "abs_posX) + Math.round(parseInt(cursor.style.width) / 2) - "
               "Math.round(parseInt(lblTick.style.width) / 2) + 8;"
            << "            lblTick.style.filter='blendTrans(duration=0.5)';"
            << "            lblTick.filters.blendTrans.stop();"
            << "            lblTick.filters.blendTrans.apply();"
            << "            lblTick.style.visibility='visible';"
            << "            lblTick.filters.blendTrans.play();"
            << "        }";
    } else {
        out << step;
    }
    out << "    }"
        << "}";
}

void SliderPage::writeDoUp(TextLines& out) const {
    out << "function doUp(e)"
        << "{"
        << "    if (m_down)"
        << "    {"
        << "        m_down = false;"
        << "        posXY = getXY(e);" << u"        "_s + QLatin1String(BelowLeft)
        << u"            "_s + QLatin1String(LeftEnd)
        << u"        else if ((posXY[0] + posX) > (parseInt(tracker.style.left) + "
           "parseInt(tracker.style.width)))"_s
        << u"            "_s + QLatin1String(RightEnd)
        << u"        else if (abs_posX == (tick_num-1))"_s
        << u"            "_s + QLatin1String(RightEnd) << u"        else"_s
        << "            cursor.style.left = parseInt(tracker.style.left) + (tick_len * abs_posX);";
    if (settings().sliderTooltip) {
        out << "        lblTick.style.visibility='hidden';";
    }
    out << "        _Render(abs_posX + 1);"
        << "    }"
        << "}";
}

}  // namespace nubivane
