// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/desktop_shell.h"

#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace nubivane::testing {

namespace {

/// What a message box showed before one of its buttons was pressed.
struct Seen {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
    bool plainPointer = false;
};

class DesktopShellBox : public ::testing::Test {
  protected:
    ~DesktopShellBox() override { shell.setPointer(Pointer::Default); }

    Answer answer(const Message& message, QMessageBox::StandardButton pressed) {
        QObject context;
        QTimer::singleShot(0, &context, [this, pressed] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            const QCursor* pointer = QApplication::overrideCursor();
            seen = {box->windowTitle(), box->text(), box->icon(), box->standardButtons(),
                    !pointer || pointer->shape() == Qt::ArrowCursor};
            if (pressed == QMessageBox::NoButton) {
                box->reject();
            } else {
                box->button(pressed)->click();
            }
        });
        return shell.messageBox(message);
    }

    DesktopShell shell;
    Seen seen;
};

}  // namespace

TEST_F(DesktopShellBox, ACarriageReturnBreaksTheLine) {
    answer({"first\rsecond\r\nthird", Icon::Critical, Buttons::Ok, {}}, QMessageBox::Ok);
    EXPECT_EQ(seen.text, "first\nsecond\nthird");
    EXPECT_EQ(seen.title, "Nubivane");
}

TEST_F(DesktopShellBox, EachIconIsShown) {
    const QList<std::pair<Icon, QMessageBox::Icon>> icons = {
        {Icon::None, QMessageBox::NoIcon},
        {Icon::Critical, QMessageBox::Critical},
        {Icon::Question, QMessageBox::Question},
        {Icon::Exclamation, QMessageBox::Warning},
        {Icon::Information, QMessageBox::Information}};
    for (const auto& [icon, shown] : icons) {
        answer({"text", icon, Buttons::Ok, {}}, QMessageBox::Ok);
        EXPECT_EQ(seen.icon, shown);
    }
}

