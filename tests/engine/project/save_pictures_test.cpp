// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"

#include <QPainter>
#include <QRegularExpression>

#include <cstdlib>

namespace nubivane::testing {

namespace {

/// What a picture may lose by being encoded with loss, as the mean over all colour values.
constexpr double LossOfJpeg = 5.0;

double meanDifference(const QImage& first, const QImage& second) {
    qint64 sum = 0;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QColor a = first.pixelColor(x, y);
            const QColor b = second.pixelColor(x, y);
            sum += std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
                   std::abs(a.blue() - b.blue());
        }
    }
    return static_cast<double>(sum) / (3.0 * first.width() * first.height());
}

class SavedPictures : public WorkspaceFixture, public ::testing::WithParamInterface<const char*> {
  protected:
    QString mapName() const { return QStringLiteral("plain.") + GetParam(); }

    void start(qint32 frames) {
        useMap(mapName(), {64, 48});
        while (workspace.Frames().Count() < frames) {
            workspace.Frames().Add();
        }
        workspace.clearTempPicture();
        workspace.Status.CurrentProject = host_files::toModel(file());
    }

    QString file() const { return temporary.file("weather.nvpf"); }
    QByteArray mapBytes() const { return readFile(host("Maps/" + mapName())); }

    /// The sizes that the project file tells, the map's first.
    QList<qint64> sizes() const {
        QList<qint64> result;
        static const QRegularExpression size(" Size=\"([0-9]+)\"");
        auto matches = size.globalMatch(QString::fromUtf8(readFile(file())));
        while (matches.hasNext()) {
            result << matches.next().captured(1).toLongLong();
        }
        return result;
    }

    QByteArray block(qsizetype number) const {
        const QList<qint64> all = sizes();
        qint64 offset = 0;
        for (qsizetype i = 0; i < number; ++i) {
            offset += all[i];
        }
        return readFile(file().chopped(1) + 'x').mid(offset, all[number]);
    }

    /// Draws on the canvas as the tools do.
    QImage draw() {
        QImage& layer = workspace.pctMap.persistentLayer();
        QPainter painter(&layer);
        painter.fillRect(10, 10, 20, 16, Qt::red);
        painter.fillRect(40, 20, 16, 16, Qt::white);
        return layer.copy();
    }
};

}  // namespace

TEST_P(SavedPictures, ABlockForTheMapAndOneForEachFrame) {
    start(2);
    ASSERT_TRUE(saveProject(editor(), false));
    ASSERT_EQ(sizes().size(), 3);
    EXPECT_EQ(readFile(temporary.file("weather.nvpx")).size(),
              sizes()[0] + sizes()[1] + sizes()[2]);
    EXPECT_TRUE(block(0) == mapBytes());
}

TEST_P(SavedPictures, AFrameThatWasNeverVisitedStoresTheBareMap) {
    start(3);
    draw();
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_TRUE(block(2) == mapBytes());
    EXPECT_TRUE(block(3) == mapBytes());
    EXPECT_FALSE(block(1) == mapBytes());
}

TEST_P(SavedPictures, ADrawnFrameIsEncodedInTheMapsFormatAndComesBackNearlyEqual) {
    start(2);
    const QImage drawn = draw();
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_EQ(probePicture(block(1)).format, formatOfExtension(GetParam()));
    open(file());
    const QImage read = workspace.pctPanel.picture(1).image();
    ASSERT_EQ(read.size(), drawn.size());
    EXPECT_LE(meanDifference(read, drawn),
              formatOfExtension(GetParam()) == PictureFormat::Jpeg ? LossOfJpeg : 0.0);
}

TEST_P(SavedPictures, PicturesThatDidNotChangeAreWrittenAsTheyWereRead) {
    start(3);
    draw();
    ASSERT_TRUE(saveProject(editor(), false));
    const QByteArray first = readFile(temporary.file("weather.nvpx"));
    open(file());
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_TRUE(readFile(temporary.file("weather.nvpx")) == first);

    // Another Frame is drawn on: only its block changes.
    const QByteArray oldFirst = block(1);
    workspace.Status.CurrentFrame = 2;
    workspace.pctMap.setPicture(workspace.pctPanel.picture(2));
    draw();
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_TRUE(block(0) == mapBytes());
    EXPECT_TRUE(block(1) == oldFirst);
    EXPECT_FALSE(block(2) == mapBytes());
    EXPECT_TRUE(block(3) == mapBytes());
}

TEST_P(SavedPictures, WhatTheScratchLayerShowsIsDiscarded) {
    start(1);
    workspace.pctMap.scratchLayer().fill(Qt::yellow);
    ASSERT_TRUE(saveProject(editor(), false));
    EXPECT_TRUE(block(1) == mapBytes());
}

TEST_P(SavedPictures, RestoringThePersistentLayerKeepsTheDrawing) {
    start(1);
    const QImage drawn = draw();
    ASSERT_TRUE(saveProject(editor(), false));
    restorePersistentLayer(editor());
    EXPECT_TRUE(workspace.pctMap.image().sharesContentWith(workspace.pctPanel.picture(1)));
    EXPECT_EQ(meanDifference(workspace.pctMap.image().image(), drawn), 0.0);
    EXPECT_FALSE(view.calls.contains("showMap"));
}

TEST_P(SavedPictures, ASecondSaveWithLessDataKeepsTheTailAndOpens) {
    start(3);
    ASSERT_TRUE(saveProject(editor(), false));
    const QByteArray longer = readFile(temporary.file("weather.nvpx"));
    workspace.Frames().Remove(3);
    workspace.Frames().Remove(2);
    workspace.clearTempPicture();
    ASSERT_TRUE(saveProject(editor(), false));
    ASSERT_EQ(sizes().size(), 2);
    const qint64 used = sizes()[0] + sizes()[1];
    const QByteArray now = readFile(temporary.file("weather.nvpx"));
    EXPECT_EQ(now.size(), longer.size());
    EXPECT_TRUE(now.mid(used) == longer.mid(used));
    open(file());
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_TRUE(workspace.pctPanel.picture(1).originalBytes() == mapBytes());
}

TEST_P(SavedPictures, ManyFramesKeepTheirOrder) {
    // More than are encoded at a time, some sharing a picture, some not.
    constexpr qint32 Frames = 70;
    start(Frames);
    QList<Picture> pictures;
    for (qint32 i = 1; i <= Frames; ++i) {
        const bool likeTheLast = i > 1 && i % 3 == 0;
        pictures << (likeTheLast ? pictures.last()
                                 : Picture(plainImage({64, 48}, i % 2 ? Qt::red : Qt::green)));
        workspace.pctPanel.setPicture(i, pictures.last());
    }
    workspace.pctMap.setPicture(pictures.first());
    ASSERT_TRUE(saveProject(editor(), false));
    open(file());
    ASSERT_EQ(workspace.pctPanel.Count(), Frames);
    for (qint32 i = 1; i <= Frames; ++i) {
        EXPECT_LE(meanDifference(workspace.pctPanel.picture(i).image(), pictures[i - 1].image()),
                  LossOfJpeg)
            << i;
    }
}

INSTANTIATE_TEST_SUITE_P(, SavedPictures,
                         ::testing::Values("png", "gif", "bmp", "jpg", "jpeg", "JPG", "tif"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace nubivane::testing
