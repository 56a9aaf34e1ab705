// SPDX-License-Identifier: GPL-3.0-or-later
// The canvas under many symbols: a frame's time at the median and at the 99th percentile.
// bench_canvas PROGRAM_FOLDER [FRAMES]; without a display, on "offscreen".
//
// "drag": 50 selected among 100 moving symbols are dragged; "play": the 100 go on playing while
// nothing else happens; both at 100 % and at 800 % on a map of 1600 x 1200. "search": a word is
// sought in 20 collections of 100 symbols, the first time, when their names are read, and again.

#include "engine/collections/symbol_index.h"
#include "engine/core/settings_store.h"
#include "engine/picture/image_codec.h"
#include "windows/canvas/map_zoom.h"
#include "windows/desktop/desktop_shell.h"
#include "windows/main/frm_map.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace nubivane;

namespace {

constexpr QSize MapSize(1600, 1200);
constexpr int Symbols = 100;

QString modelPath(QString hostPath) {
    return hostPath.replace(u'/', u'\\');
}

void tell(const char* name, std::vector<double> milliseconds) {
    std::sort(milliseconds.begin(), milliseconds.end());
    const auto at = [&](double part) {
        return milliseconds[static_cast<std::size_t>(part *
                                                     static_cast<double>(milliseconds.size() - 1))];
    };
    std::printf("%-14s median %7.2f ms   99th percentile %7.2f ms   of %zu\n", name, at(0.5),
                at(0.99), milliseconds.size());
}

template <class Call>
double timed(Call call) {
    QElapsedTimer timer;
    timer.start();
    call();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The main window on a map of its own, with symbols that move.
class FullEditor {
  public:
    explicit FullEditor(const QString& programFolder)
        : settings_(directory_.filePath("settings.ini")),
          workspace_(ProgramFolder(modelPath(programFolder)), settings_),
          window_(workspace_, shell_) {
        QImage map(MapSize, QImage::Format_RGB32);
        map.fill(QColor(150, 190, 220));
        QFile file(directory_.filePath("map.png"));
        if (!file.open(QFile::WriteOnly) ||
            file.write(encodePicture(map, PictureFormat::Png)) < 0) {
            std::fputs("The map could not be written.\n", stderr);
            std::exit(1);
        }
        file.close();
        settings_.set(Setting::CurrentMap, modelPath(file.fileName()));
        window_.Init({});
        window_.resize(1600, 1200);
        window_.show();
        const QDir symbols(programFolder + "/Symbols/set-1");
        const QStringList files = symbols.entryList({"*.gif"}, QDir::Files, QDir::Name);
        for (int i = 0; i < Symbols; ++i) {
            window_.canvas().placement().drop(
                "symbol|" + modelPath(symbols.filePath(files[i % files.size()])),
                {60 + i % 10 * 150, 60 + i / 10 * 110});
        }
        QApplication::processEvents();
    }

    MapCanvas& canvas() { return window_.canvas().widget(); }
    void zoomTo(int percent) {
        window_.viewport().findChild<MapZoom*>()->zoomTo(Zoom(percent));
        QApplication::processEvents();
    }
    void select(int count) {
        std::vector<SpriteId> ids;
        for (const SpriteControl* control : window_.canvas().sprites().controls()) {
            ids.push_back(control->id);
        }
        ids.resize(static_cast<std::size_t>(count));
        window_.canvas().selection().selectAll(ids);
    }
    QPoint firstSymbol() {
        return canvas().toWidget(window_.canvas().sprites().controls().front()->rect).center();
    }
    void mouse(QEvent::Type type, QPoint position) {
        QMouseEvent event(type, position, canvas().mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&canvas(), &event);
    }
    /// Every symbol that plays goes on to another image and is painted, as if all were due at once.
    void paintSymbols() {
        for (const SpriteControl* control : window_.canvas().sprites().controls()) {
            window_.canvas().sprites().repaint(*control);
        }
        QApplication::processEvents();
    }

  private:
    QTemporaryDir directory_;
    SettingsStore settings_;
    Workspace workspace_;
    DesktopShell shell_;
    frmMap window_;
};

void measureDrag(FullEditor& editor, const char* name, int frames) {
    editor.select(Symbols / 2);
    const QPoint start = editor.firstSymbol();
    editor.mouse(QEvent::MouseButtonPress, start);
    std::vector<double> times;
    for (int i = 0; i < frames; ++i) {
        times.push_back(timed([&] {
            editor.mouse(QEvent::MouseMove, start + QPoint(1 + i % 60, 1 + i % 45));
            QApplication::processEvents();
        }));
    }
    editor.mouse(QEvent::MouseButtonRelease, start);
    tell(name, times);
}

void measurePlaying(FullEditor& editor, const char* name, int frames) {
    std::vector<double> times;
    for (int i = 0; i < frames; ++i) {
        times.push_back(timed([&] { editor.paintSymbols(); }));
    }
    tell(name, times);
}

void measureSearch(int frames) {
    const QTemporaryDir directory;
    QStringList collections;
    for (int i = 0; i < 20; ++i) {
        const QString folder = directory.filePath(QString("collection-%1").arg(i));
        QDir().mkpath(folder);
        for (int k = 0; k < 100; ++k) {
            QFile file(folder + QString("/%1-rain-%2.gif").arg(k % 3 ? "day" : "night").arg(k));
            if (!file.open(QFile::WriteOnly)) {
                std::exit(1);
            }
        }
        collections << modelPath(folder);
    }
    SymbolIndex index;
    std::vector<double> first;
    std::vector<double> again;
    for (int i = 0; i < frames; ++i) {
        first.push_back(timed([&] {
            index.read(collections);
            index.find("rain night");
        }));
        again.push_back(timed([&] { index.find("rain night"); }));
    }
    tell("search, first", first);
    tell("search, again", again);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("Usage: bench_canvas PROGRAM_FOLDER [FRAMES]\n", stderr);
        return 2;
    }
    const int frames = argc > 2 ? std::max(10, QString::fromLocal8Bit(argv[2]).toInt()) : 300;
    FullEditor editor(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    measurePlaying(editor, "play, 100 %", frames);
    measureDrag(editor, "drag, 100 %", frames);
    editor.zoomTo(800);
    measurePlaying(editor, "play, 800 %", frames);
    measureDrag(editor, "drag, 800 %", frames);
    measureSearch(std::min(frames, 100));
    return 0;
}
