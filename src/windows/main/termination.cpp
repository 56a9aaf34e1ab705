// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/termination.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <utility>

namespace nubivane {

namespace {

/// A signal's handler can be given nothing else.
volatile std::sig_atomic_t writeEnd = -1;
/// Nor can a function that runs at the exit.
Termination* living = nullptr;

constexpr std::array Signals = {SIGTERM, SIGHUP, SIGINT};

void tell(int number) {
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const ssize_t written = ::write(static_cast<int>(writeEnd), &byte, 1);
}

void tellOfExit() {
    if (Termination* one = std::exchange(living, nullptr)) {
        Q_EMIT one->exiting();
    }
}

}  // namespace

Termination::Termination(QObject* parent) : QObject(parent) {
    if (::pipe2(ends_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    writeEnd = ends_[1];
    notifier_ = new QSocketNotifier(ends_[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &Termination::take);
    for (const int number : Signals) {
        struct sigaction action {};
        action.sa_handler = tell;
        action.sa_flags = SA_RESTART;
        ::sigaction(number, &action, nullptr);
    }
    living = this;
    std::atexit(tellOfExit);
}

Termination::~Termination() {
    living = nullptr;
    for (const int number : Signals) {
        std::signal(number, SIG_DFL);
    }
    writeEnd = -1;
    delete notifier_;
    for (const int end : ends_) {
        if (end >= 0) {
            ::close(end);
        }
    }
}

void Termination::take() {
    unsigned char byte = 0;
    if (::read(ends_[0], &byte, 1) == 1) {
        Q_EMIT wanted(byte);
    }
}

}  // namespace nubivane
