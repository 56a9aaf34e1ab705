// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/export/frm_set_ani_gif.h"
#include "windows/export/frm_set_avi.h"
#include "windows/export/frm_set_film.h"
#include "windows/widgets/explorer.h"
#include "windows/widgets/file_list.h"
#include "windows/widgets/scrspn.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QLabel>

#include <memory>

namespace nubivane {

using namespace testing;

namespace {

/// The dialogs that ask for the file of an animated export, worked as a person does.
class ExportTargets : public WorkspaceFixture {
  protected:
    template <class Dialog>
    Dialog& start() {
        auto dialog = std::make_unique<Dialog>(workspace, shell, nullptr);
        Dialog& started = *dialog;
        dialog_ = std::move(dialog);
        showActive(*dialog_);
        return started;
    }
    ExportTargetDialog& dialog() { return *dialog_; }

    Explorer& folders() { return *part<Explorer>(*dialog_, "Explorer1"); }
    FileList& files() { return *part<FileList>(*dialog_, "File1"); }
    QLineEdit& name() { return *part<QLineEdit>(*dialog_, "txtFileName"); }
    QStringList fileNames() {
        QStringList names;
        for (int i = 0; i < files().count(); ++i) {
            names << files().item(i)->text();
        }
        return names;
    }
    QStringList entries(const char* combo) {
        const auto* box = part<QComboBox>(*dialog_, combo);
        QStringList texts;
        for (int i = 0; i < box->count(); ++i) {
            texts << box->itemText(i);
        }
        return texts;
    }
    QString selected(const char* combo) { return part<QComboBox>(*dialog_, combo)->currentText(); }
    QStringList labels() {
        QStringList texts;
        for (const QLabel* label : dialog_->findChildren<QLabel*>()) {
            texts << label->text().remove(u'&');
        }
        return texts;
    }

    void save(const QString& fileName) {
        name().setText(fileName);
        clickPart(*dialog_, "cmdSave");
    }
    void touch(const QString& relative) { writeFile(host(relative), "old"); }

  private:
    std::unique_ptr<ExportTargetDialog> dialog_;
};

/// Makes a folder the working directory while it lives.
class WorkingFolder {
  public:
    explicit WorkingFolder(const QString& path) : before_(QDir::currentPath()) {
        QDir::setCurrent(path);
    }
    ~WorkingFolder() { QDir::setCurrent(before_); }

