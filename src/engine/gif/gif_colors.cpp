// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_colors.h"

#include "engine/core/error.h"
#include "engine/gif/color_index.h"
#include "engine/gif/gif_writer.h"
#include "engine/gif/halftone.h"
#include "engine/gif/pixel_lines.h"
#include "engine/gif/quantizer.h"

#include <QHash>

#include <algorithm>

namespace nubivane {

namespace {

/// Flat colours of what stands on a map that keep a place of their own, however few they are
/// beside the map's; smaller ones are found a near colour.
constexpr std::size_t MaxFlatColors = 48;
constexpr quint32 LeastFlatPixels = 24;
/// How much more a symbol's pixel counts than one of the map, beside which there are few: people
/// look at the symbols.
constexpr quint32 DrawnWeight = 2;
/// Colours in which the map shows already and which it must keep where it comes to light again.
constexpr std::size_t MaxMapColors = 160;

/// How a map is dithered: bands give way to dots, and dots to plain areas where nobody sees it.
constexpr HalftoneWeights weightsOf(GifQuality quality) {
    return quality == GifQuality::Fine ? HalftoneWeights{.blurred = 1, .changes = 0.25F}
                                       : HalftoneWeights{.blurred = 4, .changes = 1};
}

/// How long a palette is sought.
constexpr Quantizer::Effort effortOf(GifQuality quality) {
    return quality == GifQuality::Fine ? Quantizer::Effort::Thorough : Quantizer::Effort::Usual;
}

std::vector<CountedColor> byPixels(const QHash<QRgb, quint32>& counts) {
    std::vector<CountedColor> colors;
    colors.reserve(static_cast<std::size_t>(counts.size()));
    for (auto color = counts.cbegin(); color != counts.cend(); ++color) {
        colors.push_back({color.key(), color.value()});
    }
    // By colour where the pixels are equal, so that the same pictures give the same file.
    std::sort(colors.begin(), colors.end(), [](const CountedColor& a, const CountedColor& b) {
        return a.pixels != b.pixels ? a.pixels > b.pixels : a.color < b.color;
    });
    return colors;
}

/// The first colours, as many as are allowed and large enough, are kept; of the others the largest
/// are counted.
void weigh(Quantizer& quantizer, std::vector<CountedColor> colors, std::size_t maxKept,
           quint32 leastPixels, quint32 weight = 1) {
    std::size_t kept = 0;
    std::vector<QRgb> exact;
    while (kept < std::min(maxKept, colors.size()) && colors[kept].pixels >= leastPixels) {
        exact.push_back(colors[kept++].color);
    }
    quantizer.keep(exact);
    colors.erase(colors.begin(), colors.begin() + static_cast<std::ptrdiff_t>(kept));
    colors.resize(std::min(colors.size(), Quantizer::MaxColors));
    for (CountedColor& color : colors) {
        color.pixels *= weight;
    }
    quantizer.add(colors);
}

}  // namespace

/// One picture on its way.
class GifColors::Step {
  public:
    Step(GifColors& state, const Capture& capture, const QRect& rect)
        : state_(state), capture_(capture), rect_(rect), first_(state.picture_.isNull()) {}

    QImage run() {
        out_ = first_ ? QImage(capture_.picture.size(), QImage::Format_RGB32) : state_.shown_;
        if (!takeExactly()) {
            reduce();
        }
        return out_;
    }

  private:
    /// What a changed pixel is.
    enum class Kind { StillMap, NewMap, Drawn };

    struct Row {
        const QRgb* picture;
        const QRgb* before;  ///< null for the first picture
        const QRgb* map;
        QRgb* shownMap;
        QRgb* out;

        bool changed(int x) const { return !before || picture[x] != before[x]; }
        Kind kind(int x) const {
            return picture[x] != map[x]       ? Kind::Drawn
                   : shownMap[x] == Undecided ? Kind::NewMap
                                              : Kind::StillMap;
        }
        /// The colour in which a pixel would be best shown.
        QRgb wanted(int x) const { return kind(x) == Kind::StillMap ? shownMap[x] : picture[x]; }
    };

    Row row(int y) {
        return {constLineOf(capture_.picture, y),
                first_ ? nullptr : constLineOf(state_.picture_, y), constLineOf(capture_.map, y),
                lineOf(state_.shownMap_, y), lineOf(out_, y)};
    }

    template <class Use>
    void forEachChange(Use use) {
        for (int y = rect_.top(); y <= rect_.bottom(); ++y) {
            Row line = row(y);
            for (int x = rect_.left(); x <= rect_.right(); ++x) {
                if (line.changed(x)) {
                    use(line, x, y);
                }
            }
        }
    }

