// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/tls.h"

#include "engine/net/clean_text.h"

#include <QRegularExpression>
#include <QStringList>

#include <arpa/inet.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

// The library's own way to write to a socket raises SIGPIPE when the other side is gone.

int writeToSocket(BIO* bio, const char* bytes, int size) {
    BIO_clear_retry_flags(bio);
    const int socket = static_cast<int>(reinterpret_cast<std::intptr_t>(BIO_get_data(bio)));
    const ssize_t sent = ::send(socket, bytes, static_cast<std::size_t>(size), MSG_NOSIGNAL);
    if (sent < 0 && (errno == EAGAIN || errno == EINTR)) {
        BIO_set_retry_write(bio);
    }
    return static_cast<int>(sent);
}

int readFromSocket(BIO* bio, char* bytes, int size) {
    BIO_clear_retry_flags(bio);
    const int socket = static_cast<int>(reinterpret_cast<std::intptr_t>(BIO_get_data(bio)));
    const ssize_t got = ::recv(socket, bytes, static_cast<std::size_t>(size), 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) {
        BIO_set_retry_read(bio);
    }
    if (got == 0) {
        BIO_set_flags(bio, BIO_FLAGS_IN_EOF);
    }
    return static_cast<int>(got);
}

long controlSocket(BIO* bio, int command, long, void*) {
    if (command == BIO_CTRL_EOF) {
        return BIO_test_flags(bio, BIO_FLAGS_IN_EOF) != 0 ? 1 : 0;
    }
    return command == BIO_CTRL_FLUSH ? 1 : 0;
}

const BIO_METHOD* socketMethod() {
    static const BIO_METHOD* const method = [] {
        BIO_METHOD* made = BIO_meth_new(BIO_TYPE_SOURCE_SINK, "socket without signals");
        BIO_meth_set_write(made, &writeToSocket);
        BIO_meth_set_read(made, &readFromSocket);
        BIO_meth_set_ctrl(made, &controlSocket);
        return made;
    }();
    return method;
}

bool isAddress(const QByteArray& host) {
    std::array<unsigned char, sizeof(in6_addr)> buffer{};
    return ::inet_pton(AF_INET, host.constData(), buffer.data()) == 1 ||
           ::inet_pton(AF_INET6, host.constData(), buffer.data()) == 1;
}

QString textOfName(const X509_NAME* name) {
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), &BIO_free);
    X509_NAME_print_ex(memory.get(), name, 0, XN_FLAG_RFC2253 & ~ASN1_STRFLGS_ESC_MSB);
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &bytes);
    return cleanText(QByteArrayView(bytes, size));
}

QDateTime timeOf(const ASN1_TIME* time) {
    std::tm parts{};
    if (ASN1_TIME_to_tm(time, &parts) != 1) {
        return {};
    }
    return QDateTime(QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday),
                     QTime(parts.tm_hour, parts.tm_min, parts.tm_sec), Qt::UTC);
}

QString alternativeNames(X509* certificate) {
    QStringList names;
    auto* list = static_cast<GENERAL_NAMES*>(
        X509_get_ext_d2i(certificate, NID_subject_alt_name, nullptr, nullptr));
    constexpr int mostShown = 10;
    for (int i = 0; i < std::min(sk_GENERAL_NAME_num(list), mostShown); ++i) {
        const GENERAL_NAME* name = sk_GENERAL_NAME_value(list, i);
        if (name->type == GEN_DNS) {
            names += cleanText(QByteArrayView(ASN1_STRING_get0_data(name->d.dNSName),
                                              ASN1_STRING_length(name->d.dNSName)));
        } else if (name->type == GEN_IPADD) {
            const ASN1_OCTET_STRING* address = name->d.iPAddress;
            std::array<char, INET6_ADDRSTRLEN> text{};
            const int family = ASN1_STRING_length(address) == 4 ? AF_INET : AF_INET6;
            if (family == AF_INET || ASN1_STRING_length(address) == 16) {
                names += QString::fromLatin1(
                    ::inet_ntop(family, ASN1_STRING_get0_data(address), text.data(), text.size()));
            }
        }
    }
    GENERAL_NAMES_free(list);
    return names.join(u", "_s);
}

QString fingerprintOf(const X509* certificate) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned size = 0;
    X509_digest(certificate, EVP_sha256(), digest.data(), &size);
    return QString::fromLatin1(
        QByteArray(reinterpret_cast<const char*>(digest.data()), static_cast<qsizetype>(size))
            .toHex(':')
            .toUpper());
}

CertificateView viewOf(X509* certificate) {
    const QString names = alternativeNames(certificate);
    return {names.isEmpty() ? textOfName(X509_get_subject_name(certificate)) : names,
            textOfName(X509_get_issuer_name(certificate)), timeOf(X509_get0_notBefore(certificate)),
            timeOf(X509_get0_notAfter(certificate)), fingerprintOf(certificate)};
}

/// What is wrong, in words for people.
QString reasonOf(long code, const CertificateView& view) {
    switch (code) {
        case X509_V_ERR_HOSTNAME_MISMATCH:
        case X509_V_ERR_IP_ADDRESS_MISMATCH:
            return u"the certificate is for another host (%1)"_s.arg(view.names);
        case X509_V_ERR_CERT_HAS_EXPIRED:
            return u"the certificate has expired on %1"_s.arg(view.until.toString(Qt::ISODate));
        case X509_V_ERR_CERT_NOT_YET_VALID:
            return u"the certificate is not valid before %1"_s.arg(view.from.toString(Qt::ISODate));
        case X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT:
        case X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN:
        case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT:
        case X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY:
        case X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE:
            return u"nobody whom this machine trusts vouches for the certificate"_s;
        default:
            return u"the certificate does not verify (%1)"_s.arg(
                QLatin1String(X509_verify_cert_error_string(code)));
    }
}

}  // namespace

