// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/handmade_project.h"
#include "engine/project/open_project.h"

#include <string_view>

namespace nubivane {

namespace {

/// Opens projects whose one Frame holds one record with one value put in the place of another.
class SpriteValues : public testing::WorkspaceFixture {
  protected:
    QString target() const { return temporary.file("p.nvpf"); }

    bool opens(const QString& frameBody) {
        testing::HandmadeProject project;
        project.frameBodies = QStringList{frameBody};
        project.write(target());
        try {
            OpenProject(editor(), host_files::toModel(target()));
        } catch (const Error& error) {
            cause = error.cause();
            return false;
        }
        return true;
    }

    bool opensLabel(const QString& fontSize, const QString& border = "0") {
        return opens(QStringLiteral("<Label><Item a=\"1\" b=\"2\" c=\"%2\" d=\"4\" e=\"Arial\" "
                                    "f=\"%1\" g=\"True\" h=\"0\" i=\"True\" j=\"False\" "
                                    "k=\"false\" l=\"11\" m=\"12\" n=\"13\" o=\"14\" p=\"text\" "
                                    "q=\"note\"/></Label>")
                         .arg(fontSize, border));
    }

    bool opensItem(const QString& fontSize, const QString& list = "Header") {
        return opens(QStringLiteral("<%2><Item a=\"1\" b=\"2\" c=\"Arial\" d=\"%1\" e=\"True\" "
                                    "f=\"False\" g=\"True\" h=\"False\" i=\"True\" j=\"t\"/></%2>")
                         .arg(fontSize, list));
    }

    const cSprites& sprites() { return workspace.Frames().Item(1).Sprites(); }
    const cForecast& forecast() { return workspace.Frames().Item(1).Texts().Forecast(); }

    QString cause;
};

}  // namespace

TEST_F(SpriteValues, ALabelTakesItsValuesByPositionWhateverTheyAreCalled) {
    ASSERT_TRUE(opensLabel("12", "1"));
    const cLabel& label = sprites().Labels().Item(1);
    EXPECT_EQ(label.Key_, "K-1");
    EXPECT_EQ(label.Name, "lblTesto");
    EXPECT_EQ(label.Type_, sprite_type::Label);
    EXPECT_EQ(label.Index, 1);
    EXPECT_EQ(label.Frame, 1);
    EXPECT_EQ(label.BackColor, 1);
    EXPECT_EQ(label.Border, 1);
    EXPECT_EQ(label.BorderColor, 4);
    EXPECT_EQ(
        label.Font,
        (FontStyle{.Name = "Arial", .Size = 12, .Bold = true, .Underline = true, .Color = 2}));
    EXPECT_EQ(label.Height, 11);
    EXPECT_EQ(label.Width, 12);
    EXPECT_EQ(label.PosX, 13);
    EXPECT_EQ(label.PosY, 14);
    EXPECT_EQ(label.Text, "text");
    EXPECT_EQ(label.Note, "note");
}

TEST_F(SpriteValues, NumbersAreRoundedToEvenAndLabelsHaveLargeSizes) {
    for (const auto& [text, size] :
         {std::pair{" 10 ", 10}, {"8.5", 8}, {"9.5", 10}, {"70000", 70000}}) {
        ASSERT_TRUE(opensLabel(text)) << text;
        EXPECT_EQ(sprites().Labels().Item(1).Font.Size, size) << text;
    }
    ASSERT_TRUE(opensLabel("8", "-32768"));
    EXPECT_EQ(sprites().Labels().Item(1).Border, -32768);
}

TEST_F(SpriteValues, ALabelWhoseValueIsNoNumberIsDamageAndIsLeftOut) {
    for (const auto& [size, border] : {std::pair{"abc", "0"},
                                       {"", "0"},
                                       {"2147483648", "0"},
                                       {"8", "thick"},
                                       {"8", ""},
                                       {"8", "32768"}}) {
        EXPECT_FALSE(opensLabel(size, border)) << size << ", " << border;
        EXPECT_TRUE(cause.contains("of Label is no ")) << cause.toStdString();
        EXPECT_EQ(sprites().Labels().Count(), 0);
    }
}

TEST_F(SpriteValues, AnItemTakesItsValuesByPosition) {
    for (const char* list : {"Header", "Body"}) {
        ASSERT_TRUE(opensItem("10", list));
        const TextItem& item = list == std::string_view("Header")
                                   ? static_cast<const TextItem&>(forecast().Header().Item(1))
                                   : forecast().Body().Item(1);
        EXPECT_EQ(item.BackColor, 1);
        EXPECT_EQ(item.Font, (FontStyle{.Name = "Arial",
                                        .Size = 10,
                                        .Bold = true,
                                        .Underline = true,
                                        .Strikeout = true,
                                        .Color = 2}));
        EXPECT_EQ(item.IndexFontSize, 1);
        EXPECT_EQ(item.Text, "t");
    }
}

TEST_F(SpriteValues, AnItemWhoseSizeIsNo16BitNumberIsDamageAndIsLeftOut) {
    for (const char* size : {"abc", "", "32768", "8 pt"}) {
        EXPECT_FALSE(opensItem(size)) << size;
        EXPECT_TRUE(cause.contains("value 4 of Header or Body is no 16-bit number"))
            << cause.toStdString();
        EXPECT_EQ(forecast().Header().Count(), 0);
    }
}

TEST_F(SpriteValues, AMissingSymbolIsPassedOverWhateverItsOtherValuesAre) {
    shell.expectMessage(
        "Cannot load some symbols: they refer to a location on a hard drive that is unavailable.",
        Icon::Exclamation);
    EXPECT_TRUE(opens("<Symbol><Item a=\"set-1\\gone.gif\" b=\"no number\"/></Symbol>"));
    EXPECT_EQ(sprites().Symbols().Count(), 0);
}

}  // namespace nubivane
