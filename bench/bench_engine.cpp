// SPDX-License-Identifier: GPL-3.0-or-later
// Single functions of the engine. What must grow in proportion to the number of Frames is measured
// at several numbers, with the growth that fits them ("_BigO").

#include "engine/core/settings_store.h"
#include "engine/core/windows1252.h"
#include "engine/model/workspace.h"
#include "engine/picture/image_codec.h"
#include "engine/picture/jpeg_inspection.h"
#include "engine/project/project_document.h"
#include "engine/project/project_writer.h"
#include "engine/web/page_writer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <vector>

using namespace nubivane;

namespace {

constexpr int SpritesOfKind = 10;  ///< Symbols, and as many Labels, on each Frame
constexpr QSize MapSize(800, 600);

/// A workspace in a temporary program folder with `frames` Frames of sprites and texts.
class Project {
  public:
    explicit Project(qint32 frames)
        : settings_(directory_.filePath("settings.ini")),
          workspace_(ProgramFolder(directory_.path().replace(u'/', u'\\')), settings_) {
        QDir(directory_.path()).mkpath("Symbols/sky");
        QFile symbol(directory_.filePath("Symbols/sky/sun.gif"));
        symbol.open(QIODevice::WriteOnly);
        workspace_.Status.CurrentMap = workspace_.folder.maps() + "\\bench.jpg";
        workspace_.Project = std::make_unique<cWrapper>();
        for (qint32 i = 1; i <= frames; ++i) {
            fill(workspace_.Project->Frames().Add(), i);
        }
    }

    const Workspace& workspace() const { return workspace_; }

    QByteArray document() const {
        const qint32 frames = workspace_.Frames().Count();
        const std::vector<qint64> sizes(static_cast<std::size_t>(frames) + 1, 80000);
        ProjectWriter writer(workspace_, sizes);
        for (qint32 i = 1; i <= frames; ++i) {
            writer.writeFrame(i);
        }
        return writer.finish();
    }

  private:
    void fill(cFrame& frame, qint32 number) {
        frame.Texts().Label = "Map" + QString::number(number);
        cForecast& forecast = frame.Texts().Forecast();
        forecast.Title().Text = "Forecast for day " + QString::number(number);
        forecast.Subtitle().Text = "issued in the morning";
        for (const char* name : {"Sky", "Wind", "Sea"}) {
            forecast.Header().add({.Font = {.Name = "Arial", .Size = 9, .Bold = true},
                                   .IndexFontSize = 1,
                                   .BackColor = NoColor,
                                   .Text = QLatin1String(name)});
            forecast.Body().add({.Font = {.Name = "Arial", .Size = 9},
                                 .IndexFontSize = 1,
                                 .BackColor = NoColor,
                                 .Text = QStringLiteral("calm \u2013 2 to 3")});
        }
        const QString path = workspace_.folder.symbols() + "\\sky\\sun.gif";
        const auto frameNumber = static_cast<qint16>(number);
        for (int i = 0; i < SpritesOfKind; ++i) {
            frame.Sprites().Symbols().add({.Name = "gifSymbol",
                                           .Frame = frameNumber,
                                           .PosX = 20 * i,
                                           .PosY = 30 * i,
                                           .Width = 48,
                                           .Height = 48,
                                           .FileGif = path,
                                           .PathFileGif = path,
                                           .Index = i,
                                           .Link = "forecast.example/sun",
                                           .Tooltip = "sunny"});
            frame.Sprites().Labels().add(
                {.Name = "lblTesto",
                 .Index = i,
                 .Frame = frameNumber,
                 .Width = 60,
                 .Height = 20,
                 .Font = {.Name = "Arial", .Size = 12, .Bold = true, .Color = 255},
                 .BackColor = NoColor,
                 .PosX = 20 * i,
                 .PosY = 30 * i,
                 .Text = QStringLiteral("21 \u00b0C"),
                 .Note = "maximum"});
        }
    }

