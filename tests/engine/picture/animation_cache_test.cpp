// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation_cache.h"

#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/gif/small_gif.h"
#include "support/fixtures.h"

#include <QDateTime>
#include <QFile>

namespace nubivane {

namespace {

using namespace testing;
using namespace testing::small_gif;

const QByteArray red = file(1, 1, {dot(0)});
const QByteArray green = file(1, 1, {dot(1)});

class AnimationCacheTest : public ::testing::Test {
  protected:
    /// Writes a file and dates it, since two writes may fall into one tick of the disk's clock.
    void write(const QByteArray& bytes, int minute) {
        writeFile(sun, bytes);
        QFile file(sun);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime({2024, 5, 1}, {12, minute}),
                                     QFileDevice::FileModificationTime));
    }

    static QColor colorOf(const std::shared_ptr<const Animation>& animation) {
        return animation ? animation->images().front().picture.pixelColor(0, 0) : QColor();
    }

    TemporaryFolder folder;
    const QString sun = folder.file("sun.gif");
    AnimationCache cache;
};

}  // namespace

TEST_F(AnimationCacheTest, AllWhoShowAFileShareOneDecoding) {
    write(red, 0);
    const auto first = cache.get(sun);
    ASSERT_TRUE(first);
    EXPECT_EQ(cache.get(sun), first);
    EXPECT_EQ(cache.get(host_files::toModel(sun)), first);
    EXPECT_EQ(cache.get(folder.file("SUN.gif")), first);
}

TEST_F(AnimationCacheTest, OtherFilesAreOtherAnimations) {
    write(red, 0);
    writeFile(folder.file("rain.gif"), red);
    const auto first = cache.get(sun);
    const auto second = cache.get(folder.file("rain.gif"));
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
}

TEST_F(AnimationCacheTest, MemoryGoesWithTheLastUser) {
    write(red, 0);
    auto first = cache.get(sun);
    auto second = cache.get(sun);
    const std::weak_ptr<const Animation> watched = first;
    first.reset();
    EXPECT_FALSE(watched.expired());
    second.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(colorOf(cache.get(sun)), QColor(Qt::red));
}

TEST_F(AnimationCacheTest, AFileReplacedByOneOfTheSameSizeIsDecodedAnew) {
    write(red, 0);
    const auto before = cache.get(sun);
    write(green, 1);
    const auto after = cache.get(sun);
    EXPECT_EQ(colorOf(before), QColor(Qt::red)) << "who holds the old picture keeps it";
    EXPECT_EQ(colorOf(after), QColor(Qt::green));
}

TEST_F(AnimationCacheTest, AFileReplacedByOneOfTheSameTimeIsDecodedAnew) {
    write(red, 0);
    const auto before = cache.get(sun);
    write(green + "and more", 0);
    EXPECT_EQ(colorOf(cache.get(sun)), QColor(Qt::green));
}

TEST_F(AnimationCacheTest, ABrokenFileIsNotReadAgainUntilItChanges) {
    write(QByteArray(red.size(), 'x'), 0);
    EXPECT_EQ(cache.get(sun), nullptr);
    // A sound file that looks unchanged shows that nobody looked inside.
    write(red, 0);
    EXPECT_EQ(cache.get(sun), nullptr);
    write(red, 1);
    EXPECT_EQ(colorOf(cache.get(sun)), QColor(Qt::red));
}

TEST_F(AnimationCacheTest, AFileThatBreaksIsRememberedAndOneThatIsMendedComesBack) {
    write(red, 0);
    const auto held = cache.get(sun);
    write("broken", 1);
    EXPECT_EQ(cache.get(sun), nullptr);
    write(green, 2);
    EXPECT_EQ(colorOf(cache.get(sun)), QColor(Qt::green));
    EXPECT_EQ(colorOf(held), QColor(Qt::red));
}

TEST_F(AnimationCacheTest, AMissingFileIsLookedForAgain) {
    EXPECT_EQ(cache.get(sun), nullptr);
    write(red, 0);
    EXPECT_EQ(colorOf(cache.get(sun)), QColor(Qt::red));
    ASSERT_TRUE(QFile::remove(sun));
    EXPECT_EQ(cache.get(sun), nullptr);
}

TEST_F(AnimationCacheTest, AFolderOfThatNameIsNothing) {
    host_files::makeFolder(sun);
    EXPECT_EQ(cache.get(sun), nullptr);
}

TEST_F(AnimationCacheTest, ANameThatNoFileCanHaveIsNothing) {
    EXPECT_EQ(cache.get({}), nullptr);
    EXPECT_EQ(cache.get(folder.file(QChar(0xD800))), nullptr);
    EXPECT_EQ(cache.get(folder.file(QString(5000, u'a'))), nullptr);
}

TEST_F(AnimationCacheTest, ManyFilesComeAndGo) {
    std::shared_ptr<const Animation> kept;
    for (int i = 0; i < 100; ++i) {
        const QString name = folder.file(QString::number(i) + ".gif");
        writeFile(name, i % 3 == 0 ? QByteArray("broken") : red);
        const auto shown = cache.get(name);
        EXPECT_EQ(shown == nullptr, i % 3 == 0);
        if (i == 1) {
            kept = shown;
        }
    }
    EXPECT_EQ(cache.get(folder.file("1.gif")), kept);
}

TEST_F(AnimationCacheTest, ThreadsThatAskAtOnceShareOneDecoding) {
    constexpr std::size_t Files = 5;
    constexpr std::size_t Calls = 400;
    for (std::size_t i = 0; i < Files; ++i) {
        writeFile(folder.file(QString::number(i)), red);
    }
    std::vector<std::shared_ptr<const Animation>> got(Calls);
    parallelFor(
        Calls, [&](std::size_t i) { got[i] = cache.get(folder.file(QString::number(i % Files))); });
    for (std::size_t i = 0; i < Calls; ++i) {
        ASSERT_TRUE(got[i]);
        EXPECT_EQ(got[i], got[i % Files]);
    }
}

}  // namespace nubivane
