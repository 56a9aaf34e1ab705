// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

/// The way from path texts to the disk, and the only one.
///
/// In the model, the settings and every path function a path is text with backslashes. Here it is
/// turned into the host's form, and names are found without regard to case where the file system
/// tells cases apart ("\maps\" and "\Maps\" meet). Reading and writing raise `Error` with
/// `error_number::FileNotFound` or `FileAccess` and the system's reason as its cause.
namespace nubivane::host_files {

/// The host's form of a path. Each component that does not exist as written is looked up without
/// regard to case; one that does not exist at all stays as it is.
QString toHost(const QString& path);

/// The model's form of a host path.
QString toModel(const QString& hostPath);

/// True for a name that can only mean one entry of one folder: not empty, not "." or "..", without
/// separators, drive colon and control characters, no longer than file systems take.
bool isPlainName(const QString& name);

/// `folder` + "\" + `relative`, or nothing when a component of `relative` is not a plain name.
/// Components are parted by backslashes.
std::optional<QString> pathInside(const QString& folder, const QString& relative);

bool fileExists(const QString& path);
/// The same for a file of at most `maxBytes` bytes.
bool fileWithin(const QString& path, qint64 maxBytes);
bool folderExists(const QString& path);

/// Names of the sub-folders, or of the files, in the order the system lists them by name.
QStringList folderNames(const QString& path);
QStringList fileNames(const QString& path);

/// Whole content of a file of at most `maxBytes` bytes.
QByteArray read(const QString& path, qint64 maxBytes);

/// Replaces a file by way of a neighbour and a rename: readers see the old or the new content.
void write(const QString& path, const QByteArray& bytes);

/// The same for the many files of one export, which can be made again: the path is the host's
/// already, and the bytes are left to the system to bring onto the disk in its own time. Looking
/// each name up and flushing each file would take longer than making them.
void writeHostFile(const QString& hostPath, const QByteArray& bytes);

/// Writes `bytes` over the start of a file without truncating it: a longer old file keeps its
/// tail. Done by way of a neighbour and a rename too; nothing is written when nothing changes. What
/// stands in its place without being an ordinary file of at most `maxBytes` bytes, such as a link,
/// gives way whole.
void writeOver(const QString& path, const QByteArray& bytes, qint64 maxBytes);

/// Removes every file of a folder but those named and what another run is about to put in place.
/// Raises nothing; false when another has stayed.
bool removeFiles(const QString& folder, const QSet<QString>& kept = {});

/// Removes one file, or an empty folder; of a link the link itself. Raises nothing; false when it
/// has stayed.
bool removeFile(const QString& path);
bool removeFolder(const QString& path);

/// Gives a file or folder another name in its folder. What bears that name already, in any case, is
/// never replaced. Raises nothing; false when it has kept its own.
bool rename(const QString& path, const QString& newName);

/// Creates a folder and those above it.
void makeFolder(const QString& path);

}  // namespace nubivane::host_files
