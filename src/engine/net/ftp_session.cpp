// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/ftp_session.h"

#include "engine/net/clean_text.h"
#include "engine/net/curl_library.h"

#include <QUrl>

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <cstring>

#ifdef Q_OS_UNIX
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#endif

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Longer replies are no replies; a server could send them without end.
constexpr qint64 MaxReplyBytes = qint64{4} * 1024 * 1024;
constexpr qsizetype MaxShownReply = 200;
constexpr qsizetype MaxNameBytes = 4096;
/// Replies to a login; a server that drips lines without end is given no more time than for these.
constexpr long LoginReplies = 5;
/// Every connection is used for one run only, however long the pauses in it are.
constexpr long MaxIdleSeconds = 86400;

bool isClean(const QByteArray& text) {
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
            return false;
        }
    }
    return true;
}

/// A host's name or address as a URL takes it; empty for what is neither.
QByteArray hostInUrl(const QString& host) {
    const QString trimmed = host.trimmed();
    if (trimmed.contains(u':')) {
        for (const QChar c : trimmed) {
            if (!QStringLiteral("0123456789abcdefABCDEF:.").contains(c)) {
                return {};
            }
        }
        return '[' + trimmed.toLatin1() + ']';
    }
    const QByteArray name = QUrl::toAce(trimmed);
    for (const char c : name) {
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!letter && !(c >= '0' && c <= '9') && !std::strchr(".-_", c)) {
            return {};
        }
    }
    return name;
}

/// The server has answered and refuses; everything else ends the connection.
bool isRefusal(CURLcode code, int reply) {
    constexpr std::array codes{
        CURLE_OK,
        CURLE_UPLOAD_FAILED,
        CURLE_FTP_COULDNT_RETR_FILE,
        CURLE_QUOTE_ERROR,
        CURLE_REMOTE_DISK_FULL,
        CURLE_REMOTE_ACCESS_DENIED,
        CURLE_REMOTE_FILE_EXISTS,
        CURLE_REMOTE_FILE_NOT_FOUND,
        CURLE_FTP_COULDNT_SET_TYPE,
        CURLE_FTP_WEIRD_PASV_REPLY,
    };
    constexpr int serviceCloses = 421;
    return reply >= 400 && reply != serviceCloses &&
           std::find(codes.begin(), codes.end(), code) != codes.end();
}

}  // namespace

/// The library's handle, what it calls back, and what the calls leave.
struct FtpSession::Curl {
    explicit Curl(FtpSession& session)
        : owner(session), handle(curl_easy_init()), multi(curl_multi_init()) {}
    ~Curl() {
        curl_multi_cleanup(multi);
        curl_easy_cleanup(handle);
    }
    Curl(const Curl&) = delete;
    Curl& operator=(const Curl&) = delete;

    template <class Value>
    void set(CURLoption option, Value value) {
        curl_easy_setopt(handle, option, value);
    }

    CURLcode perform() const;

    static size_t takeReply(char* text, size_t, size_t size, void* self);
    static size_t give(char* buffer, size_t, size_t size, void* self);
    static size_t take(char* bytes, size_t, size_t size, void* self);
    static int progress(void* self, curl_off_t downTotal, curl_off_t down, curl_off_t upTotal,
                        curl_off_t up);
    static curl_socket_t openSocket(void* self, curlsocktype purpose, curl_sockaddr* address);

    FtpSession& owner;
    CURL* handle;
    CURLM* multi;  ///< keeps the connection between the calls
    QFile* source = nullptr;
    const Sink* sink = nullptr;
    qint64 replyBytes = 0;
    QByteArray lastReply;
    CURLcode code = CURLE_OK;
    std::array<char, CURL_ERROR_SIZE> error{};
};

/// The library's own loop sleeps for up to a second, now and then over a reply that has come. This
/// one looks again after a moment.
CURLcode FtpSession::Curl::perform() const {
    constexpr int LongestWaitMs = 20;
    CURLcode result = CURLE_FAILED_INIT;
    if (curl_multi_add_handle(multi, handle) != CURLM_OK) {
        return result;
    }
    int running = 1;
    int wait = 1;
    while (curl_multi_perform(multi, &running) == CURLM_OK && running > 0) {
        int events = 0;
        curl_multi_poll(multi, nullptr, 0, wait, &events);
        wait = events > 0 ? 1 : qMin(2 * wait, LongestWaitMs);
    }
    int left = 0;
    if (const CURLMsg* message = curl_multi_info_read(multi, &left)) {
        result = message->data.result;
    }
    curl_multi_remove_handle(multi, handle);
    return result;
}

size_t FtpSession::Curl::takeReply(char* text, size_t, size_t size, void* self) {
    auto& curl = *static_cast<Curl*>(self);
    curl.replyBytes += static_cast<qint64>(size);
    if (curl.replyBytes > MaxReplyBytes) {
        return 0;
    }
    curl.lastReply = QByteArray(text, qMin(static_cast<qsizetype>(size), MaxShownReply));
    return size;
}

