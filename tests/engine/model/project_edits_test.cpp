// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"

#include "engine/model/edits/frame_edits.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/edits/text_edits.h"
#include "support/fixtures.h"

namespace nubivane {

namespace {

/// Writes down what it was told.
class Diary : public EditWatcher {
  public:
    QStringList told;
    ProjectChange last;

    void travelBegins() override { told << "travel"; }
    void framesWillChange() override { told << "will"; }
    void framesChanged() override { told << "frames"; }
    void spriteAdded(qint32, const SpriteId& id, Arrival, std::optional<int>) override {
        told << "added " + id.key;
    }
    void spriteWillGo(qint32, const SpriteId& id) override { told << "goes " + id.key; }
    void spriteChanged(qint32, const SpriteRecord&, const SpriteRecord&) override {
        told << "changed";
    }
    void reveal(const EditPlace& place) override {
        told << QString("reveal %1 %2").arg(place.frame).arg(place.sprite ? place.sprite->key : "");
    }
    void edited(const ProjectChange& change) override {
        told << "edited";
        last = change;
    }
};

}  // namespace

/// The stack of edits over a workspace without any window.
class Edits : public testing::WorkspaceFixture {
  protected:
    Edits() {
        useMap("map.png", {60, 40});
        workspace.resetProject();
        workspace.clearTempPicture();
        workspace.Frames().Item(1).Texts().Label = "Map1";
        workspace.showFrame(1);
    }

    ProjectEdits& edits() { return workspace.edits(); }
    cSprites& sprites(qint32 frame = 1) { return workspace.Frames().Item(frame).Sprites(); }

