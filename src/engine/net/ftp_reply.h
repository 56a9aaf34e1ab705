// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace nubivane {

class TransferError;

/// What a server answers to one command (RFC 959, 4.2).
struct FtpReply {
    int code = 0;
    QByteArray lines;  ///< all of them, parted by line feeds, with their codes

    /// The first digit tells all: 1 goes on, 2 done, 3 more is wanted, 4 not now, 5 no.
    int kind() const { return code / 100; }
    bool done() const { return kind() == 2; }

    /// The last line, fit to be shown.
    QString text() const;

    /// The failure of a command that was answered so.
    TransferError refusal() const;
};

/// Cuts what comes over a control connection into replies. Servers are not trusted: a reply longer
/// than `maxBytes`, or what is no reply at all, raises `TransferError` (Lost).
class FtpReplyReader {
  public:
    void take(const char* bytes, qsizetype size) { waiting_.append(bytes, size); }

    /// The next whole reply; nothing until it has come.
    std::optional<FtpReply> next(qsizetype maxBytes);

    /// Forgets what has come: it was sent before the connection was safe.
    void clear();

  private:
    std::optional<QByteArray> nextLine();

    QByteArray waiting_;
    qsizetype searched_ = 0;  ///< so far without a line end
    FtpReply reply_;
};

}  // namespace nubivane
