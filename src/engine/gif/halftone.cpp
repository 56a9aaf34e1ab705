// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/halftone.h"

#include "engine/gif/pixel_lines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace nubivane {

namespace {

/// How far one pixel's error reaches into the blurred picture.
constexpr int Reach = 3;
constexpr int Taps = 2 * Reach + 1;
constexpr int PaddedTaps = Taps + 1;  // a whole number of vectors
/// A wide bell, cut off where pixels no longer matter to each other for the eye.
constexpr float BellWidth = 2.1F;

/// Rows that are decided together: their errors stay in the processor's cache.
constexpr int BandHeight = 48;
/// How often each pixel is looked at again; later rounds change hardly anything.
constexpr int Rounds = 2;
/// Rows are coded from left to right, so a change along them costs more than one across.
constexpr float AcrossRows = 0.3F;

constexpr int CellBits = 6;  // of a colour's channel

std::array<float, Taps> bell() {
    std::array<float, Taps> weights{};
    float sum = 0;
    for (int i = 0; i < Taps; ++i) {
        const auto away = static_cast<float>(i - Reach);
        weights[static_cast<std::size_t>(i)] = std::exp(-away * away / (2 * BellWidth * BellWidth));
        sum += weights[static_cast<std::size_t>(i)];
    }
    for (float& weight : weights) {
        weight /= sum;
    }
    return weights;
}

std::array<float, 3> channelsOf(QRgb color) {
    return {static_cast<float>(qRed(color)), static_cast<float>(qGreen(color)),
            static_cast<float>(qBlue(color))};
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

/// A plane of numbers with a margin around the pixels.
class Plane {
  public:
    void reset(int width, int height) {
        stride_ = width + PaddedTaps;
        values_.assign(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(height), 0);
    }
    /// The row's first pixel; `Reach` places before and behind the row belong to it.
    float* row(int y) { return values_.data() + qptrdiff{y} * stride_ + Reach; }

  private:
    qptrdiff stride_ = 0;
    std::vector<float> values_;
};

}  // namespace

/// Some rows of the picture on their way, with what each pixel's error and its neighbours' add up
/// to: how much would be gained by making the pixel a little lighter or darker.
class Halftone::Band {
  public:
    Band(Halftone& halftone, const QImage& picture, const QRect& rect,
         const std::vector<char>& open, QImage& shown)
        : halftone_(halftone),
          picture_(picture),
          rect_(rect),
          open_(open),
          shown_(shown),
          bell_(bell()) {
        for (int y = 0; y < Taps; ++y) {
            for (int x = 0; x < Taps; ++x) {
                const auto i = static_cast<std::size_t>(y);
                const auto j = static_cast<std::size_t>(x);
                kernel_[i][j] = halftone.weights_.blurred * bell_[i] * bell_[j];
            }
        }
        kernel_[Reach][Reach] += 1;
    }

    void decide(int top, int bottom) {
        top_ = top;
        bottom_ = bottom;
        bool any = false;
        for (int y = top; y <= bottom && !any; ++y) {
            for (int x = rect_.left(); x <= rect_.right() && !any; ++x) {
                any = isOpen(x, y);
            }
        }
        if (!any) {
            return;
        }
        for (std::size_t channel = 0; channel < 3; ++channel) {
            measure(channel);
        }
        // Every other pixel of every other row in turn. One after the other, all would make up for
        // neighbours that have yet to be looked at.
        for (int turn = 0; turn < 4 * Rounds; ++turn) {
            static constexpr std::array<QPoint, 4> Lattice = {QPoint(0, 0), QPoint(1, 1),
                                                              QPoint(1, 0), QPoint(0, 1)};
            const QPoint offset = Lattice[static_cast<std::size_t>(turn % 4)];
            for (int y = top + offset.y(); y <= bottom; y += 2) {
                improve(y, rect_.left() + offset.x());
            }
        }
    }