  private:
    QString before_;
};

}  // namespace

TEST_F(ExportTargets, AnAnimatedGifIsAskedForWithItsCompression) {
    const frmSetAniGif& window = start<frmSetAniGif>();
    EXPECT_EQ(window.windowTitle(), "Export gif animated ");
    EXPECT_EQ(name().text(), "FileGif.gif");
    EXPECT_EQ(entries("cboExt"), QStringList({"Gif animated (*.gif)"}));
    EXPECT_EQ(selected("cboExt"), "Gif animated (*.gif)");
    EXPECT_EQ(entries("cboCompression"), QStringList({"1:1", "1:2", "1:3"}));
    EXPECT_EQ(selected("cboCompression"), "1:1");
    EXPECT_EQ(window.GifCompression(), 1);
    auto* compression = part<QComboBox>(window, "cboCompression");
    EXPECT_EQ(compression->itemData(2), 3);
    QTest::keyClick(compression, Qt::Key_Down);
    QTest::keyClick(compression, Qt::Key_Down);
    EXPECT_EQ(window.GifCompression(), 3);
}

TEST_F(ExportTargets, AFilmIsAskedForWithItsInterval) {
    const frmSetFilm& window = start<frmSetFilm>();
    EXPECT_EQ(window.windowTitle(), "Export frames animation");
    EXPECT_EQ(name().text(), "Animation.gif");
    EXPECT_EQ(entries("cboExt"), QStringList({"Gif files (*.gif)"}));
    EXPECT_EQ(textOf(window, "txtInterval"), "1");
    EXPECT_EQ(part<ScrSpn>(window, "scrlInterval")->min(), 1);
    EXPECT_EQ(part<ScrSpn>(window, "scrlInterval")->max(), 1000);
    EXPECT_EQ(part<ScrSpn>(window, "scrlInterval")->value(), 1);
    EXPECT_TRUE(labels().contains("Frames interval:"));
    EXPECT_TRUE(labels().contains("(1/100 s)"));
    EXPECT_FALSE(window.findChild<QComboBox*>("cboCompression"));
}

TEST_F(ExportTargets, AVideoIsAskedForWithSizeAndCompression) {
    const frmSetAvi& window = start<frmSetAvi>();
    EXPECT_EQ(window.windowTitle(), "Export avi");
    EXPECT_EQ(name().text(), "FileAvi.avi");
    EXPECT_EQ(entries("cboExt"), QStringList({"Avi files (*.avi)"}));
    EXPECT_EQ(entries("cboAviWidth"),
              QStringList({"160", "176", "180", "192", "240", "320", "352", "360", "384", "400",
                           "480", "640", "704", "720", "768"}));
    EXPECT_EQ(entries("cboAviHeight"),
              QStringList({"120", "144", "180", "240", "288", "300", "360", "480", "576"}));
    EXPECT_EQ(entries("cboCompression"), QStringList({"1:1", "1:2", "1:3"}));
    EXPECT_EQ(window.aviSize(), QSize(320, 288));
    EXPECT_EQ(window.AviCompression(), 1);
    EXPECT_EQ(part<QComboBox>(window, "cboAviWidth")->itemData(14), 768);
    QTest::keyClick(part<QComboBox>(window, "cboAviWidth"), Qt::Key_End);
    QTest::keyClick(part<QComboBox>(window, "cboAviHeight"), Qt::Key_Home);
    QTest::keyClick(part<QComboBox>(window, "cboCompression"), Qt::Key_Down);
    EXPECT_EQ(window.aviSize(), QSize(768, 120));
    EXPECT_EQ(window.AviCompression(), 2);
}

TEST_F(ExportTargets, GifsAreLookedForInTheProgramsFolder) {
    touch("Zebra.GIF");
    touch("apple.gif");
    touch("film.avi");
    touch("gif");
    start<frmSetAniGif>();
    EXPECT_EQ(folders().folder(), workspace.folder.path());
    EXPECT_EQ(fileNames(), QStringList({"apple.gif", "Zebra.GIF"}));
    EXPECT_EQ(files().currentRow(), 0);
    EXPECT_TRUE(files().item(0)->isSelected());
    EXPECT_EQ(name().text(), "FileGif.gif");
    start<frmSetFilm>();
    EXPECT_EQ(folders().folder(), workspace.folder.path());
    EXPECT_EQ(fileNames(), QStringList({"apple.gif", "Zebra.GIF"}));
}

TEST_F(ExportTargets, VideosAreLookedForInAFolderOfTheirOwnOrAtTheRoot) {
    const WorkingFolder working(temporary.path());
    start<frmSetAvi>();
    EXPECT_EQ(folders().folder(), "\\");
    writeFile(temporary.file("c:/dell/a.avi"), "old");
    touch("c:/dell/b.gif");
    start<frmSetAvi>();
    EXPECT_TRUE(folders().folder().endsWith("\\c:\\dell")) << folders().folder().toStdString();
    EXPECT_EQ(fileNames(), QStringList({"a.avi"}));
}

TEST_F(ExportTargets, AFileThatIsClickedOnGivesItsName) {
    touch("one.gif");
    touch("two.gif");
    start<frmSetAniGif>();
    const auto click = [this](int row) {
        QTest::mouseClick(files().viewport(), Qt::LeftButton, {},
                          files().visualItemRect(files().item(row)).center());
    };
    click(1);
    EXPECT_EQ(name().text(), "two.gif");
    click(0);
    EXPECT_EQ(name().text(), "one.gif");
    QTest::keyClick(&files(), Qt::Key_Down);
    EXPECT_EQ(name().text(), "two.gif");
}

TEST_F(ExportTargets, AnotherFolderShowsItsFilesAndTheNameStays) {
    touch("one.gif");
    start<frmSetAniGif>();
    name().setText("mine");
    folders().setFolder(model("Symbols\\set-1"));
    EXPECT_EQ(fileNames(), QStringList({"rain.gif", "snow.gif", "sun.gif"}));
    EXPECT_EQ(files().currentRow(), 0);
    folders().setFolder(model("Symbols\\sea"));
    EXPECT_EQ(fileNames(), QStringList());
    EXPECT_EQ(name().text(), "mine");
    clickPart(dialog(), "cmdSave");
    EXPECT_EQ(dialog().FileName(), model("Symbols\\sea\\mine.gif"));
}

TEST_F(ExportTargets, TheTreeIsWalkedByTheKeyboard) {
    start<frmSetAniGif>();
    folders().setFolder(model("Symbols\\sea"));
    folders().setFocus();
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return folders().model()->rowCount(folders().currentIndex().parent()) == 2; }));
    QTest::keyClick(&folders(), Qt::Key_Down);
    EXPECT_EQ(folders().folder(), model("Symbols\\set-1"));
    EXPECT_EQ(fileNames(), QStringList({"rain.gif", "snow.gif", "sun.gif"}));
}

