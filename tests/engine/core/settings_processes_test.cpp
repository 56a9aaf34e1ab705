// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"
#include "support/fixtures.h"
#include "support/processes.h"
#include "support/texts.h"

#include <QFileInfo>
#include <QProcess>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <vector>

namespace nubivane {

namespace {

class SettingsProcesses : public ::testing::Test {
  protected:
    testing::TemporaryFolder folder;
    const QString file = folder.file("settings.ini");
};

/// Counts an entry of its own up and looks before each step whether the last one is still there.
/// The values have one width, so that the file's size tells nobody of a change.
[[noreturn]] void countUp(const QString& file, const QString& key, int steps) {
    SettingsStore store(file);
    for (int i = 0; i < steps; ++i) {
        if (store.GetSetting(testing::SettingsSection, "Counters", key, "1000").toInt() !=
            1000 + i) {
            std::_Exit(1);
        }
        if (!store.SaveSetting(testing::SettingsSection, "Counters", key,
                               QString::number(1001 + i))) {
            std::_Exit(2);
        }
    }
    std::_Exit(0);
}

}  // namespace

TEST_F(SettingsProcesses, ProgramsThatWriteAtOnceLoseNothing) {
    constexpr int Programs = 16;
    std::vector<std::unique_ptr<QProcess>> running;
    for (int i = 0; i < Programs; ++i) {
        running.push_back(std::make_unique<QProcess>());
        running.back()->start(
            testing::cliProgram(),
            {"--settings", file, "settings", "set", testing::SettingsSection, "Group",
             "key " + QString::number(i), "value " + QString::number(i)});
    }
    for (const auto& process : running) {
        ASSERT_TRUE(process->waitForFinished(60000));
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
    }
    const SettingsStore store(file);
    for (int i = 0; i < Programs; ++i) {
        EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Group", "key " + QString::number(i)),
                  "value " + QString::number(i));
    }
}

TEST_F(SettingsProcesses, ProgramsThatFindTheSameDamageLoseNothing) {
    {
        QFile damaged(file);
        ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
        damaged.write("no settings at all");
    }
    constexpr int Programs = 8;
    std::vector<std::unique_ptr<QProcess>> running;
    for (int i = 0; i < Programs; ++i) {
        running.push_back(std::make_unique<QProcess>());
        running.back()->start(testing::cliProgram(),
                              {"--settings", file, "settings", "set", testing::SettingsSection,
                               "Group", QString::number(i), "kept"});
    }
    for (const auto& process : running) {
        ASSERT_TRUE(process->waitForFinished(60000));
        EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
    }
    const SettingsStore store(file);
    for (int i = 0; i < Programs; ++i) {
        EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Group", QString::number(i)), "kept")
            << i;
    }
    EXPECT_TRUE(QFileInfo::exists(file + ".damaged-1"));
    EXPECT_FALSE(QFileInfo::exists(file + ".damaged-2"));
}

TEST_F(SettingsProcesses, LongRunningProgramsThatWriteAtOnceLoseNothing) {
    constexpr int Programs = 4;
    constexpr int Steps = 100;
    {
        SettingsStore store(file);
        for (int i = 0; i < Programs; ++i) {
            store.SaveSetting(testing::SettingsSection, "Counters", QString::number(i), "1000");
        }
    }
    std::vector<pid_t> children;
    for (int i = 0; i < Programs; ++i) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            countUp(file, QString::number(i), Steps);
        }
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        EXPECT_NE(WEXITSTATUS(status), 1) << "a value was lost";
        EXPECT_NE(WEXITSTATUS(status), 2) << "a write failed";
    }
    const SettingsStore store(file);
    for (int i = 0; i < Programs; ++i) {
        EXPECT_EQ(store.GetSetting(testing::SettingsSection, "Counters", QString::number(i)),
                  QString::number(1000 + Steps));
    }
}

}  // namespace nubivane
