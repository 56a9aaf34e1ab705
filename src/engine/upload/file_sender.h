// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/transfer.h"
#include "engine/net/transfer_error.h"
#include "engine/upload/site_contents.h"

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <vector>

class QFile;

namespace nubivane {

class StopSignal;

/// Brings files to a target over several connections at once. What is lost with a connection is
/// sent again over a new one, a bounded number of times with growing pauses; a target that wants
/// fewer connections gets fewer.
class FileSender {
  public:
    struct Settings {
        int connections = 4;
        int retries = 3;         ///< of one connection without a file that arrived
        int pauseMs = 500;       ///< before the first of them, doubled each time
        QString remoteFolder;    ///< entered by each connection
        QString nubivaneFolder;  ///< below it
        QString run;             ///< part of temporary names
    };
    /// Called on the threads of the connections, never two at a time.
    struct Watcher {
        std::function<void(const PlannedFile& file)> begun;
        std::function<void(const PlannedFile& file)> done;
        std::function<void(const PlannedFile& file, const QString& why)> refused;
    };

    /// `first` is connected; `way` leads from where it stands into the Nubivane folder: "" or
    /// "name/".
    FileSender(Transfer& first, QString way, Settings settings, const StopSignal& stop,
               Watcher watcher);

    /// Sends them all. Raises `Error` with the text of the file that failed, or `TransferError`
    /// when it was stopped.
    void send(const std::vector<const PlannedFile*>& files);

    /// Where the first connection stands now.
    bool connected() const { return main_.open; }
    const QString& way() const { return main_.way; }

    /// Bytes sent so far.
    qint64 sent() const;
    /// Makes all connections give up.
    void stop();

    /// The form of temporary names, by which a later run knows them.
    static bool isTemporary(const QString& name);

  private:
    struct Connection {
        Transfer* target;
        QString way;
        std::unique_ptr<Transfer> own{};
        bool open = false;
        std::vector<const PlannedFile*> ahead{};  ///< there, under their temporary names
    };
    /// How often something has been tried.
    struct Attempts {
        int count = 0;
        int pauseMs = 0;
    };
    enum class Way { Ahead, Whole };

    void work(Connection& connection);
    const PlannedFile* next(bool& more);
    void workOff(Connection& connection);
    /// False when the connection is of no more use and others go on.
    bool bring(Connection& connection, const PlannedFile& file, bool more);
    bool bringBy(Way way, Connection& connection, const PlannedFile& file, QIODevice& source,
                 bool more);
    void openSource(QFile& source, const PlannedFile& file);
    void putOnce(Way way, Connection& connection, const PlannedFile& file, QIODevice& source,
                 bool more);
    void settle(Connection& connection);
    std::vector<bool> settleAhead(Connection& connection);
    void open(Connection& connection);
    bool giveBack(Connection& connection, const PlannedFile& file);
    void refuse(Connection& connection, const PlannedFile& file, const QString& why);
    void waitToRetry(Connection& connection, const PlannedFile& file, const TransferError& error,
                     Attempts& attempts, bool hopeless);
    void report(const PlannedFile& file);
    QString temporaryOf(const Connection& connection, const PlannedFile& file) const;
    [[noreturn]] void fail(const PlannedFile& file, const QString& why);
    bool overdue() const;
    void arrived();

    Transfer& first_;
    Connection main_;
    const Settings settings_;
    const StopSignal& stop_;
    const Watcher watcher_;

    std::mutex reporting_;
    mutable std::mutex mutex_;
    std::deque<const PlannedFile*> waiting_;
    std::vector<Transfer*> targets_;  ///< those at work
    std::chrono::steady_clock::time_point arrived_ = std::chrono::steady_clock::now();
    int working_ = 0;
    bool many_ = false;  ///< of small files there are so many that they are sent ahead
    qint64 sentBefore_ = 0;
    std::exception_ptr failure_;
};

/// The name that a file has until it is whole, in the folder of the name that it will have.
QString temporaryName(const QString& name, const QString& run, std::size_t number);

}  // namespace nubivane
