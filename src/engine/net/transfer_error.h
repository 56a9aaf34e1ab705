// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace nubivane {

/// Why something on the way to a server or back has failed. The text is one line fit to be shown.
class TransferError : public std::exception {
  public:
    enum class Kind {
        Refused,   ///< the other side has answered and says no; the connection stands
        Lost,      ///< the connection is gone, or the server has not answered in time
        Insecure,  ///< the server cannot prove who it is, or will not encrypt
        Local,     ///< something on this machine
        Stopped,   ///< we were told to stop
    };

    TransferError(Kind kind, QString text, int reply = 0)
        : kind_(kind), text_(std::move(text)), what_(text_.toUtf8()), reply_(reply) {}

    /// The same, when a person may look at what the server has shown and trust it.
    TransferError&& trustable(const QString& fingerprint) && {
        fingerprint_ = fingerprint;
        return std::move(*this);
    }

    Kind kind() const { return kind_; }
    const QString& text() const { return text_; }
    /// The server's reply code, 0 without one.
    int reply() const { return reply_; }
    /// The server will say no however often it is asked (RFC 959, 4.2.1).
    bool refusedForGood() const { return reply_ / 100 == 5; }
    /// Of a certificate or host key that could be trusted; empty for all other failures.
    const QString& fingerprint() const { return fingerprint_; }
    const char* what() const noexcept override { return what_.constData(); }

  private:
    Kind kind_;
    QString text_;
    QByteArray what_;
    int reply_;
    QString fingerprint_{};
};

}  // namespace nubivane