void SslFree::operator()(ssl_st* tls) const {
    SSL_free(tls);
}
void SslFree::operator()(ssl_ctx_st* context) const {
    SSL_CTX_free(context);
}
void SslFree::operator()(ssl_session_st* session) const {
    SSL_SESSION_free(session);
}

std::optional<QString> plainFingerprint(const QString& text) {
    QString digits = text.trimmed().toUpper();
    if (digits.startsWith("SHA256:"_L1)) {
        digits.remove(0, 7);
    }
    digits.remove(u':').remove(u' ');
    static const QRegularExpression form(u"^[0-9A-F]{64}$"_s);
    return form.match(digits).hasMatch() ? std::optional(digits) : std::nullopt;
}

TlsContext::TlsContext(QByteArray host, const QString& certificates, const QString& trusted)
    : host_(std::move(host)),
      trusted_(plainFingerprint(trusted).value_or(QString())),
      context_(SSL_CTX_new(TLS_client_method())) {
    SSL_CTX* context = context_.get();
    SSL_CTX_set_min_proto_version(context, TLS1_2_VERSION);
    // A server's "nothing more comes" is its reply on the control connection.
    SSL_CTX_set_options(context, SSL_OP_IGNORE_UNEXPECTED_EOF);
    SSL_CTX_set_mode(context, SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
    SSL_CTX_set_session_cache_mode(context,
                                   SSL_SESS_CACHE_CLIENT | SSL_SESS_CACHE_NO_INTERNAL_STORE);
    SSL_CTX_set_app_data(context, this);
    SSL_CTX_sess_set_new_cb(context, &TlsContext::keepSession);
    // Where a list is named it stands in the place of the system's, not beside it.
    const QString list =
        certificates.isEmpty() ? qEnvironmentVariable("SSL_CERT_FILE") : certificates;
    if (list.isEmpty()) {
        SSL_CTX_set_default_verify_paths(context);
    } else if (SSL_CTX_load_verify_locations(context, list.toLocal8Bit().constData(), nullptr) !=
               1) {
        throw TransferError(Kind::Insecure,
                            u"the list of certificates \"%1\" cannot be read"_s.arg(list));
    }
}

TlsContext::~TlsContext() = default;

int TlsContext::keepSession(ssl_st* tls, ssl_session_st* session) {
    auto* self = static_cast<TlsContext*>(SSL_CTX_get_app_data(SSL_get_SSL_CTX(tls)));
    self->session_.reset(session);
    return 1;  // it is ours now
}

SslPointer TlsContext::begin(int socket) {
    SslPointer tls(SSL_new(context_.get()));
    BIO* bio = BIO_new(socketMethod());
    BIO_set_data(bio, reinterpret_cast<void*>(static_cast<std::intptr_t>(socket)));
    BIO_set_init(bio, 1);
    SSL_set_bio(tls.get(), bio, bio);
    if (isAddress(host_)) {
        X509_VERIFY_PARAM_set1_ip_asc(SSL_get0_param(tls.get()), host_.constData());
    } else {
        SSL_set1_host(tls.get(), host_.constData());
        // The library's macro for this holds a C cast.
        SSL_ctrl(tls.get(), SSL_CTRL_SET_TLSEXT_HOSTNAME, TLSEXT_NAMETYPE_host_name, host_.data());
    }
    if (session_) {
        SSL_set_session(tls.get(), session_.get());
    }
    return tls;
}

/// The greeting is finished before the certificate is judged, so that its owner can be shown one
/// that does not verify. Nothing of ours has been sent by then.
void TlsContext::check(ssl_st* tls) {
    const std::unique_ptr<X509, decltype(&X509_free)> certificate(SSL_get1_peer_certificate(tls),
                                                                  &X509_free);
    if (!certificate) {
        throw TransferError(Kind::Insecure, u"the server has shown no certificate"_s);
    }
    const long code = SSL_get_verify_result(tls);
    if (code == X509_V_OK) {
        return;
    }
    const CertificateView view = viewOf(certificate.get());
    if (!trusted_.isEmpty() && plainFingerprint(view.fingerprint) == trusted_) {
        return;
    }
    refused_ = view;
    throw TransferError(Kind::Insecure,
                        reasonOf(code, view) +
                            u"; it stands for %1, from %2 to %3, vouched for by %4"_s.arg(
                                view.names, view.from.toString(Qt::ISODate),
                                view.until.toString(Qt::ISODate), view.issuer) +
                            u"; its SHA-256 fingerprint is "_s + view.fingerprint)
        .trustable(view.fingerprint);
}

TransferError TlsContext::handshakeFailure() const {
    const unsigned long code = ERR_peek_error();
    if (code == 0) {
        return {Kind::Lost, u"the server has ended the connection in its greeting"_s};
    }
    return {Kind::Insecure, u"no encryption can be agreed on with the server (%1)"_s.arg(
                                cleanText(ERR_reason_error_string(code)))};
}

}  // namespace nubivane
