// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/project/message_log.h"
#include "engine/project/model_text.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "engine/project/system_calls.h"

#include <QFileInfo>

#include <sys/wait.h>

#include <optional>

namespace nubivane::testing {

namespace {

using system_calls::Call;
using system_calls::Hook;
using system_calls::Watch;

/// More calls than any save of these small projects makes.
constexpr int Enough = 1000;

/// How a child that saved has ended.
enum class End { Killed, Failed, Saved };

/// Three projects under one file name: the old one lies on the disk, the new one is open and about
/// to be saved over it, the third is saved after that.
class InterruptedSave : public ::testing::Test {
  protected:
    InterruptedSave() {
        copyFolder(testFile("fixtures/program"), temporary.file("program"));
        prepare("old", 3, Qt::darkBlue);
        EXPECT_TRUE(save());
        oldXml = readFile(target());
        oldData = readFile(targetData());
        oldProject = *openElsewhere();
        prepare("third", 1, Qt::darkRed);
        thirdProject = projectAfterSaving();
        prepare("new", 2, Qt::darkGreen);
        newProject = projectAfterSaving();
    }

    QString target() const { return temporary.file("weather.nvpf"); }
    QString targetData() const { return temporary.file("weather.nvpx"); }
    QString waiting() const { return target() + ".saving"; }
    QString waitingData() const { return targetData() + ".saving"; }

    void prepare(const QString& name, qint32 frames, Qt::GlobalColor color) {
        workspace.resetProject();
        while (workspace.Frames().Count() < frames) {
            workspace.Frames().Add();
        }
        workspace.Frames().Item(1).Texts().Label = name;
        workspace.clearTempPicture();
        writeFile(temporary.file("program/Maps/" + name + ".png"),
                  encodePicture(plainImage({6 + frames, 5}, color), PictureFormat::Png));
        workspace.Status.CurrentMap = workspace.folder.maps() + u'\\' + name + ".png";
        workspace.pctMap.setPicture(workspace.loadCurrentMap());
        workspace.pctMap.persistentLayer().setPixelColor(1, 1, Qt::white);
        workspace.Status.CurrentProject = host_files::toModel(target());
    }

    bool save() {
        MessageLog log(view);
        return saveProject({workspace, log, view}, false);
    }

    void putOldBack() {
        QFile::remove(waiting());
        QFile::remove(waitingData());
        writeFile(target(), oldXml);
        writeFile(targetData(), oldData);
    }

    QStringList projectAfterSaving() {
        EXPECT_TRUE(save());
        const QStringList result = *openElsewhere();
        putOldBack();
        return result;
    }

    /// What somebody else finds who opens the project now; nothing when it is refused.
    std::optional<QStringList> openElsewhere() {
        Workspace other(workspace.folder, otherSettings);
        RecordingView otherView;
        MessageLog log(otherView);
        try {
            OpenProject({other, log, otherView}, host_files::toModel(target()));
        } catch (const Error& error) {
            cause = error.what();
            return std::nullopt;
        }
        return projectText(other);
    }

    /// Saves in a child process under a hook.
    End saveInChild(const Hook& hook) {
        const pid_t child = ::fork();
        if (child == 0) {
            const Watch watch(hook);
            ::_exit(save() ? 10 : 11);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status));
        const int code = WEXITSTATUS(status);
        EXPECT_TRUE(code == 0 || code == 10 || code == 11) << code;
        return code == 10 ? End::Saved : code == 11 ? End::Failed : End::Killed;
    }

    /// A hook that ends the process before its n-th call.
    static Hook killBefore(int n) {
        return [n, seen = 0](Call&) mutable {
            if (++seen == n) {
                ::_exit(0);
            }
        };
    }

    void expectOldOr(const QStringList& other, const std::string& when) {
        const auto found = openElsewhere();
        ASSERT_TRUE(found) << when << ": " << cause;
        EXPECT_TRUE(*found == oldProject || *found == other) << when << ": neither old nor new";
    }

