// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/dialog_parts.h"
#include "support/editor_fixture.h"
#include "windows/commands/frm_utility.h"

#include <QTimer>

#include <algorithm>

namespace nubivane {

/// "Copy special..." on a project of three Frames: a symbol and a label on the first, a symbol on
/// the second, nothing on the third, which is shown.
class CopyingSpecially : public testing::EditorFixture {
  protected:
    void SetUp() override {
        start();
        placeSymbol({100, 100});
        placeLabel({200, 100});
        trigger("mnuFrameInsert");
        placeSymbol({150, 120}, "rain.gif");
        trigger("mnuFrameInsert");
        workspace.ProjectChanged = false;
    }
    void TearDown() override { workspace.ProjectChanged = false; }

    void copy(const QString& request) {
        window().findChild<CopySpecial*>()->copyBetweenFrames(request);
    }
    void showFrame(int number) {
        window().tabs().select(number);
        window().findChild<FrameCommands*>()->changeFrame();
    }
    int symbols(int number) { return frame(number).Sprites().Symbols().Count(); }
    int labels(int number) { return frame(number).Sprites().Labels().Count(); }

    /// Each sprite of the shown Frame has one control of its own, and there is no other.
    void expectCanvasShowsItsFrame() {
        QStringList expected;
        cSprites& sprites = frame(workspace.Status.CurrentFrame).Sprites();
        for (const cSymbol& symbol : sprites.Symbols()) {
            expected << "1|" + symbol.Key_ + '|' + QString::number(symbol.Index);
        }
        for (const cLabel& label : sprites.Labels()) {
            expected << "2|" + label.Key_ + '|' + QString::number(label.Index);
        }
        QStringList shown;
        for (const SpriteControl* control : window().canvas().sprites().controls()) {
            EXPECT_TRUE(control->visible);
            shown << QString::number(static_cast<int>(control->id.kind)) + '|' + control->id.key +
                         '|' + QString::number(control->Index);
        }
        EXPECT_EQ(shown, expected);
    }

