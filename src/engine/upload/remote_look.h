// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/transfer.h"
#include "engine/upload/server_memory.h"

#include <QSet>
#include <QStringList>

#include <map>

namespace nubivane {

/// What stands on a server in the folders of a site.
///
/// A few folders are listed each. Of many only those above them are, where the server tells when an
/// entry of a folder was made, removed or renamed the last time: folders of which it says the same
/// as after the run before hold what that run has left there. What others write into a file in its
/// place changes no such time, so two of them are listed all the same, others each time.
class RemoteLook {
  public:
    /// `way` leads from where the target stands into the Nubivane folder: "" or "name/".
    RemoteLook(Transfer& target, QString way, ServerMemory& memory);

    /// Looks at folders below the Nubivane folder, "" for itself. False when one is missing.
    bool at(const QStringList& folders);
    /// Lists some of those that were taken for granted.
    void lookTwice();
    /// Remembers the times of those folders of all that files have been put into.
    void remember(const QStringList& folders, const QStringList& changed);

    const std::map<QString, RemoteListing>& seen() const { return seen_; }
    /// Whether a folder was not listed, since nothing in it has changed.
    bool takenForGranted(const QString& folder) const { return granted_.contains(folder); }

  private:
    bool list(const QString& folder, bool quickly);
    bool listParents(const QStringList& folders);
    const RemoteEntry* entryOf(const QString& folder) const;

    Transfer& target_;
    const QString way_;
    ServerMemory& memory_;
    std::map<QString, RemoteListing> seen_;
    QSet<QString> granted_;
};

/// The entry of a name; null where there is none.
const RemoteEntry* find(const RemoteListing& listing, const QString& name);

}  // namespace nubivane
