// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/history/version_store.h"
#include "engine/project/project_commit.h"
#include "engine/project/project_document.h"
#include "engine/project/project_paths.h"
#include "engine/project/recovery_copy.h"
#include "engine/project/recovery_state.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Hands over what stands in a folder, once more where its editor has written the next state
/// meanwhile and taken away what the last one named.
template <class Use>
void withState(const QString& folder, const Use& use) {
    constexpr int MostTries = 20;
    for (int tries = 1;; ++tries) {
        const FileState before = fileOfRecoveryState(folder);
        try {
            use(readRecoveryState(folder));
            return;
        } catch (const Error&) {
            if (tries == MostTries || fileOfRecoveryState(folder) == before) {
                throw;
            }
        }
    }
}

void writePair(const RecoveryState& state, const QString& folder, const QString& target,
               const SettingsStore& settings) {
    const QString dataFile = requireDataFileOf(target);
    const auto versions = VersionStore::ofUser(settings);
    ProjectCommit::Rules rules;
    rules.keepsTail = false;
    rules.versions = versions ? &*versions : nullptr;
    ProjectCommit files(host_files::toHost(target), host_files::toHost(dataFile), rules);
    const auto partOf = [&folder](const RecoveryPart& part, qint64 limit) {
        return host_files::read(host_files::toModel(folder + u'/' + part.name), limit);
    };
    files.appendData(partOf(state.map, MaxPictureBytes));
    std::vector<qint64> sizes{state.map.size};
    std::vector<QByteArray> texts;
    for (const RecoveryState::Frame& frame : state.frames) {
        files.appendData(partOf(frame.picture, MaxPictureBytes));
        sizes.push_back(frame.picture.size);
        texts.push_back(partOf(frame.text, MaxDocumentBytes));
    }
    files.commit(joinDocument(state.head, sizes, texts));
}

}  // namespace

QList<RecoveryEntry> recoveryEntries(const QString& recoveryFolder, QStringList& faults) {
    QList<RecoveryEntry> entries;
    const QDir root(recoveryFolder);
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = root.filePath(name);
        if (!hasRecoveryState(folder)) {
            continue;
        }
        try {
            withState(folder, [&](const RecoveryState& state) {
                entries +=
                    {folder, state.project, state.opened, state.time, FolderLock::isHeld(folder)};
            });
        } catch (const Error& error) {
            // Its editor may have taken it away while it was read.
            if (hasRecoveryState(folder)) {
                faults += QString::fromUtf8(error.what());
            }
        }
    }
    std::sort(entries.begin(), entries.end(), [](const RecoveryEntry& a, const RecoveryEntry& b) {
        return a.time != b.time ? a.time > b.time : a.folder > b.folder;
    });
    return entries;
}

void writeRecovered(const RecoveryEntry& entry, const QString& target,
                    const SettingsStore& settings) {
    withState(entry.folder, [&](const RecoveryState& state) {
        writePair(state, entry.folder, target, settings);
    });
}

void discardRecovered(const RecoveryEntry& entry) {
    const FolderLock lock(entry.folder, std::chrono::milliseconds(0));
    if (lock.held()) {
        removeRecoveryCopy(entry.folder);
    }
}

}  // namespace nubivane
