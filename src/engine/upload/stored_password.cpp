// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/stored_password.h"

#include "engine/core/settings_store.h"
#include "engine/upload/keyring.h"

namespace nubivane {

namespace {

/// Nothing where there is nobody to keep a password for.
QString accountOf(const QString& host, const QString& user) {
    return host.trimmed().isEmpty() || user.isEmpty() ? QString()
                                                      : user + u'@' + host.trimmed().toLower();
}

}  // namespace

StoredPassword storedPassword(const SettingsStore& store, const QString& host,
                              const QString& user) {
    if (const QString readable = store.text(Setting::FtpPassword); !readable.isEmpty()) {
        return {readable, PasswordPlace::Settings};
    }
    const QString account = accountOf(host, user);
    if (account.isEmpty()) {
        return {};
    }
    const keyring::Found found = keyring::find(account);
    return {found.password, found.outcome == keyring::Outcome::NoKeyring ? PasswordPlace::Settings
                                                                         : PasswordPlace::Keyring};
}

std::optional<PasswordPlace> storePassword(SettingsStore& store, const QString& host,
                                           const QString& user, const QString& password) {
    const QString account = accountOf(host, user);
    const bool named = !account.isEmpty();
    if (password.isEmpty() && named) {
        keyring::forget(account);
    }
    const bool inKeyring = !password.isEmpty() && named && keyring::keep(account, password);
    if (!store.set(Setting::FtpPassword, inKeyring ? QString() : password)) {
        return std::nullopt;
    }
    return inKeyring ? PasswordPlace::Keyring : PasswordPlace::Settings;
}

}  // namespace nubivane
