// bench_pictures PROJECT: reads the pictures of a project and encodes each anew as JPEG, on all
// cores, and nothing else. Prints the seconds that this took, as JSON.

#include "core/error.h"
#include "core/parallel.h"
#include "core/program_folder.h"
#include "picture/image_codec.h"
#include "project/data_file.h"
#include "project/project_document.h"
#include "project/project_paths.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <atomic>
#include <cstdio>

using namespace nubivane;

namespace {

int run(const QString& project) {
    QFile xml(project);
    QFile data(dataFileOf(project));
    if (!xml.open(QIODevice::ReadOnly) || !data.open(QIODevice::ReadOnly)) {
        std::fputs("The project cannot be read.\n", stderr);
        return 1;
    }
    const ProjectDocument document = readProjectDocument(xml, ProgramFolder("."));

    QElapsedTimer timer;
    timer.start();
    const DataBlocks blocks =
        readDataBlocks(data, document.sizes, document.frames, document.model->Frames().Count());
    const qint64 read = timer.nsecsElapsed();

    timer.start();
    std::atomic<qint64> bytes = 0;
    parallelFor(blocks.frames.size(), [&](std::size_t i) {
        bytes += encodePicture(blocks.frames[i].image(), PictureFormat::Jpeg).size();
    });
    const qint64 encoded = timer.nsecsElapsed();

    std::printf("{\"pictures\": %zu, \"read\": %.4f, \"encode\": %.4f, \"bytes\": %lld}\n",
                blocks.frames.size(), static_cast<double>(read) / 1e9,
                static_cast<double>(encoded) / 1e9, static_cast<long long>(bytes));
    return 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("Usage: bench_pictures PROJECT.nvpf\n", stderr);
        return 2;
    }
    try {
        return run(QString::fromLocal8Bit(argv[1]));
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
