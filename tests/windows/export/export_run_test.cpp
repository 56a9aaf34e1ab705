// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/export/export_stage.h"
#include "engine/export/export_watcher.h"
#include "engine/export/stage_fixture.h"
#include "engine/gif/gif_reader.h"
#include "engine/picture/made_pictures.h"
#include "support/dialog_parts.h"
#include "support/processes.h"
#include "windows/export/frm_save.h"
#include "windows/export/frm_save_avi.h"
#include "windows/export/frm_save_gif.h"
#include "windows/widgets/picture_box.h"

#include <QProgressBar>
#include <QSemaphore>
#include <QThread>
#include <QTimer>

#include <sys/resource.h>

#include <csignal>
#include <functional>

namespace nubivane {

using namespace testing;

namespace {

/// Looks at the run window while it shows a message.
class LookingShell : public ScriptedShell {
  public:
    std::function<void()> look;
    Answer messageBox(const Message& message) override {
        if (look) {
            look();
        }
        return ScriptedShell::messageBox(message);
    }
};

/// The windows of exports under way, over a blue map of 60 x 40 pixels.
class ExportRuns : public StageFixture {
  protected:
    ExportRuns() { workspace.pctMap.setPicture(workspace.loadCurrentMap()); }

    /// Writes down what a window shows from now on.
    void watch(ExportRunWindow& window) {
        captions = {window.windowTitle()};
        auto* bar = part<QProgressBar>(window, "ProgressBar");
        percents = {bar->value()};
        QObject::connect(bar, &QProgressBar::valueChanged, &window,
                         [this](int percent) { percents << percent; });
        QObject::connect(&window, &QWidget::windowTitleChanged, &window,
                         [this](const QString& title) { captions << title; });
    }

    template <class Window, class Request>
    void save(const Request& request) {
        Window window(workspace, looking, request, nullptr);
        watch(window);
        window.Init();
    }
    void saveStill(const QString& name) {
        save<frmSave>(StillRequest{{{1, output(name), workspace.loadCurrentMap()}}});
    }
    void saveGif(const QString& name, qint16 compression = 1) {
        save<frmSaveAniGif>(AniGifRequest{.frame = workspace.Status.CurrentFrame,
                                          .GifFileName = output(name),
                                          .compression = compression});
    }
    void saveFilm(const QString& name, qint16 interval) {
        save<frmSaveFilm>(FilmRequest{.path = output(name),
                                      .current = workspace.Status.CurrentFrame,
                                      .FrameInterval = interval});
    }
    void saveAvi(const QString& name, QSize size = {320, 288}) {
        save<frmSaveAvi>(VideoRequest{
            .frame = workspace.Status.CurrentFrame, .path = output(name), .size = size});
    }
    std::vector<GifImage> images(const QString& name) const {
        return readGif(readFile(outputHost(name)));
    }
    void loseTheMap() {
        workspace.clearTempPicture();
        QFile::remove(host("Maps/map.png"));
    }

    LookingShell looking;
    QStringList captions;
    QList<int> percents;
};

/// A run whose work is the test's own.
class OwnJob : public ExportJob {
  public:
    OwnJob(std::function<void(ExportWatcher&)> work) : work_(std::move(work)) {}
    void load() override {}
    void save(ExportWatcher& told) override { work_(told); }

  private:
    std::function<void(ExportWatcher&)> work_;
};

class OwnRun : public ExportRunWindow {
  public:
    OwnRun(Workspace& workspace, Shell& shell)
        : ExportRunWindow("ownRun", workspace, shell, nullptr) {}
    void Init(const std::function<void(ExportWatcher&)>& work) {
        run(std::make_unique<OwnJob>(work));
    }
    QStringList failures;

  protected:
    void savingFailed(const Error& error) override { failures << error.description(); }
};

/// While it lives no file grows beyond a size, as on a disk that is nearly full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        ::signal(SIGXFSZ, signal_);
    }

  private:
    rlimit before_{};
    void (*signal_)(int) = ::signal(SIGXFSZ, SIG_IGN);
};

