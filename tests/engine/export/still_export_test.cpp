// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/still_export.h"

#include "engine/core/error.h"
#include "engine/export/export_stage.h"
#include "engine/export/stage_fixture.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/jpeg_encoder.h"

namespace nubivane::testing {

namespace {

class StillExport : public StageFixture {
  protected:
    void save(const QString& name) { run(StillRequest{{{1, output(name)}}}); }

    int errorOf(const QString& name) {
        try {
            save(name);
        } catch (const Error& error) {
            lastError = error.description();
            return error.number();
        }
        return 0;
    }

    QString lastError;
};

}  // namespace

TEST_F(StillExport, WritesTheStageInEachFormat) {
    makeSymbol("dot.gif", {5, 5});
    addSymbol("dot.gif", {7, 9});
    const QImage stage = renderFrame(workspace, 1);
    for (const char* name : {"a.bmp", "a.gif", "a.png", "a.tif"}) {
        save(name);
        const QByteArray bytes = readFile(outputHost(name));
        EXPECT_EQ(probePicture(bytes).format, formatOfExtension(QString(name).right(3))) << name;
        EXPECT_EQ(decodePicture(bytes).convertToFormat(QImage::Format_RGB32), stage) << name;
    }
    save("a.jpg");
    const QByteArray jpeg = readFile(outputHost("a.jpg"));
    EXPECT_EQ(probePicture(jpeg).format, PictureFormat::Jpeg);
    EXPECT_EQ(probePicture(jpeg).size, QSize(60, 40));
    // Its colours are as fine as its brightness, and its quality is that of the pages' maps.
    EXPECT_EQ(jpeg, encodeJpegWithFullColor(stage, JpegQuality));
}

TEST_F(StillExport, AMovingSymbolShowsItsFirstImage) {
    makeSymbol("dot.gif", {5, 5});
    addSymbol("dot.gif", {0, 0});
    save("a.png");
    EXPECT_EQ(decodePicture(readFile(outputHost("a.png"))).pixel(0, 0), Red);
}

TEST_F(StillExport, AJobOfSeveralFramesShowsEachAlone) {
    workspace.Frames().Add();
    workspace.pctPanel.resize(2);
    workspace.pctPanel.setPicture(2, Picture(plainImage({80, 30}, Qt::green)));
    makeSymbol("dot.gif", {5, 5});
    addSymbol("dot.gif", {7, 9}, 1);
    addLabel("rain", {20, 5}, -1, 1);
    addSymbol("dot.gif", {3, 3}, 2);
    run(StillRequest{{{1, output("a.png")}, {2, output("b.png")}, {1, output("c.png")}}});
    const auto shown = [this](const QString& name) {
        return decodePicture(readFile(outputHost(name))).convertToFormat(QImage::Format_RGB32);
    };
    EXPECT_EQ(shown("a.png"), renderFrame(workspace, 1));
    EXPECT_EQ(shown("b.png"), renderFrame(workspace, 2));
    EXPECT_EQ(shown("c.png"), renderFrame(workspace, 1));
}

TEST_F(StillExport, AMapThatIsGivenStandsInPlaceOfTheFramesOwn) {
    run(StillRequest{{{1, output("a.png"), Picture(plainImage({60, 40}, Qt::green))}}});
    EXPECT_EQ(decodePicture(readFile(outputHost("a.png"))).pixel(1, 1), Green);
}

TEST_F(StillExport, AFrameThatIsNotThereIsRefusedBeforeAnythingIsWritten) {
    EXPECT_THROW(run(StillRequest{{{1, output("a.png")}, {2, output("b.png")}}}), Error);
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(StillExport, TheEndOfTheNameMayHaveAnyCase) {
    save("map.JPG");
    EXPECT_EQ(probePicture(readFile(outputHost("map.JPG"))).format, PictureFormat::Jpeg);
}

TEST_F(StillExport, ExactlyThreeCharactersDecide) {
    for (const char* name : {"map.jpeg", "map.tiff", "map", "map.", "map.webp", "a", ""}) {
        EXPECT_EQ(errorOf(name), -1001) << name;
        EXPECT_EQ(lastError, "Unsupported format") << name;
    }
    EXPECT_EQ(outputs(), QStringList());
    // Not the extension: what stands before the three does not matter.
    save("mapgif");
    EXPECT_EQ(outputs(), QStringList({"mapgif"}));
}

TEST_F(StillExport, AFolderThatCannotBeWrittenIsToldAndNothingIsLeft) {
    EXPECT_EQ(errorOf("none\\a.png"), error_number::FileAccess);
    EXPECT_EQ(outputs(), QStringList());
    EXPECT_TRUE(temporaryFolderIsGone());
}

TEST_F(StillExport, ProgressGoesItsSteps) {
    save("a.png");
    EXPECT_EQ(watcher.told, QStringList({"45", "70", "90", "100"}));
}

}  // namespace nubivane::testing
