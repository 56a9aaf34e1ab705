// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/temporary_name.h"
#include "support/fixtures.h"

#include <QDir>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace nubivane {

namespace {

constexpr qint64 Limit = 100'000;

class HostFilesWrite : public ::testing::Test {
  protected:
    QString model(const QString& name) const { return host_files::toModel(folder.file(name)); }
    QStringList entries() const {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }
    ino_t inode(const QString& name) const {
        struct stat about {};
        ::stat(QFile::encodeName(folder.file(name)).constData(), &about);
        return about.st_ino;
    }

    testing::TemporaryFolder folder;
};

template <class Work>
int errorNumberOf(Work work) {
    try {
        work();
    } catch (const Error& error) {
        EXPECT_FALSE(error.cause().isEmpty());
        return error.number();
    }
    return 0;
}

/// Runs `work` in a process of its own that can write no file longer than `bytes`, and tells
/// whether it raised a failed access.
template <class Work>
void expectRefusedBeyond(rlim_t bytes, Work work) {
    const auto child = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{bytes, bytes};
        setrlimit(RLIMIT_FSIZE, &limit);
        std::_Exit(errorNumberOf(work) == error_number::FileAccess ? 0 : 1);
    };
    EXPECT_EXIT(child(), ::testing::ExitedWithCode(0), "");
}

}  // namespace

TEST_F(HostFilesWrite, WritingCreatesAndReplaces) {
    host_files::write(model("a.txt"), "a long first content");
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "a long first content");
    host_files::write(model("a.txt"), "short");
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "short");
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, WritingTakesTheFileThatDiffersInCaseOnly) {
    testing::writeFile(folder.file("Maps/Italy.JPG"), "old");
    host_files::write(model("maps\\italy.jpg"), "new");
    EXPECT_EQ(testing::readFile(folder.file("Maps/Italy.JPG")), "new");
    EXPECT_EQ(entries(), QStringList("Maps"));
}

TEST_F(HostFilesWrite, AFolderInPlaceOfTheFileIsRefused) {
    testing::writeFile(folder.file("a.txt/inside"), "x");
    EXPECT_EQ(errorNumberOf([this] { host_files::write(model("a.txt"), "x"); }),
              error_number::FileAccess);
    EXPECT_EQ(errorNumberOf([this] { host_files::writeOver(model("a.txt"), "x", Limit); }),
              error_number::FileAccess);
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, AFolderThatIsNotThereIsRefused) {
    EXPECT_EQ(errorNumberOf([this] { host_files::write(model("none\\a.txt"), "x"); }),
              error_number::FileAccess);
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(HostFilesWrite, AWriteThatFailsHalfwayLeavesTheOldFileAndNothingElse) {
    testing::writeFile(folder.file("a.txt"), "old");
    expectRefusedBeyond(1000,
                        [this] { host_files::write(model("a.txt"), QByteArray(50000, 'x')); });
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "old");
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, AWriteThatFailsInItsLastBytesLeavesTheOldFileAndNothingElse) {
    testing::writeFile(folder.file("a.txt"), "old");
    expectRefusedBeyond(1000, [this] { host_files::write(model("a.txt"), QByteArray(1001, 'x')); });
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "old");
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, WritingOverAShorterFileIsAPlainWrite) {
    testing::writeFile(folder.file("a.txt"), "old");
    host_files::writeOver(model("a.txt"), "longer", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "longer");
}

TEST_F(HostFilesWrite, WritingOverNoFileCreatesIt) {
    host_files::writeOver(model("a.txt"), "new", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "new");
}

TEST_F(HostFilesWrite, WritingOverKeepsTheTailOfALongerFile) {
    testing::writeFile(folder.file("a.txt"), "0123456789");
    host_files::writeOver(model("a.txt"), "abc", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "abc3456789");
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, WritingOverChangesNoFileThatBeginsAlike) {
    testing::writeFile(folder.file("a.txt"), "0123456789");
    const ino_t before = inode("a.txt");
    host_files::writeOver(model("a.txt"), "0123", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "0123456789");
    EXPECT_EQ(inode("a.txt"), before);
    host_files::writeOver(model("a.txt"), "0124", Limit);
    EXPECT_NE(inode("a.txt"), before);
}

