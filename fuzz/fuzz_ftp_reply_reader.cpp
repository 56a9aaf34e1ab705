// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_reply.h"
#include "engine/net/transfer_error.h"

#include <QList>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr qsizetype MaxBytes = 4096;

/// The replies in `bytes`, handed over in pieces of a size.
QByteArrayList repliesIn(const char* bytes, qsizetype size, qsizetype piece) {
    nubivane::FtpReplyReader reader;
    QByteArrayList replies;
    try {
        for (qsizetype from = 0; from < size; from += piece) {
            reader.take(bytes + from, qMin(piece, size - from));
            while (const auto reply = reader.next(MaxBytes)) {
                if (reply->kind() < 1 || reply->kind() > 5 || reply->lines.size() > 2 * MaxBytes) {
                    std::abort();
                }
                for (const QChar c : reply->text()) {
                    if (c.category() == QChar::Other_Control) {
                        std::abort();
                    }
                }
                replies += reply->lines;
            }
        }
    } catch (const nubivane::TransferError&) {
        replies += "no FTP";
    }
    return replies;
}

}  // namespace

/// Whatever a server sends is cut into replies or refused, in the same way however it is cut.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto* bytes = reinterpret_cast<const char*>(data);
    if (size > MaxBytes) {
        return 0;  // pieces may meet the limit earlier
    }
    const auto count = static_cast<qsizetype>(size);
    if (repliesIn(bytes, count, count) != repliesIn(bytes, count, 1)) {
        std::abort();
    }
    return 0;
}
