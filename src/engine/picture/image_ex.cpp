// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_ex.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/gif/color_index.h"
#include "engine/gif/gif_outline.h"
#include "engine/gif/gif_reader.h"
#include "engine/gif/gif_writer.h"
#include "engine/gif/pixel_lines.h"
#include "engine/picture/jpeg_encoder.h"
#include "engine/picture/sheet.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QSize largest(const FrameList& list) {
    QSize size;
    for (const FrameColumn& column : list) {
        size = size.expandedTo(column.size);
    }
    return size;
}

/// The colours of the pixels that differ from a picture before, of all where there is none. False
/// when there is no room for them.
bool addChanged(ColorIndex& colors, const QImage& before, const QImage& after) {
    const QRect rect = before.isNull() ? after.rect() : changedRect(before, after);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const QRgb* now = constLineOf(after, y);
        const QRgb* old = before.isNull() ? nullptr : constLineOf(before, y);
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if ((!old || now[x] != old[x]) && colors.add(now[x]) == ColorIndex::Full) {
                return false;
            }
        }
    }
    return true;
}

/// All colours of a GIF's images, those first that most images change something to; none when
/// there are more than 256.
std::vector<QRgb> commonColors(const QByteArray& gif) {
    ColorIndex colors;
    std::vector<int> images(256, 0);
    GifImages reader(gif);
    QImage last;
    while (const std::optional<GifImage> image = reader.next()) {
        ColorIndex here;
        if (!addChanged(here, last, image->picture)) {
            return {};
        }
        for (const QRgb color : here.colors()) {
            const int number = colors.add(color);
            if (number == ColorIndex::Full) {
                return {};
            }
            ++images[static_cast<std::size_t>(number)];
        }
        last = image->picture;
    }
    std::vector<QRgb> sorted = colors.colors();
    std::stable_sort(sorted.begin(), sorted.end(), [&](QRgb a, QRgb b) {
        return images[static_cast<std::size_t>(colors.find(a))] >
               images[static_cast<std::size_t>(colors.find(b))];
    });
    return sorted;
}

bool isOpaque(const QImage& image) {
    QRgb all = 0xFF000000;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* line = constLineOf(image, y);
        for (int x = 0; x < image.width(); ++x) {
            all &= line[x];
        }
    }
    return qAlpha(all) == 255;
}

/// Collects pictures until there are enough for the writer to work on them side by side.
class PictureQueue {
  public:
    PictureQueue(GifWriter& writer, QSize size)
        : writer_(writer), enough_(GifWriter::picturesAtATime(size)) {}

    void add(QImage picture, qint64 hundredths) {
        pictures_.push_back({std::move(picture), hundredths});
        if (pictures_.size() == enough_) {
            write();
        }
    }
    void finish() {
        write();
        writer_.finish();
    }

  private:
    void write() {
        writer_.addImages(pictures_);
        pictures_.clear();
    }

    GifWriter& writer_;
    std::size_t enough_;
    std::vector<TimedPicture> pictures_;
};

/// Writes all images of a GIF again. False when it has see-through places or is damaged.
bool rewrite(const QByteArray& gif, QSize size, GifWriter& writer,
             const std::function<void(int)>& progress) {
    GifImages images(gif);
    PictureQueue queue(writer, size);
    int done = 0;
    while (const std::optional<GifImage> image = images.next()) {
        if (image->picture.size() != size || !isOpaque(image->picture)) {
            return false;
        }
        queue.add(image->picture.convertToFormat(QImage::Format_RGB32), image->delay);
        progress(++done);
    }
    queue.finish();
    return images.complete();
}

}  // namespace

std::vector<qint64> spreadDelays(const FrameList& list) {
    std::vector<qint64> delays;
    delays.reserve(list.size());
    double asked = 0;
    qint64 given = 0;
    for (const FrameColumn& column : list) {
        asked += column.hundredths;
        delays.push_back(std::max<qint64>(0, std::llround(asked) - given));
        given += delays.back();
    }
    return delays;
}

void ImageEx::SaveImage(const QImage& picture, const QString& path, PictureFormat format) {
    host_files::write(path, format == PictureFormat::Jpeg
                                ? encodeJpegWithFullColor(picture, JpegQuality)
                                : encodePicture(picture, format));
}

void ImageEx::AssembleGif(const FrameList& list, const QString& path,
                          const PictureProgress& progress, GifQuality quality) {
    if (list.empty()) {
        throw Error(error_number::InvalidPicture, u"gif"_s, u"Cannot encode the picture as GIF."_s,
                    u"there is no image"_s);
    }
    const QSize size = largest(list);
    const std::vector<qint64> delays = spreadDelays(list);
    const int count = static_cast<int>(list.size());
    ReplacedFile file(host_files::toHost(path), Durability::Flushed);
    GifColors colors(quality);
    GifWriter writer(
        size, [&file](const QByteArray& bytes) { file.append(bytes); }, GifEffort::Quick);
    PictureQueue queue(writer, size);
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (delays[at] > 0 || count == 1) {
            const Capture capture = list[at].capture();
            const QImage map = onSheet(capture.map, size);
            queue.add(colors.next({onSheet(capture.picture, size), map}), delays[at]);
        }
        if (progress) {
            progress(i + 1, count);
        }
    }
    queue.finish();
    file.commit();
}

void ImageEx::OptimizeGif(const QString& source, const QString& target, int mode,
                          const PictureProgress& progress) {
    constexpr int TryEverything = 2;
    const QByteArray gif = host_files::read(source, std::numeric_limits<int>::max());
    if (!isGif(gif)) {
        throw Error(error_number::InvalidPicture, u"gif"_s, u"Invalid picture."_s,
                    u"it is no GIF"_s);
    }
    if (const std::optional<GifOutline> outline = gifOutline(gif); outline && outline->images > 0) {
        qint64 size = 0;
        ReplacedFile file(host_files::toHost(target), Durability::Flushed);
        GifWriter writer(
            outline->size,
            [&](const QByteArray& bytes) {
                size += bytes.size();
                file.append(bytes);
            },
            mode == TryEverything ? GifEffort::Search : GifEffort::Quick, commonColors(gif));
        const bool whole = rewrite(gif, outline->size, writer, [&](int done) {
            if (progress) {
                progress(done, outline->images);
            }
        });
        if (whole && size < gif.size()) {
            file.commit();
            return;
        }
    }
    if (host_files::toHost(source) != host_files::toHost(target)) {
        host_files::write(target, gif);
    }
}

}  // namespace nubivane
