// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/animation.h"
#include "engine/picture/image_codec.h"
#include "fuzz_support.h"

using namespace nubivane;

namespace {

constexpr int Hours = 24 * 60 * 60 * 1000;

/// What holds for each file that is not refused.
void check(const Animation& animation, std::size_t images) {
    fuzz::require(animation.images().size() == images, "an animation has the reader's images");
    for (const qint64 time : {0, 1, 999, Hours}) {
        fuzz::require(animation.pictureAt(time).size() == animation.size(),
                      "something shows at any time");
        const auto next = animation.nextChange(time);
        fuzz::require(next.has_value() == animation.moves() && next.value_or(1) > 0,
                      "what moves has a next change, later than now");
    }
}

}  // namespace

/// The input is a GIF. The reader that holds all images and the one that goes from image to image
/// see the same ones, and what plays them finds one for any time.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = fuzz::inputBytes(data, size);
    std::vector<GifImage> images;
    try {
        images = readGif(bytes);
    } catch (const Error& error) {
        fuzz::require(error.number() == error_number::InvalidPicture && !error.cause().isEmpty(),
                      "a GIF is refused with its number and the cause");
        return 0;
    }
    fuzz::require(!images.empty() && images.size() <= MaxGifImages, "the number of images");
    const QSize screen = images.front().picture.size();
    fuzz::require(!screen.isEmpty() && screen.width() <= MaxPictureSide &&
                      screen.height() <= MaxPictureSide &&
                      qint64{screen.width()} * screen.height() <= MaxPicturePixels,
                  "the screen keeps the limits");
    GifImages walk(bytes);
    for (const GifImage& image : images) {
        const auto again = walk.next();
        fuzz::require(again && again->delay == image.delay && again->picture == image.picture,
                      "both readers see the same images");
        fuzz::require(image.picture.size() == screen && image.delay >= 0 && image.delay <= 0xFFFF,
                      "images of one size, with a delay of two bytes");
    }
    fuzz::require(!walk.next(), "both readers end at the same place");
    try {
        check(Animation::fromEncoded(bytes), images.size());
    } catch (const Error& error) {
        fuzz::require(!isGif(bytes) && error.number() == error_number::InvalidPicture,
                      "what begins as a GIF and has an image can be played");
    }
    return 0;
}
