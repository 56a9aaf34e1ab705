// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/symbol_packs.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/program_folder.h"
#include "engine/core/shell.h"

#include <QScopedValueRollback>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String PackFolder("software/update/nVane/6.0.0");
constexpr QLatin1String Source("SymbolPacks");
constexpr QLatin1String LineEnd("\r\n");

constexpr QLatin1String WillBeInstalled(
    "The following weather symbols packs will be downloaded and installed");
constexpr QLatin1String AreBeingInstalled(
    "The weather symbols extended pack are being downloaded and installed");

[[noreturn]] void fail(const QString& text, const QString& cause = {}) {
    throw Error(error_number::UploadStopped, Source,
                cause.isEmpty() ? text : text + u": "_s + cause);
}

/// The names of entries, without those that are surely of one kind: a file is no pack, and a folder
/// within a pack is no symbol.
std::optional<QStringList> namesBut(RemoteEntry::Kind kind,
                                    const std::optional<RemoteListing>& entries) {
    if (!entries) {
        return std::nullopt;
    }
    QStringList names;
    for (const RemoteEntry& entry : *entries) {
        if (entry.kind != kind) {
            names += entry.name;
        }
    }
    return names;
}

int percentOf(qint64 bytes, qint64 total) {
    return total > 0 && bytes < total ? static_cast<int>(bytes * 100 / total) : 0;
}

}  // namespace

SymbolPacks::SymbolPacks(const ProgramFolder& folder, const FtpServer& server, Shell& shell,
                         PackView& view, FtpOptions options)
    : folder_(folder), server_(server), shell_(shell), view_(view), transfer_(std::move(options)) {
    // A whole file shows 0 again, for the next.
    transfer_.progress = [this](qint64 bytes, qint64 total) {
        view_.setProgress(percentOf(bytes, total));
        shell_.processEvents();
    };
}

void SymbolPacks::open() {
    if (running_) {
        return;
    }
    const QScopedValueRollback running(running_, true);
    cancelled_ = false;
    packs_.clear();
    view_.setCancelCloseCaption(u"Close"_s);
    view_.setLblInfo(WillBeInstalled);
    view_.showProgress(false);
    view_.enableStart(false);
    std::optional<QStringList> names;
    if (transfer_.Connect(server_) && transfer_.ChangeDirectory(PackFolder)) {
        names = namesBut(RemoteEntry::Kind::File, transfer_.ListEntries());
    }
    transfer_.Disconnect();
    if (!names) {
        view_.setTxtInfo(u"Cannot connect to the ftp server..."_s);
        return;
    }
    packs_ = *names;
    view_.setTxtInfo(packs_.isEmpty() ? u"No packs available"_s : packs_.join(LineEnd));
    view_.enableStart(!packs_.isEmpty());
}

void SymbolPacks::start() {
    if (running_ || packs_.isEmpty()) {
        return;
    }
    const QScopedValueRollback running(running_, true);
    cancelled_ = false;
    try {
        const QScopedValueRollback downloading(downloading_, true);
        download();
    } catch (const Error& error) {
        transfer_.Disconnect();
        interrupt(error);
        return;
    }
    complete();
}

void SymbolPacks::download() {
    view_.setLblProgress({});
    view_.setProgress(0);
    view_.showProgress(true);
    view_.enableStart(false);
    view_.setCancelCloseCaption(u"Cancel"_s);
    view_.setTxtInfo({});
    view_.setLblInfo(AreBeingInstalled);
    connect();
    for (const QString& pack : packs_) {
        downloadPack(pack);
    }
    transfer_.Disconnect();
}

void SymbolPacks::connect() {
    if (!transfer_.Connect(server_) || !transfer_.ChangeDirectory(PackFolder)) {
        throwIfCancelled();
        fail(u"Cannot connect to the ftp server"_s, transfer_.failure());
    }
}

void SymbolPacks::downloadPack(const QString& pack) {
    const QString target = folder_.path() + u"\\symbols\\"_s + pack;
    if (!host_files::folderExists(target)) {
        host_files::makeFolder(target);
    }
    std::optional<QStringList> files;
    if (transfer_.ChangeDirectory(pack)) {
        files = namesBut(RemoteEntry::Kind::Folder, transfer_.ListEntries());
    }
    throwIfCancelled();
    if (!files) {
        fail(u"Cannot find the pack "_s + pack, transfer_.failure());
    }
    for (qsizetype i = 0; i < files->size(); ++i) {
        downloadFile(pack, files->at(i), i + 1, files->size());
    }
    if (!transfer_.ChangeDirectory(u".."_s)) {
        throwIfCancelled();
        fail(u"Cannot find the other packs"_s, transfer_.failure());
    }
}

void SymbolPacks::downloadFile(const QString& pack, const QString& file, qsizetype i, qsizetype n) {
    view_.setLblProgress(u"Downloading "_s + pack + u" file: "_s + file +
                         QStringLiteral(" (%1 of %2)").arg(i).arg(n));
    const QString target = folder_.path() + u"\\symbols\\"_s + pack + u'\\' + file;
    const bool fetched = transfer_.GetFile(file, target);
    throwIfCancelled();
    if (!fetched) {
        fail(u"Cannot download the file "_s + file, transfer_.failure());
    }
    shell_.processEvents();
    throwIfCancelled();
}

void SymbolPacks::throwIfCancelled() {
    if (cancelled_) {
        fail(u"Stopped by the user."_s);
    }
}

void SymbolPacks::complete() {
    view_.setLblProgress({});
    view_.setTxtInfo(u"Download completed successfully"_s + (LineEnd + packs_.join(LineEnd)));
    view_.showProgress(false);
    view_.setCancelCloseCaption(u"Close"_s);
}

void SymbolPacks::interrupt(const Error& error) {
    view_.setLblInfo(WillBeInstalled);
    view_.setTxtInfo(u"Download interrupted..."_s + (LineEnd + error.description()));
    view_.setLblProgress({});
    view_.setProgress(0);
    view_.showProgress(false);
    view_.enableStart(true);
    view_.setCancelCloseCaption(u"Close"_s);
}

bool SymbolPacks::cancelClose() {
    if (!downloading_) {
        transfer_.AbortTransfer();  // nobody waits for the list any more
        return true;
    }
    cancelled_ = true;
    transfer_.AbortTransfer();
    shell_.processEvents();
    return false;
}

}  // namespace nubivane
