// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <array>

class QSocketNotifier;

namespace nubivane {

/// Turns the system's wish that the program ends (SIGTERM, SIGHUP) into a signal in the event loop,
/// where work can still be kept. One object in a process.
class Termination : public QObject {
    Q_OBJECT

  public:
    explicit Termination(QObject* parent = nullptr);
    ~Termination() override;

  Q_SIGNALS:
    void wanted(int signal);

  private:
    void take();

    std::array<int, 2> ends_{-1, -1};  ///< written by the handler, read by the event loop
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace nubivane
