// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/replaced_file.h"

#include "engine/core/error.h"
#include "engine/core/temporary_name.h"
#include "support/fixtures.h"

#include <QDir>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace nubivane::testing {

namespace {

/// While it lives no file of this process grows beyond a size: writing fails as on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int);
};

class ReplacedFileTest : public ::testing::Test {
  protected:
    QString path() const { return folder.file("film.gif"); }
    QStringList files() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    mode_t modeOf(const QString& name) const {
        struct stat about {};
        ::stat(QFile::encodeName(folder.file(name)).constData(), &about);
        return about.st_mode & 07777;
    }

    void replace(const QString& name, const QByteArray& bytes, const Replacing& how = {}) const {
        ReplacedFile file(folder.file(name), Durability::Quick, how);
        file.append(bytes);
        file.commit();
    }

    /// What a run that died has left of a target.
    void leaveBehind(const QString& name) const {
        const pid_t child = ::fork();
        if (child == 0) {
            ReplacedFile file(folder.file(name), Durability::Quick);
            file.append("half");
            ::_exit(0);
        }
        ::waitpid(child, nullptr, 0);
    }

    void expectRefused(const QString& name) const {
        try {
            replace(name, "new");
            FAIL() << name.toStdString() << " was replaced";
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), error_number::FileAccess);
            EXPECT_FALSE(error.cause().isEmpty());
        }
    }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(ReplacedFileTest, StandsUnderItsNameOnceItIsCommitted) {
    ReplacedFile file(path(), Durability::Flushed);
    file.append("ab");
    file.append("cd");
    EXPECT_FALSE(QFile::exists(path()));
    file.commit();
    EXPECT_EQ(readFile(path()), "abcd");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, WithoutACommitTheOldFileStaysAndNothingElse) {
    writeFile(path(), "old");
    {
        ReplacedFile file(path(), Durability::Quick);
        file.append("new");
    }
    EXPECT_EQ(readFile(path()), "old");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, AFolderThatIsNotThereIsToldWithItsPath) {
    try {
        const ReplacedFile file(folder.file("none/film.gif"), Durability::Quick);
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::FileAccess);
        EXPECT_TRUE(error.cause().contains("none/film.gif")) << error.what();
    }
}

TEST_F(ReplacedFileTest, AFullDiskIsNoticedAndNothingIsLeft) {
    writeFile(path(), "old");
    const FileSizeLimit limit(4);
    EXPECT_THROW(replace("film.gif", "longer than that"), Error);
    EXPECT_EQ(readFile(path()), "old");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, APersonsOwnFilesOfTheUsualNamesAreLeftAlone) {
    const QStringList names{"film.gif.bak", "film.gif.new", "film.gif.part", "film.gif.saving",
                            "film.gif.tmp"};
    for (const QString& name : names) {
        writeFile(folder.file(name), "mine");
    }
    replace("film.gif", "new");
    for (const QString& name : names) {
        EXPECT_EQ(readFile(folder.file(name)), "mine") << name.toStdString();
    }
}

TEST_F(ReplacedFileTest, TwoAtOnceWriteInFilesOfTheirOwn) {
    ReplacedFile one(path(), Durability::Quick);
    ReplacedFile other(path(), Durability::Quick);
    EXPECT_NE(one.temporaryPath(), other.temporaryPath());
    one.append("one");
    other.append("other");
    one.commit();
    EXPECT_TRUE(QFile::exists(other.temporaryPath())) << "whoever wrote it still lives";
    other.commit();
    EXPECT_EQ(readFile(path()), "other");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, LeftoversOfRunsThatDiedGoWithTheNextCommitAndOthersStay) {
    leaveBehind("film.gif");
    leaveBehind("film.gif");
    leaveBehind("other.gif");
    ASSERT_EQ(files().size(), 3);
    replace("film.gif", "new");
    EXPECT_EQ(files().size(), 2) << "what is left of another target is not ours to remove";
    replace("other.gif", "new");
    EXPECT_EQ(files(), QStringList({"film.gif", "other.gif"}));
}

