// SPDX-License-Identifier: GPL-3.0-or-later
// What it costs that nothing is lost, in a long project: on the window's thread an edit with its
// undo and a snapshot for the recovery copy, on the other thread what is written for an edit.
//
//     bench_recovery [Google Benchmark's options]

#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "engine/model/edits/edit_watcher.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/workspace.h"
#include "engine/project/recovery_copy.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace nubivane;

namespace {

constexpr int Frames = 500;
constexpr QSize MapSize(800, 600);

/// A project of 500 Frames, each with a number of symbols and a drawing of its own.
class LongProject {
  public:
    explicit LongProject(int symbols)
        : settings_(directory_.filePath("settings.ini")),
          workspace(ProgramFolder(host_files::toModel(directory_.path())), settings_) {
        QDir(directory_.path()).mkpath("Maps");
        QImage map(MapSize, QImage::Format_RGB32);
        for (int y = 0; y < map.height(); ++y) {
            for (int x = 0; x < map.width(); ++x) {
                map.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
            }
        }
        const QByteArray bytes = encodePicture(map, PictureFormat::Jpeg);
        const QString file = directory_.filePath("Maps/map.jpg");
        QFile mapFile(file);
        if (mapFile.open(QIODevice::WriteOnly)) {
            mapFile.write(bytes);
        }
        mapFile.close();
        workspace.Status.CurrentMap = host_files::toModel(file);
        while (workspace.Frames().Count() < Frames) {
            workspace.Project->Frames().Add();
        }
        workspace.clearTempPicture();
        for (qint32 i = 1; i <= Frames; ++i) {
            workspace.pctPanel.setPicture(i, Picture::fromEncoded(bytes));
            for (int k = 0; k < symbols; ++k) {
                cSymbol symbol;
                symbol.PathFileGif = QStringLiteral("C:\\Symbols\\set-1\\sun-%1.gif").arg(k);
                symbol.Note = QStringLiteral("Frame %1").arg(i);
                workspace.Project->Frames().Item(i).Sprites().Symbols().add(symbol);
            }
        }
        workspace.showFrame(1);
    }

    QString folder() const { return directory_.filePath("recovery"); }

  private:
    QTemporaryDir directory_;
    SettingsStore settings_;

  public:
    Workspace workspace;
};

/// An edit of a symbol's note, taken back at once, on a Frame of that many symbols.
void editAndUndo(benchmark::State& state) {
    LongProject project(static_cast<int>(state.range(0)));
    Workspace& workspace = project.workspace;
    const cSymbol symbol = workspace.Frames().Item(1).Sprites().Symbols().Item(1);
    int edit = 0;
    for (auto _ : state) {
        changeSprite<cSymbol>(workspace, idOf(symbol), "Change symbol notes", "",
                              [&](cSymbol& changed) { changed.Note = QString::number(++edit); });
        workspace.edits().undo();
    }
}
BENCHMARK(editAndUndo)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

/// The window's thread, after an edit of one Frame of that many symbols.
void snapshotAfterAnEdit(benchmark::State& state) {
    LongProject project(static_cast<int>(state.range(0)));
    WorkSnapshots snapshots(project.workspace);
    WorkSnapshot last = snapshots.take();
    for (auto _ : state) {
        snapshots.note(ProjectChange{{7}, {}, false, false});
        last = snapshots.take();
    }
}
BENCHMARK(snapshotAfterAnEdit)->Arg(20)->Arg(1000)->Unit(benchmark::kMillisecond);

/// The window's thread, after the Frames changed places: all of them are copied.
void snapshotOfAll(benchmark::State& state) {
    LongProject project(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(takeSnapshot(project.workspace));
    }
}
BENCHMARK(snapshotOfAll)->Arg(20)->Unit(benchmark::kMillisecond);

qint64 bytesIn(const QString& folder) {
    qint64 bytes = 0;
    const QDir root(folder);
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QFileInfo& file : QDir(root.filePath(name)).entryInfoList(QDir::Files)) {
            bytes += file.fileName() == u"state" ? 0 : file.size();
        }
    }
    return bytes;
}

/// The other thread: what one edit writes, of a copy whose size is told beside it.
void writeAfterAnEdit(benchmark::State& state) {
    LongProject project(20);
    WorkSnapshots snapshots(project.workspace);
    RecoveryCopy copy(project.folder());
    copy.write(snapshots.take());
    int edit = 0;
    for (auto _ : state) {
        project.workspace.Project->Frames().Item(7).Texts().Label = QString::number(++edit);
        snapshots.note(ProjectChange{{7}, {}, false, false});
        copy.write(snapshots.take());
    }
    const QDir root(project.folder());
    const QDir folder(root.filePath(root.entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0)));
    const QFileInfoList texts = folder.entryInfoList({"text-*"}, QDir::Files, QDir::Time);
    state.counters["whole"] = static_cast<double>(bytesIn(project.folder()));
    state.counters["written"] =
        static_cast<double>(texts.value(0).size() + QFileInfo(folder.filePath("state")).size());
}
BENCHMARK(writeAfterAnEdit)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