TEST_F(DesktopShellBox, TheGuardsThreeButtonsGiveTheirAnswers) {
    const Message message{"text", Icon::Exclamation, Buttons::YesNoCancel, {}};
    EXPECT_EQ(answer(message, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(answer(message, QMessageBox::No), Answer::No);
    EXPECT_EQ(answer(message, QMessageBox::Cancel), Answer::Cancel);
}

TEST_F(DesktopShellBox, ABoxClosedByEscapeIsCancelled) {
    EXPECT_EQ(answer({"text", Icon::Exclamation, Buttons::YesNoCancel, {}}, QMessageBox::NoButton),
              Answer::Cancel);
}

TEST_F(DesktopShellBox, AQuestionHasYesAndNo) {
    const Message message{"text", Icon::Exclamation, Buttons::YesNo, {}};
    EXPECT_EQ(answer(message, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(seen.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(answer(message, QMessageBox::No), Answer::No);
}

TEST_F(DesktopShellBox, TheHourglassDoesNotStandOverABoxAndComesBackAfterIt) {
    shell.setPointer(Pointer::Hourglass);
    answer({"text", Icon::Critical, Buttons::Ok, {}}, QMessageBox::Ok);
    EXPECT_TRUE(seen.plainPointer);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(DesktopShellBox, TheDefaultPointerEndsEveryHourglass) {
    shell.setPointer(Pointer::Hourglass);
    shell.setPointer(Pointer::ArrowWithHourglass);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    shell.setPointer(Pointer::Default);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(DesktopShellBox, AFileIsChosenFromTheFolderAskedFor) {
    const TemporaryFolder folder;
    writeFile(folder.file("week.nvpf"), "x");
    writeFile(folder.file("week.txt"), "x");
    QObject context;
    QTimer::singleShot(0, &context, [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->windowTitle(), "Open project");
        EXPECT_EQ(dialog->nameFilters(), QStringList("Nubivane files (*.nvpf)"));
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText("week.nvpf");
        static_cast<QDialog*>(dialog)->accept();
    });
    FileRequest request;
    request.title = "Open project";
    request.folder = host_files::toModel(folder.path());
    request.filter = "Nubivane files (*.nvpf)|*.nvpf|";
    EXPECT_EQ(shell.openFileName(request), host_files::toModel(folder.file("week.nvpf")));
}

TEST_F(DesktopShellBox, AFileDialogThatIsLeftGivesNoName) {
    for (const bool saving : {false, true}) {
        QObject context;
        QTimer::singleShot(0, &context, [saving] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            EXPECT_EQ(dialog->acceptMode(),
                      saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
            EXPECT_TRUE(dialog->testOption(QFileDialog::DontConfirmOverwrite) || !saving);
            dialog->reject();
        });
        EXPECT_EQ(saving ? shell.saveFileName({}) : shell.openFileName({}), "");
    }
}

TEST_F(DesktopShellBox, ProgressMovesTheBarOfTheWindowAndHidesIt) {
    QProgressBar bar;
    shell.setProgress(10);  // no window yet
    shell.setProgressBar(&bar);
    shell.setProgress(30);
    EXPECT_EQ(bar.value(), 30);
    EXPECT_FALSE(bar.isHidden());
    shell.hideProgress();
    EXPECT_TRUE(bar.isHidden());
}

TEST_F(DesktopShellBox, EnterDoesNotDestroy) {
    Message message{"Delete ?", Icon::Question, Buttons::YesNo, {}};
    const auto pressEnter = [&] {
        QTimer::singleShot(
            0, qApp, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        return shell.messageBox(message);
    };
    EXPECT_EQ(pressEnter(), Answer::Yes);
    message.destroys = true;
    EXPECT_EQ(pressEnter(), Answer::No);
}

TEST_F(DesktopShellBox, ANameOf255LettersIsToldInABoxThatFitsTheScreen) {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_LT(box->width(), 800);
        // Nothing of the name is lost.
        EXPECT_EQ(box->text().remove(QChar(0x200b)), "/home/" + QString(255, 'w') + ".\nGone.");
        box->accept();
    });
    shell.messageBox({"/home/" + QString(255, 'w') + ".\rGone.", Icon::Critical, Buttons::Ok, {}});
}

TEST_F(DesktopShellBox, WithoutAWindowUnderItABoxStandsInTheMiddle) {
    QTimer::singleShot(0, qApp, [] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        const QPoint away = box->geometry().center() - box->screen()->availableGeometry().center();
        EXPECT_LE(away.manhattanLength(), 4);
        box->close();
    });
    shell.messageBox({"This is not a valid file.", Icon::Critical, Buttons::Ok, {}});
}

TEST_F(DesktopShellBox, AFileDialogShowsThePatternOfItsFiles) {
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        EXPECT_EQ(dialog->findChild<QComboBox*>("fileTypeCombo")->currentText(),
                  "Nubivane files (*.nvpf)");
        dialog->reject();
    });
    FileRequest request;
    request.filter = "Nubivane files (*.nvpf)|*.nvpf|";
    shell.openFileName(request);
}

TEST_F(DesktopShellBox, WhatPeopleKeepIsNotOfferedAHiddenFolder) {
    const TemporaryFolder home;
    QDir().mkpath(home.file(".local/share/Nubivane"));
    QDir().mkpath(home.file("Documents"));
    const QByteArray before = qgetenv("HOME");
    qputenv("HOME", home.path().toUtf8());
    const auto folderOffered = [this](const QString& folder, bool peoplesOwn) {
        QString offered;
        QTimer::singleShot(0, qApp, [&offered] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            offered = dialog->directory().absolutePath();
            dialog->reject();
        });
        FileRequest request;
        request.folder = host_files::toModel(folder);
        request.peoplesOwn = peoplesOwn;
        shell.saveFileName(request);
        return offered;
    };
    const QString hidden = home.file(".local/share/Nubivane");
    EXPECT_EQ(folderOffered(hidden, true), home.file("Documents"));
    EXPECT_EQ(folderOffered(hidden, false), hidden);
    EXPECT_EQ(folderOffered(home.file("Documents"), true), home.file("Documents"));
    QDir().rmdir(home.file("Documents"));
    EXPECT_EQ(folderOffered(hidden, true), home.path());
    qputenv("HOME", before);
}

TEST_F(DesktopShellBox, ACauseIsASentenceInSight) {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->text(), "An error occurred while saving the project.");
        EXPECT_EQ(box->informativeText(), "The disk is full.");
        EXPECT_EQ(box->detailedText(), "");
        box->accept();
    });
    shell.messageBox({"An error occurred while saving the project.", Icon::Critical, Buttons::Ok,
                      "the disk is full"});
}

TEST_F(DesktopShellBox, WhatFollowsACauseIsAmongTheDetails) {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->informativeText(), "550 not today");
        EXPECT_EQ(box->detailedText(), "> CWD Web\n< 550 not today");
        box->accept();
    });
    shell.messageBox({"Cannot find Web folder", Icon::Critical, Buttons::Ok,
                      "550 not today\n\n> CWD Web\n< 550 not today"});
}

}  // namespace nubivane::testing
