// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/fixtures.h"

#include <QProcess>

namespace nubivane::testing {

/// A session bus of a test's own with gnome-keyring on it, unlocked and empty, for this process and
/// those that it starts. Ends with the object.
class KeyringSession {
  public:
    KeyringSession();
    ~KeyringSession();
    KeyringSession(const KeyringSession&) = delete;
    KeyringSession& operator=(const KeyringSession&) = delete;

    /// Why there is none here; empty when it runs.
    const QString& obstacle() const { return obstacle_; }

  private:
    static bool answers();

    TemporaryFolder folder_;  ///< of the keyring's files
    QProcess bus_;
    QProcess keyring_;
    QString obstacle_;
};

}  // namespace nubivane::testing
