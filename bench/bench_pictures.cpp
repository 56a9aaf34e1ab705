// SPDX-License-Identifier: GPL-3.0-or-later
// bench_pictures PROJECT FOLDER: reads the pictures of a project and encodes each anew as JPEG, on
// all cores, and nothing else; then the same with each picture written into the folder. Prints the
// seconds that each took by the clock and by the cores together, as JSON.

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/core/program_folder.h"
#include "engine/picture/image_codec.h"
#include "engine/project/data_file.h"
#include "engine/project/project_document.h"
#include "engine/project/project_paths.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <atomic>
#include <cstdio>
#include <ctime>
#include <utility>

using namespace nubivane;

namespace {

struct Seconds {
    double wall;
    double cpu;  ///< of all threads
};

class Stopwatch {
  public:
    Stopwatch() { timer_.start(); }
    Seconds seconds() const {
        return {static_cast<double>(timer_.nsecsElapsed()) / 1e9,
                static_cast<double>(std::clock() - cpu_) / CLOCKS_PER_SEC};
    }

  private:
    QElapsedTimer timer_;
    std::clock_t cpu_ = std::clock();
};

int run(const QString& project, const QString& folder) {
    QFile xml(project);
    QFile data(dataFileOf(project));
    if (!xml.open(QIODevice::ReadOnly) || !data.open(QIODevice::ReadOnly)) {
        std::fputs("The project cannot be read.\n", stderr);
        return 1;
    }
    const ProjectDocument document = readProjectDocument(xml, ProgramFolder("."));

    Stopwatch stopwatch;
    const DataBlocks blocks =
        readDataBlocks(data, document.sizes, document.frames, document.model->Frames().Count());
    const Seconds read = stopwatch.seconds();

    const auto encodeAll = [&](const auto& take) {
        const Stopwatch running;
        parallelFor(blocks.frames.size(), [&](std::size_t i) {
            take(i, encodePicture(blocks.frames[i].image(), PictureFormat::Jpeg));
        });
        return running.seconds();
    };
    std::atomic<qint64> bytes = 0;
    const Seconds encoded =
        encodeAll([&](std::size_t, const QByteArray& jpeg) { bytes += jpeg.size(); });
    const Seconds written = encodeAll([&](std::size_t i, const QByteArray& jpeg) {
        host_files::writeHostFile(folder + QStringLiteral("/%1.jpg").arg(i + 1), jpeg);
    });

    std::printf("{\"pictures\": %zu, \"bytes\": %lld", blocks.frames.size(),
                static_cast<long long>(bytes));
    for (const auto& [name, part] : {std::pair("read", read), std::pair("encode", encoded),
                                     std::pair("encode and write", written)}) {
        std::printf(", \"%s\": %.4f, \"%s CPU\": %.4f", name, part.wall, name, part.cpu);
    }
    std::puts("}");
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("Usage: bench_pictures PROJECT.nvpf FOLDER\n", stderr);
        return 2;
    }
    try {
        return run(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
