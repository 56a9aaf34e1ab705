// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/project/model_text.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/fixtures.h"

#include <limits>
#include <random>

namespace nubivane::testing {

namespace {

/// Makes values of all kinds, the same ones for the same seed.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    int below(int end) { return static_cast<int>(engine_() % static_cast<unsigned>(end)); }
    bool flag() { return below(2) == 1; }

    template <class T>
    T number() {
        using Limits = std::numeric_limits<T>;
        switch (below(6)) {
            case 0:
                return Limits::min();
            case 1:
                return Limits::max();
            case 2:
                return static_cast<T>(-1);
            default:
                return static_cast<T>(engine_());
        }
    }

    /// Any text that XML can hold.
    QString text() {
        QString result;
        for (int length = below(4) == 0 ? 0 : below(24); length > 0; --length) {
            result += character();
        }
        return result;
    }

    /// A name that a file can have.
    QString fileName() {
        QString name;
        while (name.size() < 12) {
            const QString c = character();
            if (host_files::isPlainName("x" + c)) {
                name += c;
            }
        }
        return name;
    }

  private:
    QString character() {
        static const QString special = QStringLiteral("<>&\"'\t\n\r   .|;=#%{}[]]]>--<!\\/");
        switch (below(5)) {
            case 0:
                return special.mid(below(static_cast<int>(special.size())), 1);
            case 1:
                return QChar(0x80 + below(0xD800 - 0x80));
            case 2:
                return QChar(0xE000 + below(0xFFFE - 0xE000));
            case 3: {
                const char32_t wide = 0x10000 + static_cast<char32_t>(below(0x100000));
                return QString::fromUcs4(&wide, 1);
            }
            default:
                return QChar(0x20 + below(0x5F));
        }
    }

    std::mt19937 engine_;
};

class RandomModel : public WorkspaceFixture, public ::testing::WithParamInterface<unsigned> {
  protected:
    void makeCollections() {
        for (int i = dice.below(4); i >= 0; --i) {
            const QString folder = dice.fileName().trimmed() + QString::number(i);
            const QString name = dice.fileName().trimmed() + ".gif";
            writeFile(host("Symbols/" + folder + '/' + name), "any");
            symbols << model("Symbols/" + folder + '/' + name);
        }
        for (const QString& name : folderNames(host("Symbols"))) {
            workspace.Status.SymbolsCollection().Add(model("Symbols/" + name), name).Checked =
                dice.flag();
        }
    }

    void fillLine(TextLine& line) {
        line.Border = dice.number<qint16>();
        line.BorderColor = dice.number<qint32>();
        line.Font.Bold = dice.flag();
        line.Font.Italic = dice.flag();
        line.Font.Underline = dice.flag();
        line.Font.Overline = dice.flag();
        line.Font.Strikeout = dice.flag();
        line.Font.Color = dice.number<qint32>();
        line.BackColor = dice.number<qint32>();
        line.Font.Name = dice.text();
        line.Font.Size = dice.number<qint16>();
        line.Align = dice.number<qint16>();
        line.Text = dice.text();
    }

    template <class Items>
    void fillItems(Items& items) {
        for (int i = dice.below(5); i > 0; --i) {
            items.add({.Font = {.Name = dice.text(),
                                .Size = dice.number<qint16>(),
                                .Bold = dice.flag(),
                                .Italic = dice.flag(),
                                .Underline = dice.flag(),
                                .Overline = dice.flag(),
                                .Strikeout = dice.flag(),
                                .Color = dice.number<qint32>()},
                       .IndexFontSize = 1,
                       .BackColor = dice.number<qint32>(),
                       .Text = dice.text()});
        }
    }

    void fillSprites(qint16 number, cSprites& sprites) {
        for (int i = 1, count = dice.below(6); i <= count; ++i) {
            const QString path = symbols[dice.below(static_cast<int>(symbols.size()))];
            sprites.Symbols().add({.Name = "gifSymbol",
                                   .Frame = number,
                                   .PosX = dice.number<qint32>(),
                                   .PosY = dice.number<qint32>(),
                                   .Width = dice.number<qint32>(),
                                   .Height = dice.number<qint32>(),
                                   .FileGif = path,
                                   .PathFileGif = path,
                                   .Index = i,
                                   .Link = dice.text(),
                                   .Tooltip = dice.text(),
                                   .Note = dice.text()});
        }
        for (int i = 1, count = dice.below(6); i <= count; ++i) {
            sprites.Labels().add({.Name = "lblTesto",
                                  .Index = i,
                                  .Frame = number,
                                  .Width = dice.number<qint32>(),
                                  .Height = dice.number<qint32>(),
                                  .Font = {.Name = dice.text(),
                                           .Size = dice.number<qint32>(),
                                           .Bold = dice.flag(),
                                           .Italic = dice.flag(),
                                           .Underline = dice.flag(),
                                           .Overline = dice.flag(),
                                           .Strikeout = dice.flag(),
                                           .Color = dice.number<qint32>()},
                                  .BackColor = dice.number<qint32>(),
                                  .Border = dice.number<qint16>(),
                                  .BorderColor = dice.number<qint32>(),
                                  .PosX = dice.number<qint32>(),
                                  .PosY = dice.number<qint32>(),
                                  .Text = dice.text(),
                                  .Note = dice.text()});
        }
    }

    void makeModel() {
        const int frames = 1 + dice.below(20);
        for (int i = 1; i <= frames; ++i) {
            cFrame& frame = i == 1 ? workspace.Frames().Item(1) : workspace.Frames().Add();
            frame.Texts().Label = dice.text();
            cForecast& forecast = frame.Texts().Forecast();
            forecast.Div() = {dice.number<qint32>(), dice.number<qint16>(), dice.number<qint32>()};
            fillLine(forecast.Title());
            fillLine(forecast.Subtitle());
            fillItems(forecast.Header());
            fillItems(forecast.Body());
            fillSprites(static_cast<qint16>(i), frame.Sprites());
        }
        workspace.clearTempPicture();
    }

    /// The one thing that opening changes.
    void moveLabelFlagsOn() {
        for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
            for (cLabel& label : workspace.Frames().Item(i).Sprites().Labels()) {
                const bool underline = label.Font.Underline;
                label.Font.Underline = label.Font.Overline;
                label.Font.Overline = label.Font.Strikeout;
                label.Font.Strikeout = underline;
            }
        }
    }

    Dice dice{GetParam()};
    QStringList symbols;
};

}  // namespace

TEST_P(RandomModel, ComesBackFromTheDisk) {
    useMap(dice.fileName().trimmed() + ".png", {4, 3});
    makeCollections();
    makeModel();
    const QString file = temporary.file(dice.fileName().trimmed() + ".nvpf");
    workspace.Status.CurrentProject = host_files::toModel(file);
    ASSERT_TRUE(saveProject(editor(), false));
    moveLabelFlagsOn();
    const QStringList expected = modelText(workspace);
    const QString map = workspace.Status.CurrentMap;
    const QStringList checked = checkedCollections(workspace);

    workspace.resetProject();
    open(file);
    EXPECT_EQ(modelText(workspace), expected);
    EXPECT_EQ(workspace.Status.CurrentMap, map);
    EXPECT_EQ(checkedCollections(workspace), checked);
}

INSTANTIATE_TEST_SUITE_P(, RandomModel, ::testing::Range(1U, 61U));

}  // namespace nubivane::testing
