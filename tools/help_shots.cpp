// SPDX-License-Identifier: GPL-3.0-or-later
/// Takes the pictures of the help from the program's own windows: see help_shots.sh.
///
///     help_shots CONTENT_FOLDER PROJECT OUTPUT_FOLDER
///
/// A window that is added to the program gets its picture by a line in `shots`.
#include "engine/core/host_files.h"
#include "engine/core/quiet_shell.h"
#include "engine/core/settings_store.h"
#include "engine/gif/quantizer.h"
#include "engine/model/workspace.h"
#include "engine/picture/animation_cache.h"
#include "windows/main/editor_pane.h"
#include "windows/main/frm_map.h"
#include "windows/main/notice_bar.h"
#include "windows/main/safekeeping.h"
#include "windows/widgets/explorer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <deque>
#include <functional>

using namespace nubivane;

namespace {

constexpr QSize EditorSize(1250, 880);
constexpr int PaletteWidth = 214;
constexpr int WidestPicture = 720;  // pixels; wider ones are made smaller
constexpr int SettlingMs = 400;     // for thumbnails, which are decoded on other threads
const QColor frameColor(0x9a, 0xa7, 0xb4);

/// Nobody is there to answer; windows open, boxes do not.
class SilentShell : public QuietShell {
  public:
    Answer messageBox(const Message& message) override {
        std::fprintf(stderr, "help_shots: %s\n", qUtf8Printable(message.text));
        return Answer::Ok;
    }
    void processEvents() override { QApplication::processEvents(); }
    bool networkPresent() override { return true; }
};

enum class Selected { Nothing, Symbol, Label };

/// A picture of the window that a command opens, or of one that opens from it.
struct Shot {
    const char* file;
    const char* command;
    Selected selected = Selected::Nothing;
    std::deque<const char*> buttons = {};  ///< pressed one after the other in windows that come
    std::function<void(QWidget&)> prepare = {};
};

void selectRow(QWidget& window, const QString& text) {
    for (auto* list : window.findChildren<QListWidget*>()) {
        for (QListWidgetItem* row : list->findItems(text, Qt::MatchExactly)) {
            list->setCurrentItem(row);
        }
    }
}

const Shot shots[] = {
    {"map-selection.png",
     "mnuOpenMap",
     Selected::Nothing,
     {},
     [](QWidget& window) { selectRow(window, "scandinavia"); }},
    {"symbol-collections.png",
     "mnuCollection",
     Selected::Nothing,
     {},
     [](QWidget& window) { selectRow(window, "set-1"); }},
    {"symbol-properties.png",
     "mnuProperty",
     Selected::Symbol,
     {},
     [](QWidget& window) { window.resize(420, 380); }},
    {"symbol-selection.png", "mnuProperty", Selected::Symbol, {"cmdSymbol"}},
    {"label-properties.png",
     "mnuProperty",
     Selected::Label,
     {},
     [](QWidget& window) { window.resize(420, 520); }},
    {"font.png", "mnuProperty", Selected::Label, {"cmdFont"}},
    {"map-properties.png",
     "btnProperty",
     Selected::Nothing,
     {},
     [](QWidget& window) { window.resize(440, 520); }},
    {"forecast-text.png",
     "btnProperty",
     Selected::Nothing,
     {"cmdForecastText"},
     [](QWidget& window) { window.resize(640, 460); }},
    {"copy-special.png", "mnuCopySymbols"},
    {"page-settings.png", "mnuImpostazioni"},
    {"export-gif.png", "subEsportaGifAni"},
    {"export-film.png", "subEsportaFilm"},
    {"export-avi.png", "subEsportaAvi"},
    {"ftp-settings.png", "mnuFtpSetting"},
    {"bug-report.png", "mnuBugReport"},
    {"about.png", "mnuInfo"},
};

void settle(int milliseconds = SettlingMs) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Few colours make small files, and windows have few.
QImage withPalette(QImage picture) {
    picture = picture.convertToFormat(QImage::Format_RGB32);
    Quantizer quantizer(256);
    quantizer.add(picture);
    const std::vector<QRgb> colors = quantizer.palette();
    return picture.convertToFormat(QImage::Format_Indexed8,
                                   QList<QRgb>(colors.begin(), colors.end()),
                                   Qt::ThresholdDither | Qt::AvoidDither);
}

class Photographer {
  public:
    /// `scratch` is the program folder that the windows see, `folder` takes the pictures.
    Photographer(frmMap& window, QString scratch, QString folder)
        : window_(window), scratch_(std::move(scratch)), folder_(std::move(folder)) {}