    TemporaryFolder temporary;
    /// In folders that cannot be: what a save does to the settings is none of these tests'
    /// business.
    SettingsStore settings{"/dev/null/settings.ini"};
    SettingsStore otherSettings{"/dev/null/other.ini"};
    Workspace workspace{ProgramFolder(host_files::toModel(temporary.file("program"))), settings};
    RecordingView view;
    QByteArray oldXml;
    QByteArray oldData;
    QStringList oldProject;
    QStringList newProject;
    QStringList thirdProject;
    std::string cause;
};

}  // namespace

TEST_F(InterruptedSave, TheHookSeesTheCallsOfASave) {
    QStringList names;
    const Watch watch([&](Call& call) { names << QString::fromUtf8(call.name.data()); });
    ASSERT_TRUE(save());
    EXPECT_GE(names.count("open64"), 2);
    EXPECT_GE(names.count("write"), 2);
    EXPECT_GE(names.count("fsync"), 4);  // both files, and their folder after each rename
    EXPECT_GE(names.count("rename"), 2);
}

TEST_F(InterruptedSave, KilledBeforeAnyCallGivesTheOldOrTheNewProject) {
    int n = 1;
    int newOnes = 0;
    for (; n < Enough; ++n) {
        const End end = saveInChild(killBefore(n));
        expectOldOr(newProject, "killed before call " + std::to_string(n));
        newOnes += *openElsewhere() == newProject ? 1 : 0;
        putOldBack();
        if (end == End::Saved) {
            break;
        }
        ASSERT_EQ(end, End::Killed);
    }
    EXPECT_GT(n, 10);
    EXPECT_GT(newOnes, 1) << "the last calls come after the new project counts";
    EXPECT_LT(newOnes, n - 5) << "the first calls come before";
}

TEST_F(InterruptedSave, KilledInTheMiddleOfAnyWriteGivesTheOldOrTheNewProject) {
    for (int n = 1; n < Enough; ++n) {
        const End end = saveInChild([n, seen = 0](Call& call) mutable {
            if (call.name == "write" && ++seen == n) {
                call.count /= 2;
                call.last = true;
            }
        });
        expectOldOr(newProject, "killed in write " + std::to_string(n));
        putOldBack();
        if (end == End::Saved) {
            EXPECT_GT(n, 2);
            return;
        }
    }
    FAIL() << "no save came to its end";
}

TEST_F(InterruptedSave, FollowedByAnotherKilledSaveGivesAnyWholeProject) {
    for (int first = 1; first < Enough; ++first) {
        bool ended = false;
        for (int second = 1; second < Enough; ++second) {
            prepare("new", 2, Qt::darkGreen);
            ended = saveInChild(killBefore(first)) == End::Saved;
            prepare("third", 1, Qt::darkRed);
            const End end = saveInChild(killBefore(second));
            const auto found = openElsewhere();
            ASSERT_TRUE(found) << first << ", " << second << ": " << cause;
            ASSERT_TRUE(*found == oldProject || *found == newProject || *found == thirdProject)
                << "killed before call " << first << ", then before " << second
                << ": parts of different projects";
            putOldBack();
            if (end == End::Saved) {
                break;
            }
        }
        if (ended) {
            return;
        }
    }
}

TEST_F(InterruptedSave, FollowedByASaveOnAFullDiskGivesAnyWholeProject) {
    for (int first = 1; first < Enough; ++first) {
        prepare("new", 2, Qt::darkGreen);
        const bool ended = saveInChild(killBefore(first)) == End::Saved;
        prepare("third", 1, Qt::darkRed);
        const End end = saveInChild([](Call& call) {
            if (call.name == "write") {
                call.error = ENOSPC;
            }
        });
        EXPECT_EQ(end, End::Failed);
        expectOldOr(newProject, "killed before call " + std::to_string(first));
        putOldBack();
        if (ended) {
            return;
        }
    }
}

