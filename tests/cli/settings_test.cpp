// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

namespace nubivane::testing {

namespace {

class SettingsCommand : public CliTest {
  protected:
    const QStringList entry{"Nubivane\\6.0.0\\Settings", "Html page", "Title"};

    QByteArray get(const QStringList& words) const {
        const ProcessResult result = run(QStringList{"settings", "get"} + words);
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_EQ(result.err, "");
        return result.out;
    }
    ProcessResult set(const QStringList& words, const QString& value) const {
        return run(QStringList{"settings", "set"} + words + QStringList{value});
    }
    ProcessResult remove(const QStringList& words) const {
        return run(QStringList{"settings", "delete"} + words);
    }
};

}  // namespace

TEST_F(SettingsCommand, AnAbsentEntryIsAnEmptyLine) {
    EXPECT_EQ(get(entry), "\n");
    EXPECT_FALSE(QFile::exists(settingsFile()));
}

TEST_F(SettingsCommand, AnAbsentEntryIsTheDefaultWhenOneIsGiven) {
    EXPECT_EQ(get(entry + QStringList{"Forecast"}), "Forecast\n");
}

TEST_F(SettingsCommand, WhatIsStoredGoesBeforeTheDefault) {
    const ProcessResult result = set(entry, "Bay watch");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(get(entry + QStringList{"Forecast"}), "Bay watch\n");
}

TEST_F(SettingsCommand, AKeyThatNobodyReadsIsStoredAndTold) {
    const QString section = "Nubivane\\6.0.0\\Settings";
    for (const QStringList& unread :
         {QStringList{section, "Html page", "Titel"}, QStringList{"Settings", "Html page", "Title"},
          QStringList{section, "Page", "Title"},
          QStringList{section, "Symbols collection", "first"},
          QStringList{section + "\\General\\Position", "Window", "Form top"}}) {
        const ProcessResult result = set(unread, "x");
        EXPECT_EQ(result.exitCode, 0);
        EXPECT_TRUE(result.err.startsWith("Nothing reads the setting \"" + unread[2].toUtf8()))
            << result.err.toStdString();
        EXPECT_EQ(get(unread), "x\n");
    }
    for (const QStringList& read : {QStringList{section, "html PAGE", "title"},
                                    QStringList{section, "Symbols collection", "3"},
                                    QStringList{section + "\\General", "Recent Files", "1"}}) {
        EXPECT_EQ(set(read, "x").err, "");
    }
}

TEST_F(SettingsCommand, AnEmptyValueIsAValue) {
    set(entry, "");
    EXPECT_EQ(get(entry + QStringList{"Forecast"}), "\n");
}

TEST_F(SettingsCommand, ValuesAreReplaced) {
    set(entry, "one");
    set(entry, "two");
    EXPECT_EQ(get(entry), "two\n");
}

TEST_F(SettingsCommand, ValuesKeepBlanksQuotesAndForeignLetters) {
    const QString value =
        QString::fromUtf8("  \"C:\\x\\y\", %20;=[a]\t# \xC3\xA9\xE2\x98\x80\xF0\x9F\x98\x80 ");
    set(entry, value);
    EXPECT_EQ(get(entry), value.toUtf8() + '\n');
}

TEST_F(SettingsCommand, SectionGroupAndKeyAreFoundInAnyCase) {
    set({"Nubivane\\6.0.0\\Settings", "Ftp", "url"}, "ftp.example.org");
    EXPECT_EQ(get({"NUBIVANE\\6.0.0\\settings", "FTP", "Url"}), "ftp.example.org\n");
    set({"nubivane\\6.0.0\\SETTINGS", "ftp", "URL"}, "other.example.org");
    EXPECT_EQ(get({"Nubivane\\6.0.0\\Settings", "Ftp", "url"}), "other.example.org\n");
    EXPECT_EQ(remove({"Nubivane\\6.0.0\\Settings", "fTP", "uRL"}).exitCode, 0);
    EXPECT_EQ(get({"Nubivane\\6.0.0\\Settings", "Ftp", "url"}), "\n");
}

TEST_F(SettingsCommand, SectionsThatShareAPathStayApart) {
    set({"A", "B", "K"}, "one");
    set({"A\\B", "K", "K"}, "two");
    set({"A/B", "C", "K"}, "three");
    set({"A", "B/C", "K"}, "four");
    EXPECT_EQ(get({"A", "B", "K"}), "one\n");
    EXPECT_EQ(get({"A\\B", "K", "K"}), "two\n");
    EXPECT_EQ(get({"A/B", "C", "K"}), "three\n");
    EXPECT_EQ(get({"A", "B/C", "K"}), "four\n");
}

TEST_F(SettingsCommand, DeleteRemovesOneEntry) {
    set(entry, "one");
    set({"Nubivane\\6.0.0\\Settings", "Html page", "Filename"}, "two");
    const ProcessResult result = remove(entry);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(get(entry), "\n");
    EXPECT_EQ(get({"Nubivane\\6.0.0\\Settings", "Html page", "Filename"}), "two\n");
}

TEST_F(SettingsCommand, DeletingWhatIsNotThereIsNoFailure) {
    EXPECT_EQ(remove(entry).exitCode, 0);
}

TEST_F(SettingsCommand, AFileThatCannotBeWrittenIsAFailure) {
    writeFile(beside("file"), "no folder");
    const ProcessResult result =
        runPlain(QStringList{"--program-folder", programFolder(), "--settings",
                             beside("file/settings.ini"), "settings", "set"} +
                 entry + QStringList{"x"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "The settings could not be written.\n");
}

TEST_F(SettingsCommand, AProjectOpensThoughTheSettingsCannotBeWritten) {
    writeFile(beside("file"), "no folder");
    const ProcessResult result = runPlain({"--program-folder", programFolder(), "--settings",
                                           beside("file/settings.ini"), "show", useSoundProject()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
}

TEST_F(SettingsCommand, ADamagedFileIsSetAsideWithAWarningAndTheCommandWorks) {
    writeFile(settingsFile(), "this is no settings file\n");
    const ProcessResult result = run({"settings", "get", "S", "G", "K", "default"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "default\n");
    EXPECT_EQ(result.err, "The settings file was damaged. It was renamed to \"" +
                              (settingsFile() + ".damaged-1").toUtf8() +
                              "\" and the defaults are used.\n");
    ASSERT_TRUE(QFile::exists(settingsFile() + ".damaged-1"));
    EXPECT_EQ(readFile(settingsFile() + ".damaged-1"), "this is no settings file\n");
    EXPECT_EQ(run({"settings", "get", "S", "G", "K"}).err, "");
}

TEST_F(SettingsCommand, EveryKindOfDamageIsNoticedBeforeAnythingIsWritten) {
    const QList<QByteArray> damages{"[never closed\nkey=value\n",
                                    "[s]\ng\\k=V\nthis line has no value\n",
                                    "\x89PNG\r\n\x1A\n" + QByteArray(50, '\x01')};
    for (const QByteArray& damage : damages) {
        writeFile(settingsFile(), damage);
        const ProcessResult result = run({"settings", "set", "S", "G", "K", "V"});
        EXPECT_EQ(result.exitCode, 0) << damage.toStdString();
        EXPECT_TRUE(result.err.startsWith("The settings file was damaged. It was renamed to \""))
            << damage.toStdString();
        ASSERT_TRUE(QFile::exists(settingsFile() + ".damaged-1")) << damage.toStdString();
        EXPECT_EQ(readFile(settingsFile() + ".damaged-1"), damage);
        QFile::remove(settingsFile() + ".damaged-1");
    }
}

TEST_F(SettingsCommand, ASecondDamagedFileDoesNotReplaceTheFirst) {
    for (const char* content : {"first damage\n", "second damage\n"}) {
        writeFile(settingsFile(), content);
        EXPECT_EQ(run({"settings", "set", "S", "G", "K", "V"}).exitCode, 0);
        EXPECT_EQ(get({"S", "G", "K"}), "V\n");
    }
    ASSERT_TRUE(QFile::exists(settingsFile() + ".damaged-2"));
    EXPECT_EQ(readFile(settingsFile() + ".damaged-1"), "first damage\n");
    EXPECT_EQ(readFile(settingsFile() + ".damaged-2"), "second damage\n");
}

TEST_F(SettingsCommand, AFolderGivenAsSettingsFileStaysWhereItIs) {
    writeFile(beside("folder/precious.txt"), "kept");
    runPlain({"--program-folder", programFolder(), "--settings", beside("folder"), "settings",
              "get", "S", "G", "K"});
    EXPECT_TRUE(QFile::exists(beside("folder/precious.txt")));
}

TEST_F(SettingsCommand, WithoutAFileTheUsersOwnIsUsed) {
    const QStringList folder{"--program-folder", programFolder()};
    EXPECT_EQ(runPlain(folder + QStringList{"settings", "set", "S", "G", "K", "V"}).exitCode, 0);
    EXPECT_TRUE(QFile::exists(beside(".config/Nubivane/settings.ini")));
    EXPECT_EQ(runPlain(folder + QStringList{"settings", "get", "S", "G", "K"}).out, "V\n");
}

}  // namespace nubivane::testing
