// bench_pictures PROJECT FOLDER: reads the pictures of a project and encodes each anew as JPEG, on
// all cores, and nothing else; then the same with each picture written into the folder. Prints the
// seconds that this took, as JSON.

#include "core/error.h"
#include "core/host_files.h"
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

int run(const QString& project, const QString& folder) {
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

    const auto encodeAll = [&](const auto& take) {
        timer.start();
        parallelFor(blocks.frames.size(), [&](std::size_t i) {
            take(i, encodePicture(blocks.frames[i].image(), PictureFormat::Jpeg));
        });
        return timer.nsecsElapsed();
    };
    std::atomic<qint64> bytes = 0;
    const qint64 encoded =
        encodeAll([&](std::size_t, const QByteArray& jpeg) { bytes += jpeg.size(); });
    const qint64 written = encodeAll([&](std::size_t i, const QByteArray& jpeg) {
        host_files::writeHostFile(folder + QStringLiteral("/%1.jpg").arg(i + 1), jpeg);
    });

    std::printf(
        "{\"pictures\": %zu, \"read\": %.4f, \"encode\": %.4f, \"encode and write\": %.4f, "
        "\"bytes\": %lld}\n",
        blocks.frames.size(), static_cast<double>(read) / 1e9, static_cast<double>(encoded) / 1e9,
        static_cast<double>(written) / 1e9, static_cast<long long>(bytes));
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