TEST_F(ExportTargets, NamesAreCompleted) {
    const struct {
        const char* typed;
        const char* written;
    } rows[] = {{"a", "a.gif"},
                {"a.GIF", "a.GIF"},
                {"a.gif.txt", "a.gif.txt.gif"},
                {"  b  ", "b.gif"},
                {".gif", ".gif"},
                {"a.gi", "a.gi.gif"},
                {"a gif", "a gif.gif"},
                {"caf\u00e9", "caf\u00e9.gif"},
                {"a.avi", "a.avi.gif"}};
    for (const auto& [typed, written] : rows) {
        start<frmSetAniGif>();
        save(typed);
        EXPECT_EQ(dialog().result(), QDialog::Accepted) << typed;
        EXPECT_EQ(dialog().FileName(), model(written));
    }
    start<frmSetAvi>();
    folders().setFolder(workspace.folder.path());
    save("clip.gif");
    EXPECT_EQ(dialog().FileName(), model("clip.gif.avi"));
}

TEST_F(ExportTargets, WithoutANameNothingHappens) {
    start<frmSetAniGif>();
    for (const char* empty : {"", "   "}) {
        save(empty);
        EXPECT_TRUE(dialog().isVisible());
    }
    EXPECT_EQ(dialog().FileName(), "");
}

TEST_F(ExportTargets, ANameThatWouldLeaveTheFolderIsRefused) {
    start<frmSetAniGif>();
    for (const QString bad : {"..\\a.gif", "../a.gif", "/tmp/a.gif", "c:a.gif"}) {
        shell.expectMessage("A file cannot have the name \"" + bad + "\".", Icon::Exclamation);
        save(bad);
        EXPECT_TRUE(dialog().isVisible());
    }
    EXPECT_EQ(dialog().FileName(), "");
}

TEST_F(ExportTargets, AFileThatExistsIsReplacedOnlyAfterAQuestion) {
    touch("old.gif");
    start<frmSetAniGif>();
    const QString question = "old.gif already exist.\rDo you want to replace it ?";
    shell.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::No);
    save("old");
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(dialog().FileName(), "");
    EXPECT_EQ(readFile(host("old.gif")), "old");
    shell.expectMessage(question, Icon::Question, Buttons::YesNo, Answer::Yes);
    clickPart(dialog(), "cmdSave");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(dialog().FileName(), model("old.gif"));
    EXPECT_EQ(readFile(host("old.gif")), "old");
}