TEST_F(HostFilesWrite, WritingOverThatFailsLeavesTheOldFileWhole) {
    testing::writeFile(folder.file("a.txt"), QByteArray(3000, 'o'));
    expectRefusedBeyond(
        2000, [this] { host_files::writeOver(model("a.txt"), QByteArray(100, 'n'), Limit); });
    EXPECT_TRUE(testing::readFile(folder.file("a.txt")) == QByteArray(3000, 'o'));
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, WritingOverALinkReplacesTheLinkAndSparesWhatItLeadsTo) {
    testing::writeFile(folder.file("real.txt"), "a person's own, and longer");
    ASSERT_TRUE(QFile::link(folder.file("real.txt"), folder.file("a.txt")));
    host_files::writeOver(model("a.txt"), "new", Limit);
    EXPECT_FALSE(QFileInfo(folder.file("a.txt")).isSymLink());
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "new");
    EXPECT_EQ(testing::readFile(folder.file("real.txt")), "a person's own, and longer");
}

TEST_F(HostFilesWrite, WritingOverAPipeOrALinkToNothingPutsAFileThere) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file("a.txt")).constData(), 0600), 0);
    host_files::writeOver(model("a.txt"), "new", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "new");
    ASSERT_TRUE(QFile::remove(folder.file("a.txt")));
    ASSERT_TRUE(QFile::link(folder.file("nothing"), folder.file("a.txt")));
    host_files::writeOver(model("a.txt"), "newer", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "newer");
    EXPECT_EQ(entries(), QStringList("a.txt"));
}

TEST_F(HostFilesWrite, WritingOverAFileBeyondTheLimitDropsItsTail) {
    testing::writeFile(folder.file("a.txt"), {});
    ASSERT_TRUE(QFile::resize(folder.file("a.txt"), qint64{64} << 30));
    host_files::writeOver(model("a.txt"), "new", Limit);
    EXPECT_EQ(testing::readFile(folder.file("a.txt")), "new");
}

TEST_F(HostFilesWrite, AFileFarTooLargeIsNotWithinTheLimit) {
    testing::writeFile(folder.file("a.txt"), QByteArray(10, 'x'));
    EXPECT_TRUE(host_files::fileWithin(model("a.txt"), 10));
    EXPECT_FALSE(host_files::fileWithin(model("a.txt"), 9));
    EXPECT_FALSE(host_files::fileWithin(model("none"), 9));
}

TEST_F(HostFilesWrite, RemovingFilesSparesWhatAnotherRunIsAboutToPutInPlace) {
    QString name;
    const int living = temporary_name::create(folder.path(), "a.txt", {}, 0600, name);
    ASSERT_GE(living, 0);
    EXPECT_TRUE(host_files::removeFiles(model("")));
    EXPECT_EQ(entries(), QStringList(name));
    ::close(living);
    EXPECT_TRUE(host_files::removeFiles(model("")));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(HostFilesWrite, ReadingTakesAFileUpToTheLimitAndNoByteMore) {
    testing::writeFile(folder.file("a.txt"), "12345");
    EXPECT_EQ(host_files::read(model("a.txt"), 5), "12345");
    EXPECT_EQ(errorNumberOf([this] { host_files::read(model("a.txt"), 4); }),
              error_number::FileAccess);
}

TEST_F(HostFilesWrite, ReadingWhatIsNoFileFindsNone) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.file("pipe")).constData(), 0600), 0);
    for (const char* name : {"none", "", "pipe"}) {
        EXPECT_EQ(errorNumberOf([&] { host_files::read(model(name), 10); }),
                  error_number::FileNotFound)
            << name;
    }
}

TEST_F(HostFilesWrite, RemovingFilesSparesFolders) {
    testing::writeFile(folder.file("a.txt"), "x");
    testing::writeFile(folder.file(".hidden"), "x");
    testing::writeFile(folder.file("inner/b.txt"), "x");
    EXPECT_TRUE(host_files::removeFiles(model("")));
    EXPECT_EQ(entries(), QStringList("inner"));
    EXPECT_TRUE(QFileInfo::exists(folder.file("inner/b.txt")));
}

TEST_F(HostFilesWrite, RemovingFilesOfNoFolderIsNoFailure) {
    EXPECT_TRUE(host_files::removeFiles(model("none")));
}

TEST_F(HostFilesWrite, FoldersAreMadeWithThoseAboveThem) {
    host_files::makeFolder(model("a\\b\\c"));
    EXPECT_TRUE(QFileInfo(folder.file("a/b/c")).isDir());
    host_files::makeFolder(model("A\\B\\C"));
    EXPECT_EQ(entries(), QStringList("a"));
}

TEST_F(HostFilesWrite, AFileInPlaceOfTheFolderIsRefused) {
    testing::writeFile(folder.file("a"), "x");
    EXPECT_EQ(errorNumberOf([this] { host_files::makeFolder(model("a")); }),
              error_number::FileAccess);
    EXPECT_EQ(errorNumberOf([this] { host_files::makeFolder(model("a\\b")); }),
              error_number::FileAccess);
}

}  // namespace nubivane
