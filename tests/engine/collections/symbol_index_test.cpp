// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/symbol_index.h"

#include "support/fixtures.h"

namespace nubivane {

/// Two collections of empty files: only their names count.
class FindingSymbols : public testing::WorkspaceFixture {
  protected:
    void SetUp() override {
        for (const char* name :
             {"a-day/light-rain.gif", "a-day/sun.png", "a-day/notes.txt", "b-night/Heavy_Rain.png",
              "b-night/moon.gif", "b-night/rain-night.jpg"}) {
            testing::writeFile(host(QString("Symbols/") + name), "x");
        }
        index.read({model("Symbols/a-day"), model("Symbols/b-night")});
    }
    QStringList found(const QString& words) {
        QStringList names;
        for (const QString& path : index.find(words)) {
            names << path.section('\\', -1);
        }
        return names;
    }
    SymbolIndex index;
};

TEST_F(FindingSymbols, ByAPartOfTheName) {
    EXPECT_EQ(found("rai"), (QStringList{"light-rain.gif", "Heavy_Rain.png", "rain-night.jpg"}));
    EXPECT_EQ(found("SUN"), QStringList{"sun.png"});
    EXPECT_EQ(found("hail"), QStringList());
}

TEST_F(FindingSymbols, EveryWordHasToOccurInNameOrCollection) {
    EXPECT_EQ(found("rain night"), (QStringList{"rain-night.jpg", "Heavy_Rain.png"}));
    EXPECT_EQ(found("night rain"), (QStringList{"rain-night.jpg", "Heavy_Rain.png"}));
    EXPECT_EQ(found("light rain"), QStringList{"light-rain.gif"});
    EXPECT_EQ(found("heavy-rain"), QStringList{"Heavy_Rain.png"});
}

TEST_F(FindingSymbols, NothingIsFoundByNothing) {
    EXPECT_EQ(found(""), QStringList());
    EXPECT_EQ(found("  -_ "), QStringList());
}

TEST_F(FindingSymbols, OnlyPicturesCountAndACollectionThatIsGoneHasNone) {
    EXPECT_EQ(index.count(), 5);
    EXPECT_EQ(found("notes"), QStringList());
    index.read({model("Symbols/nowhere"), model("Symbols/a-day")});
    EXPECT_EQ(index.count(), 2);
}

}  // namespace nubivane
