// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/buttons_page.h"

#include "engine/core/number_text.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int ButtonHeight = 20;
constexpr int Space = 2;
constexpr int ArrowWidth = 16;
constexpr int VisibleButtons = 3;

constexpr QLatin1String ShowButton(
    "eval('btn_' + i.toString() + '.style.visibility = \"visible\";');");

/// A function that moves the strip by one button.
void writeMove(TextLines& out, const char* name, const char* guard, const char* step) {
    out << u"function "_s + QLatin1String(name) + u"()"_s << "{"
        << u"   if "_s + QLatin1String(guard) << u"   {"_s << "      var i;"
        << "      var j = 0;" << u"      "_s + QLatin1String(step) << u"      _hide_Buttons();"_s
        << "      for (i=position;i <= position + (visible_buttons-1); i++)"
        << "      {"
        << "         eval('btn_' + i.toString() + '.style.left =' + (left + width_nav_buttons  + "
           "space_btw + ((j * width_buttons) + (j * space_btw))).toString() + ';');"
        << u"         "_s + QLatin1String(ShowButton) << u"         j++;"_s << "      }"
        << "   }"
        << "}";
}

}  // namespace

QString ButtonsPage::loadCall() const {
    return frameCount() > 1 ? u"javascript:_Render(1); _Init();"_s : u"javascript:_Render(0);"_s;
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
    return u"<INPUT id=\""_s + id + u"\" type=\"button\" value=\""_s + caption +
           "\" style =\"VISIBILITY: hidden; FONT-FAMILY: Arial; FONT-SIZE: 7pt; POSITION: "
           u"absolute;TOP: "_s +
           num(top) + u"px;WIDTH: "_s + num(width) + u"px;HEIGHT: "_s + num(ButtonHeight) +
           u"px;\" onclick=\""_s + call + u"\">"_s;
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
        out << button(u"btnLeft"_s, u"<"_s, ArrowWidth, u"_MoveLeft()"_s)
            << button(u"btnRight"_s, u">"_s,
                      outer - VisibleButtons * width - 4 * Space - ArrowWidth, u"_MoveRight()"_s);
    }
    for (qint32 i = 1; i <= count; ++i) {
        const bool takesRest = !scrolls() && i == count;
        out << button(u"btn_"_s + num(i), input().frames.Item(i).Texts().Label,
                      takesRest ? outer - (count - 1) * (width + Space) : width,
                      u"_Render("_s + num(i) + u");"_s);
    }
    out << EmptyLine;
}

void ButtonsPage::writeScript(TextLines& out) const {
    out << u"var left = "_s + num(Left) + u';';
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
    out << "var position = 1;" << u"var space_btw = "_s + num(Space) + u';'
        << u"var num_buttons = "_s + num(frameCount()) + u';'
        << u"var width_buttons = "_s + num(buttonWidth()) + u';'
        << u"var visible_buttons = "_s + num(VisibleButtons) + u';'
        << u"var width_nav_buttons = "_s + num(ArrowWidth) + u';' << EmptyLine;

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
        << u"         "_s + QLatin1String(ShowButton) << u"         j++;"_s << "      }"
        << "   }"
        << "}";

    writeMove(out, "_MoveRight", "((position + (visible_buttons-1)) < num_buttons)",
              "position += 1;");
    writeMove(out, "_MoveLeft", "(position > 1)", "position -= 1;");
}

void ButtonsPage::writePlainFunctions(TextLines& out) const {
    out << u"var space_btw = "_s + num(Space) + u';'
        << u"var num_buttons = "_s + num(frameCount()) + u';'
        << u"var width_buttons = "_s + num(buttonWidth()) + u';' << EmptyLine;

    out << "function _Init()"
        << "{"
        << "   var i;"
        << "   var j = 0;"
        << "   _Show(idx_1,idx_2);"
        << "   for (i=1;i < num_buttons; i++)"
        << "   {"
        << "      eval('btn_' + i.toString() + '.style.left =' + (left + ((space_btw * j) + "
           "(width_buttons * j))).toString() + ';');"
        << u"      "_s + QLatin1String(ShowButton) << u"      j++;"_s << "   }"
        << "   eval('btn_' + num_buttons.toString() + '.style.left =' + (left + ((space_btw * "
           "(num_buttons-1)) + (width_buttons * (num_buttons-1)))).toString() + ';');"
        << "   eval('btn_' + num_buttons.toString() + '.style.visibility = \"visible\";');"
        << "}";
}

}  // namespace nubivane
