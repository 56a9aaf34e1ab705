// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/replaced_file.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QDir>

#include <sys/resource.h>

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
    QString path() const { return host_files::toModel(folder.file("film.gif")); }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(ReplacedFileTest, StandsUnderItsNameOnceItIsCommitted) {
    ReplacedFile file(path());
    file.append("ab");
    file.append("cd");
    file.overwrite(1, "X");
    file.append("e");
    EXPECT_FALSE(QFile::exists(folder.file("film.gif")));
    file.commit();
    EXPECT_EQ(readFile(folder.file("film.gif")), "aXcde");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, WithoutACommitTheOldFileStaysAndNothingElse) {
    writeFile(folder.file("film.gif"), "old");
    {
        ReplacedFile file(path());
        file.append("new");
    }
    EXPECT_EQ(readFile(folder.file("film.gif")), "old");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

TEST_F(ReplacedFileTest, AFolderThatIsNotThereIsToldWithItsPath) {
    try {
        ReplacedFile file(host_files::toModel(folder.file("none/film.gif")));
        FAIL() << "nothing was raised";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), error_number::FileAccess);
        EXPECT_TRUE(error.cause().contains("none/film.gif")) << error.what();
    }
}

TEST_F(ReplacedFileTest, AFullDiskIsNoticedAndNothingIsLeft) {
    writeFile(folder.file("film.gif"), "old");
    const FileSizeLimit limit(4);
    EXPECT_THROW(
        {
            ReplacedFile file(path());
            file.append("longer than that");
            file.commit();
        },
        Error);
    EXPECT_EQ(readFile(folder.file("film.gif")), "old");
    EXPECT_EQ(files(), QStringList({"film.gif"}));
}

}  // namespace nubivane::testing
