// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/net/reachable.h"
#include "engine/upload/upload_commands.h"

#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Shows a run as the share of it that is done.
class ProgressView : public UploadView {
  public:
    explicit ProgressView(Shell& shell) : shell_(shell) {}

    void setProgress(int percent) override { shell_.setProgress(percent); }
    void close() override { shell_.hideProgress(); }

  private:
    Shell& shell_;
};

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

/// The port of the option, or nothing when it is none.
std::optional<int> portOf(const QString& text) {
    constexpr int highest = 65535;
    bool valid = false;
    const int port = text.toInt(&valid);
    return valid && port >= 1 && port <= highest ? std::optional(port) : std::nullopt;
}

/// Puts what the options say in the place of what the settings say. Raises `Error`.
void applyOptions(const QHash<QString, QString>& options, FtpSettings& settings,
                  FtpServer& server) {
    if (options.contains(u"--host"_s)) {
        server.host = settings.url = options.value(u"--host"_s);
    }
    if (options.contains(u"--user"_s)) {
        server.user = settings.userName = options.value(u"--user"_s);
    }
    if (options.contains(u"--password-file"_s)) {
        server.password = readPassword(options.value(u"--password-file"_s));
    }
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

}  // namespace

int runUpload(CommandContext& context) {
    const auto port = portOf(context.options.value(u"--port"_s, u"21"_s));
    if (!port) {
        streams::printUsageError(u"--port takes a number from 1 to 65535, not \""_s +
                                 context.options.value(u"--port"_s) + u'"');
        return exit_code::WrongUsage;
    }
    FtpSettings settings = FtpSettings::read(context.workspace.settings);
    FtpServer server = uploadServer(context.workspace.settings);
    server.port = *port;
    applyOptions(context.options, settings, server);
    openNamedProject(context, context.arguments[0]);

    if (!isReachable(context.shell, server.host)) {
        return failed(u"No connection to the internet is currently available"_s);
    }
    const FtpCheck check = checkFtpSettings(settings);
    if (check != FtpCheck::Complete) {
        return failed(textOf(check));
    }
    const bool initialising = context.options.contains(u"--initialize"_s);
    ProgressView view(context.shell);
    UploadRun run(context.editor(), view);
    if (!run.runUpload(initialising, server)) {
        return exit_code::Failed;
    }
    if (initialising || settings.groups.htmlPage) {
        warnWithoutPage(context.workspace);
    }
    if (initialising) {
        rememberInitialized(context.workspace.settings);
    }
    return exit_code::Done;
}

}  // namespace nubivane