    SpriteId place(Marks marks = Marks::Project) {
        cSymbol symbol;
        symbol.Name = "gifSymbol";
        symbol.PathFileGif = model("Symbols/set-1/sun.gif");
        const qint32 frame = workspace.Status.CurrentFrame;
        auto edit = std::make_unique<AddSprite>(
            "Place symbol", marks, workspace.Frames().Item(frame), frame, symbol, Arrival::Dropped);
        const SpriteId id = edit->id();
        edits().push(std::move(edit));
        return id;
    }
    void note(const SpriteId& id, const QString& text) {
        changeSprite<cSymbol>(workspace, id, "Change symbol notes", "note",
                              [&](cSymbol& symbol) { symbol.Note = text; });
    }
    QStringList names() {
        QStringList names;
        for (int i = 0; i < edits().count(); ++i) {
            names << edits().at(i).text();
        }
        return names;
    }
};

TEST_F(Edits, APlacedSpriteGoesAndComesBackUnderItsOwnKey) {
    const SpriteId first = place();
    EXPECT_EQ(first.key, "K-1");
    EXPECT_EQ(edits().undoText(), "Place symbol");
    edits().undo();
    EXPECT_EQ(sprites().Count(), 0);
    EXPECT_FALSE(edits().canUndo());
    EXPECT_EQ(edits().redoText(), "Place symbol");
    edits().redo();
    EXPECT_TRUE(sprites().contains(first));
    edits().undo();
    EXPECT_EQ(place().key, "K-2") << "a key is never issued again";
    EXPECT_FALSE(edits().canRedo());
}

TEST_F(Edits, ADeletedSpriteComesBackToItsPlaceInTheList) {
    place();
    const SpriteId second = place();
    place();
    edits().push(std::make_unique<RemoveSprite>("Delete symbol", Marks::Nothing, 1, second));
    EXPECT_EQ(sprites().Count(), 2);
    edits().undo();
    EXPECT_EQ(sprites().Symbols().positionOf(second.key), 2);
}

TEST_F(Edits, WhatIsTypedInAFieldIsOneEditUntilItIsLeft) {
    const SpriteId id = place();
    for (const char* text : {"r", "ra", "rai", "rain"}) {
        note(id, text);
    }
    EXPECT_EQ(edits().count(), 2);
    edits().seal();
    note(id, "rain!");
    EXPECT_EQ(edits().count(), 3);
    edits().undo();
    EXPECT_EQ(sprites().Symbols().Item(id.key).Note, "rain");
    edits().undo();
    EXPECT_EQ(sprites().Symbols().Item(id.key).Note, "");
}

TEST_F(Edits, SeriesOfTwoSpritesStayApart) {
    const SpriteId first = place();
    const SpriteId second = place();
    note(first, "a");
    note(second, "a");
    EXPECT_EQ(edits().count(), 4);
}

TEST_F(Edits, AnEditThatChangesNothingIsNotKeptButMarksTheProjectWhereItAlwaysHas) {
    const SpriteId id = place(Marks::Nothing);
    EXPECT_FALSE(workspace.ProjectChanged);
    moveSprite(workspace, id, {0, 0}, Marks::Nothing);
    EXPECT_FALSE(workspace.ProjectChanged);
    moveSprite(workspace, id, {0, 0}, Marks::Project);
    EXPECT_TRUE(workspace.ProjectChanged);
    EXPECT_EQ(edits().count(), 1);
}

TEST_F(Edits, TakingBackMarksTheProjectAsTheEditDid) {
    const SpriteId id = place();
    moveSprite(workspace, id, {5, 5}, Marks::Nothing);
    workspace.ProjectChanged = false;
    edits().undo();
    EXPECT_FALSE(workspace.ProjectChanged);
    edits().undo();
    EXPECT_TRUE(workspace.ProjectChanged);
}

TEST_F(Edits, TheSavedStateIsKnownAndNoLaterEditBecomesPartOfIt) {
    const SpriteId id = place();
    note(id, "a");
    edits().markSaved();
    EXPECT_EQ(edits().savedIndex(), 2);
    note(id, "ab");
    EXPECT_EQ(edits().count(), 3);
    EXPECT_EQ(edits().savedIndex(), 2);
    edits().goTo(0);
    EXPECT_EQ(edits().savedIndex(), 2);
    place();
    EXPECT_EQ(edits().savedIndex(), std::nullopt) << "it cannot be reached any more";
}

TEST_F(Edits, AnotherProjectEndsTheStack) {
    place();
    workspace.resetProject();
    EXPECT_FALSE(edits().canUndo());
    EXPECT_EQ(edits().count(), 0);
}

TEST_F(Edits, TheOldestGoWhenTheMemoryIsUsedUp) {
    ProjectEdits small(workspace, 20'000);
    const cFrame& frame = workspace.Frames().Item(1);
    const auto write = [&](const QString& text) {
        TextLine title = frame.Texts().Forecast().Title();
        title.Text = text;
        small.push(std::make_unique<ChangeText>("Change title", 1, TextId{TextPart::Title}, title));
    };
    for (int i = 0; i < 50; ++i) {
        write(QString(500, QChar('a' + i % 26)));
    }
    EXPECT_TRUE(small.hasForgotten());
    EXPECT_LE(small.bytes(), 20'000);
    EXPECT_GT(small.count(), 2);
    while (small.canUndo()) {
        small.undo();
    }
    EXPECT_EQ(frame.Texts().Forecast().Title().Text.size(), 500);
    small.goTo(small.count());
    EXPECT_EQ(frame.Texts().Forecast().Title().Text, QString(500, QChar('a' + 49 % 26)));
}

TEST_F(Edits, AWatcherIsToldInOrder) {
    Diary diary;
    edits().watch(diary);
    place();
    EXPECT_EQ(diary.told, QStringList({"added K-1", "edited"}));
    EXPECT_EQ(diary.last.frames, QList<qint32>{1});
    diary.told.clear();
    edits().undo();
    EXPECT_EQ(diary.told, QStringList({"travel", "goes K-1", "edited", "reveal 1 "}));
    diary.told.clear();
    edits().redo();
    EXPECT_EQ(diary.told, QStringList({"travel", "added K-1", "edited", "reveal 1 K-1"}));
    edits().unwatch(diary);
    diary.told.clear();
    edits().undo();
    EXPECT_EQ(diary.told, QStringList());
}

TEST_F(Edits, UndoGoesToTheFrameOnWhichItWorks) {
    place();
    edits().push(std::make_unique<InsertFrame>("Map2"));
    ASSERT_EQ(workspace.Status.CurrentFrame, 2);
    place();
    edits().showFrame(1);
    edits().undo();
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_EQ(sprites(2).Count(), 0);
}

TEST_F(Edits, ARemovedFrameComesBackWithAllThatWasOnIt) {
    edits().push(std::make_unique<InsertFrame>("Map2"));
    const SpriteId id = place();
    edits().push(std::make_unique<RemoveFrame>(2));
    EXPECT_EQ(workspace.Frames().Count(), 1);
    EXPECT_EQ(workspace.Status.CurrentFrame, 1);
    edits().undo();
    EXPECT_EQ(workspace.Frames().Count(), 2);
    EXPECT_EQ(workspace.Status.CurrentFrame, 2);
    EXPECT_EQ(workspace.Frames().Item(2).Texts().Label, "Map2");
    EXPECT_TRUE(sprites(2).contains(id));
}

TEST_F(Edits, AnotherMapTakesAllAwayAndUndoBringsItBack) {
    const SpriteId id = place();
    const QString before = workspace.Status.CurrentMap;
    testing::writeFile(host("Maps/other.png"),
                       encodePicture(testing::plainImage({30, 20}, Qt::red), PictureFormat::Png));
    edits().push(std::make_unique<ChangeMap>(
        model("Maps/other.png"), Picture::fromEncoded(testing::readFile(host("Maps/other.png")))));
    EXPECT_EQ(sprites().Count(), 0);
    EXPECT_EQ(workspace.pctMap.ScaleWidth(), 30);
    edits().undo();
    EXPECT_EQ(workspace.Status.CurrentMap, before);
    EXPECT_EQ(settings.text(Setting::CurrentMap), before);
    EXPECT_EQ(workspace.pctMap.ScaleWidth(), 60);
    EXPECT_TRUE(sprites().contains(id));
    edits().redo();
    EXPECT_EQ(workspace.pctMap.ScaleWidth(), 30);
    EXPECT_EQ(sprites().Count(), 0);
}

TEST_F(Edits, ARenamedFolderOfSymbolsIsFollowedByWhatIsKept) {
    const SpriteId id = place();
    edits().push(std::make_unique<RemoveSprite>("Delete symbol", Marks::Nothing, 1, id));
    edits().renameFolder(model("Symbols/set-1"), model("Symbols/sky"));
    edits().undo();
    EXPECT_EQ(sprites().Symbols().Item(id.key).PathFileGif, model("Symbols/sky/sun.gif"));
}

}  // namespace nubivane
