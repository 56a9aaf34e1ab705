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
    UploadGroups groups;

    static FtpSettings read(const SettingsStore& store);
    /// Writes all of it. False when it could not be written.
    bool save(SettingsStore& store) const;
};

/// Tabs of the dialog.
enum class FtpTab { Server = 1, Folders = 2, UploadList = 3 };

enum class FtpField { Port, RemoteFolder, NubivaneFolder };

/// What keeps settings from being saved: the text shown, and the field to go to.
struct FtpComplaint {
    FtpField field;
    QString text;
};

std::optional<FtpComplaint> validateFtpSettings(const FtpSettings& settings);

/// What is still missing before anything can be sent.
enum class FtpCheck { Complete = 0, NoAddress = 1, NoUserName = 2, NoNubivaneFolder = 3 };

FtpCheck checkFtpSettings(const FtpSettings& settings);

/// The server of the settings. The port and the kind of login are not asked for.
FtpServer uploadServer(const SettingsStore& store);

}  // namespace nubivane
