// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"

#include "support/fixtures.h"
#include "support/processes.h"
#include "support/texts.h"

#include <limits>

namespace nubivane {

namespace {

class SettingsStoreTest : public ::testing::Test {
  protected:
    /// What a program that starts now would find.
    QString readElsewhere(const QString& group, const QString& key) const {
        const auto result = testing::runProgram(
            testing::cliProgram(),
            {"--settings", file, "settings", "get", testing::SettingsSection, group, key});
        EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
        return QString::fromUtf8(result.out).chopped(1);
    }

    testing::TemporaryFolder folder;
    const QString file = folder.file("settings.ini");
    SettingsStore store{file};
};

}  // namespace

TEST_F(SettingsStoreTest, AnAbsentEntryGivesTheDefaultOfTheCaller) {
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "url", "none"), "none");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "url"), "");
}

TEST_F(SettingsStoreTest, AStoredEntryReplacesTheOneBefore) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "url", "one");
    store.SaveSetting(testing::SettingsSection, "Ftp", "url", "two");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "url", "none"), "two");
}

TEST_F(SettingsStoreTest, AnEntryStoredEmptyIsNotAbsent) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "port", "");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "port", "21"), "");
    EXPECT_EQ(readElsewhere("Ftp", "port"), "");
    EXPECT_EQ(store.text(Setting::FtpPort), "");
}

TEST_F(SettingsStoreTest, UrlWithACapitalFindsWhatWasStoredInSmallLetters) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "url", "ftp.example.org");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "Url"), "ftp.example.org");
}

TEST_F(SettingsStoreTest, SectionGroupAndKeyAreMatchedWithoutRegardToCase) {
    store.SaveSetting("Nubivane\\6.0.0\\Settings\\Html page", "Slider", "Tick", "0");
    EXPECT_EQ(store.GetSetting("NUBIVANE\\6.0.0\\settings\\HTML PAGE", "sLIDER", "tICK", "1"), "0");
    store.SaveSetting("nubivane\\6.0.0\\settings\\html page", "slider", "tick", "2");
    EXPECT_EQ(store.text(Setting::SliderTick), "2");
    store.DeleteSetting("NUBIVANE\\6.0.0\\SETTINGS\\HTML PAGE", "SLIDER", "TICK");
    EXPECT_EQ(store.text(Setting::SliderTick), "1");
}

TEST_F(SettingsStoreTest, LettersBeyondAsciiFoldTheirCaseToo) {
    store.SaveSetting(testing::SettingsSection, "Group", QString::fromUtf8("Città È"), "x");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Group", QString::fromUtf8("CITTÀ è")),
              "x");
}

TEST_F(SettingsStoreTest, TheCaseOfAValueIsKept) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "password", "PassWord");
    EXPECT_EQ(readElsewhere("Ftp", "password"), "PassWord");
}

TEST_F(SettingsStoreTest, TheBorderBetweenSectionAndGroupCounts) {
    store.SaveSetting("a", "b\\c", "k", "1");
    store.SaveSetting("a\\b", "c", "k", "2");
    store.SaveSetting("a/b", "c", "k", "3");
    store.SaveSetting("a", "b/c", "k", "4");
    store.SaveSetting("a%2Fb", "c", "k", "5");
    EXPECT_EQ(store.GetSetting("a", "b\\c", "k"), "1");
    EXPECT_EQ(store.GetSetting("a\\b", "c", "k"), "2");
    EXPECT_EQ(store.GetSetting("a/b", "c", "k"), "3");
    EXPECT_EQ(store.GetSetting("a", "b/c", "k"), "4");
    EXPECT_EQ(store.GetSetting("a%2fb", "c", "k"), "5");
}

TEST_F(SettingsStoreTest, ASectionCalledGeneralIsLikeAnyOther) {
    store.SaveSetting("General", "group", "key", "value");
    EXPECT_EQ(SettingsStore(file).GetSetting("general", "group", "key"), "value");
    const auto result = testing::runProgram(
        testing::cliProgram(), {"--settings", file, "settings", "get", "General", "group", "key"});
    EXPECT_EQ(result.out, "value\n");
}

TEST_F(SettingsStoreTest, DeletingRemovesOneEntryAlone) {
    store.SaveSetting(testing::SettingsSection, "Recent Files", "1", "a");
    store.SaveSetting(testing::SettingsSection, "Recent Files", "2", "b");
    EXPECT_TRUE(store.DeleteSetting(testing::SettingsSection, "Recent Files", "1"));
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Recent Files", "1", "gone"), "gone");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Recent Files", "2"), "b");
    EXPECT_EQ(readElsewhere("Recent Files", "1"), "");
}

TEST_F(SettingsStoreTest, DeletingAnEntryWithAnEmptyKeySparesItsGroup) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "url", "ftp.example.org");
    store.DeleteSetting(testing::SettingsSection, "Ftp", "");
    store.DeleteSetting(testing::SettingsSection, "", "Ftp");
    store.DeleteSetting(testing::SettingsSection, "", "");
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "url"), "ftp.example.org");
}

