// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace nubivane {

/// The editor's command line is one path, with or without a pair of double quotes around it.
/// Arguments that the system has split at blanks belong together.
QString projectArgument(const QStringList& arguments);

/// Whether the editor can be started with a file (host path): it exists, its extension is "nvpf" in
/// any case, and its data file lies beside it.
bool isStartableProject(const QString& hostFile);

/// What is shown for a file that it cannot be started with.
QString notStartableText(const QString& hostFile);

}  // namespace nubivane
