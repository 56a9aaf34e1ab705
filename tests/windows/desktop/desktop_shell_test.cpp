// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/desktop/desktop_shell.h"

#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
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

}  // namespace nubivane::testing
