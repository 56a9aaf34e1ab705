// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/core/temporary_name.h"
#include "engine/project/message_log.h"
#include "engine/project/model_text.h"
#include "engine/project/open_project.h"
#include "engine/project/save_project.h"
#include "support/system_calls.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <optional>
#include <utility>

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
        // Keeping versions makes calls of its own, of which none may matter to the pair.
        qputenv("XDG_STATE_HOME", "/dev/null");
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
    /// What interrupted saves have left beside the pair.
    QStringList leftovers() const {
        QStringList paths;
        const QDir folder(temporary.path());
        for (const QString& name : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                                    QDir::NoDotAndDotDot)) {
            if (temporary_name::isOurs(name)) {
                paths << folder.filePath(name);
            }
        }
        return paths;
    }
    void removeLeftovers() const {
        for (const QString& path : leftovers()) {
            QFile::remove(path);
        }
    }
    /// The one that waits to become the project file; its name says what it belongs to.
    QString waiting() const {
        for (const QString& path : leftovers()) {
            if (path.count(u'-') > 4) {
                return path;
            }
        }
        return {};
    }

    void prepare(const QString& name, qint32 frames, Qt::GlobalColor color) {
        workspace.resetProject();
        while (workspace.Frames().Count() < frames) {
            workspace.Frames().Add();
        }
        workspace.Frames().Item(1).Texts().Label = name;
        workspace.clearTempPicture();
        // Pictures of one size take as many bytes each, so that no length betrays a mix.
        writeFile(temporary.file("program/Maps/" + name + ".bmp"),
                  encodePicture(plainImage({8, 5}, color), PictureFormat::Bmp));
        workspace.Status.CurrentMap = workspace.folder.maps() + u'\\' + name + ".bmp";
        workspace.pctMap.setPicture(workspace.loadCurrentMap());
        workspace.pctMap.persistentLayer().setPixelColor(1, 1, Qt::white);
        workspace.Status.CurrentProject = host_files::toModel(target());
    }

    bool save() {
        // The tests put files back themselves, which is not what is looked at here.
        workspace.opened.reset();
        MessageLog log(view);
        return saveProject({workspace, log, view}, false);
    }

    void putOldBack() {
        removeLeftovers();
        writeFile(target(), oldXml);
        writeFile(targetData(), oldData);
    }

    QMap<QString, QByteArray> filesOfTheFolder() const {
        QMap<QString, QByteArray> files;
        const QDir folder(temporary.path());
        for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden)) {
            files.insert(name, readFile(folder.filePath(name)));
        }
        return files;
    }
    /// The same for two runs that left the same, whatever their temporary files were called.
    static QList<QByteArray> withoutChance(const QMap<QString, QByteArray>& files) {
        static const QRegularExpression chance("^(\\.nubivane-[0-9a-f]{16}-)[0-9a-f]{8}");
        QList<QByteArray> texts;
        for (const auto& [name, bytes] : files.asKeyValueRange()) {
            texts << QString(name).replace(chance, "\\1").toUtf8() + '\n' + bytes;
        }
        std::sort(texts.begin(), texts.end());
        return texts;
    }
    void putBack(const QMap<QString, QByteArray>& files) const {
        for (const QString& name : filesOfTheFolder().keys()) {
            QFile::remove(temporary.file(name));
        }
        for (const auto& [name, bytes] : files.asKeyValueRange()) {
            writeFile(temporary.file(name), bytes);
        }
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

    /// The new project is saved by a child that dies between the two renames.
    void stopBetweenTheRenames() {
        EXPECT_EQ(saveInChild([seen = 0](Call& call) mutable {
                      if (call.name == "rename" && ++seen == 2) {
                          ::_exit(0);
                      }
                  }),
                  End::Killed);
        EXPECT_NE(waiting(), "");
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
    OpenWorkspace workspace{ProgramFolder(host_files::toModel(temporary.file("program"))),
                            settings};
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
    EXPECT_GE(names.count("open"), 2);
    EXPECT_GE(names.count("flock"), 3);  // both temporaries and their folder
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
    // Many calls change nothing in the folder: only what they can leave there is gone on with.
    QSet<QList<QByteArray>> seen;
    End firstEnd = End::Killed;
    for (int first = 1; first < Enough && firstEnd != End::Saved; ++first) {
        putOldBack();
        prepare("new", 2, Qt::darkGreen);
        firstEnd = saveInChild(killBefore(first));
        const QMap<QString, QByteArray> left = filesOfTheFolder();
        if (seen.contains(withoutChance(left))) {
            continue;
        }
        seen.insert(withoutChance(left));
        prepare("third", 1, Qt::darkRed);
        End end = End::Killed;
        for (int second = 1; second < Enough && end != End::Saved; ++second) {
            putBack(left);
            end = saveInChild(killBefore(second));
            const auto found = openElsewhere();
            ASSERT_TRUE(found) << first << ", " << second << ": " << cause;
            ASSERT_TRUE(*found == oldProject || *found == newProject || *found == thirdProject)
                << "killed before call " << first << ", then before " << second
                << ": parts of different projects";
        }
        EXPECT_EQ(end, End::Saved);
    }
    EXPECT_EQ(firstEnd, End::Saved);
    EXPECT_GE(seen.size(), 5) << "untouched, one temporary, two, between the renames, done";
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
        std::string calls;
        {
            const Watch watch([&](Call& call) {
                if (++seen <= n) {
                    calls += std::string(call.name) + ' ';
                }
                if (seen == n) {
                    call.error = EIO;
                    failed = true;
                }
            });
            saved = save();
        }
        const auto found = openElsewhere();
        ASSERT_TRUE(found) << "call " << n << " of " << calls << ": " << cause;
        EXPECT_TRUE(*found == newProject || (*found == oldProject && !saved)) << "call " << n;
        EXPECT_EQ(leftovers(), QStringList()) << "call " << n;
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
    stopBetweenTheRenames();
    const QByteArray newXml = readFile(waiting());
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_TRUE(readFile(target()) == newXml);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(InterruptedSave, TheFirstOneBetweenTheRenamesIsCompletedByOpening) {
    QFile::remove(target());
    QFile::remove(targetData());
    stopBetweenTheRenames();
    EXPECT_FALSE(QFileInfo::exists(target()));
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_TRUE(QFileInfo::exists(target()));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(InterruptedSave, BetweenTheRenamesIsReadFromTheNeighbourWhereNothingMayBeRenamed) {
    stopBetweenTheRenames();
    const QString neighbour = waiting();
    const Watch watch([](Call& call) {
        if (call.name == "rename") {
            call.error = EROFS;
        }
    });
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_TRUE(readFile(target()) == oldXml);
    EXPECT_EQ(waiting(), neighbour);
}

TEST_F(InterruptedSave, ItsLeftoversGoWithTheNextSaveAndNotByOpening) {
    ASSERT_EQ(saveInChild([](Call& call) {
                  if (call.name == "rename") {
                      ::_exit(0);
                  }
              }),
              End::Killed);
    const QStringList left = leftovers();
    EXPECT_EQ(left.size(), 2);
    EXPECT_EQ(*openElsewhere(), oldProject);
    EXPECT_EQ(leftovers(), left);
    EXPECT_TRUE(save());
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(InterruptedSave, AFileOfALivingSaverStays) {
    ReplacedFile living(target(), Durability::Quick);
    EXPECT_TRUE(save());
    EXPECT_EQ(leftovers(), QStringList(living.temporaryPath()));
}

TEST_F(InterruptedSave, ARestoredCopyBeatsWhatWaits) {
    stopBetweenTheRenames();
    const QString neighbour = waiting();
    writeFile(target(), oldXml);
    writeFile(targetData(), oldData);
    EXPECT_EQ(*openElsewhere(), oldProject);
    EXPECT_EQ(waiting(), neighbour) << "an opening removes nothing that it does not use";
}

TEST_F(InterruptedSave, ARestoredCopyWithTheSamePicturesBeatsWhatWaits) {
    stopBetweenTheRenames();
    const QByteArray restored = readFile(waiting()).replace("\"new\"", "\"restored\"");
    writeFile(target(), restored);
    const auto found = openElsewhere();
    ASSERT_TRUE(found) << cause;
    EXPECT_NE(*found, newProject);
    EXPECT_TRUE(readFile(target()) == restored);
    EXPECT_NE(waiting(), "");
}

TEST_F(InterruptedSave, ACutWaitingDocumentIsNeitherUsedNorRemoved) {
    stopBetweenTheRenames();
    const QString neighbour = waiting();
    const QByteArray whole = readFile(neighbour);
    for (const QByteArray& damaged :
         {QByteArray(), whole.left(whole.size() / 2), QByteArray(whole).replace("new", "old")}) {
        writeFile(neighbour, damaged);
        EXPECT_FALSE(openElsewhere());
        EXPECT_TRUE(readFile(neighbour) == damaged);
    }
    writeFile(neighbour, whole);
    EXPECT_EQ(*openElsewhere(), newProject);
}

TEST_F(InterruptedSave, AWaitingDocumentRemovedByHandNeverGivesAMix) {
    stopBetweenTheRenames();
    removeLeftovers();
    ASSERT_EQ(readFile(targetData()).size(), oldData.size()) << "no length betrays it";
    EXPECT_FALSE(openElsewhere());
    EXPECT_NE(cause.find("interrupted"), std::string::npos) << cause;
    // A copy of both is as good as ever.
    writeFile(target(), oldXml);
    writeFile(targetData(), oldData);
    EXPECT_EQ(*openElsewhere(), oldProject);
}

TEST_F(InterruptedSave, WhateverLeftoversAreRemovedNoMixOpens) {
    int refused = 0;
    for (int n = 1; n < Enough; ++n) {
        const bool ended = saveInChild(killBefore(n)) == End::Saved;
        const bool oldStands = readFile(target()) == oldXml && readFile(targetData()) == oldData;
        removeLeftovers();
        const auto found = openElsewhere();
        refused += found ? 0 : 1;
        EXPECT_TRUE(!found || *found == oldProject || *found == newProject) << "call " << n;
        EXPECT_TRUE(found || !oldStands) << "call " << n << ": " << cause;
        putOldBack();
        if (ended) {
            EXPECT_GT(refused, 0);
            return;
        }
    }
    FAIL() << "no save came to its end";
}

TEST_F(InterruptedSave, GoingBackToAnEarlierDocumentOverTheSamePicturesOpens) {
    ASSERT_TRUE(save());
    // The old document again, word for word, over pictures that once made it obsolete.
    workspace.resetProject();
    prepare("new", 3, Qt::darkBlue);
    ASSERT_TRUE(save());
    const QByteArray before = readFile(target());
    workspace.pctMap.persistentLayer().setPixelColor(2, 2, Qt::red);
    workspace.Frames().Item(1).Texts().Label = "other";
    ASSERT_TRUE(save());
    workspace.Frames().Item(1).Texts().Label = "new";
    ASSERT_TRUE(save());
    EXPECT_TRUE(readFile(target()) == before);
    EXPECT_TRUE(openElsewhere()) << cause;
}

TEST_F(InterruptedSave, OneRenameIsEnoughWhereOneFileChanges) {
    const auto renames = [this] {
        int count = 0;
        const Watch watch([&count](Call& call) { count += call.name == "rename" ? 1 : 0; });
        EXPECT_TRUE(save());
        return count;
    };
    EXPECT_EQ(renames(), 2);
    workspace.Frames().Item(1).Texts().Label = "sprites alone";
    EXPECT_EQ(renames(), 1);
    workspace.pctMap.persistentLayer().setPixelColor(2, 2, Qt::red);
    EXPECT_EQ(renames(), 1);
    EXPECT_EQ(renames(), 0) << "nothing has changed";
}

TEST_F(InterruptedSave, AFolderOrPipeOfTheWaitingFilesNameIsNone) {
    stopBetweenTheRenames();
    const QString neighbour = waiting();
    QFile::remove(neighbour);
    QDir().mkpath(neighbour);
    EXPECT_FALSE(openElsewhere());
    QDir().rmdir(neighbour);
    ASSERT_EQ(::mkfifo(QFile::encodeName(neighbour).constData(), 0600), 0);
    EXPECT_FALSE(openElsewhere());
    EXPECT_TRUE(QFileInfo::exists(neighbour));
}

TEST_F(InterruptedSave, WhatAnotherProgramSavedMeanwhileStays) {
    prepare("third", 1, Qt::darkRed);
    bool first = true;
    MessageLog log(view);
    {
        const Watch watch([&](Call& call) {
            if (call.name == "write" && std::exchange(first, false)) {
                prepare("new", 2, Qt::darkGreen);
                EXPECT_TRUE(save());
            }
        });
        EXPECT_FALSE(save());
    }
    EXPECT_EQ(*openElsewhere(), newProject);
    EXPECT_EQ(leftovers(), QStringList());
}

}  // namespace nubivane::testing
