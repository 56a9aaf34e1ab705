// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/transfer_error.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

struct ssl_st;
struct ssl_ctx_st;
struct ssl_session_st;

namespace nubivane {

struct SslFree {
    void operator()(ssl_st* tls) const;
    void operator()(ssl_ctx_st* context) const;
    void operator()(ssl_session_st* session) const;
};
using SslPointer = std::unique_ptr<ssl_st, SslFree>;

/// What a person can look at of a certificate that does not verify.
struct CertificateView {
    QString names;   ///< whom it stands for
    QString issuer;  ///< who vouches for it
    QDateTime from;
    QDateTime until;
    QString fingerprint;  ///< SHA-256, hexadecimal pairs parted by colons
};

/// TLS 1.2 and 1.3 (RFC 5246, 8446) with one server, all its connections sharing one session.
///
/// A server must prove who it is: its certificate stands for the host, is valid today, and is
/// vouched for by the machine's list (that of SSL_CERT_FILE where it is set), or has the
/// fingerprint that was trusted for it. Until that is proven nothing is sent.
class TlsContext {
  public:
    /// `host` is a name or an address; `certificates` a PEM file in the place of the machine's
    /// list; `trusted` a fingerprint, or empty. Raises `TransferError`.
    TlsContext(QByteArray host, const QString& certificates, const QString& trusted);
    ~TlsContext();
    TlsContext(const TlsContext&) = delete;
    TlsContext& operator=(const TlsContext&) = delete;

    /// The beginning of a connection over a socket.
    SslPointer begin(int socket);
    /// Raises `TransferError` (Insecure) unless the other side has proven who it is.
    void check(ssl_st* tls);
    /// Why a greeting has failed.
    TransferError handshakeFailure() const;

    /// The certificate that did not verify in the last `check`.
    const std::optional<CertificateView>& refused() const { return refused_; }

  private:
    static int keepSession(ssl_st* tls, ssl_session_st* session);

    QByteArray host_;
    QString trusted_;
    std::unique_ptr<ssl_ctx_st, SslFree> context_;
    std::unique_ptr<ssl_session_st, SslFree> session_;
    std::optional<CertificateView> refused_;
};

/// The form in which fingerprints are compared: 64 hexadecimal digits, or nothing for another text.
/// A "SHA256:" before them, colons and blanks are passed over.
std::optional<QString> plainFingerprint(const QString& text);

}  // namespace nubivane
