// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz_support.h"

#include "engine/core/host_files.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace nubivane::fuzz {

TemporaryProgram::TemporaryProgram() {
    QDir(directory_.path()).mkpath("Symbols/set-1");
    for (const char* name : {"sun.gif", "rain.gif"}) {
        QFile file(directory_.filePath("Symbols/set-1/") + QLatin1String(name));
        require(file.open(QIODevice::WriteOnly), "the temporary folder can be written");
    }
}

ProgramFolder TemporaryProgram::folder() const {
    return ProgramFolder(host_files::toModel(directory_.path()));
}

QByteArray inputBytes(const std::uint8_t* data, std::size_t size) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data),
                                   static_cast<qsizetype>(size));
}

void require(bool kept, const char* promise) {
    if (!kept) {
        std::fprintf(stderr, "Broken promise: %s\n", promise);
        std::abort();
    }
}

}  // namespace nubivane::fuzz

/// Freed memory held back counts against the fuzzer's limit: keep it small against a picture.
extern "C" const char* __asan_default_options() {
    return "quarantine_size_mb=8";
}

/// What the system's own font library keeps until the end is no leak of ours.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    // Qt finds its picture plugins only beside an application object, and fonts for laying out
    // pages only beside one with a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    // Decoders tell about every damaged picture.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}
