// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_style.h"

#include "engine/core/resolution.h"
#include "engine/web/contrast.h"
#include "engine/web/page_assets.h"
#include "engine/web/plain_text.h"

#include <QColor>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr double PixelsPerPoint = double{PixelsPerInch} / PointsPerInch;
constexpr QRgb black = 0xFF000000;
/// Tooltips keep inside the map: beyond these parts of it they open towards its middle.
constexpr double LeftPart = 0.3;
constexpr double RightPart = 0.7;
constexpr double TopPart = 0.3;

QString hex(QRgb color) {
    return QColor(color).name();
}

/// A number with as many digits as a screen can show.
QString cssNumber(double number) {
    QString text = QString::number(number, 'f', 3);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    if (text.endsWith(u'.')) {
        text.chop(1);
    }
    return text;
}

/// A font with others that stand in where it is missing.
QString face(const QString& family) {
    const QString name = family.toLower();
    const bool typewriter = name.contains("courier"_L1) || name.contains("mono"_L1) ||
                            name.contains("console"_L1) || name.contains("consolas"_L1);
    const bool serif = name.contains("times"_L1) || name.contains("georgia"_L1) ||
                       name.contains("garamond"_L1) || name.contains("palatino"_L1) ||
                       (name.contains("serif"_L1) && !name.contains("sans"_L1));
    const QString generic = typewriter ? u"monospace"_s : serif ? u"serif"_s : u"sans-serif"_s;
    return family.isEmpty() ? u"var(--font)"_s : cssString(family) + u',' + generic;
}

QString shape(const TextLook& look) {
    QString css = u"--face:"_s + face(look.family) + u';';
    if (look.bold) {
        css += "font-weight:700;"_L1;
    }
    if (look.italic) {
        css += "font-style:italic;"_L1;
    }
    QStringList lines;
    if (look.underline) {
        lines += u"underline"_s;
    }
    if (look.overline) {
        lines += u"overline"_s;
    }
    if (look.strikeOut) {
        lines += u"line-through"_s;
    }
    if (!lines.isEmpty()) {
        css += "text-decoration:"_L1 + lines.join(u' ') + u';';
    }
    if (look.align == 1 || look.align == 2) {
        css += look.align == 1 ? "text-align:right;"_L1 : "text-align:center;"_L1;
    }
    if (look.back) {
        css += "--back:"_L1 + hex(*look.back) + u';';
    }
    if (look.edge) {
        css += "--edge:var(--line-width) solid "_L1 + hex(*look.edge) + u';';
    }
    return css;
}

/// A border of the styles that a forecast text's box can have.
QString border(int style) {
    constexpr std::array names = {"none"_L1,  "solid"_L1, "double"_L1, "groove"_L1,
                                  "ridge"_L1, "inset"_L1, "outset"_L1};
    if (style < 1 || style >= static_cast<int>(names.size())) {
        return {};
    }
    // All but the first need more than one pixel to be told from it.
    const QString width = style == 1 ? u"var(--line-width)"_s : u"calc(3 * var(--line-width))"_s;
    return width + u' ' + names[static_cast<std::size_t>(style)] + u' ';
}

}  // namespace

PageStyle::PageStyle(const PageContent& content)
    : content_(content), rules_(schemeRules(content.settings, content.ownColor)) {
    schemeSheets_.resize(rules_.size() - 1);
}

QString PageStyle::share(double pixels) const {
    return cssNumber(100 * pixels / std::max(content_.map.width(), 1));
}

QString PageStyle::classOf(const QString& prefix, const Declarations& declarations) {
    const QString key = prefix + declarations.first + u'\n' + declarations.others.join(u'\n');
    const auto known = classes_.constFind(key);
    if (known != classes_.cend()) {
        return *known;
    }
    const QString name = prefix + QString::number(classes_.size() + 1);
    classes_.insert(key, name);
    const auto rule = [&name](const QString& text) {
        return u'.' + name + u'{' + text.chopped(text.endsWith(u';') ? 1 : 0) + u"}\n"_s;
    };
    sheet_ += rule(declarations.first);
    for (std::size_t i = 0; i < schemeSheets_.size(); ++i) {
        const QString other = declarations.others.value(static_cast<qsizetype>(i));
        if (!other.isEmpty()) {
            schemeSheets_[i] += rule(other);
        }
    }
    return name;
}

QRgb PageStyle::inkOf(const TextLook& look, const BoxLook* box, const ColorScheme& scheme) const {
    const std::optional<QRgb> boxBack = box ? box->back : std::nullopt;
    if (!look.ink && !boxBack) {
        return scheme.ink;
    }
    return readable(look.ink.value_or(black), look.back.value_or(boxBack.value_or(scheme.surface)));
}

