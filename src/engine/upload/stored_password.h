// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

class SettingsStore;

/// Where the password of an account is kept, or would be.
enum class PasswordPlace {
    Settings,  ///< readable for whoever can read them
    Keyring    ///< the desktop's, which gives it to whoever has logged in
};

struct StoredPassword {
    QString password{};
    PasswordPlace place = PasswordPlace::Settings;
};

/// What the settings say, or else the keyring of what is kept for this user on this host.
StoredPassword storedPassword(const SettingsStore& store, const QString& host, const QString& user);

/// Keeps a password in the keyring if there is one, else in the settings, and tells where: nothing
/// when it could be kept nowhere. An empty one is forgotten.
std::optional<PasswordPlace> storePassword(SettingsStore& store, const QString& host,
                                           const QString& user, const QString& password);

}  // namespace nubivane
