// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/lzw_encoder.h"

#include "engine/gif/gif_reader.h"
#include "engine/gif/small_gif.h"

#include <random>
#include <vector>

namespace nubivane::testing {

namespace {

using Pixels = std::vector<std::uint8_t>;

/// What a reader makes of coded pixels: the red of each, which is its index, in a row of GIF.
Pixels decoded(const QByteArray& data, int width, int height) {
    QByteArray palette;
    for (int i = 0; i < 256; ++i) {
        palette.append(static_cast<char>(i)).append(2, '\0');
    }
    const QByteArray gif = "GIF89a" + small_gif::word(width) + small_gif::word(height) +
                           QByteArray::fromHex("f70000") + palette +
                           small_gif::image({0, 0, width, height}, data) + ";";
    const QImage picture = readGif(gif).front().picture;
    Pixels pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            pixels.push_back(static_cast<std::uint8_t>(qRed(picture.pixel(x, y))));
        }
    }
    return pixels;
}

/// Noise among the first `colors` indexes.
Pixels noise(std::size_t count, int colors, unsigned seed = 3) {
    std::minstd_rand random(seed);
    Pixels pixels(count);
    for (std::uint8_t& pixel : pixels) {
        pixel = static_cast<std::uint8_t>(random() % colors);
    }
    return pixels;
}

class LzwEncoder : public ::testing::TestWithParam<std::tuple<int, LzwEffort>> {
  protected:
    int bits() const { return std::get<0>(GetParam()); }
    LzwEffort effort() const { return std::get<1>(GetParam()); }
};

}  // namespace

TEST_P(LzwEncoder, NoiseThatFillsTheTableManyTimesComesBack) {
    const Pixels pixels = noise(300 * 200, 1 << bits());
    EXPECT_EQ(decoded(encodeLzw(pixels, {}, bits(), effort()), 300, 200), pixels);
}

TEST_P(LzwEncoder, EveryLengthOfAPlainAreaComesBack) {
    // The codes widen at different places behind the last pixel.
    for (int length = 1; length < 700; ++length) {
        const Pixels pixels(static_cast<std::size_t>(length), 1);
        ASSERT_EQ(decoded(encodeLzw(pixels, {}, bits(), effort()), length, 1), pixels) << length;
    }
}

TEST_P(LzwEncoder, EveryLengthOfNoiseComesBack) {
    for (int length = 1; length < 700; ++length) {
        const Pixels pixels = noise(static_cast<std::size_t>(length), 1 << bits());
        ASSERT_EQ(decoded(encodeLzw(pixels, {}, bits(), effort()), length, 1), pixels) << length;
    }
}

TEST_P(LzwEncoder, WhereTwoIndexesAreGivenOneOfThemComesBack) {
    const Pixels pixels = noise(300 * 200, 1 << bits(), 3);
    const Pixels alternatives = noise(300 * 200, 1 << bits(), 4);
    const Pixels back = decoded(encodeLzw(pixels, alternatives, bits(), effort()), 300, 200);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        ASSERT_TRUE(back[i] == pixels[i] || back[i] == alternatives[i]) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Codings, LzwEncoder,
                         ::testing::Combine(::testing::Values(2, 3, 5, 7, 8),
                                            ::testing::Values(LzwEffort::Quick,
                                                              LzwEffort::Search)));

TEST(LzwChoice, ATableThatStillServesIsKept) {
    // Rows of one pattern: what was learned at the start serves to the end.
    Pixels pixels;
    const Pixels row = noise(500, 200);
    for (int y = 0; y < 400; ++y) {
        pixels.insert(pixels.end(), row.begin(), row.end());
    }
    EXPECT_LT(encodeLzw(pixels, {}, 8, LzwEffort::Search).size(),
              encodeLzw(pixels, {}, 8, LzwEffort::Quick).size() * 9 / 10);
}

TEST(LzwChoice, ATableThatHasCeasedToServeIsGivenUpBeforeItIsFull) {
    // Two patterns, the first half of the image each: what the first taught is of no use.
    Pixels pixels;
    for (const unsigned seed : {3U, 4U}) {
        const Pixels row = noise(300, 60, seed);
        for (int y = 0; y < 60; ++y) {
            pixels.insert(pixels.end(), row.begin(), row.end());
        }
    }
    const QByteArray quick = encodeLzw(pixels, {}, 6, LzwEffort::Quick);
    const QByteArray searched = encodeLzw(pixels, {}, 6, LzwEffort::Search);
    EXPECT_LE(searched.size(), quick.size());
    EXPECT_EQ(decoded(searched, 300, 120), pixels);
}

TEST(LzwChoice, AnAlternativeThatContinuesAStringSavesCodes) {
    const Pixels pixels = noise(20'000, 2);
    const Pixels plain(20'000, 0);
    for (const LzwEffort effort : {LzwEffort::Quick, LzwEffort::Search}) {
        EXPECT_LT(encodeLzw(pixels, plain, 8, effort).size(),
                  encodeLzw(pixels, {}, 8, effort).size());
    }
}

TEST(LzwChoice, FollowingSeveralStringsNeverCostsBytes) {
    for (unsigned seed = 1; seed < 20; ++seed) {
        const Pixels pixels = noise(5000, 6, seed);
        const Pixels alternatives = noise(5000, 6, seed + 100);
        const QByteArray searched = encodeLzw(pixels, alternatives, 3, LzwEffort::Search);
        EXPECT_LT(searched.size(), encodeLzw(pixels, alternatives, 3, LzwEffort::Quick).size());
    }
}

TEST(LzwChoice, AnImageOfOnePixelIsWritten) {
    const Pixels pixels{1};
    for (const LzwEffort effort : {LzwEffort::Quick, LzwEffort::Search}) {
        EXPECT_EQ(decoded(encodeLzw(pixels, Pixels{0}, 2, effort), 1, 1), pixels);
    }
}

}  // namespace nubivane::testing
