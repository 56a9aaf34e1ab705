// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/kept_pair.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/host_files.h"
#include "engine/history/version_store.h"
#include "engine/project/project_commit.h"
#include "engine/project/project_document.h"
#include "engine/project/project_paths.h"

#include <QFile>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

void openKept(QFile& file, const QString& path) {
    QString reason;
    if (!openOrdinary(file, path, reason)) {
        failToWrite(u"versions"_s, path, reason);
    }
}

}  // namespace

void writeKeptPair(const QString& hostDocument, const QString& hostData, const QString& target,
                   const SettingsStore& settings) {
    constexpr qint64 Piece = 1 << 20;
    QFile document;
    QFile data;
    openKept(document, hostDocument);
    openKept(data, hostData);
    const QString dataFile = requireDataFileOf(target);
    const auto versions = VersionStore::ofUser(settings);
    ProjectCommit files(host_files::toHost(target), host_files::toHost(dataFile),
                        {.keepsTail = false, .versions = versions ? &*versions : nullptr});
    while (!data.atEnd()) {
        const QByteArray part = data.read(Piece);
        if (part.isEmpty()) {
            failToWrite(u"versions"_s, hostData, data.errorString());
        }
        files.appendData(part);
    }
    files.commit(document.read(MaxDocumentBytes));
}

}  // namespace nubivane
