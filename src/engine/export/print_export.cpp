// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/print_export.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/resolution.h"
#include "engine/core/version.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/export/pdf_language.h"
#include "engine/model/workspace.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr double PointsPerPixel = double{PointsPerInch} / PixelsPerInch;

QPageLayout layoutFor(QSize picture) {
    const QSizeF points = QSizeF(picture) * PointsPerPixel;
    const auto holds = [&points](const QPageLayout& page) {
        const QSizeF paper = page.fullRect(QPageLayout::Point).size();
        return points.width() <= paper.width() && points.height() <= paper.height();
    };
    const QPageSize a4(QPageSize::A4);
    for (const auto way : {QPageLayout::Portrait, QPageLayout::Landscape}) {
        const QPageLayout page(a4, way, QMarginsF());
        if (holds(page)) {
            return page;
        }
    }
    return QPageLayout(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch),
                       QPageLayout::Portrait, QMarginsF());
}

/// What is printed of the canvas that would show a stage: the right and the lower line of its
/// border are part of it.
QImage canvasToPrint(const QImage& stage) {
    QImage canvas(stage.size() + QSize(1, 1), QImage::Format_RGB32);
    canvas.fill(CanvasBorderColor);
    QPainter(&canvas).drawImage(0, 0, stage);
    return canvas;
}

QByteArray pdfOf(const QImage& picture, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setTitle(title);
        pdf.setCreator(QLatin1String(ProgramTitle));
        pdf.setResolution(PixelsPerInch);
        pdf.setPageLayout(layoutFor(picture.size()));
        printPicture(pdf, picture);
    }
    return pdfWithLanguage(bytes, systemLanguage());
}

class PrintJob : public ExportJob {
  public:
    PrintJob(const Workspace& workspace, const PrintRequest& request)
        : path_(request.path),
          title_(titleOfPrint(workspace, request.frame)),
          frame_(contentOf(workspace, request.frame)) {}

    void load() override {
        stage_.loadMap(frame_);
        stage_.loadStageSprites(frame_);
    }

    void save(ExportWatcher& watcher) override {
        remarkMissingLetters(frame_, watcher);
        const QImage picture = stage_.grabStage(0);
        watcher.showStage(picture);
        host_files::writeHostFile(host_files::toHost(path_), pdfOf(canvasToPrint(picture), title_));
        watcher.setProgress(100);
    }

  private:
    QString path_;
    QString title_;
    FrameContent frame_;
    ExportStage stage_;
};

}  // namespace

QImage partToPrint(const QImage& canvas) {
    return canvas.copy(canvas.rect().adjusted(1, 1, 0, 0));
}

void printPicture(QPagedPaintDevice& paper, const QImage& picture) {
    QPainter painter;
    if (!painter.begin(&paper)) {
        throw Error(error_number::FileAccess, u"printing"_s, u"Cannot print."_s,
                    u"the printer does not begin a page"_s);
    }
    // A JPEG in its place would be larger, for a map, and blur its lines.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(double(paper.logicalDpiX()) / PixelsPerInch,
                  double(paper.logicalDpiY()) / PixelsPerInch);
    painter.drawImage(QRectF(QPointF(0, 0), QSizeF(picture.size())), picture);
    if (!painter.end()) {
        throw Error(error_number::FileAccess, u"printing"_s, u"Cannot print."_s,
                    u"the printer does not end the page"_s);
    }
}

QString titleOfPrint(const Workspace& workspace, qint32 frame) {
    const cTexts& texts = workspace.Frames().Item(frame).Texts();
    const QString title = texts.Forecast().Title().Text.simplified();
    const QString name = title.isEmpty() ? texts.Label : title;
    const QString project = stripExtension(getFileName(workspace.Status.CurrentProject));
    return project.isEmpty() ? name : project + QStringLiteral(": ") + name;
}

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const PrintRequest& request) {
    return std::make_unique<PrintJob>(workspace, request);
}

}  // namespace nubivane
