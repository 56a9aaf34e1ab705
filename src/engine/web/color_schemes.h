// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

struct PageSettings;

/// The page's own colours.
struct ColorScheme {
    QRgb page;
    QRgb surface;  ///< what texts stand on
    QRgb ink;
    QRgb soft;  ///< text of less weight
    QRgb line;
    QRgb accent;
    QRgb onAccent;
    QRgb tip;  ///< tooltips
    QRgb tipInk;
    bool isDark;
};

/// A scheme and the media query it holds for; the first of a page has none.
struct SchemeRule {
    QString media;
    ColorScheme scheme;
};

/// The schemes of a page. `ownColor`, the page's own background, takes the place of theme and
/// reader's wish. Paper is always light.
std::vector<SchemeRule> schemeRules(const PageSettings& settings, std::optional<QRgb> ownColor);

}  // namespace nubivane
