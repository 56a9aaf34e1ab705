// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/trash.h"

#include "engine/core/host_files.h"
#include "support/fixtures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStorageInfo>

#include <unistd.h>

namespace nubivane {

/// Deleting by way of the desktop's trash, in a folder of its own.
class Trash : public ::testing::Test {
  protected:
    /// A name that nothing else in a trash bears.
    Trash() : name_("nubivane-" + QString::number(QCoreApplication::applicationPid())) {}
    ~Trash() override {
        for (const QString& folder : trashes()) {
            QFile::remove(folder + "/files/" + name_);
            QFile::remove(folder + "/info/" + name_ + ".trashinfo");
            QDir(folder + "/files/" + name_).removeRecursively();
        }
    }

    QString host() const { return temporary_.file(name_); }
    QString path() const { return host_files::toModel(host()); }
    bool isInTrash(const QString& inside = {}) const {
        for (const QString& folder : trashes()) {
            if (QFile::exists(folder + "/files/" + name_ + inside)) {
                return true;
            }
        }
        return false;
    }

  private:
    /// Where a desktop may keep what is thrown away: at home, or on the same disk.
    QStringList trashes() const {
        const QString disk = QStorageInfo(temporary_.path()).rootPath();
        const QString user = QString::number(::getuid());
        return {qEnvironmentVariable("XDG_DATA_HOME") + "/Trash", disk + "/.Trash-" + user,
                disk + "/.Trash/" + user};
    }

    testing::TemporaryFolder temporary_;
    QString name_;
};

TEST_F(Trash, AFileGoesThereAndCanBeHadBack) {
    testing::writeFile(host(), "precious");
    EXPECT_TRUE(trash::discardFile(path()));
    EXPECT_FALSE(QFile::exists(host()));
    EXPECT_TRUE(isInTrash());
}

TEST_F(Trash, AFolderIsNoFile) {
    QDir().mkpath(host());
    EXPECT_FALSE(trash::discardFile(path()));
    EXPECT_TRUE(QFile::exists(host()));
}

TEST_F(Trash, OfALinkTheLinkAloneGoes) {
    testing::writeFile(host() + "-kept", "precious");
    ASSERT_TRUE(QFile::link(host() + "-kept", host()));
    EXPECT_TRUE(trash::discardFile(path()));
    EXPECT_TRUE(QFile::exists(host() + "-kept"));
    EXPECT_FALSE(QFileInfo(host()).isSymLink());
}

TEST_F(Trash, AFolderGoesThereWhole) {
    testing::writeFile(host() + "/sun.gif", "x");
    trash::discardFolder(path());
    EXPECT_FALSE(QFile::exists(host()));
    EXPECT_TRUE(isInTrash("/sun.gif"));
}

TEST_F(Trash, AFileThatIsNotThereIsNotDiscarded) {
    EXPECT_FALSE(trash::discardFile(path()));
}

}  // namespace nubivane
