// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/file_sender.h"

#include "engine/core/error.h"
#include "engine/net/stop_signal.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <thread>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

/// A further connection costs some round trips: it is worth that for so many small files, or for
/// one that is not small.
constexpr std::size_t FilesPerConnection = 4;
constexpr std::chrono::seconds LongestWithoutArrival{120};
constexpr qint64 LargeFile = qint64{1024} * 1024;
/// From so many files on they are named together.
constexpr std::size_t ManyFiles = 16;
/// What lies there without its name is sent again by the next run if this one dies.
constexpr std::size_t MostAhead = 20;

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
    many_ = files.size() >= ManyFiles;
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

/// Leaves a file, and what has no name yet, to the other connections; false when there are none.
bool FileSender::giveBack(Connection& connection, const PlannedFile& file) {
    const std::lock_guard lock(mutex_);
    if (working_ < 2) {
        return false;
    }
    waiting_.push_front(&file);
    waiting_.insert(waiting_.end(), connection.ahead.begin(), connection.ahead.end());
    connection.ahead.clear();
    --working_;
    return true;
}

void FileSender::work(Connection& connection) {
    try {
        workOff(connection);
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

void FileSender::workOff(Connection& connection) {
    bool more = false;
    while (const PlannedFile* file = next(more)) {
        if (!bring(connection, *file, more)) {
            return;
        }
        if (connection.ahead.size() >= MostAhead) {
            settle(connection);
        }
    }
    settle(connection);
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

QString FileSender::temporaryOf(const Connection& connection, const PlannedFile& file) const {
    return temporaryName(connection.way + file.name, settings_.run,
                         static_cast<std::size_t>(file.number));
}

/// The file is there under its name.
void FileSender::report(const PlannedFile& file) {
    arrived();
    const std::lock_guard lock(reporting_);
    watcher_.done(file);
}

/// One file may be refused without an end to all, unless the plan says otherwise. What lies there
/// already is not left without its names.
void FileSender::refuse(Connection& connection, const PlannedFile& file, const QString& why) {
    if (file.step->ErrorCauseStop) {
        try {
            settle(connection);
        } catch (const Error&) {
            // The first failure is the one to be told.
        }
        fail(file, why);
    }
    const std::lock_guard lock(reporting_);
    watcher_.refused(file, why);
}

/// After a failure of the connection: waits for another attempt, or raises that the file failed.
void FileSender::waitToRetry(Connection& connection, const PlannedFile& file,
                             const TransferError& error, Attempts& attempts, bool hopeless) {
    connection.open = false;
    if (hopeless || attempts.count >= settings_.retries || overdue()) {
        fail(file, error.text());
    }
    if (attempts.count == 0) {
        attempts.pauseMs = settings_.pauseMs;
    }
    if (stop_.wait(attempts.pauseMs)) {
        throw TransferError(Kind::Stopped, u"stopped"_s);
    }
    attempts.pauseMs *= 2;
    ++attempts.count;
}

void FileSender::putOnce(Way way, Connection& connection, const PlannedFile& file,
                         QIODevice& source, bool more) {
    if (stop_.raised()) {
        throw TransferError(Kind::Stopped, u"stopped"_s);
    }
    if (!connection.open) {
        open(connection);
    }
    const Transfer::Outgoing outgoing{source, connection.way + file.name,
                                      temporaryOf(connection, file), more};
    if (way == Way::Ahead && connection.target->putAhead(outgoing)) {
        arrived();
        connection.ahead.push_back(&file);
        return;
    }
    connection.target->put(outgoing);
    report(file);
}

void FileSender::openSource(QFile& source, const PlannedFile& file) {
    if (!source.open(QIODevice::ReadOnly)) {
        fail(file, source.errorString());
    }
}

bool FileSender::bring(Connection& connection, const PlannedFile& file, bool more) {
    QFile source(file.hostFile);
    openSource(source, file);
    {
        const std::lock_guard lock(reporting_);
        watcher_.begun(file);
    }
    const bool small = file.content.size < LargeFile;
    return bringBy(many_ && small ? Way::Ahead : Way::Whole, connection, file, source, more);
}

bool FileSender::bringBy(Way way, Connection& connection, const PlannedFile& file,
                         QIODevice& source, bool more) {
    Attempts attempts;
    bool repeated = false;
    while (true) {
        const bool wasOpen = connection.open;
        try {
            putOnce(way, connection, file, source, more);
            return true;
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Stopped || stop_.raised()) {
                throw TransferError(Kind::Stopped, error.text());
            }
            // A server that wants fewer connections says so at the login of one too many.
            if (!wasOpen && connection.own && attempts.count == 0 && giveBack(connection, file)) {
                return false;
            }
            if (error.kind() != Kind::Refused || !connection.open) {
                waitToRetry(connection, file, error, attempts,
                            error.kind() != Kind::Lost && wasOpen);
            } else if (error.reply() == 0 && !repeated) {  // it has kept a part of the file
                repeated = true;
                source.seek(0);
            } else {
                refuse(connection, file, error.text());
                return true;
            }
        }
    }
}

/// Gives the files that lie there under their temporary names their own; one that has not arrived
/// as a whole is sent again.
void FileSender::settle(Connection& connection) {
    if (connection.ahead.empty()) {
        return;
    }
    const std::vector<bool> named = settleAhead(connection);
    const std::vector<const PlannedFile*> files = std::exchange(connection.ahead, {});
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (named[i]) {
            report(*files[i]);
        }
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!named[i]) {
            QFile source(files[i]->hostFile);
            openSource(source, *files[i]);
            bringBy(Way::Whole, connection, *files[i], source, false);
        }
    }
}

std::vector<bool> FileSender::settleAhead(Connection& connection) {
    Attempts attempts;
    while (true) {
        try {
            if (!connection.open) {
                open(connection);
            }
            std::vector<Transfer::Ahead> files;
            for (const PlannedFile* file : connection.ahead) {
                files.push_back({connection.way + file->name, temporaryOf(connection, *file),
                                 file->content.size});
            }
            return connection.target->settle(files);
        } catch (const TransferError& error) {
            if (error.kind() == Kind::Stopped || stop_.raised()) {
                throw TransferError(Kind::Stopped, error.text());
            }
            waitToRetry(connection, *connection.ahead.front(), error, attempts,
                        error.kind() != Kind::Lost && error.kind() != Kind::Refused);
        }
    }
}

}  // namespace nubivane
