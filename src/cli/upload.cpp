// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "cli/upload_view.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/net/reachable.h"
#include "engine/net/server_address.h"
#include "engine/net/targets.h"
#include "engine/net/tls.h"
#include "engine/upload/stored_password.h"
#include "engine/upload/upload_commands.h"

#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int HighestPort = 65535;

/// The first line of a file. A password on the command line would be seen by everybody.
QString readPassword(const QString& hostFile) {
    constexpr qint64 maxBytes = 4096;
    QByteArray line = host_files::read(modelPath(hostFile), maxBytes);
    if (const qsizetype end = line.indexOf('\n'); end >= 0) {
        line.truncate(end);
    }
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    return QString::fromUtf8(line);
}

/// The number of an option within its range; nothing when it is none.
std::optional<int> numberOf(const QString& text, int highest) {
    bool valid = false;
    const int number = text.toInt(&valid);
    return valid && number >= 1 && number <= highest ? std::optional(number) : std::nullopt;
}

Encryption encryptionNamed(const QString& name) {
    return name == "none"_L1      ? Encryption::None
           : name == "offered"_L1 ? Encryption::Offered
                                  : Encryption::Required;
}

/// A host may be written as an address: what it says beyond the host counts as if it stood in the
/// options of its own. False for what is no address.
bool applyHost(const QString& text, FtpSettings& settings, FtpServer& server) {
    settings.url = text;
    server.host = text;
    if (isLocalTarget(text)) {
        return true;
    }
    const auto address = parseServerAddress(text);
    const bool known = address && (address->scheme.isEmpty() || address->scheme == "ftp"_L1 ||
                                   address->scheme == "ftps"_L1 || address->scheme == "sftp"_L1);
    if (!known || !address->path.isEmpty()) {
        return false;
    }
    settings.url = address->host;
    server.host = address->scheme == "sftp"_L1 ? u"sftp://"_s + address->host : address->host;
    server.implicitTls = address->scheme == "ftps"_L1;
    if (server.implicitTls) {
        constexpr int implicitPort = 990;
        server.port = implicitPort;
    }
    server.port = address->port.value_or(server.port);
    if (!address->user.isEmpty()) {
        settings.userName = server.user = address->user;
    }
    return true;
}

int wrongUsage(const QString& text) {
    streams::printUsageError(text);
    return exit_code::WrongUsage;
}

/// The page that an upload knows has one name; one made under another stays where it is.
void warnWithoutPage(const Workspace& workspace) {
    const QString page = workspace.settings.text(Setting::PreviewFilename) + u".htm"_s;
    if (!host_files::fileExists(workspace.folder.entry(page))) {
        streams::printError(u"The site that was sent has no page."_s,
                            u"there is no "_s + host_files::toHost(workspace.folder.entry(page)) +
                                u": make it first with \"nubivane-cli page\", and leave the "
                                "setting Filename alone"_s);
    }
}

int failed(const QString& text) {
    streams::printError(text);
    return exit_code::Failed;
}

/// Whoever says what the password is means it, be it empty.
bool givesPassword(const QHash<QString, QString>& options) {
    return options.contains(u"--password-file"_s) || qEnvironmentVariableIsSet("NUBIVANE_PASSWORD");
}

/// Puts what the options say in the place of what the settings say. The text of what is wrong with
/// them, or nothing. Raises `Error`.
QString applyOptions(const QHash<QString, QString>& options, FtpSettings& settings,
                     FtpServer& server) {
    if (options.contains(u"--host"_s) && !applyHost(options.value(u"--host"_s), settings, server)) {
        return u"--host takes a host, not \"%1\""_s.arg(options.value(u"--host"_s));
    }
    if (options.contains(u"--port"_s)) {
        const auto port = numberOf(options.value(u"--port"_s), HighestPort);
        if (!port) {
            return u"--port takes a number from 1 to 65535, not \"%1\""_s.arg(
                options.value(u"--port"_s));
        }
        server.port = *port;
    }
    if (options.contains(u"--user"_s)) {
        server.user = settings.userName = options.value(u"--user"_s);
    }
    if (options.contains(u"--password-file"_s)) {
        server.password = readPassword(options.value(u"--password-file"_s));
    } else if (qEnvironmentVariableIsSet("NUBIVANE_PASSWORD")) {
        server.password = qEnvironmentVariable("NUBIVANE_PASSWORD");
    }
    if (options.contains(u"--encryption"_s)) {
        server.encryption = encryptionNamed(options.value(u"--encryption"_s));
    }
    return {};
}

/// What is kept for the run after this, when this one has shown that it is right.
void remember(CommandContext& context, const FtpServer& server) {
    SettingsStore& settings = context.workspace.settings;
    if (context.options.contains(u"--accept-fingerprint"_s) &&
        trustFingerprint(settings, server, server.fingerprint)) {
        streams::printError(u"The certificate of %1 is trusted from now on."_s.arg(server.host));
    }
    if (context.options.contains(u"--initialize"_s)) {
        rememberInitialized(settings);
    }
}

}  // namespace

int runUpload(CommandContext& context) {
    const QHash<QString, QString>& options = context.options;
    FtpSettings settings = FtpSettings::read(context.workspace.settings);
    FtpServer server = uploadServer(context.workspace.settings);
    if (const QString wrong = applyOptions(options, settings, server); !wrong.isEmpty()) {
        return wrongUsage(wrong);
    }
    if (server.password.isEmpty() && !givesPassword(options)) {
        server.password =
            storedPassword(context.workspace.settings, server.host, server.user).password;
    }
    server.fingerprint = trustedFingerprint(context.workspace.settings, server);
    if (options.contains(u"--accept-fingerprint"_s)) {
        const auto fingerprint = plainFingerprint(options.value(u"--accept-fingerprint"_s));
        if (!fingerprint) {
            return wrongUsage(u"--accept-fingerprint takes 64 hexadecimal digits"_s);
        }
        server.fingerprint = *fingerprint;
    }
    UploadWishes wishes;
    wishes.connections = wantedConnections(context.workspace.settings);
    if (options.contains(u"--connections"_s)) {
        const auto connections = numberOf(options.value(u"--connections"_s), MostConnections);
        if (!connections) {
            return wrongUsage(u"--connections takes a number from 1 to 16"_s);
        }
        wishes.connections = *connections;
    }
    wishes.all = options.contains(u"--all"_s);
    wishes.removeGone = options.contains(u"--delete"_s);
    wishes.dryRun = options.contains(u"--dry-run"_s);
    openNamedProject(context, context.arguments[0]);

    if (!isReachable(context.shell, server.host)) {
        return failed(u"No connection to the internet is currently available"_s);
    }
    if (const FtpCheck check = checkFtpSettings(settings); check != FtpCheck::Complete) {
        return failed(textOf(check));
    }
    CliUploadView view(context.shell, options.contains(u"--json"_s), server.encryption);
    FtpOptions limits;
    if (options.contains(u"--verbose"_s)) {
        limits.log = [](const QString& line) { streams::writeError(line + u'\n'); };
    }
    UploadRun run(context.editor(), view, limits);
    if (!run.runUpload(options.contains(u"--initialize"_s), server, wishes)) {
        return exit_code::Failed;
    }
    if (!wishes.dryRun) {
        if (options.contains(u"--initialize"_s) || settings.groups.htmlPage) {
            warnWithoutPage(context.workspace);
        }
        remember(context, server);
    }
    return view.conclude(run.report(), wishes.dryRun) ? exit_code::Done : exit_code::Failed;
}

}  // namespace nubivane
