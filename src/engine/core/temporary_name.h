// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Files in which something is written before it takes its target's place. They lie in the target's
/// folder under names of their own form, which say whose they are: ".nubivane-", 16 digits made of
/// the target's name, 8 of chance, and perhaps a note. However long the target's name is, theirs
/// is short. Whoever writes one holds a lock on it, which goes with the process: one without a lock
/// is the leftover of a run that has died.
namespace nubivane::temporary_name {

/// How all names for a target begin.
QString prefixFor(const QString& targetName);

/// True for a name of this form, whatever its target.
bool isOurs(const QString& name);

/// Names in `hostFolder` that begin with a prefix, sorted; of a folder that cannot be read none.
QStringList withPrefix(const QString& hostFolder, const QString& prefix);

/// Creates one, locked and open for reading and writing. Returns its descriptor and sets `name`;
/// -1 with `errno` where that cannot be done. `note` is added to the name; `mode` as for open().
[[nodiscard]] int create(const QString& hostFolder, const QString& targetName,
                         const QByteArray& note, unsigned mode, QString& name);

/// Removes a leftover. One that a living program still writes, and what is no file, stays.
void removeIfDead(const QString& hostFolder, const QString& name);

}  // namespace nubivane::temporary_name