    /// Shows the wanted colours as they are if a GIF can hold them.
    bool takeExactly() {
        if (!fewColors()) {
            return false;
        }
        forEachChange([](Row& line, int x, int) { line.out[x] = line.wanted(x); });
        for (int y = rect_.top(); y <= rect_.bottom(); ++y) {
            Row line = row(y);
            for (int x = rect_.left(); x <= rect_.right(); ++x) {
                if (line.shownMap[x] == Undecided) {
                    line.shownMap[x] = line.map[x];
                }
            }
        }
        return true;
    }

    bool fewColors() {
        ColorIndex colors;
        for (int y = rect_.top(); y <= rect_.bottom(); ++y) {
            const Row line = row(y);
            for (int x = rect_.left(); x <= rect_.right(); ++x) {
                if (line.changed(x) && colors.add(line.wanted(x)) == ColorIndex::Full) {
                    return false;
                }
            }
        }
        return first_ || colors.colors().size() < 256 || wholePictureFits(colors);
    }

    /// With 256 changed colours none is left for "transparent"; nothing that stays may need it.
    bool wholePictureFits(const ColorIndex& colors) {
        for (int y = 0; y < out_.height(); ++y) {
            const Row line = row(y);
            for (int x = 0; x < out_.width(); ++x) {
                if (!line.changed(x) && colors.find(line.out[x]) < 0) {
                    return false;
                }
            }
        }
        return true;
    }

    void reduce() {
        QHash<QRgb, quint32> drawn;
        QHash<QRgb, quint32> still;
        bool newMap = false;
        forEachChange([&](const Row& line, int x, int) {
            switch (line.kind(x)) {
                case Kind::Drawn:
                    ++drawn[line.picture[x]];
                    break;
                case Kind::StillMap:
                    ++still[line.shownMap[x]];
                    break;
                case Kind::NewMap:
                    newMap = true;
                    break;
            }
        });
        Quantizer quantizer(first_ ? 256 : 255, effortOf(state_.quality_));
        if (newMap) {
            addMap(quantizer, capture_.map.copy(rect_));
        }
        weigh(quantizer, byPixels(still), MaxMapColors, 1);
        weigh(quantizer, byPixels(drawn), MaxFlatColors, LeastFlatPixels, first_ ? DrawnWeight : 1);
        const std::vector<QRgb> palette = quantizer.palette();
        Halftone halftone(palette, weightsOf(state_.quality_));
        if (newMap) {
            halftone.decide(capture_.map, rect_, state_.shownMap_);
        }
        NearestColor nearest(palette);
        forEachChange([&](Row& line, int x, int) {
            const bool isDrawn = line.kind(x) == Kind::Drawn;
            const QRgb color = isDrawn ? line.picture[x] : line.shownMap[x];
            line.out[x] = nearest.of(color);
            // The whole picture has few colours for what is shaded; what changes later has enough.
            if (first_ && isDrawn && line.out[x] != color) {
                line.out[x] = Undecided;
            }
        });
        if (first_) {
            halftone.decide(capture_.picture, rect_, out_);
        }
    }

    void addMap(Quantizer& quantizer, const QImage& map) {
        std::vector<uchar> counts;
        if (!first_) {
            counts.reserve(static_cast<std::size_t>(map.width()) *
                           static_cast<std::size_t>(map.height()));
            for (int y = rect_.top(); y <= rect_.bottom(); ++y) {
                const Row line = row(y);
                for (int x = rect_.left(); x <= rect_.right(); ++x) {
                    counts.push_back(line.shownMap[x] == Undecided ? 255 : 0);
                }
            }
        }
        quantizer.add(map, counts);
    }

    GifColors& state_;
    const Capture& capture_;
    QRect rect_;
    bool first_;
    QImage out_;
};

QImage GifColors::next(const Capture& capture) {
    const bool first = picture_.isNull();
    if (first) {
        shownMap_ = QImage(capture.map.size(), QImage::Format_ARGB32);
        shownMap_.fill(Undecided);
    } else {
        forgetChangedMap(capture.map);
    }
    const QRect rect = first ? capture.picture.rect() : changedRect(picture_, capture.picture);
    if (!rect.isEmpty()) {
        shown_ = Step(*this, capture, rect).run();
    }
    picture_ = capture.picture;
    map_ = capture.map;
    return shown_;
}

void GifColors::forgetChangedMap(const QImage& map) {
    if (map.cacheKey() == map_.cacheKey()) {
        return;
    }
    const QRect rect = changedRect(map_, map);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* before = constLineOf(map_, y);
        const QRgb* now = constLineOf(map, y);
        QRgb* shown = lineOf(shownMap_, y);
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (before[x] != now[x]) {
                shown[x] = Undecided;
            }
        }
    }
}

}  // namespace nubivane
