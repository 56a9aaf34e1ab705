// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/durable_file.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace nubivane::durable_file {

bool flush(QFileDevice& file) {
    return file.flush() && ::fsync(file.handle()) == 0;
}

void flushFolder(const QString& folder) {
    const int descriptor =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

QString reasonOf(const QFileDevice& file) {
    // Qt knows no words for some of the system's refusals, such as a limit on the size of files,
    // and nothing of what failed beside it.
    const int number = errno;
    const bool toldByQt = file.error() != QFileDevice::NoError &&
                          file.errorString() != QLatin1String("Unknown error");
    return toldByQt || number == 0 ? file.errorString()
                                   : QString::fromLocal8Bit(std::strerror(number));
}

}  // namespace nubivane::durable_file
