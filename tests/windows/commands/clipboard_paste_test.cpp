// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/label_painter.h"
#include "windows/commands/clipboard_fixture.h"

#include <QFile>
#include <QPainter>

namespace nubivane {

/// Copying, cutting and pasting against the system clipboard.
class ClipboardPaste : public testing::ClipboardFixture {
  protected:
    /// A symbol with a value of its own in every property.
    QString placeFullSymbol() {
        const QString key = placeSymbol({100, 100});
        cSymbol& symbol = symbols(workspace.Status.CurrentFrame).Item(key);
        symbol.Width = 40;
        symbol.Height = 50;
        symbol.FileGif = "C:\\elsewhere\\sun.gif";
        symbol.Link = "www.example.org";
        symbol.Tooltip = "sunny";
        symbol.Note = "a note";
        return key;
    }
    /// A label with a value of its own in every property.
    QString placeFullLabel() {
        const QString key = placeLabel({300, 100});
        cLabel& label = labels(workspace.Status.CurrentFrame).Item(key);
        label.Text = "Snow above 800 m";
        label.Font.Name = "Times New Roman";
        label.Font.Size = 20;
        label.Font.Bold = label.Font.Underline = label.Font.Strikeout = true;
        label.BackColor = 65280;
        label.Font.Color = 255;
        label.Border = 1;
        label.BorderColor = 132;
        label.Note = "a note";
        return key;
    }
    /// The sprites of a Frame by their keys.
    QStringList keys(qint32 number = 1) {
        QStringList keys;
        for (const cSymbol& symbol : symbols(number)) {
            keys << "S " + symbol.Key_;
        }
        for (const cLabel& label : labels(number)) {
            keys << "T " + label.Key_;
        }
        return keys;
    }
    void expectSelected(SpriteControl* control) {
        ASSERT_NE(control, nullptr);
        EXPECT_EQ(selection().control(), control);
        ASSERT_NE(selection().shpSelector(), nullptr);
        EXPECT_EQ(selection().shpSelector()->spriteRect(), control->rect);
    }
};

TEST_F(ClipboardPaste, EachOperationPutsItsMarkerOnTheClipboard) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    EXPECT_EQ(marker(), "S<4><5>");
    trigger("mnuCut");
    EXPECT_EQ(marker(), "S<4><5><6>");
    placeLabel({200, 100});
    trigger("mnuCopy");
    EXPECT_EQ(marker(), "T<4><5>");
    trigger("mnuCut");
    EXPECT_EQ(marker(), "T<4><5><6>");
}

