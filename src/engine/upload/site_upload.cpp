// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/site_upload.h"

#include "engine/core/error.h"
#include "engine/net/transfer_error.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QRandomGenerator>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

constexpr int CaptionMs = 200;  // lets a person read what is going on
constexpr int CaptionsInAllMs = 1000;

QString noConnection() {
    return u"Unable to establish a connection to the remote server"_s;
}

QString newRunName() {
    constexpr quint64 twelveDigits = 0xFFFFFFFFFFFFU;
    const quint64 number = QRandomGenerator::global()->generate64() & twelveDigits;
    return QString::number(number, 16).rightJustified(12, u'0');
}

[[noreturn]] void raise(const QString& text, const QString& cause) {
    throw Error(error_number::UploadStopped, u"runUpload"_s, text, cause);
}

}  // namespace

SiteUpload::SiteUpload(std::unique_ptr<Transfer> target, const QString& place,
                       const UploadPlan& plan, UploadWishes wishes, UploadWatcher& watcher)
    : target_(std::move(target)),
      plan_(plan),
      wishes_(wishes),
      watcher_(watcher),
      memory_(place),
      contents_(SiteContents::of(plan)),
      run_(newRunName()) {}

void SiteUpload::stop() {
    stop_.raise();
    target_->stop();
    const std::lock_guard lock(senderMutex_);
    if (sender_) {
        sender_->stop();
    }
}

qint64 SiteUpload::sent() const {
    const std::lock_guard lock(senderMutex_);
    return sender_ ? sender_->sent() : target_->sent();
}

UploadReport SiteUpload::run() {
    contents_.readFiles([this] { return stop_.raised(); });
    connect();
    report_.plain = target_->plain();
    if (report_.plain) {
        watcher_.inClear();
    }
    if (memory_.known || wishes_.dryRun) {
        persist([this] { look(); }, noConnection());
    }
    if (!foldersStand_ && !wishes_.dryRun) {
        walkFolders();
    } else {
        count(plan_.size() - contents_.files.size());
    }
    choose();
    if (!wishes_.dryRun) {
        try {
            persist([this] { removeLeftovers(); }, noConnection());
            if (!chosen_.empty() || !gone_.isEmpty()) {
                forget();
                sendFiles();
                persist([this] { removeFiles(); }, noConnection());
                persist([this] { leaveManifest(); }, noConnection());
                rememberTimes();
            }
            memory_.unfinished.clear();
            memory_.everything = false;
        } catch (...) {
            memory_.save();
            throw;
        }
        report_.forgotten = memory_.save();
    }
    report_.inPlace = target_->replacesInPlace();
    target_->disconnect();
    return report_;
}

/// Runs a part of the conversation, anew over a new connection when it was lost.
template <class Call>
void SiteUpload::persist(const Call& call, const QString& text) {
    int pause = wishes_.retryPauseMs;
    for (int attempt = 0;; ++attempt) {
        try {
            if (!connected_) {
                reconnect();
            }
            call();
            return;
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Stopped || stop_.raised()) {
                throw TransferError(Kind::Stopped, error.text());
            }
            connected_ = error.kind() == Kind::Refused;
            if (error.kind() != Kind::Lost || attempt >= wishes_.retries) {
                raise(text, error.text());
            }
        }
        if (stop_.wait(pause)) {
            throw TransferError(Kind::Stopped, u"stopped"_s);
        }
        pause *= 2;
    }
}

/// A new connection stands where the login leads to.
void SiteUpload::reconnect() {
    target_->connect();
    inRemoteFolder_ = false;
    if (!contents_.remoteFolder.isEmpty()) {
        target_->changeFolder(contents_.remoteFolder);
        inRemoteFolder_ = true;
    }
    way_ = contents_.nubivaneFolder + u'/';
    connected_ = true;
}

