// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/stop_signal.h"

#include "engine/net/transfer_error.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace nubivane {

using namespace Qt::StringLiterals;

StopSignal::StopSignal() : descriptor_(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
    if (descriptor_ < 0) {
        throw TransferError(TransferError::Kind::Local, u"too many files are open"_s);
    }
}

StopSignal::~StopSignal() {
    ::close(descriptor_);
}

void StopSignal::raise() const {
    const std::uint64_t one = 1;
    // The count is full only when the signal is raised already.
    [[maybe_unused]] const ssize_t written = ::write(descriptor_, &one, sizeof one);
}

void StopSignal::clear() const {
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t read = ::read(descriptor_, &count, sizeof count);
}

bool StopSignal::raised() const {
    return wait(0);
}

bool StopSignal::wait(int milliseconds) const {
    pollfd waiting{descriptor_, POLLIN, 0};
    return ::poll(&waiting, 1, milliseconds) > 0;
}

}  // namespace nubivane
