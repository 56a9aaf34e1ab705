// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/handmade_project.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"

namespace nubivane::testing {

namespace {

class ProjectFormat : public WorkspaceFixture {
  protected:
    ProjectFormat() { useMap("plain.png", {8, 6}); }

    QString file() const { return temporary.file("weather.nvpf"); }

    QByteArray saved() {
        workspace.Status.CurrentProject = host_files::toModel(file());
        EXPECT_TRUE(saveProject(editor(), false));
        return readFile(file());
    }

    cLabel& addLabel(const QString& text) {
        return workspace.Frames().Item(1).Sprites().Labels().add(
            {.Name = "lblTesto",
             .Index = 1,
             .Frame = 1,
             .Width = 39,
             .Height = 18,
             .Font = {.Name = "Arial", .Size = 12},
             .BackColor = -1,
             .Border = 1,
             .PosX = 60,
             .PosY = 80,
             .Text = text});
    }

    cLabel& label() { return workspace.Frames().Item(1).Sprites().Labels().Item(1); }

    /// The three flags as letters: u, o, s.
    QString flags() {
        QString text;
        text += label().Font.Underline ? "u" : "";
        text += label().Font.Overline ? "o" : "";
        text += label().Font.Strikeout ? "s" : "";
        return text;
    }
};

}  // namespace

TEST_F(ProjectFormat, NoCheckedCollectionLeavesAnEmptyElement) {
    workspace.Status.SymbolsCollection().Add(model("Symbols/sea"), "sea");
    EXPECT_TRUE(saved().contains("Version=\"2.0\"><Collection/><Frames>"));
}

TEST_F(ProjectFormat, ACollectionIsStoredByItsNameTwice) {
    workspace.Status.SymbolsCollection().Add(model("Symbols/sea"), "sea").Checked = true;
    workspace.Status.SymbolsCollection().Add(model("Symbols/set-1"), "set-1").Checked = true;
    EXPECT_TRUE(
        saved().contains("<Collection><Item Name=\"sea\" Path=\"sea\"/>"
                         "<Item Name=\"set-1\" Path=\"set-1\"/></Collection>"));
}

TEST_F(ProjectFormat, AFrameWithoutSpritesAndTextsHasOnlyDivTitleAndSubtitle) {
    const QByteArray xml = saved();
    EXPECT_TRUE(xml.contains("</Subtitle></Frame>"));
    for (const char* absent : {"<Header", "<Body", "<Symbol", "<Label"}) {
        EXPECT_FALSE(xml.contains(absent)) << absent;
    }
}

TEST_F(ProjectFormat, HasNoDeclarationAndNoLineBreaks) {
    addLabel("two\r\nlines\nof\ttext");
    const QByteArray xml = saved();
    EXPECT_TRUE(xml.startsWith("<FILE Frames=\"1\" Map=\"plain.png\" Size=\""));
    EXPECT_TRUE(xml.endsWith("</Frame></Frames></FILE>"));
    EXPECT_FALSE(xml.contains('\n'));
    EXPECT_FALSE(xml.contains('\r'));
}

TEST_F(ProjectFormat, ALineBreakInALabelComesBack) {
    addLabel("two\r\nlines\nof\ttext \r");
    EXPECT_TRUE(saved().contains("Text=\"two&#13;&#10;lines&#10;of&#9;text &#13;\""));
    open(file());
    EXPECT_EQ(label().Text, "two\r\nlines\nof\ttext \r");
}

TEST_F(ProjectFormat, ALineBreakInATitleComesBack) {
    workspace.Frames().Item(1).Texts().Forecast().Title().Text = "\r\n two\rlines\n ";
    saved();
    open(file());
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Forecast().Title().Text, "\r\n two\rlines\n ");
}

TEST_F(ProjectFormat, CharactersThatXmlCannotHoldAreLeftOut) {
    const QString text = QString("a") + QChar(1) + QChar(0) + QChar(0xD800) + "b" + QChar(0xFFFE) +
                         QChar(0xFFFF) + QChar(0x1F) + QChar(0xDC00) + "c";
    addLabel(text).Note = text;
    workspace.Frames().Item(1).Texts().Label = text;
    workspace.Frames().Item(1).Texts().Forecast().Title().Text = text;
    saved();
    open(file());
    EXPECT_EQ(label().Text, "abc");
    EXPECT_EQ(label().Note, "abc");
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "abc");
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Forecast().Title().Text, "abc");
}