    QTemporaryDir directory_;
    SettingsStore settings_;
    Workspace workspace_;
};

void atSeveralSizes(benchmark::internal::Benchmark* b) {
    b->Arg(100)->Arg(200)->Arg(400)->Arg(800)->Unit(benchmark::kMillisecond);
    b->Complexity(benchmark::oN);
}

void readDocument(benchmark::State& state) {
    const Project project(static_cast<qint32>(state.range(0)));
    const QByteArray xml = project.document();
    for (auto _ : state) {
        QBuffer buffer;
        buffer.setData(xml);
        buffer.open(QIODevice::ReadOnly);
        benchmark::DoNotOptimize(readProjectDocument(buffer, project.workspace().folder));
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * xml.size());
}
BENCHMARK(readDocument)->Apply(atSeveralSizes);

void writeDocument(benchmark::State& state) {
    const Project project(static_cast<qint32>(state.range(0)));
    qsizetype bytes = 0;
    for (auto _ : state) {
        const QByteArray xml = project.document();
        bytes = xml.size();
        benchmark::DoNotOptimize(xml.constData());
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes);
}
BENCHMARK(writeDocument)->Apply(atSeveralSizes);

/// Page and script as they go to the disk.
void writePage(benchmark::State& state, PageType type) {
    const Project project(static_cast<qint32>(state.range(0)));
    const PageInput input{
        .frames = project.workspace().Frames(),
        .colors = project.workspace().colorTable,
        .map = MapSize,
        .mapOuter = MapSize + QSize(2, 2),
        .settings = PageSettings::read(project.workspace().settings),
    };
    qsizetype bytes = 0;
    for (auto _ : state) {
        const auto writer = PageWriter::ofType(type, input);
        const QByteArray page = toWindows1252Html(writer->page());
        const QByteArray script = toWindows1252Script(writer->script());
        bytes = page.size() + script.size();
        benchmark::DoNotOptimize(page.constData());
        benchmark::DoNotOptimize(script.constData());
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes);
}
BENCHMARK_CAPTURE(writePage, buttons, PageType::NavigationButtons)->Apply(atSeveralSizes);
BENCHMARK_CAPTURE(writePage, extended, PageType::ExtendedView)->Apply(atSeveralSizes);
BENCHMARK_CAPTURE(writePage, interval, PageType::TimeInterval)->Apply(atSeveralSizes);
BENCHMARK_CAPTURE(writePage, slider, PageType::Slider)->Apply(atSeveralSizes);

/// `range(0)` of 100 characters are outside the code page.
void encodeWindows1252(benchmark::State& state) {
    QString text;
    for (int i = 0; i < 1'000'000; ++i) {
        text += i % 100 < state.range(0) ? QChar(0x0416) : QChar('a' + i % 26);
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(toWindows1252Html(text));
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * text.size());
}
BENCHMARK(encodeWindows1252)->Arg(0)->Arg(1)->Arg(50)->Unit(benchmark::kMillisecond);

QImage weatherMap() {
    QImage image(MapSize, QImage::Format_RGB32);
    image.fill(QColor(40, 90, 160));
    QPainter painter(&image);
    for (int i = 0; i < 60; ++i) {
        painter.setPen(QPen(QColor::fromHsv(i * 6, 200, 220), 1 + i % 3));
        painter.drawEllipse(QPoint(60 + i * 11, 300 - i * 4), 20 + i * 5, 90 - i);
    }
    return image;
}

void decodeJpeg(benchmark::State& state) {
    const QByteArray jpeg = encodePicture(weatherMap(), PictureFormat::Jpeg);
    for (auto _ : state) {
        benchmark::DoNotOptimize(decodePicture(jpeg));
    }
}
BENCHMARK(decodeJpeg)->Unit(benchmark::kMillisecond);

void encodeMap(benchmark::State& state, PictureFormat format) {
    const QImage image = weatherMap();
    for (auto _ : state) {
        benchmark::DoNotOptimize(encodePicture(image, format));
    }
}
BENCHMARK_CAPTURE(encodeMap, bmp, PictureFormat::Bmp)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodeMap, gif, PictureFormat::Gif)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodeMap, jpeg, PictureFormat::Jpeg)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodeMap, png, PictureFormat::Png)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(encodeMap, tiff, PictureFormat::Tiff)->Unit(benchmark::kMillisecond);

/// What opening a project costs for each picture, and what passing one on costs.
void probeJpeg(benchmark::State& state) {
    const QByteArray jpeg = encodePicture(weatherMap(), PictureFormat::Jpeg);
    for (auto _ : state) {
        benchmark::DoNotOptimize(probePicture(jpeg));
    }
}
BENCHMARK(probeJpeg)->Unit(benchmark::kMicrosecond);

void compareJpegTables(benchmark::State& state) {
    const QByteArray jpeg = encodePicture(weatherMap(), PictureFormat::Jpeg);
    for (auto _ : state) {
        benchmark::DoNotOptimize(hasJpegQuality(jpeg, JpegQuality));
    }
}
BENCHMARK(compareJpegTables)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
