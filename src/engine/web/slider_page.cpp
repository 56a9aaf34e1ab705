// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/slider_page.h"

#include "engine/core/error.h"
#include "engine/core/number_text.h"

#include <algorithm>

namespace nubivane {

namespace {

/// Border and place in the stack that track and ticks have in common.
QString raisedBox(int zIndex) {
    return "BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #ffffff 1px solid; DISPLAY: inline; "
           "FONT-SIZE: 1pt; Z-INDEX: " +
           QString::number(zIndex) +
           "; BORDER-LEFT: #ffffff 1px solid; BORDER-BOTTOM: #000000 1px solid; ";
}

constexpr char LeftEnd[] = "cursor.style.left = tracker.style.left;";
constexpr char RightEnd[] =
    "cursor.style.left = parseInt(tracker.style.left) + parseInt(tracker.style.width) - "
    "parseInt(cursor.style.width);";
constexpr char BelowLeft[] = "if ((posXY[0] - posX) < parseInt(tracker.style.left))";
constexpr char TickUnderCursor[] =
    "Math.round(((posXY[0] - posX) - parseInt(tracker.style.left)) / tick_len)";

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
    return hasSlider() ? " onmouseup=\"javascript:doUp();\" onmousemove=\"javascript:doMove();\""
                       : "";
}

void SliderPage::writeAfterMaps(TextLines& out) const {
    if (!hasSlider()) {
        return;
    }
    const qint64 top = input().map.height() + mapTop(1);
    out << "<!-- SLIDER -->";
    out << "<DIV id=\"tracker\" style=\"" + raisedBox(100) +
               "POSITION: absolute; LEFT: " + num(Left) + "px; TOP: " + num(top + 12) +
               "px; WIDTH: " + num(input().map.width() + 2) +
               "px; HEIGHT: 5px; BACKGROUND-COLOR: #d3d3d3\"></DIV>"
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
        out << "<DIV style=\"" + raisedBox(102) +
                   "POSITION: absolute; LEFT: " + num((i - 1) * step + Left) +
                   "px; TOP: " + num(top + 12) +
                   "px; WIDTH: 4px; HEIGHT: 6px; BACKGROUND-COLOR: #d3d3d3\"></DIV>"
            << EmptyLine;
    }
}

void SliderPage::writeCursor(TextLines& out, qint64 top) const {
    QString element =
        "<IMG id=\"cursor\" onmouseup=\"javascript:doUp();\" onmousedown=\"javascript:doDown();\" "
        "style=\"BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #ffffff 1px solid; DISPLAY: inline; "
        "Z-INDEX: 103; BORDER-LEFT: #ffffff 1px solid; CURSOR: hand; BORDER-BOTTOM: #000000 1px "
        "solid; POSITION: absolute; LEFT: " +
        num(Left) + "px; TOP: " + num(top + 5) + "px; WIDTH: 12px; HEIGHT: 16px; ";
    if (!settings().sliderColor) {
        throw Error(error_number::TypeMismatch, "page", "The colour of the slider is no number.");
    }
    if (*settings().sliderColor != NoColor) {
        element += "BACKGROUND-COLOR: " + input().colors.webColor(*settings().sliderColor) + ';';
    }
    out << element + "\" alt=\"\" src=\"\">" << EmptyLine;
}

void SliderPage::writeTickLabel(TextLines& out, qint64 top) const {
    qsizetype longest = 1;
    for (qint32 i = 1; i <= frameCount(); ++i) {
        longest = std::max(longest, input().frames.Item(i).Texts().Label.size());
    }
    out << "<DIV id=\"lblTick\" style=\"BORDER-RIGHT: #000000 1px solid; BORDER-TOP: #000000 1px "
           "solid; FONT-SIZE: 10pt; Z-INDEX: 109; VISIBILITY: hidden; BORDER-LEFT: #000000 1px "
           "solid; BORDER-BOTTOM: #000000 1px solid; FONT-FAMILY: Arial; POSITION: absolute; "
           "LEFT: " +
               num(Left) + "px; TOP: " + num(top + 30) + "px; WIDTH: " + num(9 * longest) +
               "px; HEIGHT: 18px; BACKGROUND-COLOR: #ffffcc; TEXT-ALIGN: center\"></DIV>"
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
        labels << "'" + input().frames.Item(i).Texts().Label + "'";
    }
    out << "var posX;"
        << "var posY;"
        << "var posXY;"
        << "var tick_num = " + num(frameCount()) + ';' << "var abs_posX = 1;"
        << "var tick_len = " + num(roundedQuotient(input().map.width(), frameCount() - 1)) + ';'
        << "var m_down = false;"
        << "var labelTick = [" + labels.join(u',') + "];" << EmptyLine;
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
        << "        posXY = getXY(e);"
        << "        " + QLatin1String(BelowLeft) << "        {"
        << "            " + QLatin1String(LeftEnd) << "            return;"
        << "        }"
        << "        if ((posXY[0] + posX) >= parseInt(tracker.style.left) + "
           "parseInt(tracker.style.width))"
        << "        {"
        << "            " + QLatin1String(RightEnd) << "            return;"
        << "        }"
        << "        cursor.style.left = posXY[0] - posX;"
        << "        if (abs_posX != " + QLatin1String(TickUnderCursor) + ')';
    const QString step = "            abs_posX = " + QLatin1String(TickUnderCursor) + ';';
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
        << "        posXY = getXY(e);"
        << "        " + QLatin1String(BelowLeft) << "            " + QLatin1String(LeftEnd)
        << "        else if ((posXY[0] + posX) > (parseInt(tracker.style.left) + "
           "parseInt(tracker.style.width)))"
        << "            " + QLatin1String(RightEnd) << "        else if (abs_posX == (tick_num-1))"
        << "            " + QLatin1String(RightEnd) << "        else"
        << "            cursor.style.left = parseInt(tracker.style.left) + (tick_len * abs_posX);";
    if (settings().sliderTooltip) {
        out << "        lblTick.style.visibility='hidden';";
    }
    out << "        _Render(abs_posX + 1);"
        << "    }"
        << "}";
}

}  // namespace nubivane