TEST_F(ClipboardPaste, CopyingLeavesEverythingButTheClipboardAsItWas) {
    start();
    const QString key = placeSymbol({100, 100});
    workspace.ProjectChanged = false;
    trigger("mnuCopy");
    EXPECT_EQ(keys(), QStringList({"S " + key}));
    expectSelected(symbolControl(key));
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(ClipboardPaste, ACutSpriteStaysOnItsFrameUntilThePaste) {
    start();
    const QString key = placeSymbol({100, 100});
    trigger("mnuCut");
    EXPECT_EQ(keys(), QStringList({"S " + key}));
    EXPECT_TRUE(symbolControl(key)->visible);
    expectSelected(symbolControl(key));
}

TEST_F(ClipboardPaste, APastedSymbolLandsAtTheCornerWithAllItsValuesAndIsSelected) {
    start();
    placeFullSymbol();
    trigger("mnuCopy");
    window().clearSelection();
    workspace.ProjectChanged = false;
    trigger("mnuPaste");

    ASSERT_EQ(keys(), QStringList({"S K-1", "S K-2"}));
    const cSymbol& pasted = symbols().Item("K-2");
    EXPECT_EQ(pasted.Name, "gifSymbol");
    EXPECT_EQ(pasted.Type_, sprite_type::Symbol);
    EXPECT_EQ(pasted.Frame, 1);
    EXPECT_EQ(pasted.Index, 2);
    EXPECT_EQ(QRect(pasted.PosX, pasted.PosY, pasted.Width, pasted.Height), QRect(6, 6, 40, 50));
    EXPECT_EQ(pasted.FileGif, "C:\\elsewhere\\sun.gif");
    EXPECT_EQ(pasted.PathFileGif, model("Symbols/set-1/sun.gif"));
    EXPECT_EQ(pasted.Link, "www.example.org");
    EXPECT_EQ(pasted.Tooltip, "sunny");
    EXPECT_EQ(pasted.Note, "a note");

    SpriteControl* control = symbolControl("K-2");
    expectSelected(control);
    EXPECT_EQ(control->Index, 2);
    EXPECT_EQ(control->id, (SpriteId{SpriteKind::Symbol, "K-2"}));
    EXPECT_EQ(control->rect, QRect(6, 6, 40, 50));
    EXPECT_TRUE(control->visible);
    EXPECT_FALSE(workspace.ProjectChanged) << "pasting alone asks for no saving";
}

TEST_F(ClipboardPaste, APastedLabelLandsAtTheCornerWithAllItsValuesAndIsSelected) {
    start();
    placeFullLabel();
    labels().Item("K-1").Width = 77;
    labels().Item("K-1").Height = 33;
    trigger("mnuCopy");
    trigger("mnuPaste");

    ASSERT_EQ(keys(), QStringList({"T K-1", "T K-2"}));
    const cLabel& pasted = labels().Item("K-2");
    EXPECT_EQ(pasted.Name, "lblTesto");
    EXPECT_EQ(pasted.Type_, sprite_type::Label);
    EXPECT_EQ(pasted.Frame, 1);
    EXPECT_EQ(pasted.Index, 2);
    EXPECT_EQ(QRect(pasted.PosX, pasted.PosY, pasted.Width, pasted.Height), QRect(6, 6, 77, 33));
    EXPECT_EQ(pasted.Text, "Snow above 800 m");
    EXPECT_EQ(pasted.Font.Name, "Times New Roman");
    EXPECT_EQ(pasted.Font.Size, 20);
    EXPECT_TRUE(pasted.Font.Bold);
    EXPECT_FALSE(pasted.Font.Italic);
    EXPECT_TRUE(pasted.Font.Underline);
    EXPECT_FALSE(pasted.Font.Overline);
    EXPECT_TRUE(pasted.Font.Strikeout);
    EXPECT_EQ(pasted.BackColor, 65280);
    EXPECT_EQ(pasted.Font.Color, 255);
    EXPECT_EQ(pasted.Border, 1);
    EXPECT_EQ(pasted.BorderColor, 132);
    EXPECT_EQ(pasted.Note, "a note");

    SpriteControl* control = labelControl("K-2");
    expectSelected(control);
    EXPECT_EQ(control->id, (SpriteId{SpriteKind::Label, "K-2"}));
    EXPECT_EQ(control->rect, QRect(QPoint(6, 6), labelSize(pasted)));
}

TEST_F(ClipboardPaste, APastedOpaqueLabelShowsTransparentUntilItsFrameIsEnteredAgain) {
    start();
    placeFullLabel();
    labels().Item("K-1").Text = "   ";
    labels().Item("K-1").Border = 0;
    trigger("mnuCopy");
    trigger("mnuPaste");
    window().clearSelection();
    const QPoint inside = labelControl("K-2")->rect.center();
    EXPECT_TRUE(testing::isNearly(shown(inside), Qt::cyan));
    EXPECT_EQ(labels().Item("K-2").BackColor, 65280);

    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(shown(inside), QColor(0, 255, 0));
}

TEST_F(ClipboardPaste, EveryPasteOfACopyAddsOneMoreAtTheSamePlace) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    trigger("mnuPaste");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-1", "S K-2", "S K-3"}));
    EXPECT_EQ(symbolRect("K-2"), QRect(6, 6, 32, 32));
    EXPECT_EQ(symbolRect("K-3"), QRect(6, 6, 32, 32));
    expectSelected(symbolControl("K-3"));
    EXPECT_EQ(marker(), "S<4><5>");
}

TEST_F(ClipboardPaste, TheFirstPasteOfACutMovesAndTheSecondCopies) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-2"}));
    EXPECT_EQ(symbolControl("K-1"), nullptr);
    EXPECT_EQ(symbols().Item("K-2").Index, 1) << "the place of the cut one is free again";
    expectSelected(symbolControl("K-2"));
    EXPECT_EQ(marker(), "S<4><5>");

    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-2", "S K-3"}));
    expectSelected(symbolControl("K-3"));
}

TEST_F(ClipboardPaste, ACutLabelMovesToo) {
    start();
    placeFullLabel();
    placeSymbol({100, 100});
    click({300, 100});
    trigger("mnuCut");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-1", "T K-2"}));
    EXPECT_EQ(labelControl("K-1"), nullptr);
    EXPECT_EQ(labels().Item("K-2").Text, "Snow above 800 m");
    EXPECT_EQ(marker(), "T<4><5>");
}

TEST_F(ClipboardPaste, ASpriteCutOnOneFrameAndPastedOnAnotherLeavesTheFirst) {
    start();
    trigger("mnuFrameInsert");
    const QString key = placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuFrameInsert");
    ASSERT_EQ(workspace.Status.CurrentFrame, 3);
    EXPECT_EQ(keys(2), QStringList({"S " + key}));
    trigger("mnuPaste");
    EXPECT_EQ(keys(2), QStringList());
    EXPECT_EQ(keys(3), QStringList({"S K-1"}));
    EXPECT_EQ(symbols(3).Item("K-1").Frame, 3);
    expectSelected(symbolControl("K-1"));

    selectTab(2);
    EXPECT_TRUE(sprites().controls().empty());
}

