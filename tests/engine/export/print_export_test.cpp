// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/print_export.h"

#include "engine/core/error.h"
#include "engine/export/pdf_language.h"
#include "engine/export/stage_fixture.h"
#include "engine/picture/made_pictures.h"
#include "support/processes.h"

namespace nubivane::testing {

namespace {

class PrintExport : public StageFixture {
  protected:
    /// Prints a Frame that shows this map.
    void print(const QImage& map) {
        workspace.pctPanel.setPicture(1, Picture(map));
        run(PrintRequest{.path = output("a.pdf")});
    }

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
    EXPECT_EQ(stored().copy(picture.rect()), picture);
    EXPECT_EQ(listed().value(3), "301");
    EXPECT_EQ(listed().value(4), "201");
    EXPECT_EQ(listed().value(12), "96");
    EXPECT_EQ(listed().value(13), "96");
}

TEST_F(PrintExport, ThePictureStandsAtTheCornerOfAnA4Page) {
    print(plainImage({300, 200}, Qt::red));
    const QImage shown = page();
    EXPECT_TRUE(isNear(shown.pixel(1, 1), Red));
    EXPECT_TRUE(isNear(shown.pixel(298, 198), Red));
    EXPECT_EQ(shown.pixel(303, 100), qRgb(255, 255, 255));
    EXPECT_EQ(shown.pixel(100, 203), qRgb(255, 255, 255));
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
    print(shaded({1299, 999}));  // and the frame
    EXPECT_NEAR(page().width(), 1300, 1);
    EXPECT_NEAR(page().height(), 1000, 1);
    EXPECT_EQ(listed().value(12), "96");
}

TEST_F(PrintExport, TheCanvasIsPrintedWithoutItsFirstRowAndColumn) {
    const QImage map = shaded({30, 20});
    print(map);
    const QImage canvas = stored();
    // The canvas is two pixels larger than the map, what is printed one pixel smaller than it.
    ASSERT_EQ(canvas.size(), QSize(31, 21));
    EXPECT_EQ(canvas.copy(map.rect()), map);
    EXPECT_EQ(canvas.pixel(30, 0), CanvasBorderColor);
    EXPECT_EQ(canvas.pixel(0, 20), CanvasBorderColor);
}

TEST_F(PrintExport, TheFrameIsPrintedWithItsSymbols) {
    makeSymbol("dot.gif", {5, 5});
    addSymbol("dot.gif", {7, 9});
    print(shaded({30, 20}));
    EXPECT_EQ(stored().pixel(7, 9), Red);
    EXPECT_EQ(watcher.told, QStringList({"100"}));
}

TEST_F(PrintExport, ThePdfHasATitleAndALanguage) {
    workspace.Status.CurrentProject = "C:\\maps\\week.nvpf";
    workspace.Frames().Item(1).Texts().Label = "Monday";
    print(shaded({30, 20}));
    const ProcessResult info = runProgram("pdfinfo", {outputHost("a.pdf")});
    EXPECT_EQ(info.exitCode, 0);
    EXPECT_EQ(info.err, "");
    EXPECT_TRUE(info.out.contains("week: Monday\n")) << info.out.toStdString();
    EXPECT_TRUE(info.out.contains("Pages:           1\n"));
    const QByteArray pdf = readFile(outputHost("a.pdf"));
    EXPECT_TRUE(pdf.contains("/Lang (")) << "no language";
    EXPECT_EQ(pdf.count("%%EOF"), 2);
}

TEST(PdfLanguage, StandsInACatalogueThatTakesTheFirstOnesPlace) {
    const QByteArray object = "1 0 obj\n<<\n/Type /Catalog\n/Pages 2 0 R\n>>\nendobj\n";
    const QByteArray head = "%PDF-1.4\n";
    const QByteArray table = "xref\n0 2\n0000000000 65535 f \n0000000009 00000 n \n";
    const QByteArray pdf = head + object + table +
                           "trailer\n<<\n/Size 2\n/Root 1 0 R\n>>\nstartxref\n" +
                           QByteArray::number(head.size() + object.size()) + "\n%%EOF\n";
    const QByteArray told = pdfWithLanguage(pdf, "de-AT");
    ASSERT_TRUE(told.startsWith(pdf));
    const QByteArray update = told.mid(pdf.size());
    EXPECT_TRUE(update.startsWith(
        "1 0 obj\n<<\n/Type /Catalog\n/Pages 2 0 R\n/Lang (de-AT)\n>>\nendobj\nxref\n1 1\n" +
        QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n"))
        << update.toStdString();
    EXPECT_TRUE(update.contains("/Prev " + QByteArray::number(head.size() + object.size())));
}

TEST(PdfLanguage, AFileOfAnotherBuildComesBackAsItIs) {
    for (const QByteArray& pdf :
         {QByteArray(), QByteArray("%PDF-1.4"), QByteArray("trailer <</Root 1 0 R>> startxref 5"),
          QByteArray("startxref\n0\ntrailer\n<</Root 9 0 R>>\nstartxref\n0\n"),
          QByteArray(
              "xref\n0 1\n0000000000 65535 f \ntrailer\n<<\n/Root 5 0 R\n>>\nstartxref\n0\n")}) {
        EXPECT_EQ(pdfWithLanguage(pdf, "en"), pdf) << pdf.toStdString();
    }
}

TEST_F(PrintExport, IsCalledAfterTheProjectAndTheFramesTitleOrName) {
    EXPECT_EQ(titleOfPrint(workspace, 1), workspace.Frames().Item(1).Texts().Label);
    workspace.Status.CurrentProject = "C:\\maps\\week.nvpf";
    workspace.Frames().Item(1).Texts().Label = "Monday";
    EXPECT_EQ(titleOfPrint(workspace, 1), "week: Monday");
    workspace.Frames().Item(1).Texts().Forecast().Title().Text = "Storm in\nthe north";
    EXPECT_EQ(titleOfPrint(workspace, 1), "week: Storm in the north");
}

TEST_F(PrintExport, AFolderThatIsNotThereIsTold) {
    EXPECT_THROW(run(PrintRequest{.path = output("none\\a.pdf")}), Error);
    EXPECT_EQ(outputs(), QStringList());
}

}  // namespace nubivane::testing
