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

QList<RecoveryEntry> recoveryEntries(const QString& recoveryFolder, QStringList& faults) {
    QList<RecoveryEntry> entries;
    const QDir root(recoveryFolder);
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = root.filePath(name);
        if (!hasRecoveryState(folder)) {
            continue;
        }
        try {
            const RecoveryState state = readRecoveryState(folder);
            entries +=
                {folder, state.project, state.opened, state.time, FolderLock::isHeld(folder)};
        } catch (const Error& error) {
            faults += QString::fromUtf8(error.what());
        }
    }
    std::sort(entries.begin(), entries.end(), [](const RecoveryEntry& a, const RecoveryEntry& b) {
        return a.time != b.time ? a.time > b.time : a.folder > b.folder;
    });
    return entries;
}

void writeRecovered(const RecoveryEntry& entry, const QString& target,
                    const SettingsStore& settings) {
    const RecoveryState state = readRecoveryState(entry.folder);
    const QString dataFile = requireDataFileOf(target);
    const auto versions = VersionStore::ofUser(settings);
    ProjectCommit::Rules rules;
    rules.keepsTail = false;
    rules.versions = versions ? &*versions : nullptr;
    ProjectCommit files(host_files::toHost(target), host_files::toHost(dataFile), rules);
    const auto partOf = [&entry](const RecoveryPart& part, qint64 limit) {
        return host_files::read(host_files::toModel(entry.folder + u'/' + part.name), limit);
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

void discardRecovered(const RecoveryEntry& entry) {
    const FolderLock lock(entry.folder, std::chrono::milliseconds(0));
    if (lock.held()) {
        QDir(entry.folder).removeRecursively();
    }
}

}  // namespace nubivane