/// A server that was never reached is not waited for.
void SiteUpload::connect() {
    try {
        target_->connect();
        connected_ = true;
    } catch (const TransferError& error) {
        if (error.kind() == Kind::Stopped || stop_.raised()) {
            throw;
        }
        if (!error.fingerprint().isEmpty()) {
            untrusted_ = {error.text(), error.fingerprint()};
        }
        raise(noConnection(), error.text());
    }
}

/// What stands there of what this machine has sent, or another one with its manifest.
void SiteUpload::look() {
    way_ = contents_.nubivaneFolder + u'/';
    foldersStand_ = false;
    look_.reset();
    if (!contents_.remoteFolder.isEmpty() && !inRemoteFolder_) {
        try {
            target_->changeFolder(contents_.remoteFolder);
        } catch (const TransferError& error) {
            if (error.kind() != Kind::Refused) {
                throw;
            }
            raise(failureText(plan_.front()), error.text());
        }
        inRemoteFolder_ = true;
    }
    QStringList folders = contents_.foldersOfFiles();
    for (const QString& folder : std::as_const(memory_.unfinished)) {
        if (!folders.contains(folder)) {
            folders += folder;
        }
    }
    look_.emplace(*target_, way_, memory_);
    if (!look_->at(folders)) {
        memory_.folders.clear();
    }
    compareManifest();
    foldersStand_ =
        std::all_of(contents_.folders.begin(), contents_.folders.end(),
                    [this](const QString& folder) { return memory_.folders.contains(folder); });
}

/// Another machine may have sent a site there since: then its manifest counts, not our memory.
void SiteUpload::compareManifest() {
    const auto root = look_->seen().find(QString());
    const RemoteEntry* entry = root == look_->seen().end()
                                   ? nullptr
                                   : find(root->second, QLatin1String(SiteManifest::FileName));
    const qint64 size =
        entry && entry->size >= 0
            ? entry->size
            : target_->sizeOf(way_ + QLatin1String(SiteManifest::FileName)).value_or(-1);
    if (size != memory_.manifestSize) {
        readManifest();
    }
}

void SiteUpload::readManifest() {
    const auto bytes =
        target_->read(way_ + QLatin1String(SiteManifest::FileName), SiteManifest::MaxBytes);
    const auto manifest = bytes ? SiteManifest::fromBytes(*bytes) : std::nullopt;
    memory_.site = manifest.value_or(SiteManifest());
    memory_.manifestSize = bytes ? bytes->size() : -1;
}

/// All steps of the plan but its files, in their order.
void SiteUpload::walkFolders() {
    std::size_t failing = 0;
    const auto walk = [&] {
        for (std::size_t i = 0; i < plan_.size(); ++i) {
            if (plan_[i].Command == UploadCommand::Upload) {
                continue;
            }
            const bool entered = i == 0 && inRemoteFolder_;
            failing = i;
            if (!entered) {
                walkStep(plan_[i]);
            }
        }
    };
    // Making a folder may fail; entering it tells.
    const auto text = [&] {
        while (failing + 1 < plan_.size() && !plan_[failing].ErrorCauseStop) {
            ++failing;
        }
        return failureText(plan_[failing]);
    };
    int pause = wishes_.retryPauseMs;
    for (int attempt = 0;; ++attempt) {
        try {
            if (!connected_) {
                target_->connect();
                connected_ = true;
                inRemoteFolder_ = false;
            }
            walk();
            break;
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Stopped || stop_.raised()) {
                throw TransferError(Kind::Stopped, error.text());
            }
            connected_ = false;
            if (error.kind() != Kind::Lost || attempt >= wishes_.retries) {
                raise(text(), error.text());
            }
        }
        if (stop_.wait(pause)) {
            throw TransferError(Kind::Stopped, u"stopped"_s);
        }
        pause *= 2;
    }
    way_.clear();
    const bool known = memory_.known;
    memory_.folders = QSet<QString>(contents_.folders.cbegin(), contents_.folders.cend());
    if (!known && !newSite_) {
        // Another machine, or a run that died, may have left something there.
        persist([this] { readManifest(); }, noConnection());
        const auto look = [this] {
            look_.emplace(*target_, way_, memory_);
            look_->at(contents_.foldersOfFiles());
        };
        persist(look, noConnection());
    }
}

