// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/gif_file.h"

#include "engine/core/error.h"
#include "engine/export/export_watcher.h"

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The largest moving GIF. A picture takes some thirty bytes a pixel on the way to its colours, so
/// that this one needs 300 MB at most.
constexpr qint64 MaxGifPixels = 8'000'000;

}  // namespace

void checkGifSize(QSize size) {
    if (qint64{size.width()} * size.height() > MaxGifPixels) {
        throw Error(error_number::OutOfRange, u"export"_s,
                    u"The map is too large for a moving GIF."_s,
                    u"%1 x %2 pixels, where at most %3 million are written: choose a smaller map, "
                    "or write a video"_s.arg(size.width())
                        .arg(size.height())
                        .arg(MaxGifPixels / 1'000'000));
    }
}

void writeGif(FrameList list, const QString& path, GifQuality quality,
              const PictureProgress& captured, ExportWatcher& watcher) {
    constexpr int TryEverything = 2;
    for (FrameColumn& column : list) {
        column.capture = [take = std::move(column.capture), &watcher] {
            Capture capture = take();
            watcher.showStage(capture.picture);
            return capture;
        };
    }
    ImageEx::AssembleGif(list, path, captured, quality);
    watcher.setCaption(u" Assembling file - step 2 of 4"_s);
    watcher.setProgress(80);
    watcher.setCaption(u" Optimizing file - step 3 of 4"_s);
    watcher.setProgress(90);
    watcher.setCaption(u" Saving file - step 4 of 4"_s);
    try {
        ImageEx::OptimizeGif(path, path, TryEverything,
                             [&watcher](int, int) { watcher.working(); });
    } catch (const Error&) {
        // The file is whole, only larger than it might be.
    }
    watcher.setProgress(100);
}

}  // namespace nubivane
