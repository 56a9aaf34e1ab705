// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/list_image.h"

#include "engine/gif/small_gif.h"
#include "engine/picture/animation_cache.h"
#include "support/fixtures.h"

#include <QApplication>
#include <QTest>

namespace nubivane {

using namespace testing;

namespace {

class ThumbnailList : public ::testing::Test {
  protected:
    void write(const QString& name, const QByteArray& bytes) {
        writeFile(temporary.file(name), bytes);
    }
    void load() {
        list.load(folder());
        list.symbols().waitUntilLoaded();
        QApplication::processEvents();
    }
    QString folder() const { return temporary.path().replace(u'/', u'\\'); }

    TemporaryFolder temporary;
    AnimationCache animations;
    ListImage list{animations, nullptr};
};

/// A GIF of 250 x 250 pixels, 250 kB an image.
QByteArray longGif(int images) {
    QByteArrayList parts;
    for (int i = 0; i < images; ++i) {
        parts << small_gif::dot(i % 3);
    }
    return small_gif::file(250, 250, parts);
}

}  // namespace

TEST_F(ThumbnailList, ShowsThePicturesOfAFolderInNameOrder) {
    for (const char* name : {"c.PNG", "a.gif", "b.jpeg", "d.jpg", "notes.txt", "e.bmp", "gif"}) {
        write(name, "x");
    }
    load();
    QStringList names;
    for (int row = 0; row < list.symbols().rowCount(); ++row) {
        names << list.symbols().path(row).section(u'\\', -1);
    }
    EXPECT_EQ(names, QStringList({"a.gif", "b.jpeg", "c.PNG", "d.jpg"}));
}

TEST_F(ThumbnailList, TellsWhatIsSelectedCountedFromOne) {
    write("a.gif", longGif(1));
    write("b.gif", longGif(1));
    load();
    EXPECT_EQ(list.selectedIndex(), 0);
    EXPECT_EQ(list.selectedFile(), "");
    int changes = 0;
    QObject::connect(&list, &ListImage::fileSelected, &list, [&changes] { ++changes; });
    list.selectFile(folder() + "\\b.gif");
    EXPECT_EQ(list.selectedIndex(), 2);
    EXPECT_EQ(list.selectedFile(), folder() + "\\b.gif");
    EXPECT_EQ(changes, 1);
    list.selectFile(folder() + "\\none.gif");
    EXPECT_EQ(list.selectedIndex(), 2);
}

TEST_F(ThumbnailList, ABrokenPictureHasARowAndNoPicture) {
    write("a.gif", "no picture");
    load();
    ASSERT_EQ(list.symbols().rowCount(), 1);
    EXPECT_FALSE(list.symbols().animation(0));
}

TEST_F(ThumbnailList, BeyondTheMemoryThatItMayTakePicturesStandStill) {
    // Each takes 50 MB, so that two play and the third stands still.
    for (const char* name : {"a.gif", "b.gif", "c.gif", "d.gif"}) {
        write(name, longGif(200));
    }
    static_assert(SymbolListModel::MaxListBytes == qint64{128} * 1024 * 1024);
    load();
    int moving = 0;
    for (int row = 0; row < 4; ++row) {
        const auto animation = list.symbols().animation(row);
        ASSERT_TRUE(animation);
        moving += animation->moves();
        if (!animation->moves()) {
            EXPECT_EQ(animation->size(), QSize(128, 128));
        }
    }
    EXPECT_EQ(moving, 2);
}

}  // namespace nubivane
