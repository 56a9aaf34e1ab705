// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"
#include "engine/project/project_writer.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace nubivane {

/// A file of a recovery copy, and how long it must be.
struct RecoveryPart {
    QString name;  ///< empty for none
    qint64 size = 0;

    bool operator==(const RecoveryPart&) const = default;
};

/// The file "state" of a recovery copy, JSON in UTF-8: what a project is made of.
struct RecoveryState {
    struct Frame {
        RecoveryPart text;     ///< its element, as `frameText` writes it
        RecoveryPart picture;  ///< its block of the data file
    };

    QString project;                  ///< path text; empty for a project that was never saved
    std::optional<PairState> opened;  ///< how its files stood when they were read or written last
    QDateTime time;
    DocumentHead head;
    RecoveryPart map;
    std::vector<Frame> frames;
};

/// Replaces the state of the copy in `folder` (host path). Raises `Error` (FileAccess).
void writeRecoveryState(const QString& folder, const RecoveryState& state);

/// Raises `Error` for one that is damaged, or of a form that this program does not know.
RecoveryState readRecoveryState(const QString& folder);

/// True where there is such a file.
bool hasRecoveryState(const QString& folder);
/// Its file as it stands, by which two states are told apart.
FileState fileOfRecoveryState(const QString& folder);

/// Takes a copy away, the state first: one that is cut short is no copy any more. Raises nothing.
void removeRecoveryCopy(const QString& folder);

}  // namespace nubivane
