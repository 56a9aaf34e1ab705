// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/explorer.h"

#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/widgets/file_list.h"

#include <QDir>

namespace nubivane {

using namespace testing;

namespace {

class FolderTree : public ::testing::Test {
  protected:
    FolderTree() {
        QDir().mkpath(temporary.file("b/inner"));
        QDir().mkpath(temporary.file("a"));
        writeFile(temporary.file("file.gif"), "x");
        tree.resize(300, 300);
        QObject::connect(&tree, &Explorer::folderChanged, &tree,
                         [this](const QString& path) { told << path; });
    }
    QString path(const QString& name) const { return temporary.file(name).replace(u'/', u'\\'); }

    TemporaryFolder temporary;
    Explorer tree{nullptr};
    QStringList told;
};

}  // namespace

TEST_F(FolderTree, BeginsAtTheRoot) {
    EXPECT_EQ(tree.folder(), "\\");
}

TEST_F(FolderTree, SelectsAFolderAndTellsIt) {
    tree.setFolder(path("b\\inner"));
    EXPECT_EQ(tree.folder(), path("b\\inner"));
    EXPECT_EQ(told, QStringList({path("b\\inner")}));
}

TEST_F(FolderTree, AFolderThatIsNotThereChangesNothing) {
    tree.setFolder(path("b"));
    told.clear();
    tree.setFolder(path("none"));
    tree.setFolder(path("file.gif"));
    tree.setFolder("");
    EXPECT_EQ(tree.folder(), path("b"));
    EXPECT_EQ(told, QStringList());
}

TEST_F(FolderTree, AHiddenFolderCanBeSelected) {
    QDir().mkpath(temporary.file(".data/program"));
    tree.setFolder(path(".data\\program"));
    EXPECT_EQ(tree.folder(), path(".data\\program"));
}

TEST_F(FolderTree, ShowsTheSelectedFolderAmongItsNeighbours) {
    showActive(tree);
    tree.setFolder(path("b"));
    const auto shown = [this] {
        const QRect row = tree.visualRect(tree.currentIndex());
        return tree.viewport()->rect().contains(row.center()) &&
               tree.indexAbove(tree.currentIndex()).data().toString() == u"a";
    };
    EXPECT_TRUE(QTest::qWaitFor(shown));
}

TEST_F(FolderTree, ShowsAFolderThatWasSelectedBeforeItWasShown) {
    for (int i = 0; i < 200; ++i) {
        QDir().mkpath(temporary.file(QStringLiteral("b/%1").arg(i)));
    }
    tree.setFolder(path("b\\inner"));
    showActive(tree);
    const auto shown = [this] {
        const QRect row = tree.visualRect(tree.currentIndex());
        return tree.viewport()->rect().contains(row.center()) &&
               tree.model()->rowCount(tree.currentIndex().parent()) == 201;
    };
    EXPECT_TRUE(QTest::qWaitFor(shown));
}

TEST(Files, AreThoseOfThePatternInAnyCase) {
    const TemporaryFolder temporary;
    for (const char* name : {"b.GIF", "a.gif", "c.gif.txt", "gif", ".hidden.gif"}) {
        writeFile(temporary.file(name), "x");
    }
    QDir().mkpath(temporary.file("folder.gif"));
    FileList list("*.gif", nullptr);
    list.showFolder(temporary.path().replace(u'/', u'\\'));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), "a.gif");
    EXPECT_EQ(list.item(1)->text(), "b.GIF");
    EXPECT_EQ(list.currentRow(), 0);
    list.showFolder(temporary.file("none").replace(u'/', u'\\'));
    EXPECT_EQ(list.count(), 0);
}

TEST(Files, TheOneTheKeyboardGoesToIsTold) {
    const TemporaryFolder temporary;
    writeFile(temporary.file("a.gif"), "x");
    writeFile(temporary.file("b.gif"), "x");
    FileList list("*.gif", nullptr);
    QStringList told;
    QObject::connect(&list, &FileList::fileChosen, &list,
                     [&told](const QString& name) { told << name; });
    list.showFolder(temporary.path().replace(u'/', u'\\'));
    EXPECT_EQ(told, QStringList());
    showActive(list);
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(told, QStringList({"a.gif", "b.gif"}));
}

}  // namespace nubivane