QString PageStyle::ofText(const TextLook& look, const BoxLook* box) {
    const QRgb first = inkOf(look, box, rules_.front().scheme);
    Declarations css;
    css.first = shape(look) + u"--size:"_s + cssNumber(look.points) + u"pt;"_s;
    // The page's own ink needs no saying.
    if (first != rules_.front().scheme.ink) {
        css.first += "--ink:"_L1 + hex(first) + u';';
    }
    for (std::size_t i = 1; i < rules_.size(); ++i) {
        const QRgb ink = inkOf(look, box, rules_[i].scheme);
        const QRgb inherited = first == rules_.front().scheme.ink ? rules_[i].scheme.ink : first;
        css.others += ink == inherited ? QString() : u"--ink:"_s + hex(ink);
    }
    const QString kind = look.back || look.edge ? u"f g "_s : u"f "_s;
    return kind + classOf(u"f"_s, css);
}

QString PageStyle::ofBox(const BoxLook& box) {
    const QString edge = border(box.border);
    if (!box.back && edge.isEmpty()) {
        return u"box"_s;
    }
    Declarations css;
    css.first = u"--box-space:0.75rem 1rem;"_s;
    if (box.back) {
        css.first += "--back:"_L1 + hex(*box.back) + u';';
    }
    if (!edge.isEmpty()) {
        css.first += "--edge:"_L1 + edge + hex(box.edge.value_or(black)) + u';';
    }
    return u"box "_s + classOf(u"b"_s, css);
}

QString PageStyle::place(const QRect& box) const {
    return u"--x:"_s + share(box.x()) + u";--y:"_s + share(box.y()) + u";--w:"_s +
           share(box.width()) + u";--h:"_s + share(box.height());
}

QString PageStyle::ofSymbol(const QRect& box, bool hasTooltip) {
    const QString name = u's' + QString::number(++sprites_);
    sheet_ += u'.' + name + u'{' + place(box) + u"}\n"_s;
    QString classes = u"s "_s + name;
    if (hasTooltip) {
        const QPointF middle = QRectF(box).center();
        if (middle.x() < LeftPart * content_.map.width()) {
            classes += " left"_L1;
        } else if (middle.x() > RightPart * content_.map.width()) {
            classes += " right"_L1;
        }
        if (middle.y() < TopPart * content_.map.height()) {
            classes += " low"_L1;
        }
    }
    return classes;
}

QString PageStyle::ofLabel(const LabelContent& label) {
    const TextLook& look = label.text.look;
    const QRgb ground = look.back.value_or(label.ground);
    const QRgb ink = readable(look.ink.value_or(black), ground);
    Declarations css;
    css.first = shape(look) + u"--size:"_s + share(look.points * PixelsPerPoint) + u";--ink:"_s +
                hex(ink) + u';';
    if (!look.back) {
        css.first += "--halo:"_L1 + hex(ground) + u';';
    }
    const QString name = u's' + QString::number(++sprites_);
    sheet_ += u'.' + name + u'{' + place(label.box) + u"}\n"_s;
    return u"t "_s + name + u' ' + classOf(u"l"_s, css);
}

QString PageStyle::rootOf(const ColorScheme& scheme) const {
    return u":root{color-scheme:"_s + (scheme.isDark ? u"dark"_s : u"light"_s) + u";--page:"_s +
           hex(scheme.page) + u";--surface:"_s + hex(scheme.surface) + u";--ink:"_s +
           hex(scheme.ink) + u";--soft:"_s + hex(scheme.soft) + u";--line:"_s + hex(scheme.line) +
           u";--accent:"_s + hex(scheme.accent) + u";--on-accent:"_s + hex(scheme.onAccent) +
           u";--tip-back:"_s + hex(scheme.tip) + u";--tip-ink:"_s + hex(scheme.tipInk) + u"}\n"_s;
}

QString PageStyle::sheet() const {
    QString css = page_assets::styleSheet();
    css += rootOf(rules_.front().scheme);
    css +=
        u":root{--map-width:"_s + QString::number(content_.map.width()) + u";--map-ratio:"_s +
        cssNumber(static_cast<double>(content_.map.width()) / std::max(content_.map.height(), 1)) +
        u"}\n"_s;
    if (!content_.pictures.back.isEmpty()) {
        css += u"@media screen{:root{--back-picture:url("_s +
               cssString(urlPath(content_.pictures.back)) + u")}}\n"_s;
    }
    css += sheet_;
    for (std::size_t i = 0; i < schemeSheets_.size(); ++i) {
        css += u"@media "_s + rules_[i + 1].media + u"{\n"_s + rootOf(rules_[i + 1].scheme) +
               schemeSheets_[i] + u"}\n"_s;
    }
    return css;
}

}  // namespace nubivane
