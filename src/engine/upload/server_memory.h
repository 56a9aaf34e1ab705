// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/upload/site_manifest.h"

#include <QSet>

namespace nubivane {

class SettingsStore;
struct FtpServer;

/// What this machine remembers of one place that it has sent a site to.
///
/// Files of which it is not certain that they are there are taken out before they are sent, so that
/// no interrupted run leaves a wrong word behind.
class ServerMemory {
  public:
    /// `place` names the server with its folders, in whatever form.
    explicit ServerMemory(const QString& place);

    /// The place where an upload to that server leads by the folders of the settings, apart from
    /// what proves that we may.
    static QString placeOf(const FtpServer& server, const SettingsStore& settings);

    /// Where all memories lie (host path): "Nubivane" in the user's folder for state. Raises
    /// `Error` for a user who has no home.
    static QString folder();

    bool known = false;       ///< something has been sent there
    bool everything = false;  ///< the next run is to send what has not changed too
    SiteManifest site;
    QSet<QString> folders;  ///< that have been made there, parted by slashes
    /// Folders that a run which has not come to its end was sending files to.
    QSet<QString> unfinished;
    /// When these folders had changed the last time, in the server's own form.
    QMap<QString, QByteArray> times;
    qint64 manifestSize = -1;  ///< of the manifest as it was left on the server

    /// Why it could not be written: the next run then sends more than it has to. Nothing when it
    /// was, or where there is no place for it.
    QString save() const;

  private:
    void load();

    QString hostFile_;  ///< empty where nothing can be remembered
};

}  // namespace nubivane
