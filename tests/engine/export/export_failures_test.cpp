// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/export/stage_fixture.h"
#include "engine/gif/gif_reader.h"
#include "support/failing_calls.h"

namespace nubivane::testing {

namespace {

/// Every export, while the system refuses its calls one after the other.
class ExportFailures : public StageFixture {
  protected:
    ExportFailures() {
        makeSymbol("dot.gif", {50, 50});
        addSymbol("dot.gif", {7, 9});
    }

    FailingWriter writer(const QString& name, const ExportRequest& request) {
        run(request);
        const QByteArray whole = readFile(outputHost(name));
        EXPECT_GT(whole.size(), 50) << name.toStdString();
        return {
            .name = name.toStdString(),
            .run =
                [this, request] {
                    try {
                        run(request);
                    } catch (const Error& error) {
                        EXPECT_FALSE(error.cause().isEmpty());
                        return false;
                    }
                    return true;
                },
            .files = {outputHost(name)},
            .isNew = [whole](const QString&,
                             const QByteArray& content) { return content == whole; },
        };
    }

    /// A moving GIF counts as written when it could not be made smaller afterwards.
    FailingWriter gifWriter(const QString& name, const ExportRequest& request) {
        FailingWriter gif = writer(name, request);
        const std::vector<QImage> whole = imagesOf(readFile(outputHost(name)));
        gif.isNew = [whole](const QString&, const QByteArray& content) {
            return imagesOf(content) == whole;
        };
        return gif;
    }

    static std::vector<QImage> imagesOf(const QByteArray& gif) {
        std::vector<QImage> images;
        if (isGif(gif) && gif.endsWith(';')) {
            for (const GifImage& image : readGif(gif)) {
                images.push_back(image.picture);
            }
        }
        return images;
    }
};

}  // namespace

TEST_F(ExportFailures, NoFailingCallTearsAStillImage) {
    for (const char* name : {"a.bmp", "a.gif", "a.jpg", "a.png", "a.tif"}) {
        failEveryCallOf(writer(name, StillRequest{{{1, output(name)}}}));
    }
}

TEST_F(ExportFailures, NoFailingCallTearsAPrint) {
    FailingWriter print = writer("a.pdf", PrintRequest{.path = output("a.pdf")});
    // It tells when it was made.
    print.isNew = [size = readFile(outputHost("a.pdf")).size()](const QString&,
                                                                const QByteArray& content) {
        return content.size() == size && content.startsWith("%PDF-") && content.endsWith("%%EOF\n");
    };
    failEveryCallOf(print);
}

TEST_F(ExportFailures, NoFailingCallTearsAMovingGif) {
    failEveryCallOf(gifWriter("a.gif", AniGifRequest{.GifFileName = output("a.gif")}));
}

TEST_F(ExportFailures, NoFailingCallTearsAFilm) {
    failEveryCallOf(
        gifWriter("film.gif", FilmRequest{.path = output("film.gif"), .FrameInterval = 10}));
}

TEST_F(ExportFailures, NoFailingCallTearsAFilmAsMp4) {
    failEveryCallOf(writer(
        "film.mp4",
        FilmRequest{.path = output("film.mp4"), .FrameInterval = 10, .format = FilmFormat::Mp4}));
}

TEST_F(ExportFailures, NoFailingCallTearsAnAviVideo) {
    failEveryCallOf(writer("a.avi", VideoRequest{.path = output("a.avi")}));
}

TEST_F(ExportFailures, NoFailingCallTearsAnMp4Video) {
    failEveryCallOf(
        writer("a.mp4", VideoRequest{.path = output("a.mp4"), .format = VideoFormat::Mp4}));
}

}  // namespace nubivane::testing