  private:
    bool isOpen(int x, int y) const {
        return open_[static_cast<std::size_t>(y - rect_.top()) *
                         static_cast<std::size_t>(rect_.width()) +
                     static_cast<std::size_t>(x - rect_.left())] != 0;
    }

    /// Fills one plane: the error of each pixel and the weighed errors of all around it.
    void measure(std::size_t channel) {
        const int width = rect_.width();
        const int height = bottom_ - top_ + 1;
        errors_.reset(width, height + 2 * Reach);
        for (int y = std::max(top_ - Reach, rect_.top());
             y <= std::min(bottom_ + Reach, rect_.bottom()); ++y) {
            const QRgb* right = constLineOf(picture_, y) + rect_.left();
            const QRgb* chosen = constLineOf(shown_, y) + rect_.left();
            float* error = errors_.row(y - top_ + Reach);
            const int shift = 16 - 8 * static_cast<int>(channel);
            for (int x = 0; x < width; ++x) {
                error[x] = static_cast<float>(static_cast<int>(chosen[x] >> shift & 0xFF) -
                                              static_cast<int>(right[x] >> shift & 0xFF));
            }
        }
        Plane& sums = sums_[channel];
        sums.reset(width, height + 2 * Reach);
        column_.reset(width, 1);
        for (int y = 0; y < height; ++y) {
            float* column = column_.row(0);
            std::fill(column, column + width, 0.0F);
            for (int i = 0; i < Taps; ++i) {
                const float weight = bell_[static_cast<std::size_t>(i)];
                const float* error = errors_.row(y + i);
                for (int x = 0; x < width; ++x) {
                    column[x] += weight * error[x];
                }
            }
            const float* error = errors_.row(y + Reach);
            float* sum = sums.row(y + Reach);
            for (int x = 0; x < width; ++x) {
                float blurred = 0;
                for (int i = 0; i < Taps; ++i) {
                    blurred += bell_[static_cast<std::size_t>(i)] * column[x + i - Reach];
                }
                sum[x] = error[x] + halftone_.weights_.blurred * blurred;
            }
        }
    }

    /// Gives every other open pixel of a row the colour that suits it best as all others are.
    void improve(int y, int firstX) {
        const QRgb* picture = constLineOf(picture_, y);
        const QRgb* above = y > rect_.top() ? constLineOf(shown_, y - 1) : nullptr;
        const QRgb* below = y < rect_.bottom() ? constLineOf(shown_, y + 1) : nullptr;
        QRgb* shown = lineOf(shown_, y);
        const int row = y - top_ + Reach;
        const float costAlong = halftone_.costOfChange_;
        const float costAcross = halftone_.costOfChange_ * AcrossRows;
        const float own = kernel_[Reach][Reach];
        for (int x = firstX; x <= rect_.right(); x += 2) {
            if (!isOpen(x, y)) {
                continue;
            }
            const QRgb now = shown[x];
            const QRgb left = x > rect_.left() ? shown[x - 1] : now;
            const QRgb right = x < rect_.right() ? shown[x + 1] : now;
            const QRgb up = above ? above[x] : now;
            const QRgb down = below ? below[x] : now;
            const std::array<float, 3> current = channelsOf(now);
            std::array<float, 3> slope{};
            for (std::size_t c = 0; c < 3; ++c) {
                slope[c] = 2 * sums_[c].row(row)[x - rect_.left()] - 2 * own * current[c];
            }
            const Entry* best = nullptr;
            float least = std::numeric_limits<float>::max();
            for (const std::uint8_t place : halftone_.nearTo(picture[x])) {
                const Entry& entry = halftone_.palette_[place];
                float cost = 0;
                for (std::size_t c = 0; c < 3; ++c) {
                    cost += entry.channels[c] * (own * entry.channels[c] + slope[c]);
                }
                const QRgb color = entry.color;
                cost += costAlong * static_cast<float>((color != left) + (color != right)) +
                        costAcross * static_cast<float>((color != up) + (color != down));
                if (cost < least) {
                    least = cost;
                    best = &entry;
                }
            }
            if (best->color != now) {
                shown[x] = best->color;
                spread(x - rect_.left(), row, current, best->channels);
            }
        }
    }