const QStringList GifCaptions{" Creating frames - step 1 of 4", " Assembling file - step 2 of 4",
                              " Optimizing file - step 3 of 4", " Saving file - step 4 of 4"};

}  // namespace

TEST_F(ExportRuns, AStillImageIsWrittenWithItsCaptionAndProgress) {
    makeSymbol("dot.gif", {5, 5});
    addSymbol("dot.gif", {7, 9});
    saveStill("a.png");
    EXPECT_EQ(captions, QStringList({" Saving..."}));
    EXPECT_EQ(percents, QList<int>({3, 30, 45, 70, 90, 100}));
    EXPECT_EQ(QImage(outputHost("a.png")).convertToFormat(QImage::Format_RGB32),
              renderFrame(workspace, 1));
    EXPECT_EQ(looking.pointer, Pointer::Default);
}

TEST_F(ExportRuns, AStillImageShowsTheMapItWasGiven) {
    workspace.pctPanel.setPicture(1, Picture(plainImage({60, 40}, Qt::green)));
    saveStill("a.png");
    EXPECT_EQ(QImage(outputHost("a.png")).pixel(5, 5), Blue);
}

TEST_F(ExportRuns, AStillImageOfAnUnknownFormatIsTold) {
    for (const char* name : {"map.jpeg", "map", "map.tiff"}) {
        looking.expectMessage("An error occurred while saving the file.", Icon::Critical);
        looking.look = [this] {
            const QWidget* window = QApplication::activeModalWidget();
            ASSERT_TRUE(window);
            EXPECT_FALSE(part<QProgressBar>(*window, "ProgressBar")->isVisible());
            EXPECT_EQ(looking.pointer, Pointer::Default);
        };
        saveStill(name);
        EXPECT_FALSE(QApplication::activeModalWidget());
    }
    EXPECT_EQ(outputs(), QStringList());
    for (const QString& cause : looking.causes) {
        EXPECT_FALSE(cause.contains("Unsupported format"));
    }
    EXPECT_EQ(percents, QList<int>({3, 30, 45, 70}));
}

