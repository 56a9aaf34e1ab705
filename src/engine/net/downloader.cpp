// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/downloader.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/net/curl_handle.h"
#include "engine/net/proxy.h"
#include "engine/net/transfer_error.h"

#include <QUrl>

#include <optional>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// No installer is larger.
constexpr qint64 MaxBytes = qint64{2} * 1024 * 1024 * 1024;
constexpr long MaxRedirections = 5;
constexpr char Protocols[] = "http,https";

}  // namespace

struct Downloader::Job {
    Downloader& owner;
    QByteArray url;
    QString target;
    std::optional<ReplacedFile> file{};
    qint64 written = 0;
    bool done = false;
    QString failure{};

    static size_t take(char* bytes, size_t, size_t size, void* self) {
        auto& job = *static_cast<Job*>(self);
        const auto count = static_cast<qint64>(size);
        job.written += count;
        return job.written <= MaxBytes && job.file->device().write(bytes, count) == count ? size
                                                                                          : 0;
    }

    static int watch(void* self, curl_off_t total, curl_off_t bytes, curl_off_t, curl_off_t) {
        Downloader& owner = static_cast<Job*>(self)->owner;
        owner.bytes_ = bytes;
        owner.total_ = total;
        return 0;
    }
};

bool Downloader::fetch(const QString& url, const QString& target) {
    if (worker_.busy()) {
        return false;
    }
    const QUrl parsed(url, QUrl::StrictMode);
    if (!parsed.isValid() || parsed.host().isEmpty()) {
        failure_ = u"the address is not valid"_s;
        return false;
    }
    stop_.clear();
    bytes_ = 0;
    total_ = 0;
    Job job{*this, parsed.toEncoded(), host_files::toHost(target)};
    const auto tick = [this] {
        if (progress && bytes_ > 0) {
            progress(bytes_, total_);
        }
    };
    worker_.run([&] { transfer(job); }, {.tick = tick, .interrupted = [this] { abort(); }});
    failure_ = job.failure;
    if (job.done && progress) {
        progress(job.written, job.written);
    }
    return job.done;
}

void Downloader::transfer(Job& job) {
    try {
        job.file.emplace(job.target, Durability::Flushed);
    } catch (const Error& error) {
        job.failure = error.cause();
        return;
    }
    QByteArray proxy;
    try {
        proxy = proxyFor(job.url, std::chrono::seconds(connectLimit_), stop_).url();
    } catch (const TransferError& error) {
        job.failure = error.text();
        return;
    }
    CurlHandle curl(stop_);
    curl.set(CURLOPT_PROXY, proxy.constData());
    curl.set(CURLOPT_URL, job.url.constData());
    curl.set(CURLOPT_PROTOCOLS_STR, Protocols);
    curl.set(CURLOPT_REDIR_PROTOCOLS_STR, Protocols);
    curl.set(CURLOPT_FOLLOWLOCATION, 1L);
    curl.set(CURLOPT_MAXREDIRS, MaxRedirections);
    curl.set(CURLOPT_FAILONERROR, 1L);
    curl.set(CURLOPT_CONNECTTIMEOUT, static_cast<long>(connectLimit_));
    curl.set(CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl.set(CURLOPT_LOW_SPEED_TIME, static_cast<long>(stallLimit_));
    curl.set(CURLOPT_WRITEFUNCTION, &Job::take);
    curl.set(CURLOPT_WRITEDATA, &job);
    curl.set(CURLOPT_NOPROGRESS, 0L);
    curl.set(CURLOPT_XFERINFOFUNCTION, &Job::watch);
    curl.set(CURLOPT_XFERINFODATA, &job);
    const CURLcode code = curl.perform();
    if (code != CURLE_OK) {
        job.failure = curl.failure(code);
        return;
    }
    try {
        job.file->commit();
        job.done = true;
    } catch (const Error& error) {
        job.failure = error.cause();
    }
}

QString Downloader::fileNameOf(const QString& url) {
    const QString name = QUrl(url).fileName(QUrl::FullyDecoded);
    return host_files::isPlainName(name) ? name : QString();
}

}  // namespace nubivane
