// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

namespace nubivane {

/// The file "state" of a recovery copy: a line of JSON, then the document.
struct RecoveryState {
    QString project;  ///< path text; empty for a project that was never saved
    QDateTime time;
    QStringList blocks;  ///< names of the files that make up the data file, in their order
    QByteArray document;
};

/// Replaces the state of the copy in `folder` (host path). Raises `Error` (FileAccess).
void writeRecoveryState(const QString& folder, const RecoveryState& state);

/// Raises `Error` for one that is damaged, or of a form that this program does not know.
RecoveryState readRecoveryState(const QString& folder);

/// True where there is such a file.
bool hasRecoveryState(const QString& folder);

}  // namespace nubivane