TEST_F(SettingsStoreTest, DeletingAnAbsentEntryIsNoFailure) {
    EXPECT_TRUE(store.DeleteSetting(testing::SettingsSection, "Ftp", "url"));
}

TEST_F(SettingsStoreTest, AWriteIsOnDiskWhenTheCallReturns) {
    ASSERT_TRUE(store.SaveSetting(testing::SettingsSection, "Ftp", "url", "ftp.example.org"));
    EXPECT_TRUE(testing::readFile(file).contains("ftp.example.org"));
    EXPECT_EQ(readElsewhere("Ftp", "url"), "ftp.example.org");
    ASSERT_TRUE(store.DeleteSetting(testing::SettingsSection, "Ftp", "url"));
    EXPECT_FALSE(testing::readFile(file).contains("ftp.example.org"));
}

TEST_F(SettingsStoreTest, AWriteOfAListIsOnDiskWhenTheCallReturns) {
    ASSERT_TRUE(store.setList(SettingList::CheckedCollections, {"set-1", "sea"}));
    EXPECT_EQ(readElsewhere("Symbols collection", "2"), "sea");
}

TEST_F(SettingsStoreTest, AReadSeesWhatAnotherProcessHasWritten) {
    store.SaveSetting(testing::SettingsSection, "Ftp", "url", "before");
    const auto result = testing::runProgram(
        testing::cliProgram(), {"--settings", file, "settings", "set", testing::SettingsSection,
                                "Ftp", "url", "behind it"});
    ASSERT_EQ(result.exitCode, 0) << result.err.toStdString();
    EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Ftp", "url"), "behind it");
}

TEST_F(SettingsStoreTest, TheFoldersOnTheWayAreCreated) {
    SettingsStore deep(folder.file("a/b/settings.ini"));
    EXPECT_TRUE(deep.SaveSetting(testing::SettingsSection, "Ftp", "url", "x"));
    EXPECT_TRUE(QFileInfo::exists(folder.file("a/b/settings.ini")));
}

TEST_F(SettingsStoreTest, EveryTextComesBackAsItWas) {
    const QStringList texts = {"C:\\Maps\\italy.jpg", "  blanks around  ",
                               "\"quoted\"",          "a,b;c=d",
                               "one\r\ntwo\ttabbed",  "@ByteArray(x)",
                               "@Invalid()",          "0012",
                               "%41\\x41\\n",         "#no comment",
                               "; nor this",          QString::fromUtf8("è € 日本 😀"),
                               "[section]",           QString(QChar(0x04)) + 'x'};
    for (qsizetype i = 0; i < texts.size(); ++i) {
        ASSERT_TRUE(
            store.SaveSetting(testing::SettingsSection, "Texts", QString::number(i), texts[i]));
    }
    for (qsizetype i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(readElsewhere("Texts", QString::number(i)), texts[i]);
    }
}

TEST_F(SettingsStoreTest, NumbersAreConvertedWithTheirFractionCutOff) {
    const std::vector<std::pair<QString, int>> numbers = {
        {"7", 7},     {" 7 ", 7},
        {"-1", -1},   {"2.9", 2},
        {"-2.9", -2}, {"2147483647", std::numeric_limits<int>::max()},
        {"+5", 5},    {"-2147483648", std::numeric_limits<int>::min()},
        {"0007", 7}};
    for (const auto& [text, number] : numbers) {
        store.set(Setting::PageTimer, text);
        EXPECT_EQ(store.number(Setting::PageTimer), number) << text.toStdString();
    }
}

TEST_F(SettingsStoreTest, ATextThatIsNoNumberGivesNothing) {
    for (const char* text : {"", " ", "abc", "4 s", "nan", "inf", "2147483648", "-2147483649",
                             "99999999999999999999", "1,5"}) {
        store.set(Setting::PageTimer, text);
        EXPECT_EQ(store.number(Setting::PageTimer), std::nullopt) << text;
    }
}

TEST_F(SettingsStoreTest, AnAbsentNumberIsItsDefault) {
    EXPECT_EQ(store.number(Setting::PageTimer), 4);
    EXPECT_EQ(store.number(Setting::Locked), std::nullopt);
}

TEST_F(SettingsStoreTest, TheStandardFileIsTheUsersOwn) {
    EXPECT_TRUE(SettingsStore::standardFile().endsWith("/Nubivane/settings.ini"));
}

TEST(SettingsStore, ASectionThatBeginsLikeACommentIsKept) {
    const testing::TemporaryFolder folder;
    SettingsStore(folder.file("settings.ini")).SaveSetting("#a", "b", "c", "d");
    SettingsStore(folder.file("settings.ini")).SaveSetting("e", "f", "g", "h");
    EXPECT_EQ(SettingsStore(folder.file("settings.ini")).GetSetting("#a", "b", "c", "lost"), "d");
}

}  // namespace nubivane
