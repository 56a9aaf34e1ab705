// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <mutex>

namespace nubivane {

/// A folder that a site is written into. Names are relative to it, parted by "/". Any number of
/// threads may write at once. Everything raises `Error`.
class SiteFolder {
  public:
    /// What a sub-folder that is a link to another place means.
    enum class Links { Followed, Refused };

    /// The folder of a host path; it is made when the first file is written.
    SiteFolder(const QString& hostPath, Links links);

    void write(const QString& name, const QByteArray& bytes);

    bool contains(const QString& name) const;
    QString hostPath(const QString& name) const { return root_ + u'/' + name; }
    /// What was written: by name, those in sub-folders first.
    QStringList names() const;
    /// The same as host paths.
    QStringList written() const;

  private:
    void makeFolderOf(const QString& name);

    QString root_;
    Links links_;
    mutable std::mutex mutex_;  ///< guards the lists
    QStringList folders_;       ///< made and found to be inside
    QStringList names_;
};

}  // namespace nubivane
