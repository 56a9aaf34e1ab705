// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/dictionary_files.h"

#include "engine/core/error.h"
#include "engine/spelling/spelling_fixture.h"

#include <QDir>

#include <sys/stat.h>

namespace nubivane::testing {

/// A folder of dictionaries that a test fills.
class Dictionaries : public ::testing::Test {
  protected:
    void install(const QString& language, const QByteArray& affixes = "SET UTF-8\n",
                 const QByteArray& words = "1\nrain\n") const {
        writeFile(folder.file(language + ".aff"), affixes);
        writeFile(folder.file(language + ".dic"), words);
    }
    QStringList names(const QStringList& folders) const {
        QStringList found;
        for (const DictionaryFiles& each : installedDictionaries(folders)) {
            found << each.language;
        }
        return found;
    }
    QString chosen(const QString& language, const QString& locale) const {
        const auto found = dictionaryFor(language, locale, installedDictionaries({folder.path()}));
        return found ? found->language : QString();
    }
    DictionaryFiles files(const QString& language) const {
        return {language, folder.file(language + ".aff"), folder.file(language + ".dic")};
    }
    void expectRefused(const QString& language) const {
        try {
            const OpenedDictionary opened(files(language));
            ADD_FAILURE() << language.toStdString() << " was taken";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), error_number::FileAccess);
            EXPECT_TRUE(error.cause().contains(folder.path())) << error.cause().toStdString();
        }
    }

    TemporaryFolder folder;
};

TEST_F(Dictionaries, AreFoundByTheirTwoFiles) {
    install("it_IT");
    install("en_GB");
    install("sr_Latn_RS");
    writeFile(folder.file("hyph_de.dic"), "x");
    writeFile(folder.file("fr_FR.aff"), "x");
    install("../odd name");
    EXPECT_EQ(names({folder.path()}), QStringList({"en_GB", "it_IT", "sr_Latn_RS"}));
    EXPECT_EQ(names({folder.file("none")}), QStringList());
}

TEST_F(Dictionaries, OfAnEarlierFolderHideOthers) {
    install("en_GB");
    const TemporaryFolder other;
    copyFolder(folder.path(), other.file("more"));
    const auto found = installedDictionaries({other.file("more"), folder.path()});
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].affixes, other.file("more/en_GB.aff"));
}

TEST_F(Dictionaries, AreChosenByNameThenCountryThenLanguage) {
    install("en_GB");
    install("en_US");
    install("it_IT");
    EXPECT_EQ(chosen("en_US", "it_IT"), "en_US");
    EXPECT_EQ(chosen("en-US", "it_IT"), "en_US");
    EXPECT_EQ(chosen("en", "it_US"), "en_US");
    EXPECT_EQ(chosen("en_AU", "en_AU"), "en_GB");
    EXPECT_EQ(chosen("it", "en_GB"), "it_IT");
    EXPECT_EQ(chosen("de", "en_GB"), "");
    EXPECT_EQ(chosen("", "en_GB"), "");
    EXPECT_EQ(chosen("C", "C"), "");
}

TEST_F(Dictionaries, AreOpenedUnderNamesThatStayWithTheFiles) {
    install("en_GB", "SET UTF-8\n", "1\nrain\n");
    const OpenedDictionary opened(files("en_GB"));
    ASSERT_TRUE(QFile::remove(folder.file("en_GB.dic")));
    EXPECT_EQ(readFile(QString::fromLatin1(opened.words())), "1\nrain\n");
    EXPECT_EQ(readFile(QString::fromLatin1(opened.affixes())), "SET UTF-8\n");
}

TEST_F(Dictionaries, ThatAreNoOrdinaryFilesAreRefused) {
    install("en_GB");
    ASSERT_TRUE(QFile::remove(folder.file("en_GB.aff")));
    expectRefused("en_GB");
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file("en_GB.aff")).constData(), 0600), 0);
    expectRefused("en_GB");
    install("it_IT");
    ASSERT_TRUE(QFile::remove(folder.file("it_IT.dic")));
    ASSERT_TRUE(QDir().mkdir(folder.file("it_IT.dic")));
    expectRefused("it_IT");
}

TEST_F(Dictionaries, ThatAreTooLargeAreRefused) {
    install("en_GB");
    install("it_IT");
    ASSERT_TRUE(QFile::resize(folder.file("en_GB.aff"), 32 * 1024 * 1024 + 1));
    ASSERT_TRUE(QFile::resize(folder.file("it_IT.dic"), 64 * 1024 * 1024 + 1));
    expectRefused("en_GB");
    expectRefused("it_IT");
}

TEST_F(Dictionaries, WhoseCountsCannotBeAreRefused) {
    install("en_GB", "SET UTF-8\n", "2147483646\nrain\n");
    expectRefused("en_GB");
    install("en_GB", "SET UTF-8\n", "rain\n");
    expectRefused("en_GB");
    install("en_GB", "SET UTF-8\n", "");
    expectRefused("en_GB");
    install("en_GB", "SET UTF-8\nREP 2000000000\n");
    expectRefused("en_GB");
    install("en_GB", "SET UTF-8\nREP 1\nREP a b\n",
            "\xEF\xBB\xBF"
            "1\nrain\n");
    EXPECT_NO_THROW(OpenedDictionary(files("en_GB")));
}

TEST(DictionaryFolders, AreThoseOfTheUserAndTheSystem) {
    const QByteArray before = qgetenv("XDG_DATA_DIRS");
    const QByteArray own = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/home/x/data");
    qputenv("XDG_DATA_DIRS", "/opt/share:relative:/usr/share/");
    EXPECT_EQ(dictionaryFolders(),
              QStringList({"/home/x/data/hunspell", "/opt/share/hunspell", "/usr/share/hunspell"}));
    qputenv("XDG_DATA_DIRS", "");
    EXPECT_EQ(
        dictionaryFolders(),
        QStringList({"/home/x/data/hunspell", "/usr/local/share/hunspell", "/usr/share/hunspell"}));
    before.isNull() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", before);
    own.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", own);
}

}  // namespace nubivane::testing
