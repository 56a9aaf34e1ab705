// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/dictionary.h"

#include "engine/core/error.h"
#include "engine/spelling/spelling_fixture.h"

namespace nubivane::testing {

namespace {

DictionaryFiles filesOf(const QString& language) {
    return *dictionaryFor(language, "C", installedDictionaries({dictionariesForTests()}));
}

}  // namespace

TEST(DictionaryOfALanguage, KnowsWordsWithTheirEndings) {
    Dictionary english(filesOf("en_GB"));
    for (const char* word : {"rain", "rains", "Rain", "clouds", "zürich"}) {
        EXPECT_TRUE(english.knows(word)) << word;
    }
    for (const char* word : {"rian", "sunnys", "ins"}) {
        EXPECT_FALSE(english.knows(word)) << word;
    }
}

TEST(DictionaryOfALanguage, KnowsBothApostrophes) {
    Dictionary english(filesOf("en_GB"));
    EXPECT_TRUE(english.knows("don't"));
    EXPECT_TRUE(english.knows("don\u2019t"));
    EXPECT_FALSE(english.knows("doan't"));
}

TEST(DictionaryOfALanguage, SuggestsWhatMayHaveBeenMeant) {
    Dictionary english(filesOf("en_GB"));
    EXPECT_TRUE(english.suggestions("raim").contains("rain"));
    EXPECT_EQ(english.suggestions("qqqqqqqqqqqq"), QStringList());
}

TEST(DictionaryOfALanguage, ReadsAndWritesTheLettersOfItsFiles) {
    Dictionary italian(filesOf("it_IT"));
    EXPECT_TRUE(italian.knows("città"));
    EXPECT_FALSE(italian.knows("citta"));
    EXPECT_TRUE(italian.suggestions("citt").contains("città"));
}

TEST(DictionaryOfALanguage, LeavesAloneWhatItCannotJudge) {
    Dictionary italian(filesOf("it_IT"));
    EXPECT_TRUE(italian.knows("\u043E\u0431\u043B\u0430\u043A\u043E"));  // no letters of its own
    EXPECT_TRUE(italian.knows(QString(1000, 'x')));
    EXPECT_TRUE(italian.knows(""));
}

TEST(DictionaryOfALanguage, OfAnUnknownEncodingIsRefused) {
    const TemporaryFolder folder;
    writeFile(folder.file("en_GB.aff"), "SET KLINGON-1\n");
    writeFile(folder.file("en_GB.dic"), "1\nrain\n");
    EXPECT_THROW(Dictionary({"en_GB", folder.file("en_GB.aff"), folder.file("en_GB.dic")}), Error);
}

TEST(DictionaryOfALanguage, IsHarmlessWhateverItsFilesHold) {
    const TemporaryFolder folder;
    const QByteArray affixes[] = {"",
                                  "SFX\nPFX A\nSFX A Y 3\nSFX A 0 s .\n",
                                  "REP 9999\nREP\n",
                                  "FLAG num\nAF 70000\nAF x\n",
                                  "COMPOUNDRULE 5\nCOMPOUNDRULE ((((*\n",
                                  QByteArray(100000, 'A'),
                                  QByteArray("\0\0\xff\xfe", 4)};
    for (const QByteArray& each : affixes) {
        writeFile(folder.file("en_GB.aff"), each);
        writeFile(folder.file("en_GB.dic"), "3\nrain/A\n/\nsun/99999\n");
        try {
            Dictionary words({"en_GB", folder.file("en_GB.aff"), folder.file("en_GB.dic")});
            words.knows("rian");
            words.suggestions("rian");
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), error_number::FileAccess);
        }
    }
}

}  // namespace nubivane::testing