TEST_F(ClipboardPaste, ASpriteOfTheSameKeyOnTheCurrentFrameStaysWhenAnotherFramesIsCut) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuFrameInsert");
    placeSymbol({200, 100}, "rain.gif");
    trigger("mnuPaste");
    EXPECT_EQ(keys(1), QStringList());
    EXPECT_EQ(keys(2), QStringList({"S K-1", "S K-2"}));
    EXPECT_NE(symbolControl("K-1"), nullptr);
}

TEST_F(ClipboardPaste, ACopySurvivesChangesOfFrameAndOfItsSource) {
    start();
    placeFullSymbol();
    trigger("mnuCopy");
    trigger("mnuDelSymbol");
    trigger("mnuFrameInsert");
    trigger("mnuPaste");
    EXPECT_EQ(keys(1), QStringList());
    EXPECT_EQ(keys(2), QStringList({"S K-1"}));
    EXPECT_EQ(symbols(2).Item("K-1").Note, "a note");
    EXPECT_EQ(symbols(2).Item("K-1").Frame, 2);
}

TEST_F(ClipboardPaste, ACutSpriteThatWasDeletedMeanwhileIsStillPasted) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuDelSymbol");
    placeSymbol({200, 100}, "rain.gif");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-2", "S K-3"}));
    EXPECT_EQ(marker(), "S<4><5>");
}

TEST_F(ClipboardPaste, WhenTheFrameOfACutSpriteIsGoneNothingIsRemovedInItsStead) {
    start();
    placeSymbol({200, 100}, "rain.gif");
    trigger("mnuFrameInsert");
    placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuFrameRemove");
    ASSERT_EQ(workspace.Frames().Count(), 1);
    trigger("mnuPaste");
    EXPECT_EQ(keys(1), QStringList({"S K-1", "S K-2"}));
    EXPECT_EQ(symbols(1).Item("K-2").PathFileGif, model("Symbols/set-1/sun.gif"));
}

TEST_F(ClipboardPaste, WhenTheFrameOfACutSpriteIsRenumberedNothingIsRemovedInItsStead) {
    start();
    trigger("mnuFrameInsert");
    placeSymbol({100, 100});
    trigger("mnuCut");
    trigger("mnuFrameInsert");
    placeSymbol({200, 100}, "rain.gif");  // Frame 3, also "K-1"
    selectTab(1);
    trigger("mnuFrameRemove");
    ASSERT_EQ(keys(2), QStringList({"S K-1"}));  // once Frame 3
    trigger("mnuPaste");
    EXPECT_EQ(keys(2), QStringList({"S K-1"}));
    EXPECT_EQ(keys(1), QStringList({"S K-1", "S K-2"}));
}

TEST_F(ClipboardPaste, ASpriteCutAfterItsFrameWasRenumberedLeavesIt) {
    start();
    trigger("mnuFrameInsert");
    placeSymbol({100, 100});
    selectTab(1);
    trigger("mnuFrameRemove");
    ASSERT_EQ(symbols(1).Item("K-1").Frame, 2) << "its own number is stale";
    click({100, 100});
    trigger("mnuCut");
    trigger("mnuPaste");
    EXPECT_EQ(keys(1), QStringList({"S K-2"}));
}

TEST_F(ClipboardPaste, ACopySurvivesANewProjectAndRemovesNothingThere) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCut");
    workspace.ProjectChanged = false;
    trigger("mnuNewProject");
    ASSERT_EQ(keys(), QStringList());
    placeSymbol({200, 100}, "rain.gif");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-1", "S K-2"}));
    EXPECT_EQ(symbols().Item("K-1").PathFileGif, model("Symbols/set-1/rain.gif"));
    EXPECT_EQ(symbols().Item("K-2").PathFileGif, model("Symbols/set-1/sun.gif"));
}

TEST_F(ClipboardPaste, CopyingWithoutASelectionForgetsTheCopyAndLeavesTheClipboard) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    window().clearSelection();
    window().findChild<ClipboardCommands*>()->copySprite();
    EXPECT_EQ(marker(), "S<4><5>");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-1"}));
}

TEST_F(ClipboardPaste, AMarkerOfTheOtherKindFromASecondEditorPastesAndRemovesNothing) {
    start();
    placeLabel({100, 100});
    trigger("mnuCut");
    clipboard().setText(SpriteMarker{SpriteKind::Symbol, true}.text());
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"T K-1"}));
    EXPECT_EQ(marker(), "S<4><5><6>");
}

