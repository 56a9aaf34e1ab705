// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/user_folders.h"

#include "engine/core/error.h"
#include "support/fixtures.h"

#include <QDir>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

/// The environment as it was is back when the test ends.
class UserFolders : public ::testing::Test {
  protected:
    UserFolders() {
        for (const char* name : names) {
            before[name] = qEnvironmentVariableIsSet(name) ? qgetenv(name) : QByteArray();
            qunsetenv(name);
        }
        qputenv("HOME", QFile::encodeName(folder.path()));
    }
    ~UserFolders() override {
        for (const char* name : names) {
            before[name].isNull() ? qunsetenv(name) : qputenv(name, before[name]);
        }
    }

    static constexpr std::array names{"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME",
                                      "XDG_RUNTIME_DIR"};
    QHash<QByteArray, QByteArray> before;
    TemporaryFolder folder;
};

}  // namespace

TEST_F(UserFolders, LieAtHome) {
    EXPECT_EQ(user_folders::config(), folder.file(".config"));
    EXPECT_EQ(user_folders::data(), folder.file(".local/share"));
    EXPECT_EQ(user_folders::state(), folder.file(".local/state"));
}

TEST_F(UserFolders, LieWhereTheVariablesSay) {
    qputenv("XDG_CONFIG_HOME", "/somewhere/config");
    qputenv("XDG_STATE_HOME", "/somewhere//state/");
    EXPECT_EQ(user_folders::config(), "/somewhere/config");
    EXPECT_EQ(user_folders::state(), "/somewhere/state");
}

TEST_F(UserFolders, AVariableThatIsNoAbsolutePathCountsAsUnset) {
    qputenv("XDG_CONFIG_HOME", "config");
    EXPECT_EQ(user_folders::config(), folder.file(".config"));
}

TEST_F(UserFolders, WithoutHomeTheListOfUsersKnowsIt) {
    const passwd* user = ::getpwuid(::geteuid());
    if (!user) {
        GTEST_SKIP() << "this user is in no list";
    }
    for (const char* home : {"", "relative"}) {
        qputenv("HOME", home);
        EXPECT_EQ(user_folders::home(), QFile::decodeName(user->pw_dir));
    }
    qunsetenv("HOME");
    EXPECT_EQ(user_folders::home(), QFile::decodeName(user->pw_dir));
}

TEST_F(UserFolders, SocketsLieInTheSessionsFolderWhereItIsTheUsersOwn) {
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    EXPECT_EQ(user_folders::runtime(), folder.file("nubivane"));
    struct stat status {};
    ASSERT_EQ(::stat(QFile::encodeName(folder.file("nubivane")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700U);
}

TEST_F(UserFolders, SocketsLieInNoFolderThatOthersCanWrite) {
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0777), 0);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder.path()));
    EXPECT_EQ(user_folders::runtime(), folder.file(".local/state/Nubivane/run"));
    QDir(folder.file(".local/state/Nubivane/run")).removeRecursively();
    ASSERT_EQ(::mkdir(QFile::encodeName(folder.file(".local/state/Nubivane/run")).constData(), 0),
              0);
    ASSERT_EQ(
        ::chmod(QFile::encodeName(folder.file(".local/state/Nubivane/run")).constData(), 0777), 0);
    EXPECT_THROW(user_folders::runtime(), Error);
}

}  // namespace nubivane::testing
