// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's canvas: what a change of Frame and a drag take while fifty symbols play on each.
// bench_editor PROGRAM_FOLDER [Google Benchmark's options]; without a display, on "offscreen".

#include "engine/core/settings_store.h"
#include "windows/desktop/desktop_shell.h"
#include "windows/main/frm_map.h"

#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using namespace nubivane;

namespace {

constexpr int SymbolsOnFrame = 50;

QString programFolder;

/// Counts the pixels of the canvas that are painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget& canvas) { canvas.installEventFilter(this); }

    qint64 pixels = 0;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            for (const QRect& part : static_cast<QPaintEvent*>(event)->region()) {
                pixels += qint64{part.width()} * part.height();
            }
        }
        return false;
    }
};

/// The main window with two Frames of moving symbols on the default map.
class Editor {
  public:
    Editor()
        : settings_(directory_.filePath("settings.ini")),
          workspace_(ProgramFolder(QString(programFolder).replace(u'/', u'\\')), settings_),
          window_(workspace_, shell_) {
        window_.Init({});
        window_.resize(1200, 900);
        window_.show();
        fill();
        window_.commands()[Command::mnuFrameInsert]->trigger();
        fill();
        QApplication::processEvents();
    }

    frmMap& window() { return window_; }
    MapCanvas& canvas() { return window_.canvas().widget(); }

    void showOtherFrame() {
        window_.tabs().select(3 - window_.tabs().selected());
        window_.findChild<FrameCommands*>()->changeFrame();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPoint position) {
        QMouseEvent event(type, position, canvas().mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&canvas(), &event);
    }

    /// Brings the Frame shown to a number of symbols.
    void fillTo(int count) {
        window_.commands()[Command::mnuFrameInsert]->trigger();
        for (int i = 0; i < count; ++i) {
            place(i, {60 + i % 40 * 15, 60 + i / 40 % 25 * 15});
        }
        QApplication::processEvents();
    }

  private:
    void place(int number, QPoint position) {
        const QDir symbols(programFolder + "/Symbols/set-1");
        const QStringList files = symbols.entryList({"*.gif"}, QDir::Files, QDir::Name);
        const QString file = symbols.filePath(files[number % files.size()]).replace(u'/', u'\\');
        window_.canvas().placement().drop("symbol|" + file, position);
    }

    void fill() {
        for (int i = 0; i < SymbolsOnFrame; ++i) {
            place(i, {60 + i % 10 * 70, 60 + i / 10 * 110});
        }
    }

    QTemporaryDir directory_;
    SettingsStore settings_;
    Workspace workspace_;
    DesktopShell shell_;
    frmMap window_;
};

void changeFrame(benchmark::State& state) {
    Editor editor;
    for (auto _ : state) {
        editor.showOtherFrame();
    }
}
BENCHMARK(changeFrame)->Unit(benchmark::kMillisecond)->UseRealTime();

void dragOneOfFifty(benchmark::State& state) {
    Editor editor;
    PaintCounter painted(editor.canvas());
    const QPoint start(61, 61);
    editor.mouse(QEvent::MouseButtonPress, start);
    int step = 0;
    for (auto _ : state) {
        editor.mouse(QEvent::MouseMove, start + QPoint(1 + step++ % 300, 3));
        QApplication::processEvents();
    }
    editor.mouse(QEvent::MouseButtonRelease, start + QPoint(step % 300, 3));
    const QSize map = editor.canvas().size();
    state.counters["painted"] = benchmark::Counter(static_cast<double>(painted.pixels) /
                                                   static_cast<double>(state.iterations()));
    state.counters["map"] = static_cast<double>(qint64{map.width()} * map.height());
}
BENCHMARK(dragOneOfFifty)->Unit(benchmark::kMillisecond)->UseRealTime();

/// One edit and its undo on a Frame of that many symbols; the time is for both.
void editAndUndo(benchmark::State& state) {
    Editor editor;
    editor.fillTo(static_cast<int>(state.range(0)));
    frmMap& window = editor.window();
    for (auto _ : state) {
        window.canvas().selection().select(*window.canvas().sprites().controls().front());
        window.commands()[Command::mnuDelSymbol]->trigger();
        window.commands()[Command::mnuUndo]->trigger();
    }
}
BENCHMARK(editAndUndo)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// A stroke of the pen across the map, committed as an edit.
void stroke(benchmark::State& state) {
    Editor editor;
    editor.window().canvas().drawing().chooseTool(1);
    for (auto _ : state) {
        editor.mouse(QEvent::MouseButtonPress, {5, 5});
        editor.mouse(QEvent::MouseMove, {600, 450});
        editor.mouse(QEvent::MouseButtonRelease, {600, 450});
    }
}
BENCHMARK(stroke)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

int main(int argc, char* argv[]) {
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fputs("Usage: bench_editor PROGRAM_FOLDER\n", stderr);
        return 2;
    }
    programFolder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
