// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/buttons_page.h"

#include "engine/core/number_text.h"

namespace nubivane {

namespace {

// Pixels.
constexpr int ButtonHeight = 20;
constexpr int Space = 2;
constexpr int ArrowWidth = 16;
constexpr int VisibleButtons = 3;

constexpr char ShowButton[] = "eval('btn_' + i.toString() + '.style.visibility = \"visible\";');";

/// A function that moves the strip by one button.
void writeMove(TextLines& out, const char* name, const char* guard, const char* step) {
    out << "function " + QLatin1String(name) + "()"
        << "{"
        << "   if " + QLatin1String(guard) << "   {"
        << "      var i;"
        << "      var j = 0;"
        << "      " + QLatin1String(step) << "      _hide_Buttons();"
        << "      for (i=position;i <= position + (visible_buttons-1); i++)"
        << "      {"
        << "         eval('btn_' + i.toString() + '.style.left =' + (left + width_nav_buttons  + "
           "space_btw + ((j * width_buttons) + (j * space_btw))).toString() + ';');"
        << "         " + QLatin1String(ShowButton) << "         j++;"
        << "      }"
        << "   }"
        << "}";
}

}  // namespace

QString ButtonsPage::loadCall() const {
    return frameCount() > 1 ? "javascript:_Render(1); _Init();" : "javascript:_Render(0);";
}

bool ButtonsPage::scrolls() const {
    return frameCount() > VisibleButtons;
}

qint64 ButtonsPage::buttonWidth() const {
    const qint64 outer = input().mapOuter.width();
    return scrolls() ? roundedQuotient(outer - 2 * ArrowWidth - 4 * Space, VisibleButtons)
                     : roundedQuotient(outer - (frameCount() - 1) * Space, frameCount());
}

QString ButtonsPage::button(const QString& id, const QString& caption, qint64 width,
                            const QString& call) const {
    const qint64 top = mapTop(1) + input().mapOuter.height() + 10;
    return "<INPUT id=\"" + id + "\" type=\"button\" value=\"" + caption +
           "\" style =\"VISIBILITY: hidden; FONT-FAMILY: Arial; FONT-SIZE: 7pt; POSITION: "
           "absolute;TOP: " +
           num(top) + "px;WIDTH: " + num(width) + "px;HEIGHT: " + num(ButtonHeight) +
           "px;\" onclick=\"" + call + "\">";
}

void ButtonsPage::writeAfterTexts(TextLines& out) const {
    const qint32 count = frameCount();
    if (count < 2) {
        return;
    }
    const qint64 outer = input().mapOuter.width();
    const qint64 width = buttonWidth();
    out << "<!-- BUTTON -->";
    if (scrolls()) {
        out << button("btnLeft", "<", ArrowWidth, "_MoveLeft()")
            << button("btnRight", ">", outer - VisibleButtons * width - 4 * Space - ArrowWidth,
                      "_MoveRight()");
    }
    for (qint32 i = 1; i <= count; ++i) {
        const bool takesRest = !scrolls() && i == count;
        out << button("btn_" + num(i), input().frames.Item(i).Texts().Label,
                      takesRest ? outer - (count - 1) * (width + Space) : width,
                      "_Render(" + num(i) + ");");
    }
    out << EmptyLine;
}

void ButtonsPage::writeScript(TextLines& out) const {
    out << "var left = " + num(Left) + ';';
    writeSpriteIndexes(out);
    out << "var currFrame = 1;";
    if (scrolls()) {
        writeScrollingFunctions(out);
    } else if (frameCount() > 1) {
        writePlainFunctions(out);
    }
    writeFrameFunctions(out, false);
}

void ButtonsPage::writeScrollingFunctions(TextLines& out) const {
    out << "var position = 1;"
        << "var space_btw = " + num(Space) + ';' << "var num_buttons = " + num(frameCount()) + ';'
        << "var width_buttons = " + num(buttonWidth()) + ';'
        << "var visible_buttons = " + num(VisibleButtons) + ';'
        << "var width_nav_buttons = " + num(ArrowWidth) + ';' << EmptyLine;

    out << "function _hide_Buttons()"
        << "{"
        << "   var i;"
        << "   for (i=1; i <= num_buttons; i++)"
        << "   {"
        << "      eval('btn_' + i.toString() + '.style.visibility = \"hidden\";');"
        << "   }"
        << "}";

    out << "function _Init()"
        << "{"
        << "   var i;"
        << "   var j = 0;"
        << "   _Show(idx_1,idx_2);"
        << "   _hide_Buttons();"
        << "   btnLeft.style.left = left;"
        << "   btnRight.style.left = left + width_nav_buttons + (visible_buttons * width_buttons) "
           "+ ((visible_buttons + 1) * space_btw);"
        << "   btnLeft.style.visibility = 'visible';"
        << "   btnRight.style.visibility = 'visible';"
        << "   for (i=1;i <= num_buttons; i++)"
        << "   {"
        << "      if (i <= visible_buttons)"
        << "      {"
        << "         eval('btn_' + i.toString() + '.style.left =' + (left + width_nav_buttons + "
           "space_btw + ((j * width_buttons) + (j * space_btw))).toString() + ';');"
        << "         " + QLatin1String(ShowButton) << "         j++;"
        << "      }"
        << "   }"
        << "}";

    writeMove(out, "_MoveRight", "((position + (visible_buttons-1)) < num_buttons)",
              "position += 1;");
    writeMove(out, "_MoveLeft", "(position > 1)", "position -= 1;");
}

void ButtonsPage::writePlainFunctions(TextLines& out) const {
    out << "var space_btw = " + num(Space) + ';' << "var num_buttons = " + num(frameCount()) + ';'
        << "var width_buttons = " + num(buttonWidth()) + ';' << EmptyLine;

    out << "function _Init()"
        << "{"
        << "   var i;"
        << "   var j = 0;"
        << "   _Show(idx_1,idx_2);"
        << "   for (i=1;i < num_buttons; i++)"
        << "   {"
        << "      eval('btn_' + i.toString() + '.style.left =' + (left + ((space_btw * j) + "
           "(width_buttons * j))).toString() + ';');"
        << "      " + QLatin1String(ShowButton) << "      j++;"
        << "   }"
        << "   eval('btn_' + num_buttons.toString() + '.style.left =' + (left + ((space_btw * "
           "(num_buttons-1)) + (width_buttons * (num_buttons-1)))).toString() + ';');"
        << "   eval('btn_' + num_buttons.toString() + '.style.visibility = \"visible\";');"
        << "}";
}

}  // namespace nubivane
