// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/combo_color.h"

#include "engine/model/color_table.h"
#include "engine/model/forecast.h"
#include "windows/widgets/color_swatch.h"

#include <QIconEngine>
#include <QPainter>

#include <array>

namespace nubivane {

namespace {

// In the order of the colour table. Two of its web colours bear no name of their own; they have
// that of their nearest neighbour, which the table does not use.
constexpr std::array<const char*, 116> names = {
    "none",
    "DarkOrange",
    "Orange",
    "Silver",
    "Ivory",
    "Beige",
    "White",
    "AntiqueWhite",
    "GhostWhite",
    "WhiteSmoke",
    "Snow",
    "FloralWhite",
    "Blue",
    "SteelBlue",
    "LightSteelBlue",
    "AliceBlue",
    "SlateBlue",
    "MediumSlateBlue",
    "DarkSlateBlue",
    "DodgerBlue",
    "SkyBlue",
    "LightSkyBlue",
    "DeepSkyBlue",
    "PowderBlue",
    "LightBlue",
    "Navy",
    "MediumBlue",
    "MidnightBlue",
    "RoyalBlue",
    "DarkBlue",
    "BlueViolet",
    "Tan",
    "Khaki",
    "Cyan",
    "LightCyan",
    "DarkCyan",
    "Azure",
    "Chocolate",
    "LemonChiffon",
    "SeaShell",
    "Coral",
    "LightCoral",
    "Magenta",
    "Yellow",
    "LightYellow",
    "YellowGreen",
    "Wheat",
    "DarkGray",
    "SlateGray",
    "LightSlateGray",
    "DarkSlateGray",
    "LightGray",
    "OliveDrab",
    "DimGray",
    "Gray",
    "Indigo",
    "Lavender",
    "LavenderBlush",
    "BurlyWood",
    "Thistle",
    "Lime",
    "Linen",
    "DarkOrchid",
    "DarkMagenta",
    "SandyBrown",
    "Maroon",
    "Sienna",
    "RosyBrown",
    "SaddleBrown",
    "Black",
    "Orchid",
    "MediumOrchid",
    "Gold",
    "DarkGoldenrod",
    "PapayaWhip",
    "PeachPuff",
    "Tomato",
    "Purple",
    "MediumPurple",
    "Plum",
    "Pink",
    "DeepPink",
    "MistyRose",
    "LightPink",
    "HotPink",
    "Red",
    "OrangeRed",
    "IndianRed",
    "Brown",
    "FireBrick",
    "DarkRed",
    "Crimson",
    "Salmon",
    "LightSalmon",
    "DarkSalmon",
    "Turquoise",
    "PaleTurquoise",
    "DarkTurquoise",
    "Aquamarine",
    "MediumSeaGreen",
    "LawnGreen",
    "SpringGreen",
    "ForestGreen",
    "LimeGreen",
    "LightGreen",
    "SeaGreen",
    "DarkSeaGreen",
    "CadetBlue",
    "DarkOliveGreen",
    "PaleGreen",
    "MediumSpringGreen",
    "Green",
    "LightSeaGreen",
    "GreenYellow",
    "Violet",
    "DarkViolet",
};

/// A swatch of any size: sharp on every screen, and nothing to keep for a hundred items.
class SwatchIcon : public QIconEngine {
  public:
    explicit SwatchIcon(qint32 color) : color_(color) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        paintSwatch(*painter, rect, color_);
    }
    QIconEngine* clone() const override { return new SwatchIcon(color_); }

  private:
    qint32 color_;
};

}  // namespace

comboColor::comboColor(QWidget* parent) : comboEx(parent) {
    const int height = fontMetrics().ascent();
    setIconSize({height * 2, height});
    const ColorTable table;
    std::size_t i = 0;
    for (const ColorTable::Row& row : table.rows()) {
        addItem(QIcon(new SwatchIcon(row.color)), QLatin1String(names[i++]),
                ColorTable::keyOf(row.color));
    }
    setCurrentIndex(-1);
}

void comboColor::setColor(qint32 color) {
    setCurrentIndex(findData(ColorTable::keyOf(color)));
}

qint32 comboColor::color() const {
    return currentIndex() < 0 ? NoColor : key().mid(1).toInt();
}

QString colorName(qint32 color) {
    const ColorTable table;
    std::size_t i = 0;
    for (const ColorTable::Row& row : table.rows()) {
        if (row.color == color) {
            return QLatin1String(names[i]);
        }
        ++i;
    }
    return {};
}

}  // namespace nubivane
