// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/temporary_name.h"

#include "support/fixtures.h"

#include <QDir>

#include <sys/file.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

class TemporaryNames : public ::testing::Test {
  protected:
    int create(const QString& target, QString& name) const {
        return temporary_name::create(folder.path(), target, "n-1", 0600, name);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    TemporaryFolder folder;
};

}  // namespace

TEST_F(TemporaryNames, AreShortHiddenAndOursHoweverLongTheTargetsNameIs) {
    QString name;
    const int file = create(QString(255, u'x'), name);
    ASSERT_GE(file, 0);
    ::close(file);
    EXPECT_LT(name.size(), 60);
    EXPECT_TRUE(name.startsWith(".nubivane-"));
    EXPECT_TRUE(name.endsWith("-n-1"));
    EXPECT_TRUE(temporary_name::isOurs(name));
}

TEST_F(TemporaryNames, OtherNamesAreNotOurs) {
    for (const char* name : {"", ".nubivane-", ".nubivane-note.txt", "film.gif.new",
                             ".nubivane-0123456789abcdef_12345678"}) {
        EXPECT_FALSE(temporary_name::isOurs(name)) << name;
    }
}

TEST_F(TemporaryNames, OfTwoTargetsBeginDifferently) {
    EXPECT_NE(temporary_name::prefixFor("a.gif"), temporary_name::prefixFor("A.gif"));
    EXPECT_EQ(temporary_name::prefixFor("a.gif"), temporary_name::prefixFor("a.gif"));
}

TEST_F(TemporaryNames, ALivingOneStaysAndADeadOneGoes) {
    QString name;
    const int file = create("a", name);
    ASSERT_GE(file, 0);
    temporary_name::removeIfDead(folder.path(), name);
    EXPECT_EQ(files(), QStringList(name));
    ::close(file);
    temporary_name::removeIfDead(folder.path(), name);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(TemporaryNames, NothingIsListedOfAFolderThatIsNotThere) {
    EXPECT_EQ(temporary_name::withPrefix(folder.file("none"), ".nubivane-"), QStringList());
}

TEST_F(TemporaryNames, NothingIsCreatedInAFolderThatIsNotThere) {
    QString name;
    EXPECT_LT(temporary_name::create(folder.file("none"), "a", {}, 0600, name), 0);
}

}  // namespace nubivane::testing
