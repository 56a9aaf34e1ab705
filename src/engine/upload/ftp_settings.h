// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/ftp_types.h"

#include <QString>

#include <optional>

namespace nubivane {

class SettingsStore;

/// Groups of files that an upload sends.
struct UploadGroups {
    bool symbols = false;
    bool maps = false;
    bool htmlPage = false;

    bool any() const { return symbols || maps || htmlPage; }
};

enum class FtpLogin { Normal = 0, Anonymous = 1 };

/// What the settings say of the upload, as the dialog shows it.
struct FtpSettings {
    QString url;
    QString port = QStringLiteral("21");
    QString userName;
    QString password;
    QString remoteFolder;
    QString nubivaneFolder;
    FtpLogin login = FtpLogin::Normal;
    Encryption encryption = Encryption::Required;
    UploadGroups groups;

    /// What the settings hold. A password may lie elsewhere: `storedPassword`.
    static FtpSettings read(const SettingsStore& store);
    /// Writes all of it, the password where it belongs. False when it could not be written.
    bool save(SettingsStore& store) const;
};

/// Tabs of the dialog.
enum class FtpTab { Server = 1, Folders = 2, UploadList = 3 };

enum class FtpField { Url, Port, RemoteFolder, NubivaneFolder };

/// What keeps settings from being saved: the text shown, and the field to go to.
struct FtpComplaint {
    FtpField field;
    QString text;
};

std::optional<FtpComplaint> validateFtpSettings(const FtpSettings& settings);

/// What is still missing before anything can be sent.
enum class FtpCheck { Complete = 0, NoAddress = 1, NoUserName = 2, NoNubivaneFolder = 3 };

FtpCheck checkFtpSettings(const FtpSettings& settings);

/// What is stored of the encryption. Where nothing is, it is required; but whoever had a server
/// before there was this setting goes on as he did.
Encryption encryptionOf(const SettingsStore& store);

/// Certificates that a person has trusted though they do not verify, each for one server.
QString trustedFingerprint(const SettingsStore& store, const FtpServer& server);
bool trustFingerprint(SettingsStore& store, const FtpServer& server, const QString& fingerprint);

/// No upload uses more connections at a time.
inline constexpr int MostConnections = 16;
/// How many connections an upload may use: from 1 to that number.
int wantedConnections(const SettingsStore& store);

/// The server of the settings, with the password that stands in them. The kind of login is not
/// asked for, nor the port of a plain FTP server.
FtpServer uploadServer(const SettingsStore& store);

}  // namespace nubivane
