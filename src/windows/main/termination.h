// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <array>

class QSocketNotifier;

namespace nubivane {

/// Turns the system's wish that the program ends (SIGTERM, SIGHUP, SIGINT) into a signal in the
/// event loop, where work can still be kept, and tells of an end from within, as that of a display
/// that has gone. One object in a process.
class Termination : public QObject {
    Q_OBJECT

  public:
    explicit Termination(QObject* parent = nullptr);
    ~Termination() override;

  Q_SIGNALS:
    void wanted(int signal);
    /// Somebody has called `exit` while this lives, from whichever depth.
    void exiting();

  private:
    void take();

    std::array<int, 2> ends_{-1, -1};  ///< written by the handler, read by the event loop
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace nubivane