TEST_F(ClipboardPaste, ACutMarkerFromASecondEditorDoesNotRemoveWhatWasOnlyCopiedHere) {
    start();
    placeSymbol({100, 100});
    trigger("mnuCopy");
    clipboard().setText(SpriteMarker{SpriteKind::Symbol, true}.text());
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-1", "S K-2"}));
    EXPECT_EQ(marker(), "S<4><5>");
}

TEST_F(ClipboardPaste, ASymbolWhoseFileIsGoneIsPastedIntoTheModelAllTheSame) {
    start();
    const QString file = addStill("passing.png", {10, 10});
    placeSymbol({100, 100}, file);
    trigger("mnuCopy");
    trigger("mnuFrameInsert");
    QFile::remove(host("Symbols/set-1/" + file));
    trigger("mnuPaste");
    ASSERT_EQ(keys(2), QStringList({"S K-1"}));
    expectSelected(symbolControl("K-1"));
    trigger("mnuDelSymbol");
    EXPECT_EQ(keys(2), QStringList());
}

TEST_F(ClipboardPaste, AMovingSymbolPlaysAfterThePaste) {
    start();
    placeSymbol({100, 100}, addMoving("blink.gif", {10, 10, 10}));
    trigger("mnuCopy");
    trigger("mnuPaste");
    auto* control = dynamic_cast<GifSymbol*>(symbolControl("K-2"));
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(control->nextChange(window().canvas().clock().now()).has_value());
}

TEST_F(ClipboardPaste, ALockedMapTakesAPaste) {
    start();
    placeSymbol({100, 100});
    trigger("mnuLock");
    trigger("mnuCut");
    trigger("mnuPaste");
    EXPECT_EQ(keys(), QStringList({"S K-2"}));
}

TEST_F(ClipboardPaste, ACutSpriteCanBePastedWhileItIsDragged) {
    startActive();
    placeSymbol({100, 100});
    trigger("mnuCut");
    press({100, 100});
    move({140, 140});
    key(Qt::Key_V, Qt::ControlModifier);
    move({180, 180});
    release({180, 180});
    EXPECT_EQ(keys(), QStringList({"S K-2"}));
    EXPECT_EQ(symbolRect("K-2"), QRect(6, 6, 32, 32));
    expectSelected(symbolControl("K-2"));
}

TEST_F(ClipboardPaste, TheKeysOfTheKeyboardDoIt) {
    startActive();
    placeSymbol({100, 100});
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(marker(), "S<4><5>");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(keys(), QStringList({"S K-1", "S K-2"}));
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(marker(), "S<4><5><6>");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(keys(), QStringList({"S K-1", "S K-3"}));
    key(Qt::Key_Delete);
    EXPECT_EQ(keys(), QStringList({"S K-1"}));
}

/// The field laid over a tab keeps the keys for its own text.
TEST_F(ClipboardPaste, InTheFieldForATabsNameTheKeysActOnTheText) {
    startActive();
    placeSymbol({100, 100});
    trigger("mnuMapRename");
    QLineEdit& field = *window().tabs().txtDay();
    ASSERT_TRUE(field.hasFocus());
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), "Map1");
    key(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), "Map1");
    EXPECT_EQ(field.text(), "");
    key(Qt::Key_V, Qt::ControlModifier);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "Map1Map1");
    key(Qt::Key_Home);
    key(Qt::Key_Delete);
    EXPECT_EQ(field.text(), "ap1Map1");
    EXPECT_EQ(keys(), QStringList({"S K-1"}));
    EXPECT_FALSE(selection().isEmpty());
}

TEST_F(ClipboardPaste, APastedLabelStaysTransparentWhileItsOtherPropertiesChange) {
    startActive();
    const QString key = placeLabel({100, 100});
    labels().Item(key).BackColor = 0xFF0000;
    trigger("mnuCopy");
    trigger("mnuPaste");
    auto* pasted = dynamic_cast<LblTesto*>(selection().control());
    ASSERT_TRUE(pasted);
    cLabel changed;
    changed.Text = "21";
    changed.Font.Name = "Arial";
    changed.Font.Size = 12;
    changed.BackColor = 0xFF0000;
    changed.Border = 1;
    pasted->show(changed);
    QImage shown(pasted->rect.size(), QImage::Format_RGB32);
    shown.fill(Qt::white);
    QPainter painter(&shown);
    painter.translate(-pasted->rect.topLeft());
    pasted->paint(painter);
    painter.end();
    EXPECT_EQ(shown.pixelColor(2, 2), QColor(Qt::white));
    pasted->setBackColor(0xFF0000);
    painter.begin(&shown);
    painter.translate(-pasted->rect.topLeft());
    pasted->paint(painter);
    painter.end();
    EXPECT_EQ(shown.pixelColor(2, 2), QColor(Qt::blue));
}

}  // namespace nubivane