void SiteUpload::walkStep(const cUpload& step) {
    QElapsedTimer timer;
    timer.start();
    watcher_.stepBegun(step);
    try {
        if (step.Command == UploadCommand::MakeFolder) {
            target_->makeFolder(step.Param1);
            newSite_ = newSite_ || step.Param1 == contents_.nubivaneFolder;
        } else {
            target_->changeFolder(step.Param1);
        }
    } catch (const TransferError& error) {
        if (error.kind() != Kind::Refused || step.ErrorCauseStop) {
            throw;
        }
    }
    count(1);
    const int left =
        std::min(CaptionMs - static_cast<int>(timer.elapsed()), CaptionsInAllMs - captionMs_);
    if (wishes_.captions && left > 0) {
        captionMs_ += left;
        stop_.wait(left);
    }
}

void SiteUpload::count(std::size_t steps) {
    if (steps == 0) {
        return;
    }
    done_ = std::min(done_ + steps, plan_.size());
    watcher_.progress(done_, plan_.size());
}

void SiteUpload::choose() {
    compare();
    if (look_ && chosen_.empty()) {
        persist([this] { look_->lookTwice(); }, noConnection());
        compare();
    }
    toSend_ = report_.bytes;
    watcher_.chosen(std::ssize(chosen_), std::ssize(contents_.files), report_.bytes);
    count(contents_.files.size() - chosen_.size());
    if (wishes_.removeGone) {
        chooseGone();
    }
    if (wishes_.dryRun) {
        for (const PlannedFile* file : chosen_) {
            report_.sent += file->name;
        }
        report_.removed = gone_;
    }
}

/// What of the plan does not stand there as it is here.
void SiteUpload::compare() {
    chosen_.clear();
    report_.bytes = 0;
    for (const PlannedFile& file : contents_.files) {
        const auto sent = memory_.site.files.constFind(file.name);
        const bool stands =
            sent != memory_.site.files.constEnd() && *sent == file.content && standsThere(file);
        if (wishes_.all || memory_.everything || !stands) {
            chosen_.push_back(&file);
            report_.bytes += file.content.size;
        }
    }
    report_.unchanged = std::ssize(contents_.files) - std::ssize(chosen_);
}

/// What this program has put there in the folders of the plan, and the plan no longer holds.
void SiteUpload::chooseGone() {
    QSet<QString> planned;
    for (const PlannedFile& file : contents_.files) {
        planned.insert(file.name);
    }
    QSet<QString> groups;
    for (const QString& folder : contents_.foldersOfFiles()) {
        groups.insert(folder.section(u'/', 0, 0));
    }
    for (const QString& name : memory_.site.files.keys()) {
        const QString group = name.contains(u'/') ? name.section(u'/', 0, 0) : QString();
        if (!planned.contains(name) && groups.contains(group)) {
            gone_ += name;
        }
    }
}

/// Whether a file of that size is there, by what has been seen.
bool SiteUpload::standsThere(const PlannedFile& file) const {
    if (!look_) {
        return false;
    }
    const QString folder = folderOf(file.name);
    const auto listing = look_->seen().find(folder);
    const RemoteEntry* entry = listing == look_->seen().end()
                                   ? nullptr
                                   : find(listing->second, file.name.section(u'/', -1));
    return look_->takenForGranted(folder) || (entry && entry->size == file.content.size);
}

/// Files of a run that died under their temporary names.
void SiteUpload::removeLeftovers() {
    if (!look_) {
        return;
    }
    for (const auto& [folder, listing] : look_->seen()) {
        for (const RemoteEntry& entry : listing) {
            if (entry.kind != RemoteEntry::Kind::Folder && FileSender::isTemporary(entry.name)) {
                const QString name =
                    way_ + (folder.isEmpty() ? QString() : folder + u'/') + entry.name;
                try {
                    target_->remove(name);
                } catch (const TransferError& error) {
                    if (error.kind() != Kind::Refused) {
                        throw;
                    }
                }
            }
        }
    }
}

