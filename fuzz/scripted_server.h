// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

#include <atomic>
#include <mutex>
#include <thread>

namespace nubivane::fuzz {

/// An FTP server on a port of this machine that says what it is told, whatever it is asked: a reply
/// for the greeting and for each line that it hears, then it hangs up. "%P" in a reply is the
/// port at which it listens for data, and who connects there is sent the listing.
class ScriptedServer {
  public:
    ScriptedServer();
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    int port() const { return port_; }
    /// What the next connections hear.
    void setScript(const QList<QByteArray>& replies, const QByteArray& listing);

  private:
    void loop();
    void serve(int control);
    void say(int control, qsizetype reply, const QList<QByteArray>& replies) const;

    int listener_ = -1;
    int dataListener_ = -1;
    int port_ = 0;
    int dataPort_ = 0;
    std::atomic<bool> ending_ = false;
    std::mutex mutex_;  ///< guards the script
    QList<QByteArray> replies_;
    QByteArray listing_;
    std::thread thread_;
};

}  // namespace nubivane::fuzz