size_t FtpSession::Curl::give(char* buffer, size_t, size_t size, void* self) {
    const qint64 got = static_cast<Curl*>(self)->source->read(buffer, static_cast<qint64>(size));
    return got < 0 ? CURL_READFUNC_ABORT : static_cast<size_t>(got);
}

size_t FtpSession::Curl::take(char* bytes, size_t, size_t size, void* self) {
    const Sink* sink = static_cast<Curl*>(self)->sink;
    return sink && (*sink)(bytes, static_cast<qint64>(size)) ? size : 0;
}

int FtpSession::Curl::progress(void* self, curl_off_t downTotal, curl_off_t down,
                               curl_off_t upTotal, curl_off_t up) {
    FtpSession& session = static_cast<Curl*>(self)->owner;
    session.transferred_ = down + up;
    session.total_ = downTotal + upTotal;
    return session.stopped_ ? 1 : 0;
}

curl_socket_t FtpSession::Curl::openSocket(void* self, curlsocktype, curl_sockaddr* address) {
    const FtpSession& session = static_cast<Curl*>(self)->owner;
    // Once logged in, the library would quietly replace a connection that the server has closed,
    // and what follows would land in the server's first folder.
    const auto* ip4 = reinterpret_cast<const sockaddr_in*>(&address->addr);
    const auto* ip6 = reinterpret_cast<const sockaddr_in6*>(&address->addr);
    const int port = ntohs(address->family == AF_INET6 ? ip6->sin6_port : ip4->sin_port);
    if (session.connected_ && port == session.server_.port) {
        return CURL_SOCKET_BAD;
    }
    return ::socket(address->family, address->socktype, address->protocol);
}

FtpSession::FtpSession(const FtpOptions& options) : options_(options) {
    initializeCurl();
}

FtpSession::~FtpSession() {
    disconnect();
}

bool FtpSession::refuse(const char* reason) {
    failure_ = QLatin1String(reason);
    replyCode_ = 0;
    lost_ = false;
    return false;
}

bool FtpSession::connect(const FtpServer& server) {
    disconnect();
    const QByteArray host = hostInUrl(server.host);
    if (host.isEmpty() || server.port < 1 || server.port > 65535) {
        return refuse("the address of the server is not valid");
    }
    if (!isClean(server.user.toUtf8()) || !isClean(server.password.toUtf8())) {
        return refuse("the login holds a control character");
    }
    server_ = server;
    if (server_.user.isEmpty()) {
        server_.user = u"anonymous"_s;
        if (server_.password.isEmpty()) {
            server_.password = u"anonymous@"_s;
        }
    }
    address_ = "ftp://" + host + ':' + QByteArray::number(server.port) + '/';
    connected_ = login(TlsVersions::UpTo12) ||
                 (curl_->code == CURLE_SSL_CONNECT_ERROR && login(TlsVersions::UpTo13));
    return connected_;
}

bool FtpSession::login(TlsVersions versions) {
    versions_ = versions;
    curl_ = std::make_unique<Curl>(*this);
    if (!prepare({})) {
        return false;
    }
    askOnly();
    return perform();
}

/// Without a transfer nothing else would bound a reply that never ends.
void FtpSession::askOnly() {
    curl_->set(CURLOPT_NOBODY, 1L);
    curl_->set(CURLOPT_TIMEOUT, options_.connect + LoginReplies * options_.response);
}