TEST_F(ReplacedFileTest, AFolderOrPipeWithALeftoversNameIsLeftAlone) {
    const QString start = temporary_name::prefixFor("film.gif");
    QDir().mkpath(folder.file(start + "12345678"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file(start + "87654321")).constData(), 0600), 0);
    replace("film.gif", "new");
    EXPECT_EQ(files().size(), 3);
}

TEST_F(ReplacedFileTest, ALinkStaysAndItsTargetIsReplaced) {
    writeFile(folder.file("real.gif"), "old");
    ASSERT_TRUE(QFile::link("real.gif", path()));
    replace("film.gif", "new");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(readFile(folder.file("real.gif")), "new");
}

TEST_F(ReplacedFileTest, ALinkToNothingStaysAndItsTargetIsMade) {
    ASSERT_TRUE(QFile::link("real.gif", path()));
    replace("film.gif", "new");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_EQ(readFile(folder.file("real.gif")), "new");
}

TEST_F(ReplacedFileTest, LinksInACircleAreRefused) {
    ASSERT_TRUE(QFile::link("other.gif", path()));
    ASSERT_TRUE(QFile::link("film.gif", folder.file("other.gif")));
    expectRefused("film.gif");
}

TEST_F(ReplacedFileTest, ALinkToANameThatIsNotUtf8IsRefused) {
    ASSERT_EQ(::symlink("caf\xe9.gif", QFile::encodeName(path()).constData()), 0);
    expectRefused("film.gif");
    EXPECT_EQ(files().size(), 1);
}

TEST_F(ReplacedFileTest, PipesFoldersAndLinksToThemAreRefusedAndStay) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file("pipe")).constData(), 0600), 0);
    QDir().mkpath(folder.file("folder"));
    ASSERT_TRUE(QFile::link("pipe", folder.file("to pipe")));
    ASSERT_TRUE(QFile::link("folder", folder.file("to folder")));
    const QStringList before = files();
    for (const char* name : {"pipe", "folder", "to pipe", "to folder"}) {
        expectRefused(name);
    }
    EXPECT_EQ(files(), before);
    EXPECT_FALSE(QFileInfo(folder.file("pipe")).isFile());
}

TEST_F(ReplacedFileTest, PermissionsOfAnOldFileAreKept) {
    writeFile(path(), "old");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0640), 0);
    replace("film.gif", "new");
    EXPECT_EQ(modeOf("film.gif"), 0640U);
}

TEST_F(ReplacedFileTest, ANewFileHasThePermissionsThatTheUserWants) {
    const mode_t before = ::umask(027);
    replace("film.gif", "new");
    ::umask(before);
    EXPECT_EQ(modeOf("film.gif"), 0640U);
}

TEST_F(ReplacedFileTest, ASecretIsItsOwnersFromTheFirstByteWhateverTheOldFileWas) {
    writeFile(path(), "old");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0644), 0);
    ReplacedFile file(path(), Durability::Quick, {.secret = true});
    EXPECT_EQ(modeOf(QFileInfo(file.temporaryPath()).fileName()), 0600U);
    file.commit();
    EXPECT_EQ(modeOf("film.gif"), 0600U);
}

TEST_F(ReplacedFileTest, ANameAsLongAsFileSystemsTakeIsWritten) {
    const QString name(255, u'x');
    replace(name, "new");
    EXPECT_EQ(files(), QStringList({name}));
    expectRefused(QString(256, u'x'));
}

TEST_F(ReplacedFileTest, WhatIsLeftOnPurposeStays) {
    QString left;
    {
        ReplacedFile file(path(), Durability::Quick, {.note = "a-note"});
        file.append("whole");
        file.finish();
        file.leave();
        left = file.temporaryPath();
    }
    EXPECT_TRUE(left.endsWith("-a-note"));
    EXPECT_EQ(readFile(left), "whole");
}

}  // namespace nubivane::testing
