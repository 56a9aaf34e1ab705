// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/small_gif.h"
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/publish/frm_wait.h"
#include "windows/widgets/gif_animator.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

namespace nubivane::testing {

namespace {

/// The window in front of an upload.
class WaitWindow : public WorkspaceFixture {
  protected:
    WaitWindow() {
        QObject::connect(&window, &frmWait::cancelled, &window, [this] { ++cancels; });
    }
    void init() {
        window.Init("Uploading files...");
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    GifAnimator& film() { return *part<GifAnimator>(window, "pctUpload"); }

    QWidget owner;
    frmWait window{workspace, &owner};
    int cancels = 0;
};

}  // namespace

TEST_F(WaitWindow, StandsInFrontOfItsOwnerWithTheCaptionAndNoProgress) {
    window.setProgress(70);
    init();
    EXPECT_EQ(window.windowTitle(), "Uploading files...");
    EXPECT_EQ(part<QProgressBar>(window, "ProgressBar")->value(), 0);
    EXPECT_EQ(window.parentWidget(), &owner);
    EXPECT_FALSE(window.isModal());
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST_F(WaitWindow, PlaysItsFilmWhereThereIsOne) {
    writeFile(host("Media/fileUpload.gif"),
              small_gif::file(9, 5,
                              {small_gif::control(3), small_gif::dot(0), small_gif::control(3),
                               small_gif::dot(1)}));
    init();
    EXPECT_TRUE(film().isVisible());
    EXPECT_TRUE(film().isPlaying());
    EXPECT_EQ(film().size(), QSize(9, 5));
}

TEST_F(WaitWindow, DoesWithoutAFilmThatIsMissingOrNone) {
    init();
    EXPECT_FALSE(film().isVisible());
    window.hide();
    writeFile(host("Media/fileUpload.gif"), "no picture");
    init();
    EXPECT_FALSE(film().isVisible());
}

TEST_F(WaitWindow, ShowsWhatItIsTold) {
    init();
    window.setInfo("Checking folders structure...");
    window.setProgress(42);
    EXPECT_EQ(part<QLabel>(window, "lblInfo")->text(), "Checking folders structure...");
    EXPECT_EQ(part<QProgressBar>(window, "ProgressBar")->value(), 42);
    const QSize before = window.size();
    window.setInfo("Uploading file " + QString("/folder").repeated(100));
    QApplication::processEvents();
    EXPECT_EQ(window.size(), before) << "a long path does not make the window jump";
}

TEST_F(WaitWindow, SaysHowMuchThereIsToSendAndThatThePasswordTravelsInClear) {
    init();
    EXPECT_FALSE(part<QLabel>(window, "imgLock")->isVisible());
    window.setChosen(3, 205, 1234567);
    EXPECT_TRUE(part<QLabel>(window, "lblChosen")->text().startsWith("3 of 205 files to send, 1."));
    window.showOpenLock();
    EXPECT_TRUE(part<QLabel>(window, "imgLock")->isVisible());
    EXPECT_TRUE(part<QLabel>(window, "lblInClear")->isVisible());
}

TEST_F(WaitWindow, TheConversationIsAmongTheDetails) {
    init();
    window.addLine("> PASS ****");
    window.addLine("< 230 welcome");
    EXPECT_FALSE(part<QPlainTextEdit>(window, "txtConversation")->isVisible());
    clickPart(window, "cmdDetails");
    EXPECT_TRUE(part<QPlainTextEdit>(window, "txtConversation")->isVisible());
    EXPECT_EQ(window.conversation(), "> PASS ****\n< 230 welcome");
    clickPart(window, "cmdDetails");
    EXPECT_FALSE(part<QPlainTextEdit>(window, "txtConversation")->isVisible());
    EXPECT_EQ(cancels, 0);
}

TEST_F(WaitWindow, TheKeyboardIsAtTheButtonThatStopsFromTheFirst) {
    init();
    QTest::keyClick(window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(cancels, 1);
    EXPECT_FALSE(part<QPlainTextEdit>(window, "txtConversation")->isVisible());
}

TEST_F(WaitWindow, ItsButtonIsTheOnlyWayToStop) {
    init();
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    window.close();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(cancels, 0);
    clickPart(window, "cmdCancel");
    EXPECT_EQ(cancels, 1);
    EXPECT_TRUE(window.isVisible()) << "it is the run that closes it";
    QTest::keyClick(part<QPushButton>(window, "cmdCancel"), Qt::Key_Space);
    EXPECT_EQ(cancels, 2);
    window.disableCancel();
    clickPart(window, "cmdCancel");
    EXPECT_EQ(cancels, 2);
}

}  // namespace nubivane::testing
