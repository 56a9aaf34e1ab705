// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/picture_check.h"

#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"
#include "support/small_png.h"

#include <QFile>

namespace nubivane {

namespace {

class PictureCheck : public ::testing::Test {
  protected:
    /// Writes a file and returns its path with backslashes.
    QString write(const QString& name, const QByteArray& bytes) {
        testing::writeFile(temporary.file(name), bytes);
        return temporary.file(name).replace(u'/', u'\\');
    }
    QString picture(const QString& name, QSize size) {
        return write(name, encodePicture(testing::plainImage(size, Qt::red),
                                         formatOfExtension(name.section(u'.', -1))));
    }
    QString symbolOf(QSize size) { return checkSymbolFile(picture("a.png", size)); }
    QString mapOf(QSize size) { return checkMapFile(picture("a.png", size)); }

    testing::TemporaryFolder temporary;
};

constexpr char NotValid[] = "File is not valid";

}  // namespace

TEST_F(PictureCheck, EachFormatIsTakenInAnyCase) {
    for (const char* name : {"a.gif", "a.jpg", "a.jpeg", "a.png", "b.GIF", "b.Jpg", "b.JPEG"}) {
        EXPECT_EQ(checkSymbolFile(picture(name, {32, 32})), "") << name;
        EXPECT_EQ(checkMapFile(picture(name, {300, 300})), "") << name;
    }
}

TEST_F(PictureCheck, OtherExtensionsAreUnsupportedWhateverIsInTheFile) {
    const QByteArray png =
        encodePicture(testing::plainImage({32, 32}, Qt::red), PictureFormat::Png);
    for (const char* name : {"a.bmp", "a.tif", "a.exe", "a.png.txt", "noext", "a.", ".gifx"}) {
        EXPECT_EQ(checkSymbolFile(write(name, png)), "Unsupported format file") << name;
        EXPECT_EQ(checkMapFile(write(name, png)), "Unsupported format file") << name;
    }
}

TEST_F(PictureCheck, TheExtensionComesBeforeTheContent) {
    EXPECT_EQ(checkSymbolFile(write("a.bmp", "no picture")), "Unsupported format file");
    EXPECT_EQ(checkSymbolFile("C:\\nowhere\\a.bmp"), "Unsupported format file");
}

TEST_F(PictureCheck, AFileThatIsNoPictureIsNotValid) {
    EXPECT_EQ(checkSymbolFile(write("a.gif", "no picture")), NotValid);
    EXPECT_EQ(checkMapFile(write("a.jpg", {})), NotValid);
    EXPECT_EQ(checkMapFile(write("a.png", QByteArray(1000, '\0'))), NotValid);
    EXPECT_EQ(checkSymbolFile("C:\\nowhere\\a.gif"), NotValid);
    EXPECT_EQ(checkSymbolFile(temporary.path().replace(u'/', u'\\') + "\\folder.gif"), NotValid);
}

TEST_F(PictureCheck, AnotherPictureFormatUnderAKnownExtensionIsNotValid) {
    const QImage image = testing::plainImage({32, 32}, Qt::red);
    EXPECT_EQ(checkSymbolFile(write("a.png", encodePicture(image, PictureFormat::Bmp))), NotValid);
    EXPECT_EQ(checkSymbolFile(write("a.gif", encodePicture(image, PictureFormat::Tiff))), NotValid);
}

TEST_F(PictureCheck, ASymbolOfTheLimitsIsTaken) {
    EXPECT_EQ(symbolOf({250, 250}), "");
    EXPECT_EQ(symbolOf({16, 16}), "");
    EXPECT_EQ(symbolOf({16, 250}), "");
}

TEST_F(PictureCheck, ASymbolBeyondTheLimitsIsToldItsSize) {
    EXPECT_EQ(symbolOf({251, 250}),
              "Selected symbol size is 251 x 250 pixels.\r\nThe maximum size allowed is 250 x 250");
    EXPECT_EQ(symbolOf({250, 251}),
              "Selected symbol size is 250 x 251 pixels.\r\nThe maximum size allowed is 250 x 250");
    EXPECT_EQ(symbolOf({15, 15}),
              "Selected symbol size is 15 x 15 pixels.\r\nThe minimum map size is 16x16");
    EXPECT_EQ(symbolOf({16, 15}),
              "Selected symbol size is 16 x 15 pixels.\r\nThe minimum map size is 16x16");
    EXPECT_EQ(symbolOf({15, 16}),
              "Selected symbol size is 15 x 16 pixels.\r\nThe minimum map size is 16x16");
}

TEST_F(PictureCheck, TheMaximumOfASymbolIsTestedFirst) {
    EXPECT_EQ(symbolOf({251, 10}),
              "Selected symbol size is 251 x 10 pixels.\r\nThe maximum size allowed is 250 x 250");
}

TEST_F(PictureCheck, AMapOfTheLimitsIsTaken) {
    EXPECT_EQ(mapOf({800, 600}), "");
    EXPECT_EQ(mapOf({220, 220}), "");
}

TEST_F(PictureCheck, AMapBeyondTheLimitsIsToldItsSize) {
    EXPECT_EQ(mapOf({801, 100}),
              "Selected map size is 801 x 100 pixels.\r\nThe maximum size allowed is 800 x 600.");
    EXPECT_EQ(mapOf({800, 601}),
              "Selected map size is 800 x 601 pixels.\r\nThe maximum size allowed is 800 x 600.");
    EXPECT_EQ(
        mapOf({300, 219}),
        "Selected map size is 300 x 219 pixels.\r\nThe minimum size allowed is 220x220 pixels");
    EXPECT_EQ(
        mapOf({219, 300}),
        "Selected map size is 219 x 300 pixels.\r\nThe minimum size allowed is 220x220 pixels");
}

TEST_F(PictureCheck, APictureCutShortIsNotValid) {
    for (const char* name : {"a.gif", "a.jpg", "a.png"}) {
        const QString path = picture(name, {240, 240});
        QFile file(temporary.file(name));
        ASSERT_TRUE(file.resize(file.size() - 3));
        EXPECT_EQ(checkSymbolFile(path), NotValid) << name;
        EXPECT_EQ(checkMapFile(path), NotValid) << name;
    }
}

TEST_F(PictureCheck, APictureThatLiesAboutItsSizeIsNotValid) {
    using namespace testing::small_png;
    // 100 rows claimed, 50 there.
    EXPECT_EQ(checkSymbolFile(write("a.png", file({100, 100}, {}, deflated(pixels(100, 50))))),
              NotValid);
    EXPECT_EQ(checkSymbolFile(write("b.png", sound({100, 100}))), "");
}

TEST_F(PictureCheck, AHugePictureIsJudgedByItsHeader) {
    // Not one pixel stands behind the claim, and none is looked for.
    EXPECT_EQ(checkSymbolFile(write("a.png", testing::small_png::file({5000, 5000}, {}, "x"))),
              "Selected symbol size is 5000 x 5000 pixels.\r\n"
              "The maximum size allowed is 250 x 250");
    EXPECT_EQ(checkMapFile(write("b.png", testing::small_png::file({60000, 60000}, {}, "x"))),
              NotValid);
}

TEST_F(PictureCheck, AGifWhoseFirstImageIsLargerThanItsScreenHasThatSize) {
    using namespace testing::small_gif;
    EXPECT_EQ(checkSymbolFile(write("a.gif", file(100, 100, {image({0, 0, 3000, 9}, pixel(0))}))),
              "Selected symbol size is 3000 x 100 pixels.\r\n"
              "The maximum size allowed is 250 x 250");
}

TEST_F(PictureCheck, AnAnimationThatUnpacksToMoreThanTheLimitIsNotValid) {
    using namespace testing::small_gif;
    // 250 x 250 pixels take 250 kB; 300 images are 75 MB where 64 are the limit.
    QByteArrayList images;
    for (int i = 0; i < 300; ++i) {
        images << dot(i % 3);
    }
    EXPECT_EQ(checkSymbolFile(write("a.gif", file(250, 250, images))), NotValid);
    EXPECT_EQ(checkSymbolFile(write("b.gif", file(250, 250, images.mid(0, 100)))), "");
}

TEST_F(PictureCheck, AFileBeyondTheLimitOfImportsIsNotValid) {
    const QString path = picture("a.png", {32, 32});
    QFile file(temporary.file("a.png"));
    ASSERT_TRUE(file.resize(MaxImportBytes));
    EXPECT_EQ(checkSymbolFile(path), "");  // bytes behind the picture's end do no harm
    ASSERT_TRUE(file.resize(MaxImportBytes + 1));
    EXPECT_EQ(checkSymbolFile(path), NotValid);
}

}  // namespace nubivane
