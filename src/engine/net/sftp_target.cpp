// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/sftp_target.h"

#include "engine/net/clean_text.h"
#include "engine/net/conversation.h"
#include "engine/net/server_address.h"
#include "engine/net/tls.h"
#include "engine/net/transfer_error.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QIODevice>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

/// A path as one word of the library's commands.
QByteArray quoted(QByteArray path) {
    return '"' + path.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

long wholeSeconds(Milliseconds limit) {
    return static_cast<long>(std::chrono::ceil<std::chrono::seconds>(limit).count());
}

bool isRefusal(CURLcode code) {
    return code == CURLE_QUOTE_ERROR || code == CURLE_REMOTE_FILE_NOT_FOUND ||
           code == CURLE_REMOTE_ACCESS_DENIED || code == CURLE_UPLOAD_FAILED ||
           code == CURLE_REMOTE_DISK_FULL || code == CURLE_REMOTE_FILE_EXISTS ||
           code == CURLE_LOGIN_DENIED;
}

}  // namespace

struct SftpTarget::Receiver {
    QByteArray bytes;
    qint64 most = 0;

    static size_t take(char* bytes, size_t, size_t size, void* self) {
        auto& receiver = *static_cast<Receiver*>(self);
        receiver.bytes.append(bytes, static_cast<qsizetype>(size));
        return receiver.bytes.size() <= receiver.most ? size : 0;
    }
};

SftpTarget::SftpTarget(FtpServer server, FtpOptions options)
    : server_(std::move(server)), options_(std::move(options)) {}

QByteArray SftpTarget::pathOf(const QString& name) const {
    const QByteArray path = QString(name).replace(u'\\', u'/').toUtf8();
    if (!isSendable(path)) {
        throw TransferError(Kind::Refused, u"the server cannot be given that name"_s);
    }
    const QByteArray whole =
        folder_.isEmpty() || path.startsWith('/') ? path : folder_ + '/' + path;
    return QDir::cleanPath(QString::fromUtf8(whole)).toUtf8();
}

/// The fingerprint is that of the key's bytes, which the library hands over in base 64.
int SftpTarget::judgeKey(CURL*, const curl_khkey*, const curl_khkey* found, curl_khmatch match,
                         void* self) {
    auto& target = *static_cast<SftpTarget*>(self);
    if (match == CURLKHMATCH_OK) {
        return CURLKHSTAT_FINE;
    }
    const QByteArray key = found->len > 0
                               ? QByteArray(found->key, static_cast<qsizetype>(found->len))
                               : QByteArray::fromBase64(found->key);
    const QByteArray digest = QCryptographicHash::hash(key, QCryptographicHash::Sha256);
    const QString fingerprint = QString::fromLatin1(digest.toHex().toUpper());
    if (plainFingerprint(target.server_.fingerprint) == fingerprint) {
        return CURLKHSTAT_FINE;
    }
    target.keyFingerprint_ = fingerprint;
    target.keyComplaint_ =
        (match == CURLKHMATCH_MISMATCH ? u"the host key of the server is another than before"_s
                                       : u"the host key of the server is not known"_s) +
        u"; its SHA-256 fingerprint is "_s + QString::fromLatin1(digest.toHex(':').toUpper());
    return CURLKHSTAT_REJECT;
}

size_t SftpTarget::give(char* buffer, size_t, size_t size, void* self) {
    auto& target = *static_cast<SftpTarget*>(self);
    const qint64 got = target.source_->read(buffer, static_cast<qint64>(size));
    target.running_ += std::max<qint64>(got, 0);
    return got < 0 ? CURL_READFUNC_ABORT : static_cast<size_t>(got);
}

