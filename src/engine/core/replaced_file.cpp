// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/replaced_file.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"

namespace nubivane {

using namespace Qt::StringLiterals;

ReplacedFile::ReplacedFile(const QString& path) : file_(host_files::toHost(path)) {
    if (!file_.open(QIODevice::WriteOnly)) {
        fail();
    }
}

void ReplacedFile::append(const QByteArray& bytes) {
    if (file_.write(bytes) != bytes.size()) {
        fail();
    }
}

void ReplacedFile::overwrite(qint64 position, const QByteArray& bytes) {
    const qint64 end = file_.pos();
    if (!file_.seek(position) || file_.write(bytes) != bytes.size() || !file_.seek(end)) {
        fail();
    }
}

void ReplacedFile::commit() {
    // A commit does not look at what was still in the buffer: a full disk shows at the flush.
    if (file_.error() != QFileDevice::NoError || !file_.flush() || !file_.commit()) {
        fail();
    }
}

void ReplacedFile::fail() {
    throw Error(error_number::FileAccess, u"replaced_file"_s, u"Cannot write the file."_s,
                file_.fileName() + u": "_s + durable_file::reasonOf(file_));
}

}  // namespace nubivane
