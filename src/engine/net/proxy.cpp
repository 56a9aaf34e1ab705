// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/proxy.h"

#include "engine/net/reachable.h"
#include "engine/net/stop_signal.h"
#include "engine/net/transfer_error.h"

#include <QUrl>

#include <poll.h>
#include <proxy.h>

#include <array>
#include <memory>
#include <mutex>
#include <thread>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// What the thread of a question shares with whoever asked, who may be gone by the time it ends:
/// the settings may lead to a script that has to be fetched, which nothing can interrupt.
struct Question {
    QByteArray url;
    std::mutex mutex;
    std::vector<QByteArray> found;
    StopSignal done;

    void run() {
        pxProxyFactory* factory = px_proxy_factory_new();
        char** list = factory ? px_proxy_factory_get_proxies(factory, url.data()) : nullptr;
        {
            const std::lock_guard lock(mutex);
            for (char** entry = list; entry && *entry; ++entry) {
                found.emplace_back(*entry);
            }
        }
        if (list) {
            px_proxy_factory_free_proxies(list);
        }
        if (factory) {
            px_proxy_factory_free(factory);
        }
        done.raise();
    }
};

/// The variable for web pages stands in for the one of FTP where that is missing. Proxies of the
/// web seldom let FTP pass: whoever has named none for it goes directly.
bool meansTheWebAlone(const QByteArray& proxy) {
    const auto given = [](const char* name) {
        return qEnvironmentVariableIsSet(name) ||
               qEnvironmentVariableIsSet(QByteArray(name).toUpper().constData());
    };
    const QByteArray web =
        qEnvironmentVariableIsSet("http_proxy") ? qgetenv("http_proxy") : qgetenv("HTTP_PROXY");
    return !web.isEmpty() && web == proxy && !given("ftp_proxy");
}

}  // namespace

QByteArray Proxy::url() const {
    if (kind == Kind::None) {
        return {};
    }
    QUrl url;
    url.setScheme(kind == Kind::Socks ? u"socks5h"_s : u"http"_s);
    url.setHost(QString::fromUtf8(host));
    url.setPort(port);
    url.setUserName(QString::fromUtf8(user));
    url.setPassword(QString::fromUtf8(password));
    return url.toEncoded();
}

Proxy Proxy::of(const std::vector<QByteArray>& urls) {
    constexpr int socksPort = 1080;
    constexpr int httpPort = 8080;
    for (const QByteArray& text : urls) {
        const QUrl url = QUrl::fromEncoded(text);
        const QString scheme = url.scheme();
        if (scheme == "direct"_L1) {
            return {};
        }
        const bool socks = scheme == "socks"_L1 || scheme == "socks5"_L1 || scheme == "socks5h"_L1;
        if ((socks || scheme == "http"_L1) && !url.host().isEmpty()) {
            return {socks ? Kind::Socks : Kind::Http, url.host(QUrl::FullyEncoded).toLatin1(),
                    url.port(socks ? socksPort : httpPort), url.userName().toUtf8(),
                    url.password().toUtf8()};
        }
    }
    return {};
}

Proxy proxyFor(const QByteArray& url, Milliseconds limit, const StopSignal& stop) {
    const QUrl parsed = QUrl::fromEncoded(url);
    if (isLoopbackHost(parsed.host())) {
        return {};
    }
    const auto question = std::make_shared<Question>();
    question->url = url;
    std::thread([question] { question->run(); }).detach();
    std::array<pollfd, 2> waiting{pollfd{question->done.descriptor(), POLLIN, 0},
                                  pollfd{stop.descriptor(), POLLIN, 0}};
    ::poll(waiting.data(), waiting.size(), static_cast<int>(limit.count()));
    if (stop.raised()) {
        throw TransferError(TransferError::Kind::Stopped, u"stopped"_s);
    }
    const std::lock_guard lock(question->mutex);
    const bool ofTheWeb = !question->found.empty() && parsed.scheme() != "http"_L1 &&
                          parsed.scheme() != "https"_L1 &&
                          meansTheWebAlone(question->found.front());
    return ofTheWeb ? Proxy() : Proxy::of(question->found);
}

}  // namespace nubivane