    /// Opens the window by its menu entry, works in it, and closes it if it is still there.
    void inWindow(const std::function<void(frmUtility&)>& work) {
        bool opened = false;
        QTimer::singleShot(0, &window(), [&] {
            auto* dialog = qobject_cast<frmUtility*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            opened = true;
            work(*dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
        trigger("mnuCopySymbols");
        EXPECT_TRUE(opened);
    }
};

TEST_F(CopyingSpecially, EverythingButKeyFrameAndIndexIsCopied) {
    cSymbol& symbol = frame(1).Sprites().Symbols().Item(1);
    symbol.Link = "example.org";
    symbol.Tooltip = "tip";
    symbol.Note = "note";
    cLabel& label = frame(1).Sprites().Labels().Item(1);
    label.Text = "Storm";
    label.Font.Name = "Courier New";
    label.Font.Size = 20;
    label.Font.Bold = label.Font.Underline = label.Font.Strikeout = true;
    label.Font.Italic = label.Font.Overline = true;
    label.BackColor = 255;
    label.Font.Color = 65280;
    label.Border = 1;
    label.BorderColor = 77;
    label.Note = "wind";
    copy("1|3|0");
    ASSERT_EQ(symbols(3), 1);
    ASSERT_EQ(labels(3), 1);
    const auto strip = [](auto sprite) {
        sprite.Key_.clear();
        sprite.Frame = 0;
        sprite.Index = 0;
        return sprite;
    };
    const auto values = [](const auto& sprite) {
        QStringList texts;
        sprite.forEachSlot(sprite, [&texts](const Slot& slot, const auto& value) {
            texts << QStringLiteral("%1=%2").arg(QLatin1String(slot.name)).arg(value);
        });
        return texts;
    };
    EXPECT_EQ(values(strip(frame(3).Sprites().Symbols().Item(1))), values(strip(symbol)));
    EXPECT_EQ(values(strip(frame(3).Sprites().Labels().Item(1))), values(strip(label)));
    EXPECT_EQ(frame(3).Sprites().Symbols().Item(1).Frame, 3);
    EXPECT_EQ(symbols(1), 1);  // the source keeps its own
    EXPECT_EQ(labels(1), 1);
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(CopyingSpecially, WhatWasOnTheDestinationIsLostWithoutAPrompt) {
    copy("1|2|0");
    ASSERT_EQ(symbols(2), 1);
    EXPECT_TRUE(frame(2).Sprites().Symbols().Item(1).PathFileGif.endsWith("sun.gif"));
    EXPECT_EQ(frame(2).Sprites().Symbols().Item(1).Key_, "K-2");  // keys are never issued twice
    EXPECT_EQ(labels(2), 1);
}

TEST_F(CopyingSpecially, CuttingLeavesTheSourceEmpty) {
    copy("1|3|1");
    EXPECT_EQ(symbols(1) + labels(1), 0);
    EXPECT_EQ(symbols(3), 1);
    EXPECT_EQ(labels(3), 1);
}

TEST_F(CopyingSpecially, TheOrderOfTheSpritesStays) {
    showFrame(1);
    placeSymbol({300, 200}, "rain.gif");
    placeSymbol({350, 200}, "snow.gif");
    copy("1|3|0");
    ASSERT_EQ(symbols(3), 3);
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(frame(3).Sprites().Symbols().Item(i).FileGif,
                  frame(1).Sprites().Symbols().Item(i).FileGif);
    }
}

TEST_F(CopyingSpecially, TheCanvasShowsTheSelectedFramesSpritesEachOnce) {
    struct Case {
        int shown;
        const char* request;
    };
    for (const Case& c : {Case{3, "1|3|0"}, Case{1, "2|1|0"}, Case{1, "1|2|1"}, Case{2, "1|3|1"},
                          Case{3, "2|3|1"}, Case{1, "3|1|0"}, Case{2, "1|2|0"}}) {
        showFrame(c.shown);
        copy(c.request);
        EXPECT_EQ(workspace.Status.CurrentFrame, c.shown) << c.request;
        EXPECT_EQ(window().tabs().selected(), c.shown) << c.request;
        expectCanvasShowsItsFrame();
    }
}

TEST_F(CopyingSpecially, ControlsOfAnotherFrameWithTheSameKeysStay) {
    // The first Frame's sprites bear "K-1" as those of the Frame on the canvas do.
    showFrame(2);
    copy("3|1|0");
    EXPECT_EQ(window().canvas().sprites().controls().size(), 1U);
    expectCanvasShowsItsFrame();
}

TEST_F(CopyingSpecially, PicturesAndDrawingsStayWhereTheyAre) {
    for (int i = 1; i <= 3; ++i) {
        const std::array colors = {Qt::red, Qt::green, Qt::blue};
        workspace.pctPanel.setPicture(
            i, Picture(testing::plainImage({500, 400}, colors[static_cast<std::size_t>(i - 1)])));
    }
    std::array<const void*, 3> before{};
    for (int i = 1; i <= 3; ++i) {
        before[static_cast<std::size_t>(i - 1)] = workspace.pctPanel.picture(i).identity();
    }
    const Picture canvasBefore = workspace.pctMap.image();
    copy("1|3|1");
    copy("3|1|0");
    copy("2|1|0");
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(workspace.pctPanel.picture(i).identity(), before[static_cast<std::size_t>(i - 1)])
            << i;
    }
    EXPECT_TRUE(workspace.pctMap.image().sharesContentWith(canvasBefore));
}

TEST_F(CopyingSpecially, WhatWasSelectedOnAFrameInvolvedIsSoNoLonger) {
    showFrame(1);
    click({100, 100});
    ASSERT_FALSE(window().canvas().selection().isEmpty());
    copy("2|1|0");
    EXPECT_TRUE(window().canvas().selection().isEmpty());
    EXPECT_FALSE(window().commands()[Command::mnuCut]->isEnabled());
}

TEST_F(CopyingSpecially, ARequestThatNamesNoTwoFramesDoesNothing) {
    for (const char* request : {"", "1", "1|1|0", "0|1|0", "1|4|1", "-1|2|1", "a|b|c", "1|x|1",
                                "99999999999|1|1", "|||"}) {
        copy(request);
        EXPECT_EQ(symbols(1), 1) << request;
        EXPECT_EQ(labels(1), 1) << request;
        EXPECT_EQ(symbols(2), 1) << request;
        EXPECT_FALSE(workspace.ProjectChanged) << request;
    }
}

TEST_F(CopyingSpecially, TheWindowOffersEveryFrameAndStartsWithTheFirstTwo) {
    frame(2).Texts().Label = "Tomorrow & after";
    inWindow([this](frmUtility& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Copy special");
        EXPECT_EQ(testing::part<QCheckBox>(dialog, "chkOverwrite")->text().remove('&'),
                  "Cut symbols and labels from source map");
        for (const char* name : {"cboSourceMap", "cboDestMap"}) {
            const auto* list = testing::part<QComboBox>(dialog, name);
            ASSERT_EQ(list->count(), 3);
            EXPECT_EQ(list->itemText(1), "Tomorrow & after");
            EXPECT_EQ(list->itemData(2).toInt(), 3);
        }
        EXPECT_EQ(testing::part<QComboBox>(dialog, "cboSourceMap")->currentIndex(), 0);
        EXPECT_EQ(testing::part<QComboBox>(dialog, "cboDestMap")->currentIndex(), 1);
        EXPECT_EQ(window().findChild<CopySpecial*>()->CopyInfo, "");
    });
}

TEST_F(CopyingSpecially, OKCopiesAsTheWindowSays) {
    inWindow([](frmUtility& dialog) {
        testing::part<QComboBox>(dialog, "cboDestMap")->setCurrentIndex(2);
        testing::clickPart(dialog, "chkOverwrite");
        testing::clickPart(dialog, "cmdOk");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(window().findChild<CopySpecial*>()->CopyInfo, "1|3|1");
    EXPECT_EQ(symbols(1) + labels(1), 0);
    EXPECT_EQ(symbols(3) + labels(3), 2);
    expectCanvasShowsItsFrame();
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(CopyingSpecially, CancelAndEscapeCopyNothing) {
    window().findChild<CopySpecial*>()->CopyInfo = "1|2|1";
    inWindow([](frmUtility& dialog) { testing::clickPart(dialog, "cmdCancel"); });
    EXPECT_EQ(window().findChild<CopySpecial*>()->CopyInfo, "");
    inWindow([](frmUtility& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(symbols(1) + labels(1), 2);
    EXPECT_EQ(labels(2), 0);
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(CopyingSpecially, EachMissingChoiceGetsItsBoxAndTheKeyboardGoesThere) {
    inWindow([this](frmUtility& dialog) {
        testing::showActive(dialog);
        auto* source = testing::part<QComboBox>(dialog, "cboSourceMap");
        auto* destination = testing::part<QComboBox>(dialog, "cboDestMap");
        source->setCurrentIndex(-1);
        destination->setCurrentIndex(-1);
        shell.expectMessage("Select the source map.", Icon::Exclamation);
        testing::clickPart(dialog, "cmdOk");
        EXPECT_EQ(dialog.focusWidget(), source);
        source->setCurrentIndex(1);
        shell.expectMessage("Select the destination map.", Icon::Exclamation);
        testing::clickPart(dialog, "cmdOk");
        EXPECT_EQ(dialog.focusWidget(), destination);
        destination->setCurrentIndex(1);
        shell.expectMessage("Source and destination map cannot be the same.", Icon::Exclamation);
        testing::clickPart(dialog, "cmdOk");
        EXPECT_EQ(dialog.focusWidget(), destination);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(window().findChild<CopySpecial*>()->CopyInfo, "");
    });
}

TEST_F(CopyingSpecially, AProjectWithOneFrameHasNothingToCopyTo) {
    trigger("mnuFrameRemove");
    trigger("mnuFrameRemove");
    ASSERT_EQ(workspace.Frames().Count(), 1);
    shell.expectMessage("Source and destination map cannot be the same.", Icon::Exclamation);
    inWindow([](frmUtility& dialog) {
        EXPECT_EQ(testing::part<QComboBox>(dialog, "cboSourceMap")->count(), 1);
        EXPECT_EQ(testing::part<QComboBox>(dialog, "cboDestMap")->currentIndex(), 0);
        testing::clickPart(dialog, "cmdOk");
        EXPECT_TRUE(dialog.isVisible());
    });
}

}  // namespace nubivane
