// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation.h"

#include "engine/core/host_files.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/image_codec.h"

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

/// Encoders write 0 and 1 for "as fast as you can", which browsers have never followed.
int playedMilliseconds(int hundredths) {
    constexpr int InsteadOfTooShort = 100;
    return hundredths <= 1 ? InsteadOfTooShort : hundredths * 10;
}

AnimationImage shownFor(QImage picture, int hundredths) {
    return {std::move(picture), hundredths, playedMilliseconds(hundredths)};
}

}  // namespace

Animation::Animation(std::vector<AnimationImage> images) : images_(std::move(images)) {
    ends_.reserve(images_.size());
    qint64 end = 0;
    for (const AnimationImage& image : images_) {
        end += image.duration;
        ends_.push_back(end);
    }
}

Animation Animation::read(const QString& path) {
    return fromEncoded(host_files::read(path, MaxPictureBytes));
}

Animation Animation::fromEncoded(const QByteArray& bytes) {
    std::vector<AnimationImage> images;
    if (isGif(bytes)) {
        for (GifImage& image : readGif(bytes)) {
            images.push_back(shownFor(std::move(image.picture), image.delay));
        }
    } else {
        images.push_back(
            shownFor(decodePicture(bytes).convertToFormat(QImage::Format_ARGB32_Premultiplied), 0));
    }
    return Animation(std::move(images));
}

Animation Animation::still(QSize largest) const {
    QImage first = images_.front().picture;
    if (first.width() > largest.width() || first.height() > largest.height()) {
        first = first.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return Animation({shownFor(std::move(first), 0)});
}

int Animation::shortestDuration() const {
    const auto shortest = std::min_element(
        images_.begin(), images_.end(),
        [](const AnimationImage& a, const AnimationImage& b) { return a.duration < b.duration; });
    return moves() ? shortest->duration : 0;
}

int Animation::imageAt(qint64 time) const {
    const auto end = std::upper_bound(ends_.begin(), ends_.end(), time % ends_.back());
    return static_cast<int>(end - ends_.begin());
}

std::optional<int> Animation::nextChange(qint64 time) const {
    if (!moves()) {
        return std::nullopt;
    }
    const auto shown = static_cast<std::size_t>(imageAt(time));
    return static_cast<int>(ends_[shown] - time % ends_.back());
}

}  // namespace nubivane
