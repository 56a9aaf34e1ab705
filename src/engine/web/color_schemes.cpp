// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/color_schemes.h"

#include "engine/web/contrast.h"
#include "engine/web/page_settings.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr ColorScheme light{
    .page = 0xFFEDF1F5,
    .surface = 0xFFFFFFFF,
    .ink = 0xFF16202B,
    .soft = 0xFF4A5968,
    .line = 0xFFD3DCE5,
    .accent = 0xFF0B5CAD,
    .onAccent = 0xFFFFFFFF,
    .tip = 0xFF16202B,
    .tipInk = 0xFFFFFFFF,
    .isDark = false,
};

constexpr ColorScheme dark{
    .page = 0xFF0D131A,
    .surface = 0xFF17202A,
    .ink = 0xFFE7EDF3,
    .soft = 0xFFA3B1BF,
    .line = 0xFF2C3A48,
    .accent = 0xFF7CC0FF,
    .onAccent = 0xFF06213C,
    .tip = 0xFFE7EDF3,
    .tipInk = 0xFF16202B,
    .isDark = true,
};

/// The scheme whose text is easier to read on a colour, on that colour.
ColorScheme onColor(QRgb color) {
    ColorScheme scheme = contrast(light.ink, color) >= contrast(dark.ink, color) ? light : dark;
    scheme.page = color;
    scheme.surface = color;
    for (QRgb* text : {&scheme.ink, &scheme.soft, &scheme.accent}) {
        *text = readable(*text, color);
    }
    scheme.onAccent = readable(color, scheme.accent);
    return scheme;
}

}  // namespace

std::vector<SchemeRule> schemeRules(const PageSettings& settings, std::optional<QRgb> ownColor) {
    if (ownColor) {
        return {{{}, onColor(*ownColor)}, {u"print"_s, light}};
    }
    switch (settings.theme) {
        case PageTheme::Light:
            return {{{}, light}};
        case PageTheme::Dark:
            return {{{}, dark}, {u"print"_s, light}};
        case PageTheme::Automatic:
            break;
    }
    return {{{}, light}, {u"screen and (prefers-color-scheme: dark)"_s, dark}};
}

}  // namespace nubivane