void SftpTarget::prepare(const QByteArray& path) {
    const QByteArray host = hostForLookup(server_.host);
    if (host.isEmpty()) {
        throw TransferError(Kind::Refused, u"the address of the server is not valid"_s);
    }
    curl_.reset();
    const QByteArray authority = host.contains(':') ? '[' + host + ']' : host;
    const QByteArray below = path.startsWith('/') ? path : "/~/" + path;
    const QByteArray url = "sftp://" + authority + ':' + QByteArray::number(server_.port) +
                           curl_.escaped(below).replace("%7E", "~");
    curl_.set(CURLOPT_URL, url.constData());
    curl_.set(CURLOPT_PROTOCOLS_STR, "sftp");
    curl_.set(CURLOPT_PROXY, proxy_.url().constData());
    curl_.set(CURLOPT_HTTPPROXYTUNNEL, 1L);
    curl_.set(CURLOPT_USERNAME, server_.user.toUtf8().constData());
    if (!server_.password.isEmpty()) {
        curl_.set(CURLOPT_PASSWORD, server_.password.toUtf8().constData());
    }
    const QString home = QDir::homePath();
    curl_.set(CURLOPT_SSH_KNOWNHOSTS, (home + u"/.ssh/known_hosts"_s).toLocal8Bit().constData());
    for (const char* name : {"id_ed25519", "id_ecdsa", "id_rsa"}) {
        const QString key = home + u"/.ssh/"_s + QLatin1String(name);
        if (QFileInfo::exists(key)) {
            curl_.set(CURLOPT_SSH_PRIVATE_KEYFILE, key.toLocal8Bit().constData());
            break;
        }
    }
    curl_.set(CURLOPT_SSH_KEYFUNCTION, &SftpTarget::judgeKey);
    curl_.set(CURLOPT_SSH_KEYDATA, this);
    curl_.set(CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(options_.connect.count()));
    curl_.set(CURLOPT_SERVER_RESPONSE_TIMEOUT, wholeSeconds(options_.response));
    curl_.set(CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_.set(CURLOPT_LOW_SPEED_TIME, wholeSeconds(options_.stall));
}

void SftpTarget::fail(CURLcode code) const {
    if (code == CURLE_ABORTED_BY_CALLBACK || stop_.raised()) {
        throw TransferError(Kind::Stopped, u"stopped"_s);
    }
    if (code == CURLE_PEER_FAILED_VERIFICATION) {
        throw TransferError(Kind::Insecure,
                            keyComplaint_.isEmpty() ? curl_.failure(code) : keyComplaint_)
            .trustable(keyFingerprint_);
    }
    tell(options_, u"< "_s + curl_.failure(code));
    throw TransferError(isRefusal(code) ? Kind::Refused : Kind::Lost, curl_.failure(code));
}

void SftpTarget::perform() {
    if (const CURLcode code = curl_.perform(); code != CURLE_OK) {
        fail(code);
    }
}

void SftpTarget::command(const QList<QByteArray>& lines) {
    prepare({});
    curl_slist* list = nullptr;
    for (const QByteArray& line : lines) {
        tell(options_, u"> "_s + cleanText(line));
        list = curl_slist_append(list, line.constData());
    }
    curl_.set(CURLOPT_NOBODY, 1L);
    curl_.set(CURLOPT_QUOTE, list);
    const CURLcode code = curl_.perform();
    curl_slist_free_all(list);
    if (code != CURLE_OK) {
        fail(code);
    }
    tell(options_, u"< done"_s);
}

void SftpTarget::connect() {
    folder_.clear();
    const QByteArray host = hostForLookup(server_.host);
    proxy_ = proxyFor("sftp://" + (host.contains(':') ? '[' + host + ']' : host), options_.connect,
                      stop_);
    command({"pwd"});
}

void SftpTarget::makeFolder(const QString& name) {
    command({"mkdir " + quoted(pathOf(name))});
}

void SftpTarget::changeFolder(const QString& name) {
    if (!list(name)) {
        throw TransferError(Kind::Refused, u"there is no such folder"_s);
    }
    folder_ = pathOf(name);
    if (folder_ == ".") {
        folder_.clear();
    }
}

void SftpTarget::put(const Outgoing& file) {
    const QByteArray temporary = pathOf(file.temporary);
    file.source.seek(0);
    source_ = &file.source;
    running_ = 0;
    tell(options_,
         u"> put %1, %2 bytes"_s.arg(cleanText(quoted(temporary))).arg(file.source.size()));
    prepare(temporary);
    curl_.set(CURLOPT_UPLOAD, 1L);
    curl_.set(CURLOPT_READFUNCTION, &SftpTarget::give);
    curl_.set(CURLOPT_READDATA, this);
    curl_.set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(file.source.size()));
    perform();
    const auto stored = sizeOf(file.temporary);
    if (stored != file.source.size()) {
        throw TransferError(Kind::Refused, u"the server has not kept the whole file"_s);
    }
    // Not every server renames over what is there.
    const QByteArray name = pathOf(file.name);
    command({"*rm " + quoted(name), "rename " + quoted(temporary) + ' ' + quoted(name)});
    sent_ += running_.exchange(0);
}

CURLcode SftpTarget::receive(const QByteArray& path, Receiver& receiver) {
    tell(options_, u"> get "_s + cleanText(quoted(path.isEmpty() ? QByteArray(".") : path)));
    prepare(path);
    curl_.set(CURLOPT_WRITEFUNCTION, &Receiver::take);
    curl_.set(CURLOPT_WRITEDATA, &receiver);
    return curl_.perform();
}

std::optional<RemoteListing> SftpTarget::list(const QString& folder) {
    Receiver receiver{{}, MaxListingBytes};
    QByteArray path = pathOf(folder);
    path = path == "." || path.isEmpty() ? QByteArray() : path + '/';
    const CURLcode code = receive(path, receiver);
    if (isRefusal(code)) {
        return std::nullopt;
    }
    if (code != CURLE_OK) {
        fail(code);
    }
    return parseList(receiver.bytes);
}

std::optional<qint64> SftpTarget::sizeOf(const QString& name) {
    const QString path = QString(name).replace(u'\\', u'/');
    const qsizetype slash = path.lastIndexOf(u'/');
    const auto listing = list(slash < 0 ? u"."_s : path.first(slash));
    if (listing) {
        for (const RemoteEntry& entry : *listing) {
            if (entry.name == path.mid(slash + 1) && entry.size >= 0) {
                return entry.size;
            }
        }
    }
    return std::nullopt;
}

std::optional<QByteArray> SftpTarget::read(const QString& name, qint64 maxBytes) {
    Receiver receiver{{}, maxBytes};
    const CURLcode code = receive(pathOf(name), receiver);
    if (isRefusal(code)) {
        return std::nullopt;
    }
    if (code != CURLE_OK) {
        fail(code);
    }
    return receiver.bytes;
}

void SftpTarget::remove(const QString& name) {
    command({"rm " + quoted(pathOf(name))});
}

std::unique_ptr<Transfer> SftpTarget::sibling() {
    return std::make_unique<SftpTarget>(server_, options_);
}

}  // namespace nubivane