    void save(const char* file, QPixmap pixmap) {
        if (pixmap.width() > WidestPicture) {
            pixmap = pixmap.scaledToWidth(WidestPicture, Qt::SmoothTransformation);
        }
        QPainter painter(&pixmap);
        painter.setPen(frameColor);
        painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
        painter.end();
        if (!withPalette(pixmap.toImage()).save(folder_ + u'/' + QLatin1String(file), "PNG")) {
            std::fprintf(stderr, "help_shots: cannot write %s\n", file);
            failed = true;
        }
    }

    /// The part of a widget that holds something.
    void saveUsed(const char* file, QWidget& part) {
        save(file, part.grab(QRect(QPoint(), part.size().boundedTo(part.sizeHint()))));
    }

    void take(const Shot& shot) {
        select(shot.selected);
        bool taken = false;
        QTimer::singleShot(SettlingMs, [&] { walk(shot, shot.buttons, taken); });
        window_.commands().action(shot.command)->trigger();
        if (!taken) {
            std::fprintf(stderr, "help_shots: no window for %s\n", shot.file);
            failed = true;
        }
    }

    bool failed = false;

  private:
    void select(Selected selected) {
        Selection& selection = window_.canvas().selection();
        selection.clearSelection();
        const SpriteKind wanted =
            selected == Selected::Symbol ? SpriteKind::Symbol : SpriteKind::Label;
        for (SpriteControl* control : window_.canvas().sprites().controls()) {
            if (selected != Selected::Nothing && control->id.kind == wanted) {
                selection.select(*control);
                return;
            }
        }
    }

    /// Presses the next button in the window that is open, or takes its picture; then shuts it.
    void walk(const Shot& shot, std::deque<const char*> buttons, bool& taken) {
        QWidget* window = QApplication::activeModalWidget();
        if (!window) {
            return;
        }
        if (!buttons.empty()) {
            auto* button = window->findChild<QAbstractButton*>(buttons.front());
            buttons.pop_front();
            if (button) {
                QTimer::singleShot(SettlingMs, [&, buttons] { walk(shot, buttons, taken); });
                button->click();
            }
        } else {
            if (shot.prepare) {
                shot.prepare(*window);
            }
            hideScratchFolder(*window);
            settle();
            save(shot.file, window->grab());
            taken = true;
        }
        window->close();
    }

    /// The names of scratch folders are chance; the reader's own folder looks more like this, and
    /// his folders are his own.
    void hideScratchFolder(QWidget& window) {
        for (auto* field : window.findChildren<QLineEdit*>()) {
            const QSignalBlocker quiet(field);
            const QString text = field->text();
            field->setText(QString(text).replace(scratch_, "/home/me/Nubivane"));
            if (field->text() != text) {
                field->setCursorPosition(field->text().size());
            }
        }
        for (auto* tree : window.findChildren<Explorer*>()) {
            tree->setFolder(host_files::toModel(scratch_));
            tree->setRootIndex(tree->currentIndex());
            tree->setFolder(host_files::toModel(scratch_ + "/Maps"));
        }
    }

