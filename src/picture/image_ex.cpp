#include "picture/image_ex.h"

#include "core/error.h"
#include "core/host_files.h"
#include "core/path_text.h"
#include "core/replaced_file.h"
#include "picture/color_index.h"
#include "picture/gif_reader.h"
#include "picture/gif_writer.h"
#include "picture/image_codec.h"

#include <QPainter>

#include <cmath>
#include <limits>
#include <optional>

namespace nubivane {

namespace {

QSize largest(const FrameList& list) {
    QSize size;
    for (const FrameColumn& column : list) {
        size = size.expandedTo(column.size);
    }
    return size;
}

/// What a GIF is made of beside its pixels.
struct Census {
    int images = 0;
    bool sound = true;         ///< whole, and without see-through places
    std::vector<QRgb> colors;  ///< all of them; none when there are more than 256
};

bool isOpaque(const QImage& image, const QRect& rect) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (qAlpha(line[x]) != 255) {
                return false;
            }
        }
    }
    return true;
}

/// False when there is no room for all of them.
bool addColors(ColorIndex& colors, const QImage& image, const QRect& rect) {
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (colors.add(line[x]) == ColorIndex::Full) {
                return false;
            }
        }
    }
    return true;
}

Census takeCensus(const QByteArray& gif) {
    Census census;
    ColorIndex colors;
    bool few = true;
    GifImages images(gif);
    QImage last;
    while (const std::optional<GifImage> image = images.next()) {
        const QRect rect =
            last.isNull() ? image->picture.rect() : changedRect(last, image->picture);
        census.sound = census.sound && isOpaque(image->picture, rect);
        few = few && addColors(colors, image->picture, rect);
        last = image->picture;
        ++census.images;
    }
    census.sound = census.sound && census.images > 0 && images.complete();
    if (few) {
        census.colors = colors.colors();
    }
    return census;
}

}  // namespace

QImage onSheet(const QImage& picture, QSize size) {
    if (picture.size() == size) {
        return picture;
    }
    QImage sheet(size, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, picture);
    return sheet;
}

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

void ImageEx::SaveImage(const QString& path) const {
    host_files::write(path, encodePicture(picture_, formatOfExtension(getExtension(path))));
}

void ImageEx::AssembleGif(const FrameList& list, const QString& path,
                          const PictureProgress& progress) {
    if (list.empty()) {
        throw Error(error_number::InvalidPicture, "gif", "Cannot encode the picture as GIF.",
                    "there is no image");
    }
    const QSize size = largest(list);
    const std::vector<qint64> delays = spreadDelays(list);
    const int count = static_cast<int>(list.size());
    ReplacedFile file(path);
    GifColors colors;
    GifWriter writer(
        size, [&file](const QByteArray& bytes) { file.append(bytes); }, GifEffort::Quick);
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<std::size_t>(i);
        if (delays[at] > 0 || count == 1) {
            const Capture capture = list[at].capture();
            const QImage map = onSheet(capture.map, size);
            writer.addImage(colors.next({onSheet(capture.picture, size), map}), delays[at]);
        }
        if (progress) {
            progress(i + 1, count);
        }
    }
    writer.finish();
    file.commit();
}

void ImageEx::OptimizeGif(const QString& source, const QString& target, int mode,
                          const PictureProgress& progress) {
    constexpr int TryEverything = 2;
    const QByteArray gif = host_files::read(source, std::numeric_limits<int>::max());
    const Census census = takeCensus(gif);
    qint64 size = 0;
    if (census.sound) {
        ReplacedFile file(target);
        GifImages images(gif);
        std::optional<GifImage> image = images.next();
        GifWriter writer(
            image->picture.size(),
            [&](const QByteArray& bytes) {
                size += bytes.size();
                file.append(bytes);
            },
            mode == TryEverything ? GifEffort::Search : GifEffort::Quick, census.colors);
        for (int done = 1; image; image = images.next(), ++done) {
            writer.addImage(image->picture.convertToFormat(QImage::Format_RGB32), image->delay);
            if (progress) {
                progress(done, census.images);
            }
        }
        writer.finish();
        if (size < gif.size()) {
            file.commit();
            return;
        }
    }
    if (host_files::toHost(source) != host_files::toHost(target)) {
        host_files::write(target, gif);
    }
}

}  // namespace nubivane
