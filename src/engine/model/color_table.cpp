// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/color_table.h"

#include "engine/core/error.h"

#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

// Each colour of the palette with the nearest named web colour. The pairs are chosen by hand: the
// number spells a colour close to, but not always equal to, the one that pages get.
constexpr std::array<ColorTable::Row, 116> table = {{
    {-1, "-1"},
    {36607, "#FF8C00"},
    {42751, "#FFA500"},
    {13026246, "#C0C0C0"},
    {16252927, "#FFFFF0"},
    {14612471, "#F5F5DC"},
    {16777215, "#FFFFFF"},
    {14085119, "#FAEBD7"},
    {16316671, "#F8F8FF"},
    {16250871, "#F5F5F5"},
    {16775930, "#FFFAFA"},
    {16251903, "#FFFAF0"},
    {16711680, "#0000FF"},
    {11895362, "#4682B4"},
    {14600117, "#B0C4DE"},
    {16776183, "#F0F8FF"},
    {13523307, "#6A5ACD"},
    {15690107, "#7B68EE"},
    {9190474, "#483D8B"},
    {16749080, "#1E90FF"},
    {15716228, "#87CEEB"},
    {16764804, "#87CEFA"},
    {16760320, "#00BFFF"},
    {15197109, "#B0E0E6"},
    {15195053, "#ADD8E6"},
    {8650752, "#000080"},
    {13500416, "#0000CD"},
    {7542808, "#191970"},
    {15165762, "#4169E1"},
    {9175040, "#00008B"},
    {15149196, "#8A2BE2"},
    {9221846, "#D2B48C"},
    {9234423, "#F0E68C"},
    {16776960, "#00FFFF"},
    {16777191, "#E0FFFF"},
    {9210368, "#008B8B"},
    {16777207, "#F0FFFF"},
    {1599958, "#D2691E"},
    {13564927, "#FFFACD"},
    {15726591, "#FFF5EE"},
    {5406207, "#FF7F50"},
    {8684279, "#F08080"},
    {16711935, "#FF00FF"},
    {65535, "#FFFF00"},
    {15204351, "#FFFFE0"},
    {3264412, "#9ACD32"},
    {11919351, "#F5DEB3"},
    {11381421, "#A9A9A9"},
    {9732723, "#708090"},
    {10259059, "#778899"},
    {4869417, "#2F4F4F"},
    {14078934, "#D3D3D3"},
    {2199147, "#6B8E23"},
    {7039339, "#696969"},
    {8684164, "#808080"},
    {8650826, "#4B0082"},
    {16771047, "#E6E6FA"},
    {16249855, "#FFF0F5"},
    {8698590, "#DEB887"},
    {14597854, "#D8BFD8"},
    {65280, "#00FF00"},
    {15201279, "#FAF0E6"},
    {9121234, "#8B2DD2"},
    {9175180, "#8B008B"},
    {6530807, "#F4A460"},
    {132, "#800000"},
    {2707877, "#A0522D"},
    {9211581, "#BC8F8F"},
    {1066380, "#8B4513"},
    {0, "#000000"},
    {14053854, "#DA70D6"},
    {14046653, "#BA55D3"},
    {55295, "#FFD700"},
    {558781, "#B8860B"},
    {14086143, "#FFEFD5"},
    {12442623, "#FFDAB9"},
    {4350463, "#FF6347"},
    {8650884, "#800080"},
    {14578068, "#9370DB"},
    {14590686, "#DDA0DD"},
    {13550591, "#FFC0CB"},
    {9704703, "#FF1493"},
    {15198207, "#FFE4E1"},
    {13022975, "#FFB6C1"},
    {11889151, "#FF69B4"},
    {255, "#FF0000"},
    {17919, "#FF4500"},
    {5922254, "#CD5C5C"},
    {2697381, "#A52A2A"},
    {2171061, "#B22222"},
    {140, "#8B0000"},
    {3740894, "#DC143C"},
    {7570175, "#FA8072"},
    {8102655, "#FFA07A"},
    {8099567, "#E9967A"},
    {14082882, "#40E0D0"},
    {15724461, "#AFEEEE"},
    {14077696, "#00CED1"},
    {14090107, "#7FFFD4"},
    {7582265, "#3CB371"},
    {65403, "#7CFC00"},
    {8126208, "#00FF7F"},
    {2198049, "#228B22"},
    {3264305, "#32CD32"},
    {9760660, "#90EE90"},
    {5409321, "#2E8B57"},
    {9223820, "#8FBC8B"},
    {10853978, "#5F9EA0"},
    {2713938, "#556B2F"},
    {10288028, "#98FB98"},
    {10287872, "#00FA9A"},
    {33280, "#008000"},
    {11383329, "#20B2AA"},
    {2752429, "#ADFF2F"},
    {15696623, "#EE82EE"},
    {14024852, "#9400D3"},
}};

}  // namespace

ColorTable::ColorTable() {
    byColor_.reserve(static_cast<qsizetype>(table.size()));
    for (const Row& row : table) {
        byColor_.insert(row.color, QLatin1String(row.webColor));
    }
}

std::span<const ColorTable::Row> ColorTable::rows() const {
    return table;
}

QString ColorTable::Item(const QString& key) const {
    bool isNumber = false;
    const qint32 color = key.mid(1).toInt(&isNumber);
    if (!isNumber || keyOf(color) != key) {
        throw Error(error_number::InvalidArgument, u"ColorTable"_s, u"Unknown colour."_s,
                    u"\""_s + key + u"\" is no key of the colour table"_s);
    }
    return webColor(color);
}

QString ColorTable::webColor(qint32 color) const {
    const auto found = byColor_.constFind(color);
    if (found == byColor_.cend()) {
        throw Error(error_number::InvalidArgument, u"ColorTable"_s, u"Unknown colour."_s,
                    u"the colour "_s + QString::number(color) +
                        u" is not one of those that a page can show"_s);
    }
    return *found;
}

QString ColorTable::keyOf(qint32 color) {
    return u'K' + QString::number(color);
}

}  // namespace nubivane