/// Everything that holds for each call. The connection outlives the reset.
bool FtpSession::prepare(const QByteArray& name) {
    if (!curl_ || !curl_->handle || !curl_->multi) {
        refuse("there is no connection");
        lost_ = true;
        return false;
    }
    if (name.size() > MaxNameBytes || !isClean(name)) {
        return refuse("the server cannot be given that name");
    }
    Curl& curl = *curl_;
    curl_easy_reset(curl.handle);
    QByteArray url = address_;
    if (!name.isEmpty()) {
        char* escaped =
            curl_easy_escape(curl.handle, name.constData(), static_cast<int>(name.size()));
        url += escaped;
        curl_free(escaped);
    }
    curl.set(CURLOPT_URL, url.constData());
    curl.set(CURLOPT_USERNAME, server_.user.toUtf8().constData());
    curl.set(CURLOPT_PASSWORD, server_.password.toUtf8().constData());
    curl.set(CURLOPT_PROTOCOLS_STR, "ftp");
    curl.set(CURLOPT_PROXY, "");
    curl.set(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    curl.set(CURLOPT_NOSIGNAL, 1L);
    curl.set(CURLOPT_FTP_FILEMETHOD, static_cast<long>(CURLFTPMETHOD_NOCWD));
    curl.set(CURLOPT_PATH_AS_IS, 1L);
    curl.set(CURLOPT_MAXAGE_CONN, MaxIdleSeconds);
    curl.set(CURLOPT_TCP_KEEPALIVE, 1L);
    curl.set(CURLOPT_CONNECTTIMEOUT, static_cast<long>(options_.connect));
    curl.set(CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(options_.response));
    curl.set(CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl.set(CURLOPT_LOW_SPEED_TIME, static_cast<long>(options_.stall));
    // Servers want each data connection to go on with the session of the control connection, which
    // tickets of version 1.3, good for one use each, do not serve. So 1.3 is for those that take
    // nothing else. They have offered encryption by then and get no second chance without.
    const bool first = versions_ == TlsVersions::UpTo12;
    curl.set(CURLOPT_USE_SSL, static_cast<long>(first ? CURLUSESSL_TRY : CURLUSESSL_ALL));
    curl.set(CURLOPT_FTPSSLAUTH, static_cast<long>(CURLFTPAUTH_TLS));
    curl.set(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2) |
                                     static_cast<long>(first ? CURL_SSLVERSION_MAX_TLSv1_2
                                                             : CURL_SSLVERSION_MAX_TLSv1_3));
    if (!options_.certificates.isEmpty()) {
        curl.set(CURLOPT_CAINFO, options_.certificates.toLocal8Bit().constData());
    }
    curl.set(CURLOPT_OPENSOCKETFUNCTION, &Curl::openSocket);
    curl.set(CURLOPT_OPENSOCKETDATA, &curl);
    curl.set(CURLOPT_HEADERFUNCTION, &Curl::takeReply);
    curl.set(CURLOPT_HEADERDATA, &curl);
    curl.set(CURLOPT_WRITEFUNCTION, &Curl::take);
    curl.set(CURLOPT_WRITEDATA, &curl);
    curl.set(CURLOPT_NOPROGRESS, 0L);
    curl.set(CURLOPT_XFERINFOFUNCTION, &Curl::progress);
    curl.set(CURLOPT_XFERINFODATA, &curl);
    curl.set(CURLOPT_ERRORBUFFER, curl.error.data());
    curl.source = nullptr;
    curl.sink = nullptr;
    transferred_ = 0;
    total_ = 0;
    return true;
}

bool FtpSession::perform() {
    Curl& curl = *curl_;
    curl.replyBytes = 0;
    curl.lastReply.clear();
    curl.error.front() = '\0';
    curl.code = curl.perform();
    long reply = 0;
    curl_easy_getinfo(curl.handle, CURLINFO_RESPONSE_CODE, &reply);
    replyCode_ = static_cast<int>(reply);
    lost_ = false;
    if (curl.code == CURLE_OK) {
        failure_.clear();
        return true;
    }
    lost_ = !isRefusal(curl.code, replyCode_);
    failure_ =
        cleanText(curl.error.front() != '\0' ? curl.error.data() : curl_easy_strerror(curl.code));
    const QString said = cleanText(curl.lastReply);
    if (!said.isEmpty()) {
        failure_ += u" ("_s + said + u')';
    }
    return false;
}

bool FtpSession::command(const char* verb, const QByteArray& name) {
    if (name.isEmpty()) {
        return refuse("the name is empty");
    }
    if (name.size() > MaxNameBytes || !isClean(name)) {
        return refuse("the server cannot be given that name");
    }
    if (!prepare({})) {
        return false;
    }
    // With the star a refusal does not cost the connection.
    const QByteArray line = QByteArray("*") + verb + ' ' + name;
    curl_slist* lines = curl_slist_append(nullptr, line.constData());
    askOnly();
    curl_->set(CURLOPT_QUOTE, lines);
    const bool replied = perform();
    curl_slist_free_all(lines);
    if (replied && replyCode_ / 100 != 2) {
        failure_ = cleanText(curl_->lastReply);
        lost_ = replyCode_ == 421;
        return false;
    }
    return replied;
}

bool FtpSession::store(QFile& file, const QByteArray& name) {
    if (name.isEmpty() || name.endsWith('/')) {
        return refuse("the name is not that of a file");
    }
    if (!prepare(name)) {
        return false;
    }
    curl_->source = &file;
    curl_->set(CURLOPT_UPLOAD, 1L);
    curl_->set(CURLOPT_READFUNCTION, &Curl::give);
    curl_->set(CURLOPT_READDATA, curl_.get());
    curl_->set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(file.size()));
    return perform();
}

bool FtpSession::retrieve(const QByteArray& name, const Sink& sink) {
    if (name.isEmpty() || name.endsWith('/')) {
        return refuse("the name is not that of a file");
    }
    if (!prepare(name)) {
        return false;
    }
    curl_->sink = &sink;
    return perform();
}

bool FtpSession::list(const Sink& sink) {
    if (!prepare({})) {
        return false;
    }
    curl_->sink = &sink;
    curl_->set(CURLOPT_DIRLISTONLY, 1L);
    constexpr int NothingThere = 550;  // what some servers say of an empty folder
    return perform() || (curl_->code == CURLE_FTP_COULDNT_RETR_FILE && replyCode_ == NothingThere);
}

/// Closed at the end, the library would wait for the reply to the last command as long as it likes.
/// A call without any command closes the connection under our own limit.
void FtpSession::disconnect() {
    if (connected_ && prepare({})) {
        curl_->set(CURLOPT_NOBODY, 1L);
        curl_->set(CURLOPT_FORBID_REUSE, 1L);
        curl_->set(CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(options_.farewell));
        perform();
    }
    connected_ = false;
    curl_.reset();
}

}  // namespace nubivane
