// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/file_sender.h"

#include "engine/core/error.h"
#include "engine/net/stop_signal.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <thread>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

/// A further connection costs some round trips: it is worth that for so many small files, or for
/// one that is not small.
constexpr std::size_t FilesPerConnection = 4;
constexpr std::chrono::seconds LongestWithoutArrival{120};
constexpr qint64 LargeFile = qint64{1024} * 1024;

int usefulConnections(const std::vector<const PlannedFile*>& files, int most) {
    const auto large = static_cast<std::size_t>(
        std::count_if(files.begin(), files.end(),
                      [](const PlannedFile* file) { return file->content.size >= LargeFile; }));
    const std::size_t useful = large + (files.size() - large) / FilesPerConnection;
    return static_cast<int>(std::clamp<std::size_t>(useful, 1, static_cast<std::size_t>(most)));
}

}  // namespace

QString temporaryName(const QString& name, const QString& run, std::size_t number) {
    const QString folder = folderOf(name);
    return (folder.isEmpty() ? QString() : folder + u'/') +
           u"nubivane-upload-%1-%2.part"_s.arg(run).arg(number);
}

bool FileSender::isTemporary(const QString& name) {
    static const QRegularExpression form(u"^nubivane-upload-[0-9a-f]{12}-[0-9]+\\.part$"_s);
    return form.match(name).hasMatch();
}

FileSender::FileSender(Transfer& first, QString way, Settings settings, const StopSignal& stop,
                       Watcher watcher)
    : first_(first),
      main_{&first, std::move(way), nullptr, true},
      settings_(std::move(settings)),
      stop_(stop),
      watcher_(std::move(watcher)) {}

qint64 FileSender::sent() const {
    const std::lock_guard lock(mutex_);
    qint64 bytes = sentBefore_;
    for (const Transfer* target : targets_) {
        bytes += target->sent();
    }
    return bytes;
}

void FileSender::stop() {
    const std::lock_guard lock(mutex_);
    waiting_.clear();
    for (Transfer* target : targets_) {
        target->stop();
    }
}

/// A run that goes nowhere is given up in the end, however many connections try.
bool FileSender::overdue() const {
    const std::lock_guard lock(mutex_);
    return std::chrono::steady_clock::now() - arrived_ > LongestWithoutArrival;
}

void FileSender::send(const std::vector<const PlannedFile*>& files) {
    waiting_.assign(files.begin(), files.end());
    std::vector<std::unique_ptr<Connection>> connections;
    const int wanted = usefulConnections(files, settings_.connections);
    while (static_cast<int>(connections.size()) + 1 < wanted) {
        auto sibling = first_.sibling();
        if (!sibling) {
            break;
        }
        Transfer* target = sibling.get();
        const QString way = settings_.nubivaneFolder + u'/';
        connections.push_back(
            std::make_unique<Connection>(Connection{target, way, std::move(sibling), false}));
    }
    {
        const std::lock_guard lock(mutex_);
        targets_ = {&first_};
        for (const auto& connection : connections) {
            targets_.push_back(connection->target);
        }
        working_ = static_cast<int>(targets_.size());
    }
    std::vector<std::thread> threads;
    for (const auto& further : connections) {
        threads.emplace_back([this, &connection = *further] {
            work(connection);
            connection.target->disconnect();
        });
    }
    work(main_);
    for (std::thread& thread : threads) {
        thread.join();
    }
    const std::lock_guard lock(mutex_);
    for (const auto& connection : connections) {
        sentBefore_ += connection->target->sent();
    }
    targets_ = {&first_};
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

const PlannedFile* FileSender::next(bool& more) {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty() || failure_) {
        --working_;
        return nullptr;
    }
    const PlannedFile* file = waiting_.front();
    waiting_.pop_front();
    more = waiting_.size() >= targets_.size();
    return file;
}

/// Leaves a file to the other connections; false when there are none.
bool FileSender::giveBack(const PlannedFile& file) {
    const std::lock_guard lock(mutex_);
    if (working_ < 2) {
        return false;
    }
    waiting_.push_front(&file);
    --working_;
    return true;
}

void FileSender::work(Connection& connection) {
    bool more = false;
    try {
        while (const PlannedFile* file = next(more)) {
            if (!bring(connection, *file, more)) {
                break;
            }
        }
    } catch (...) {
        const std::lock_guard lock(mutex_);
        if (!failure_) {
            failure_ = std::current_exception();
        }
        --working_;
        waiting_.clear();
        for (Transfer* target : targets_) {
            if (target != connection.target) {
                target->stop();  // whatever they still do would be in vain
            }
        }
    }
}

void FileSender::open(Connection& connection) {
    connection.target->connect();
    if (!settings_.remoteFolder.isEmpty()) {
        connection.target->changeFolder(settings_.remoteFolder);
    }
    connection.way = settings_.nubivaneFolder + u'/';
    connection.open = true;
}

void FileSender::arrived() {
    const std::lock_guard lock(mutex_);
    arrived_ = std::chrono::steady_clock::now();
}

void FileSender::fail(const PlannedFile& file, const QString& why) {
    throw Error(error_number::UploadStopped, u"runUpload"_s, failureText(*file.step), why);
}

void FileSender::putOnce(Connection& connection, const PlannedFile& file, QIODevice& source,
                         bool more) {
    if (stop_.raised()) {
        throw TransferError(Kind::Stopped, u"stopped"_s);
    }
    if (!connection.open) {
        open(connection);
    }
    connection.target->put({source, connection.way + file.name,
                            temporaryName(connection.way + file.name, settings_.run,
                                          static_cast<std::size_t>(file.number)),
                            more});
}

bool FileSender::bring(Connection& connection, const PlannedFile& file, bool more) {
    QFile source(file.hostFile);
    if (!source.open(QIODevice::ReadOnly)) {
        fail(file, source.errorString());
    }
    {
        const std::lock_guard lock(reporting_);
        watcher_.begun(file);
    }
    int pause = settings_.pauseMs;
    bool repeated = false;
    for (int attempt = 0;; ++attempt) {
        const bool wasOpen = connection.open;
        try {
            putOnce(connection, file, source, more);
            arrived();
            const std::lock_guard lock(reporting_);
            watcher_.done(file);
            return true;
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Stopped || stop_.raised()) {
                throw TransferError(Kind::Stopped, error.text());
            }
            // A server that wants fewer connections says so at the login of one too many.
            if (!wasOpen && connection.own && attempt == 0 && giveBack(file)) {
                return false;
            }
            if (error.kind() == Kind::Refused && connection.open) {
                if (error.reply() == 0 && !repeated) {  // it has kept a part of the file
                    repeated = true;
                    source.seek(0);
                    continue;
                }
                if (file.step->ErrorCauseStop) {
                    fail(file, error.text());
                }
                const std::lock_guard lock(reporting_);
                watcher_.refused(file, error.text());
                return true;
            }
            connection.open = false;
            if ((error.kind() != Kind::Lost && wasOpen) || attempt >= settings_.retries ||
                overdue()) {
                fail(file, error.text());
            }
            if (stop_.wait(pause)) {
                throw TransferError(Kind::Stopped, u"stopped"_s);
            }
            pause *= 2;
        }
    }
}

}  // namespace nubivane