/// Before the first byte goes out nothing is certain of the files that will be replaced, here and
/// for other machines. A single file needs no such care: its manifest follows at once.
void SiteUpload::forget() {
    for (const PlannedFile* file : chosen_) {
        memory_.site.files.remove(file->name);
        memory_.unfinished.insert(folderOf(file->name));
    }
    if (chosen_.size() + static_cast<std::size_t>(gone_.size()) > 1 && memory_.manifestSize >= 0) {
        persist(
            [this] {
                try {
                    target_->remove(way_ + QLatin1String(SiteManifest::FileName));
                } catch (const TransferError& error) {
                    if (error.kind() != Kind::Refused) {
                        throw;
                    }
                }
            },
            noConnection());
        memory_.manifestSize = -1;
    }
    memory_.known = true;
    memory_.save();
}

void SiteUpload::sendFiles() {
    FileSender::Watcher watcher;
    watcher.begun = [this](const PlannedFile& file) { watcher_.stepBegun(*file.step); };
    watcher.done = [this](const PlannedFile& file) {
        memory_.site.files.insert(file.name, file.content);
        report_.sent += file.name;
        count(1);
    };
    watcher.refused = [this](const PlannedFile& file, const QString& why) {
        report_.refused += file.hostFile + u": "_s + why;
        count(1);
    };
    FileSender sender(*target_, way_,
                      {wishes_.connections, wishes_.retries, wishes_.retryPauseMs,
                       contents_.remoteFolder, contents_.nubivaneFolder, run_},
                      stop_, std::move(watcher));
    {
        const std::lock_guard lock(senderMutex_);
        sender_ = &sender;
    }
    const auto forgetSender = [&] {
        const std::lock_guard lock(senderMutex_);
        sender_ = nullptr;
        way_ = sender.way();
        connected_ = sender.connected();
    };
    try {
        sendGroup(sender, false);
        sendGroup(sender, true);
    } catch (...) {
        forgetSender();
        throw;
    }
    forgetSender();
}

/// A page shows all the others, so it comes after them, and the one that is read first comes last.
void SiteUpload::sendGroup(FileSender& sender, bool pages) {
    std::vector<const PlannedFile*> files;
    for (const PlannedFile* file : chosen_) {
        if (file->page == pages) {
            files.push_back(file);
        }
    }
    if (!pages) {
        sender.send(files);
        return;
    }
    std::reverse(files.begin(), files.end());
    for (const PlannedFile* file : files) {
        sender.send({file});
    }
}

void SiteUpload::removeFiles() {
    for (const QString& name : gone_) {
        try {
            target_->remove(way_ + name);
        } catch (const TransferError& error) {
            if (error.kind() != Kind::Refused) {
                throw;
            }
        }
        memory_.site.files.remove(name);
        report_.removed += name;
    }
}

/// The times of the folders that have been written to. Without them the next run looks closer.
void SiteUpload::rememberTimes() {
    QSet<QString> changed;
    for (const PlannedFile* file : chosen_) {
        changed.insert(folderOf(file->name));
    }
    for (const QString& name : gone_) {
        changed.insert(folderOf(name));
    }
    try {
        RemoteLook(*target_, way_, memory_)
            .remember(contents_.foldersOfFiles(), {changed.cbegin(), changed.cend()});
    } catch (const TransferError&) {
        memory_.times.clear();
    }
}

/// Where no such file is taken the site is whole without it.
void SiteUpload::leaveManifest() {
    QByteArray bytes = memory_.site.toBytes();
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const QString name = way_ + QLatin1String(SiteManifest::FileName);
    try {
        target_->put({buffer, name, temporaryName(name, run_, contents_.files.size())});
        memory_.manifestSize = bytes.size();
    } catch (const TransferError& error) {
        memory_.manifestSize = -1;
        if (error.kind() != Kind::Refused) {
            throw;
        }
    }
}

}  // namespace nubivane
