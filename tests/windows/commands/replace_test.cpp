// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/many_fixture.h"
#include "windows/commands/frm_replace.h"
#include "windows/commands/replacements.h"

namespace nubivane {

/// Two Frames, each with symbols and a label.
class ReplacingInAllFrames : public testing::ManyFixture {
  protected:
    void startWithTwo() {
        startWithSprites();
        setText("Rain in Rome");
        trigger("mnuFrameInsert");
        label = {SpriteKind::Label, placeLabel({100, 100})};
        setText("rain, RAIN");
        placeSymbol({300, 300}, "rain.gif");
        edits = workspace.edits().count();
    }
    void setText(const QString& text) {
        changeSprite<cLabel>(workspace, label, "Change label text", {},
                             [&text](cLabel& record) { record.Text = text; });
    }
    QString text(qint32 frame) { return labels(frame).Item(1).Text; }
};

TEST_F(ReplacingInAllFrames, ATextIsReplacedInAllFramesByOneEdit) {
    startWithTwo();
    EXPECT_EQ(replaceLabelText(workspace, "rain", "snow", Qt::CaseInsensitive), 2);
    EXPECT_EQ(text(1), "snow in Rome");
    EXPECT_EQ(text(2), "snow, snow");
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(text(1), "Rain in Rome");
    EXPECT_EQ(text(2), "rain, RAIN");
    trigger("mnuRedo");
    EXPECT_EQ(text(1), "snow in Rome");
}

TEST_F(ReplacingInAllFrames, CapitalLettersMayCount) {
    startWithTwo();
    EXPECT_EQ(replaceLabelText(workspace, "rain", "snow", Qt::CaseSensitive), 1);
    EXPECT_EQ(text(1), "Rain in Rome");
    EXPECT_EQ(text(2), "snow, RAIN");
}

TEST_F(ReplacingInAllFrames, TheLabelOnTheMapFollowsWithItsSize) {
    startWithTwo();
    const int before = sprites().find(label)->rect.width();
    replaceLabelText(workspace, "RAIN", "thunderstorms", Qt::CaseSensitive);
    EXPECT_GT(sprites().find(label)->rect.width(), before);
    EXPECT_EQ(labels(2).Item(1).Width, sprites().find(label)->rect.width());
}

TEST_F(ReplacingInAllFrames, NoLabelIsLeftEmpty) {
    startWithTwo();
    EXPECT_EQ(replaceLabelText(workspace, "Rain in Rome", " ", Qt::CaseSensitive), 0);
    EXPECT_EQ(text(1), "Rain in Rome");
    EXPECT_EQ(made(), 0);
    EXPECT_EQ(replaceLabelText(workspace, "", "x", Qt::CaseSensitive), 0);
}

TEST_F(ReplacingInAllFrames, APictureIsReplacedWhereverItStands) {
    startWithTwo();
    const QString sun = model("Symbols/set-1/sun.gif");
    const QString rain = model("Symbols/set-1/rain.gif");
    EXPECT_EQ(picturesOf(workspace), (QStringList{rain, sun}));
    EXPECT_EQ(replacePicture(workspace, sun, rain), 3);
    EXPECT_EQ(picturesOf(workspace), QStringList{rain});
    EXPECT_EQ(symbols(1).Item(1).FileGif, rain);
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(symbols(1).Item(1).PathFileGif, sun);
    EXPECT_EQ(replacePicture(workspace, sun, sun), 0);
}

TEST_F(ReplacingInAllFrames, AFontIsReplacedInLabelsAndTexts) {
    startWithTwo();
    ASSERT_TRUE(fontsOf(workspace).contains("Arial"));
    EXPECT_GE(replaceFont(workspace, "arial", "Courier New"), 4);
    EXPECT_FALSE(fontsOf(workspace).contains("Arial"));
    EXPECT_EQ(labels(1).Item(1).Font.Name, "Courier New");
    EXPECT_EQ(frame(2).Texts().Forecast().Title().Font.Name, "Courier New");
    EXPECT_EQ(made(), 1);
    trigger("mnuUndo");
    EXPECT_EQ(frame(2).Texts().Forecast().Title().Font.Name, "Arial");
}

TEST_F(ReplacingInAllFrames, TheWindowTellsInHowManyPlaces) {
    startWithTwo();
    frmReplace dialog(
        workspace, [](QWidget*) { return std::nullopt; }, &window());
    dialog.show();
    auto& find = *dialog.findChild<QLineEdit*>("txtFind");
    auto& by = *dialog.findChild<QLineEdit*>("txtReplacement");
    auto& result = *dialog.findChild<QLabel*>("lblResult");
    auto& button = *dialog.findChild<QPushButton*>("cmdReplace");
    EXPECT_FALSE(button.isEnabled());
    QTest::keyClicks(&find, "rain");
    QTest::keyClicks(&by, "fog");
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(result.text(), "Replaced in 2 places.");
    EXPECT_EQ(text(2), "fog, fog");
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(result.text(), "Nothing was found to replace.");
}

TEST_F(ReplacingInAllFrames, TheWindowTakesTheSymbolThatIsChosen) {
    startWithTwo();
    const QString rain = model("Symbols/set-1/rain.gif");
    frmReplace dialog(
        workspace, [&](QWidget*) { return std::optional(rain); }, &window());
    dialog.show();
    dialog.findChild<QTabWidget*>("pages")->setCurrentIndex(1);
    auto& from = *dialog.findChild<QComboBox*>("cboPicture");
    from.setCurrentIndex(from.findData(model("Symbols/set-1/sun.gif")));
    auto& button = *dialog.findChild<QPushButton*>("cmdReplace");
    EXPECT_FALSE(button.isEnabled());
    QTest::mouseClick(dialog.findChild<QPushButton*>("cmdPicture"), Qt::LeftButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(symbols(1).Item(1).PathFileGif, rain);
}

}  // namespace nubivane