TEST_F(ExportRuns, AStillImageInAFolderThatIsGoneIsTold) {
    looking.expectMessage("An error occurred while saving the file.", Icon::Critical);
    saveStill("none\\a.png");
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(ExportRuns, AGifGoesThroughItsCaptions) {
    makeSymbol("slow.gif", {10, 10, 10, 10});
    makeSymbol("fast.gif", QList<int>(20, 5));
    addSymbol("slow.gif", {0, 0});
    addSymbol("fast.gif", {2, 2});
    saveGif("a.gif");
    EXPECT_EQ(captions, GifCaptions);
    EXPECT_EQ(images("a.gif").size(), 21U);
    ASSERT_GT(percents.size(), 5);
    EXPECT_TRUE(std::is_sorted(percents.cbegin(), percents.cend()));
    EXPECT_EQ(percents.mid(percents.size() - 4), QList<int>({66, 80, 90, 100}));
    EXPECT_EQ(looking.pointer, Pointer::Default);
}

TEST_F(ExportRuns, CompressionHalvesTheImages) {
    makeSymbol("fast.gif", QList<int>(20, 5));
    addSymbol("fast.gif", {2, 2});
    saveGif("a.gif", 2);
    EXPECT_EQ(images("a.gif").size(), 11U);
    EXPECT_EQ(images("a.gif").front().delay, 10);
}

TEST_F(ExportRuns, TheSpritesOfTheCurrentFrameAreWritten) {
    workspace.Frames().Add();
    workspace.clearTempPicture();
    makeSymbol("dot.gif", {5});
    addSymbol("dot.gif", {7, 9}, 2);
    workspace.Status.CurrentFrame = 2;
    saveGif("a.gif");
    EXPECT_EQ(images("a.gif").front().picture.pixel(7, 9), Red);
}

TEST_F(ExportRuns, AGifThatCannotBeWrittenEndsAsIfAllWentWell) {
    saveGif("none\\a.gif");
    EXPECT_EQ(captions, QStringList({GifCaptions[0]}));
    saveFilm("none\\a.gif", 10);
    EXPECT_EQ(outputs(), QStringList());
    EXPECT_TRUE(temporaryFolderIsGone());
    EXPECT_EQ(looking.pointer, Pointer::Default);
}

TEST_F(ExportRuns, OnAFullDiskNoHalfFileIsLeft) {
    workspace.pctPanel.setPicture(1, Picture(shaded({400, 300})));
    workspace.Frames().Add();
    workspace.pctPanel.resize(2);
    workspace.pctPanel.setPicture(2, Picture(shaded({400, 300})));
    for (const char* name : {"a.gif", "film.gif", "a.avi", "a.bmp"}) {
        writeFile(outputHost(name), "old");
    }
    {
        const FullDisk full(16 * 1024);
        // Nobody is told of a GIF, and the old one must not pass for it.
        saveGif("a.gif");
        saveFilm("film.gif", 10);
        looking.expectMessage("An error occurred while saving the file.", Icon::Exclamation);
        saveAvi("a.avi", {400, 300});
        looking.expectMessage("An error occurred while saving the file.", Icon::Critical);
        save<frmSave>(StillRequest{{{1, output("a.bmp")}}});
    }
    EXPECT_EQ(outputs(), QStringList({"a.avi", "a.bmp"}));
    EXPECT_EQ(readFile(outputHost("a.avi")), "old");
    EXPECT_EQ(readFile(outputHost("a.bmp")), "old");
    EXPECT_TRUE(temporaryFolderIsGone());
}

TEST_F(ExportRuns, AMapThatIsGoneIsToldAndTheOldFilesStay) {
    writeFile(outputHost("a.gif"), "old");
    writeFile(outputHost("a.avi"), "old");
    loseTheMap();
    for (int i = 0; i < 3; ++i) {
        looking.expectMessage("File not found.", Icon::Critical);
    }
    saveGif("a.gif");
    saveFilm("a.gif", 10);
    saveAvi("a.avi");
    EXPECT_EQ(readFile(outputHost("a.gif")), "old");
    EXPECT_EQ(readFile(outputHost("a.avi")), "old");
    EXPECT_EQ(looking.pointer, Pointer::Default);
}

TEST_F(ExportRuns, ASymbolMadeToTakeForeverIsTold) {
    makeSymbol("slow.gif", QList<int>(2, 65'535));
    makeSymbol("fast.gif", {2, 2});
    addSymbol("slow.gif", {0, 0});
    addSymbol("fast.gif", {1, 1});
    looking.expectMessage("The animation has too many images.", Icon::Critical);
    saveGif("a.gif");
    EXPECT_EQ(outputs(), QStringList());
}

TEST_F(ExportRuns, AFilmHasOneImageForEachFrame) {
    workspace.Frames().Add();
    workspace.Frames().Add();
    workspace.clearTempPicture();
    workspace.pctPanel.setPicture(2, Picture(plainImage({60, 40}, Qt::green)));
    makeSymbol("dot.gif", {5});
    addSymbol("dot.gif", {7, 9}, 3);
    workspace.Status.CurrentFrame = 3;
    saveFilm("film.gif", 30);
    EXPECT_EQ(captions, GifCaptions);
    EXPECT_EQ(percents, QList<int>({0, 46, 70, 80, 90, 100}));
    const std::vector<GifImage> film = images("film.gif");
    ASSERT_EQ(film.size(), 3U);
    EXPECT_EQ(film[0].delay, 30);
    EXPECT_EQ(film[0].picture.pixel(7, 9), Red);
    EXPECT_EQ(film[1].picture.pixel(7, 9), Green);
    EXPECT_EQ(film[2].picture.pixel(7, 9), Red);
}

TEST_F(ExportRuns, AVideoGoesThroughItsCaptions) {
    makeSymbol("two.gif", {10, 10});
    addSymbol("two.gif", {0, 0});
    writeFile(outputHost("a.avi"), "old");
    saveAvi("a.avi", {176, 144});
    EXPECT_EQ(captions, QStringList({" Creating frames - step 1 of 3",
                                     " Creating file - step 2 of 3", " Saving - step 3 of 3"}));
    EXPECT_EQ(percents, QList<int>({0, 35, 80, 100}));
    const ProcessResult probed =
        runProgram("ffprobe", {"-v", "error", "-count_frames", "-show_entries",
                               "stream=width,height,r_frame_rate,nb_read_frames", "-of",
                               "default=noprint_wrappers=1:nokey=1", outputHost("a.avi")});
    EXPECT_EQ(probed.out, "176\n144\n10/1\n3\n");
}

TEST_F(ExportRuns, AVideoThatCannotBeWrittenIsTold) {
    looking.expectMessage("An error occurred while saving the file.", Icon::Exclamation);
    saveAvi("none\\a.avi");
    EXPECT_EQ(outputs(), QStringList());
    EXPECT_EQ(looking.pointer, Pointer::Default);
}

TEST_F(ExportRuns, TheWorkIsDoneElsewhereWhileTheWindowGoesOn) {
    OwnRun window(workspace, looking);
    const QThread* const own = QThread::currentThread();
    QSemaphore answered;
    window.Init([&](ExportWatcher& told) {
        EXPECT_NE(QThread::currentThread(), own);
        told.setProgress(40);
        // Only an event of the window's own thread lets the work go on.
        QTimer::singleShot(0, &window, [&] {
            EXPECT_EQ(part<QProgressBar>(window, "ProgressBar")->value(), 40);
            EXPECT_EQ(looking.pointer, Pointer::Hourglass);
            answered.release();
        });
        EXPECT_TRUE(answered.tryAcquire(1, 10'000));
    });
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.failures, QStringList());
}

TEST_F(ExportRuns, TheStageIsShownAsItIsCaptured) {
    OwnRun window(workspace, looking);
    window.Init([](ExportWatcher& told) {
        for (int i = 0; i < 100; ++i) {
            told.showStage(plainImage({60, 40}, i == 99 ? Qt::red : Qt::green));
        }
    });
    EXPECT_EQ(part<PictureBox>(window, "pctMap")->image().pixel(1, 1), Red);
    EXPECT_EQ(part<PictureBox>(window, "pctMap")->size(), QSize(68, 48));
}

TEST_F(ExportRuns, AMapLargerThanTheScreenIsShownSmaller) {
    workspace.pctMap.setPicture(Picture(plainImage({4000, 3000}, Qt::red)));
    OwnRun window(workspace, looking);
    window.Init([](ExportWatcher&) {});
    const QSize screen = window.screen()->availableSize();
    EXPECT_LT(window.height(), screen.height());
    EXPECT_LT(window.width(), screen.width());
}

TEST_F(ExportRuns, CannotBeLeftWhileTheyWork) {
    OwnRun window(workspace, looking);
    QSemaphore tried;
    bool ended = false;
    window.Init([&](ExportWatcher& told) {
        QTimer::singleShot(0, &window, [&] {
            QTest::keyClick(&window, Qt::Key_Escape);
            EXPECT_FALSE(window.close());
            EXPECT_TRUE(window.isVisible());
            tried.release();
        });
        EXPECT_TRUE(tried.tryAcquire(1, 10'000));
        told.working();
        ended = true;
    });
    EXPECT_TRUE(ended);
    EXPECT_FALSE(window.windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(ExportRuns, TheEndOfTheProgramStopsThem) {
    writeFile(outputHost("a.gif"), "old");
    bool stopped = false;
    QStringList failures;
    QTimer::singleShot(0, [&] {
        OwnRun window(workspace, looking);
        window.Init([&](ExportWatcher& told) {
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
            try {
                for (int i = 0; i < 10'000; ++i) {
                    told.working();
                    QThread::msleep(1);
                }
            } catch (const Error&) {
                stopped = true;
                throw;
            }
        });
        failures = window.failures;
    });
    QCoreApplication::exec();
    EXPECT_TRUE(stopped);
    EXPECT_EQ(failures, QStringList());
}

}  // namespace nubivane