TEST_F(InterruptedSave, AFailedSaveKilledWhileItTidiesUpLeavesAWholeProject) {
    for (const char* failing : {"write", "fsync", "rename"}) {
        for (int n = 1; n < Enough; ++n) {
            // Both files of an earlier save that was killed lie beside the targets.
            writeFile(waiting(), "not the XML of a project");
            writeFile(waitingData(), "no pictures");
            const End end = saveInChild([&, seen = 0](Call& call) mutable {
                if (call.name == failing) {
                    call.error = ENOSPC;
                } else if (call.name == "unlink" && ++seen == n) {
                    ::_exit(0);
                }
            });
            expectOldOr(oldProject, std::string(failing) + " failed, killed before removal " +
                                        std::to_string(n));
            putOldBack();
            if (end != End::Killed) {
                break;
            }
        }
    }
}

TEST_F(InterruptedSave, AnyCallThatFailsOnceGivesTheOldOrTheNewProject) {
    for (int n = 1; n < Enough; ++n) {
        bool failed = false;
        int seen = 0;
        bool saved = false;
        {
            const Watch watch([&](Call& call) {
                if (++seen == n) {
                    call.error = EIO;
                    failed = true;
                }
            });
            saved = save();
        }
        const auto found = openElsewhere();
        ASSERT_TRUE(found) << "call " << n << ": " << cause;
        EXPECT_TRUE(*found == newProject || (*found == oldProject && !saved)) << "call " << n;
        EXPECT_FALSE(QFileInfo::exists(waiting())) << "call " << n;
        EXPECT_FALSE(QFileInfo::exists(waitingData())) << "call " << n;
        putOldBack();
        if (!failed) {
            return;
        }
    }
    FAIL() << "no save came to its end";
}

TEST_F(InterruptedSave, AReaderAtAnyMomentFindsTheOldOrTheNewProject) {
    // A reader may put the project file in place itself; the save must not mind.
    int moments = 0;
    {
        const Watch watch([&](Call&) {
            ++moments;
            expectOldOr(newProject, "before call " + std::to_string(moments));
        });
        EXPECT_TRUE(save());
    }
    EXPECT_GT(moments, 10);
    EXPECT_EQ(*openElsewhere(), newProject);
}

TEST_F(InterruptedSave, BetweenTheRenamesIsCompletedByOpening) {
    ASSERT_TRUE(save());
    const QByteArray newXml = readFile(target());
    writeFile(waiting(), newXml);
    writeFile(target(), oldXml);
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_TRUE(readFile(target()) == newXml);
    EXPECT_FALSE(QFileInfo::exists(waiting()));
}

TEST_F(InterruptedSave, BetweenTheRenamesIsReadFromTheNeighbourWhereNothingMayBeRenamed) {
    ASSERT_TRUE(save());
    const QByteArray newXml = readFile(target());
    writeFile(waiting(), newXml);
    writeFile(target(), oldXml);
    const Watch watch([](Call& call) {
        if (call.name == "rename") {
            call.error = EROFS;
        }
    });
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_TRUE(readFile(target()) == oldXml);
    EXPECT_TRUE(readFile(waiting()) == newXml);
}

TEST_F(InterruptedSave, BeforeTheRenamesIsForgotten) {
    writeFile(waiting(), "a half");
    writeFile(waitingData(), "another half");
    EXPECT_EQ(*openElsewhere(), oldProject);
    EXPECT_TRUE(save());
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_FALSE(QFileInfo::exists(waiting()));
    EXPECT_FALSE(QFileInfo::exists(waitingData()));
}

TEST_F(InterruptedSave, AFolderOfTheWaitingFilesNameIsNone) {
    QDir().mkpath(waiting());
    EXPECT_EQ(openElsewhere().value_or(QStringList(QString::fromStdString(cause))), oldProject);
    EXPECT_TRUE(QFileInfo(waiting()).isDir());
    QDir().rmdir(waiting());
}

}  // namespace nubivane::testing