    frmMap& window_;
    QString scratch_;
    QString folder_;
};

/// Moving symbols would look otherwise each time: in this copy each is its first image.
void copyProgramFolder(const QString& from, const QString& to) {
    QDirIterator entries(from, {"*.jpg", "*.gif", "*.png"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QString target = to + u'/' + QDir(from).relativeFilePath(file);
        QDir().mkpath(QFileInfo(target).path());
        if (file.endsWith(".gif")) {
            QImage(file).save(target, "PNG");
        } else {
            QFile::copy(file, target);
        }
    }
}

void placeFirstSymbols(frmMap& window, const Workspace& workspace) {
    SpritePlacement& placement = window.canvas().placement();
    const auto symbol = [&](const char* name, QPoint centre) {
        placement.drop("symbol|" + workspace.folder.symbols() + "\\set-1\\" + QLatin1String(name),
                       centre);
    };
    symbol("rain.gif", {250, 200});
    symbol("cloudy.gif", {420, 300});
    placement.drop("text", {330, 480});
    symbol("sun.gif", {330, 430});
}

/// The list of edits after some more of them, the last of which are taken back.
void takeHistory(frmMap& window, Photographer& photographer) {
    for (const char* command : {"mnuDelSymbol", "mnuFrameInsert"}) {
        window.commands().action(command)->trigger();
        settle();
    }
    window.commands().action("mnuUndo")->trigger();
    settle();
    window.commands().action("mnuHistory")->trigger();
    settle();
    photographer.save("history.png", window.findChild<EditCommands*>()->history()->grab());
    window.findChild<EditCommands*>()->history()->close();
}

/// The project's versions after two saves with something new on the first map.
void takeVersions(frmMap& window, const Workspace& workspace, Photographer& photographer) {
    SpritePlacement& placement = window.canvas().placement();
    int x = 250;
    for (const char* name : {"rain.gif", "sun.gif", "cloudy.gif"}) {
        placement.drop("symbol|" + workspace.folder.symbols() + "\\set-1\\" + QLatin1String(name),
                       {x += 90, 520});
        window.commands().action("mnuSaveProject")->trigger();
        settle(1100);  // so that each has another time
    }
    QTimer::singleShot(2 * SettlingMs, &window, [&photographer] {
        QWidget* versions = QApplication::activeModalWidget();
        versions->resize(520, 430);
        versions->findChild<QAbstractButton*>("cmdCompare")->click();
        settle();
        photographer.save("versions.png", versions->grab());
        versions->close();
    });
    window.commands().action("mnuVersions")->trigger();
}

/// The bar that offers what a crash has left.
void takeRecovery(frmMap& window, Workspace& workspace, const QString& folder,
                  Photographer& photographer) {
    {
        RecoveryCopy copy(folder);
        WorkSnapshot snapshot = takeSnapshot(workspace);
        snapshot.project = "C:\\italy.nvpf";
        snapshot.time = QDateTime(QDate::currentDate(), QTime(14, 32));
        copy.write(snapshot);
    }
    Safekeeping safekeeping(window, workspace, folder);
    safekeeping.offer();
    settle();
    const QPixmap whole = window.grab();
    photographer.save("recovery.png", whole.copy(0, 0, whole.width(), 260));
    window.removeToolBar(&safekeeping.bar());
}

/// A cold front while it is drawn, and the map around it.
void takeFront(frmMap& window, Photographer& photographer) {
    MapDrawing& drawing = window.canvas().drawing();
    MapCanvas& canvas = window.canvas().widget();
    drawing.chooseFigure(weather::FigureKind::ColdFront);
    settle();
    for (const QPoint& point : {QPoint(330, 120), QPoint(345, 210), QPoint(300, 300),
                                QPoint(210, 360), QPoint(110, 375)}) {
        const QPoint place = canvas.toWidget(QRect(point, QSize(1, 1))).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, canvas.mapToGlobal(place), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&canvas, &event);
        }
    }
    settle();
    photographer.save("first-front.png", window.grab());
    drawing.DrawCancel();
    drawing.chooseTool(0);
}

int takeAll(const QString& content, const QString& project, const QString& output) {
    const QTemporaryDir scratch;
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
    copyProgramFolder(content, scratch.path());
    QDir().mkpath(output);
    SettingsStore settings(scratch.filePath("settings.ini"));
    Workspace workspace(ProgramFolder(host_files::toModel(scratch.path())), settings);
    SilentShell shell;
    frmMap window(workspace, shell);
    window.Init({});
    window.resize(EditorSize);
    window.pane().setSplitterLeft(PaletteWidth);
    window.show();
    settle();
    Photographer photographer(window, scratch.path(), output);
    photographer.save("first-empty.png", window.grab());
    placeFirstSymbols(window, workspace);
    settle();
    photographer.save("first-symbols.png", window.grab());
    takeFront(window, photographer);
    photographer.saveUsed("draw-strip.png", window.pctTlbDraw());
    takeHistory(window, photographer);

    workspace.ProjectChanged = false;
    window.projectCommands().open(host_files::toModel(project));
    settle();
    photographer.save("main-window.png", window.grab());
    photographer.saveUsed("frame-tabs.png", *window.tabs().tabDay());
    for (const Shot& shot : shots) {
        photographer.take(shot);
    }
    workspace.Status.CurrentProject = host_files::toModel(scratch.filePath("week.nvpf"));
    window.commands().action("mnuSaveProject")->trigger();
    takeVersions(window, workspace, photographer);
    takeRecovery(window, workspace, state.filePath("recovery"), photographer);
    workspace.ProjectChanged = false;
    return photographer.failed ? 1 : 0;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QApplication::setFont(QFont("Liberation Sans", 10));
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        std::fprintf(stderr, "usage: help_shots CONTENT_FOLDER PROJECT OUTPUT_FOLDER\n");
        return 2;
    }
    return takeAll(QDir(arguments[1]).absolutePath(), QFileInfo(arguments[2]).absoluteFilePath(),
                   arguments[3]);
}