TEST_F(ProjectFormat, LabelFlagsMoveOnByOneAtEachOpening) {
    addLabel("x").Font.Underline = true;
    for (const char* expected : {"s", "o", "u", "s"}) {
        saved();
        open(file());
        EXPECT_EQ(flags(), expected);
    }
}

TEST_F(ProjectFormat, TwoLabelFlagsMoveOnTogether) {
    addLabel("x").Font.Underline = true;
    label().Font.Overline = true;
    for (const char* expected : {"us", "os", "uo"}) {
        saved();
        open(file());
        EXPECT_EQ(flags(), expected);
    }
}

TEST_F(ProjectFormat, FlagsOfTitlesHeadersAndBodiesStayPut) {
    cForecast& forecast = workspace.Frames().Item(1).Texts().Forecast();
    forecast.Title().Font.Underline = true;
    forecast.Header().add({.Font = {.Name = "Arial", .Size = 8, .Underline = true},
                           .IndexFontSize = 3,
                           .BackColor = -1,
                           .Text = "h"});
    forecast.Body().add({.Font = {.Name = "Arial", .Size = 8, .Overline = true},
                         .IndexFontSize = 3,
                         .BackColor = -1,
                         .Text = "b"});
    saved();
    open(file());
    const cForecast& read = workspace.Frames().Item(1).Texts().Forecast();
    EXPECT_TRUE(read.Title().Font.Underline);
    EXPECT_TRUE(read.Header().Item(1).Font.Underline);
    EXPECT_TRUE(read.Body().Item(1).Font.Overline);
    EXPECT_FALSE(read.Body().Item(1).Font.Underline);
}

TEST_F(ProjectFormat, IndexFontSizeIsNotStored) {
    cForecast& forecast = workspace.Frames().Item(1).Texts().Forecast();
    forecast.Title().IndexFontSize = 5;
    forecast.Header().add({.IndexFontSize = 5, .BackColor = -1, .Text = "h"});
    saved();
    open(file());
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Forecast().Title().IndexFontSize, 0);
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Forecast().Header().Item(1).IndexFontSize, 1);
}

TEST_F(ProjectFormat, ASymbolIsStoredByItsLastFolderAndName) {
    const QString path = model("Symbols/sea/wave.png");
    workspace.Frames().Item(1).Sprites().Symbols().add({.Name = "gifSymbol",
                                                        .Frame = 1,
                                                        .PosX = 4,
                                                        .PosY = 5,
                                                        .Width = 3,
                                                        .Height = 2,
                                                        .FileGif = "ignored",
                                                        .PathFileGif = path,
                                                        .Index = 1,
                                                        .Link = "link",
                                                        .Tooltip = "tip",
                                                        .Note = "note"});
    EXPECT_TRUE(
        saved().contains("<Symbol><Item Filename=\"sea\\wave.png\" Height=\"2\" "
                         "Width=\"3\" Left=\"4\" Top=\"5\" Link=\"link\" "
                         "Tooltip=\"tip\" Note=\"note\"/></Symbol>"));
}

TEST_F(ProjectFormat, ValuesAreTakenByPositionWhateverTheirNames) {
    HandmadeProject project;
    project.frameBodies = {
        "<Symbol>" +
        HandmadeProject::symbolItem("set-1\\sun.gif")
            .replace("Height=\"11\" Width=\"12\"", "Width=\"12\" Height=\"11\"") +
        "</Symbol>"};
    project.write(file());
    open(file());
    const cSymbol& symbol = workspace.Frames().Item(1).Sprites().Symbols().Item(1);
    EXPECT_EQ(symbol.Height, 12);
    EXPECT_EQ(symbol.Width, 11);
}

TEST_F(ProjectFormat, FramesStandInTheOrderOfTheDocumentAndBlocksInThatOfNumber) {
    HandmadeProject project;
    project.blocks << encodePicture(plainImage({9, 9}, Qt::green), PictureFormat::Png);
    QByteArray xml = project.xml();
    const QByteArray first = project.frameElement(1).toUtf8();
    const QByteArray second = project.frameElement(2).toUtf8();
    xml.replace(first + second, second + first);
    project.writeWith(file(), xml);
    open(file());
    EXPECT_EQ(workspace.Frames().Item(1).Texts().Label, "Day 2");
    EXPECT_TRUE(workspace.pctPanel.picture(1).originalBytes() == project.blocks[0]);
    EXPECT_TRUE(workspace.pctPanel.picture(2).originalBytes() == project.blocks[1]);
}

}  // namespace nubivane::testing