    void spread(int x, int row, const std::array<float, 3>& before,
                const std::array<float, 3>& after) {
        for (std::size_t c = 0; c < 3; ++c) {
            const float change = after[c] - before[c];
            for (int i = 0; i < Taps; ++i) {
                const auto& weights = kernel_[static_cast<std::size_t>(i)];
                float* sums = sums_[c].row(row + i - Reach) + x - Reach;
                for (int j = 0; j < PaddedTaps; ++j) {
                    sums[j] += change * weights[static_cast<std::size_t>(j)];
                }
            }
        }
    }

    Halftone& halftone_;
    const QImage& picture_;
    QRect rect_;
    const std::vector<char>& open_;
    QImage& shown_;
    int top_ = 0;
    int bottom_ = 0;
    std::array<float, Taps> bell_;
    std::array<std::array<float, PaddedTaps>, Taps> kernel_{};
    Plane errors_;  // of one channel
    Plane column_;
    std::array<Plane, 3> sums_;
};

Halftone::Halftone(const std::vector<QRgb>& palette, HalftoneWeights weights)
    : weights_(weights), cells_(std::size_t{1} << 3 * CellBits, -1) {
    for (const QRgb color : palette) {
        palette_.push_back({color, channelsOf(color)});
    }
}

const Halftone::Near& Halftone::nearTo(QRgb color) {
    constexpr int Dropped = 8 - CellBits;
    const int red = qRed(color) >> Dropped;
    const int green = qGreen(color) >> Dropped;
    const int blue = qBlue(color) >> Dropped;
    int& cell = cells_[static_cast<std::size_t>((red << CellBits | green) << CellBits | blue)];
    if (cell < 0) {
        constexpr int Half = 1 << (Dropped - 1);
        const QRgb middle =
            qRgb(red << Dropped | Half, green << Dropped | Half, blue << Dropped | Half);
        std::array<int, Choices> distances{};
        distances.fill(std::numeric_limits<int>::max());
        Near near{};
        for (std::size_t place = 0; place < palette_.size(); ++place) {
            const int away = distance(palette_[place].color, middle);
            if (away >= distances.back()) {
                continue;
            }
            std::size_t at = Choices - 1;
            for (; at > 0 && distances[at - 1] > away; --at) {
                distances[at] = distances[at - 1];
                near[at] = near[at - 1];
            }
            distances[at] = away;
            near[at] = static_cast<std::uint8_t>(place);
        }
        cell = static_cast<int>(known_.size());
        known_.push_back(near);
    }
    return known_[static_cast<std::size_t>(cell)];
}

std::uint8_t Halftone::nearest(QRgb color) {
    const Near& near = nearTo(color);
    return *std::min_element(near.begin(), near.end(), [&](std::uint8_t a, std::uint8_t b) {
        return distance(palette_[a].color, color) < distance(palette_[b].color, color);
    });
}

void Halftone::decide(const QImage& picture, const QRect& rect, QImage& shown) {
    std::vector<char> open;
    open.reserve(static_cast<std::size_t>(rect.width()) * static_cast<std::size_t>(rect.height()));
    double squares = 0;
    qint64 count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* right = constLineOf(picture, y);
        QRgb* line = lineOf(shown, y);
        for (int x = rect.left(); x <= rect.right(); ++x) {
            open.push_back(line[x] == Undecided ? 1 : 0);
            if (line[x] == Undecided) {
                line[x] = palette_[nearest(right[x])].color;
                squares += distance(line[x], right[x]);
                ++count;
            }
        }
    }
    if (count == 0) {
        return;
    }
    costOfChange_ = weights_.changes * static_cast<float>(squares / static_cast<double>(count));
    Band band(*this, picture, rect, open, shown);
    for (int top = rect.top(); top <= rect.bottom(); top += BandHeight) {
        band.decide(top, std::min(top + BandHeight - 1, rect.bottom()));
    }
}

}  // namespace nubivane