TEST_F(ExportTargets, TheQuestionComesInEachOfThem) {
    touch("a.gif");
    touch("a.avi");
    start<frmSetFilm>();
    shell.expectMessage("a.gif already exist.\rDo you want to replace it ?", Icon::Question,
                        Buttons::YesNo, Answer::No);
    save("a.gif");
    EXPECT_TRUE(dialog().isVisible());
    start<frmSetAvi>();
    folders().setFolder(workspace.folder.path());
    shell.expectMessage("a.avi already exist.\rDo you want to replace it ?", Icon::Question,
                        Buttons::YesNo, Answer::No);
    save("a");
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(ExportTargets, AtTheRootTheNameFollowsOneBackslash) {
    start<frmSetAvi>();
    folders().setFolder("\\");
    save("nubivane-test-file");
    EXPECT_EQ(dialog().FileName(), "\\nubivane-test-file.avi");
}

TEST_F(ExportTargets, EscapeAndCancelLeaveWithoutAFile) {
    start<frmSetAniGif>();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(dialog().result(), QDialog::Rejected);
    start<frmSetFilm>();
    clickPart(dialog(), "cmdCancel");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(dialog().FileName(), "");
}

TEST_F(ExportTargets, EnterSaves) {
    start<frmSetAniGif>();
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(dialog().FileName(), model("FileGif.gif"));
}

TEST_F(ExportTargets, TheNameIsSelectedAsAWholeWhenItGetsTheKeyboard) {
    start<frmSetAniGif>();
    EXPECT_TRUE(name().hasFocus());
    folders().setFocus();
    name().deselect();
    QTest::mouseClick(&name(), Qt::LeftButton, {}, QPoint(10, 5));
    QApplication::processEvents();
    EXPECT_EQ(name().selectedText(), "FileGif.gif");
}

TEST_F(ExportTargets, HelpOpensItsTopic) {
    touch("Help/Nubivane.chm");
    start<frmSetAniGif>();
    clickPart(dialog(), "cmdHelp");
    start<frmSetFilm>();
    clickPart(dialog(), "cmdHelp");
    start<frmSetAvi>();
    clickPart(dialog(), "cmdHelp");
    EXPECT_EQ(shell.helpTopics,
              QStringList({"exportAniGif.htm", "exportAnimation.htm", "exportAvi.htm"}));
}

TEST_F(ExportTargets, HelpThatIsNotThereIsTold) {
    start<frmSetAvi>();
    shell.expectMessage("Help not found.", Icon::Critical);
    clickPart(dialog(), "cmdHelp");
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(ExportTargets, TheIntervalMustBeANumberOfItsRange) {
    const frmSetFilm& window = start<frmSetFilm>();
    for (const char* bad : {"0", "1001", "abc", "", "0.9", "-5", "1e9", "99999999999"}) {
        part<QLineEdit>(window, "txtInterval")->setText(bad);
        shell.expectMessage("Insert a valid frames interval", Icon::Critical);
        clickPart(window, "cmdSave");
        EXPECT_TRUE(window.isVisible()) << bad;
        EXPECT_EQ(window.FileName(), "");
    }
}

TEST_F(ExportTargets, TheWholePartOfTheIntervalCounts) {
    const std::pair<const char*, int> rows[] = {
        {"1", 1}, {"2.9", 2}, {"1000", 1000}, {"1000.9", 1000}, {" 7 ", 7}};
    for (const auto& [typed, interval] : rows) {
        const frmSetFilm& window = start<frmSetFilm>();
        part<QLineEdit>(window, "txtInterval")->setText(typed);
        clickPart(window, "cmdSave");
        EXPECT_FALSE(window.isVisible()) << typed;
        EXPECT_EQ(window.FrameInterval(), interval) << typed;
    }
}

TEST_F(ExportTargets, ABadIntervalIsToldBeforeTheFileIsAskedAbout) {
    touch("Animation.gif");
    const frmSetFilm& window = start<frmSetFilm>();
    part<QLineEdit>(window, "txtInterval")->setText("0");
    shell.expectMessage("Insert a valid frames interval", Icon::Critical);
    clickPart(window, "cmdSave");
    part<QLineEdit>(window, "txtInterval")->setText("0");
    shell.expectMessage("Insert a valid frames interval", Icon::Critical);
    save("");
}

TEST_F(ExportTargets, ArrowsAndTextOfTheIntervalFollowEachOther) {
    const frmSetFilm& window = start<frmSetFilm>();
    auto& text = *part<QLineEdit>(window, "txtInterval");
    auto& spin = *part<ScrSpn>(window, "scrlInterval");
    QTest::mouseClick(part<QWidget>(spin, "up"), Qt::LeftButton);
    EXPECT_EQ(text.text(), "2");
    text.clear();
    QTest::keyClicks(&text, "250");
    EXPECT_EQ(spin.value(), 250);
    QTest::keyClicks(&text, "00");
    EXPECT_EQ(spin.value(), 250);
    QTest::mouseClick(part<QWidget>(spin, "down"), Qt::LeftButton);
    EXPECT_EQ(text.text(), "249");
}

TEST_F(ExportTargets, TheTabKeyGoesFromTheNameThroughTheOptionsToTheButtons) {
    const QStringList common{"txtFileName", "cboExt"};
    const QStringList after{"cmdSave", "cmdCancel", "cmdHelp", "Explorer1", "File1"};
    start<frmSetAniGif>();
    EXPECT_EQ(tabOrder(dialog()), common + QStringList("cboCompression") + after);
    start<frmSetFilm>();
    EXPECT_EQ(tabOrder(dialog()), common + QStringList("txtInterval") + after);
    start<frmSetAvi>();
    const QStringList sizes{"cboAviWidth", "cboAviHeight", "cboCompression"};
    EXPECT_EQ(tabOrder(dialog()), common + sizes + after);
}

TEST_F(ExportTargets, WhateverTakesTheKeyboardHasAName) {
    const auto look = [this] {
        for (QWidget* widget : dialog().findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() ||
                widget->inherits("QComboBoxListView")) {  // has its box's name while it is open
                continue;
            }
            QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
            EXPECT_TRUE(seen && !seen->text(QAccessible::Name).isEmpty())
                << widget->objectName().toStdString() << widget->metaObject()->className();
        }
    };
    start<frmSetAniGif>();
    look();
    start<frmSetFilm>();
    look();
    start<frmSetAvi>();
    look();
}

}  // namespace nubivane
