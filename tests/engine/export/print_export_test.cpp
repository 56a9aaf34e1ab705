// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/print_export.h"

#include "engine/core/error.h"
#include "engine/export/stage_fixture.h"
#include "engine/picture/made_pictures.h"
#include "support/processes.h"

namespace nubivane::testing {

namespace {

class PrintExport : public StageFixture {
  protected:
    void print(const QImage& picture) { printToPdf(picture, output("a.pdf")); }

    /// The page at 96 pixels to the inch.
    QImage page() {
        runTool("pdftoppm",
                {"-r", "96", "-png", "-singlefile", outputHost("a.pdf"), outputHost("page")});
        return QImage(outputHost("page.png")).convertToFormat(QImage::Format_RGB32);
    }

    /// The picture as it lies in the file.
    QImage stored() {
        runTool("pdfimages", {"-png", outputHost("a.pdf"), outputHost("image")});
        return QImage(outputHost("image-000.png")).convertToFormat(QImage::Format_RGB32);
    }

    /// Columns of the list of pictures in the file: ..., width, height, ..., x-ppi, y-ppi, ...
    QStringList listed() {
        const QByteArray list = runTool("pdfimages", {"-list", outputHost("a.pdf")});
        return QString::fromUtf8(list).split(u'\n').value(2).simplified().split(u' ');
    }

  private:
    static QByteArray runTool(const QString& tool, const QStringList& arguments) {
        const ProcessResult result = runProgram(tool, arguments);
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return result.out;
    }
};

bool isNear(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) < 12 && std::abs(qGreen(a) - qGreen(b)) < 12 &&
           std::abs(qBlue(a) - qBlue(b)) < 12;
}

}  // namespace

TEST_F(PrintExport, ThePictureIsStoredWithoutLossAt96PixelsToTheInch) {
    const QImage picture = shaded({300, 200});
    print(picture);
    EXPECT_EQ(stored(), picture);
    EXPECT_EQ(listed().value(3), "300");
    EXPECT_EQ(listed().value(4), "200");
    EXPECT_EQ(listed().value(12), "96");
    EXPECT_EQ(listed().value(13), "96");
}

TEST_F(PrintExport, ThePictureStandsAtTheCornerOfAnA4Page) {
    print(plainImage({300, 200}, Qt::red));
    const QImage shown = page();
    EXPECT_TRUE(isNear(shown.pixel(1, 1), Red));
    EXPECT_TRUE(isNear(shown.pixel(298, 198), Red));
    EXPECT_EQ(shown.pixel(302, 100), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(100, 202), qRgb(255, 255, 255));
    // A4 at 96 pixels to the inch is 793.7 by 1122.5.
    EXPECT_NEAR(shown.width(), 794, 1);
    EXPECT_NEAR(shown.height(), 1123, 1);
}

TEST_F(PrintExport, AWidePictureIsPrintedAcross) {
    print(shaded({1000, 500}));
    EXPECT_NEAR(page().width(), 1123, 1);
    EXPECT_NEAR(page().height(), 794, 1);
}

TEST_F(PrintExport, ALargePictureHasAPageOfItsSize) {
    print(shaded({1300, 1000}));
    EXPECT_NEAR(page().width(), 1300, 1);
    EXPECT_NEAR(page().height(), 1000, 1);
    EXPECT_EQ(listed().value(12), "96");
}

TEST_F(PrintExport, TheCanvasIsPrintedWithoutItsFirstRowAndColumn) {
    const QImage map = shaded({30, 20});
    const QImage canvas = canvasToPrint(map);
    // The canvas is two pixels larger than the map, what is printed one pixel smaller than it.
    ASSERT_EQ(canvas.size(), QSize(31, 21));
    EXPECT_EQ(canvas.copy(map.rect()), map);
    EXPECT_EQ(canvas.pixel(30, 0), CanvasFrameColor);
    EXPECT_EQ(canvas.pixel(0, 20), CanvasFrameColor);
}

TEST_F(PrintExport, AFolderThatIsNotThereIsTold) {
    EXPECT_THROW(printToPdf(shaded({30, 20}), output("none\\a.pdf")), Error);
    EXPECT_EQ(outputs(), QStringList());
}

}  // namespace nubivane::testing
