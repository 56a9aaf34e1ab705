// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/curl_handle.h"

#include "engine/net/clean_text.h"
#include "engine/net/curl_library.h"
#include "engine/net/stop_signal.h"

#include <QFile>

namespace nubivane {

CurlHandle::CurlHandle(const StopSignal& stop) : stop_(stop) {
    initializeCurl();
    easy_ = curl_easy_init();
    multi_ = curl_multi_init();
    reset();
}

CurlHandle::~CurlHandle() {
    curl_easy_cleanup(easy_);
    curl_multi_cleanup(multi_);
}

void CurlHandle::reset() {
    curl_easy_reset(easy_);
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_QUICK_EXIT, 1L);  // a name server that keeps silent holds nobody
    set(CURLOPT_ERRORBUFFER, error_.data());
    if (const QByteArray list = qgetenv("SSL_CERT_FILE"); !list.isEmpty()) {
        set(CURLOPT_CAINFO, list.constData());
    }
}

CURLcode CurlHandle::perform() {
    constexpr int longestWaitMs = 1000;
    error_.front() = '\0';
    CURLcode result = CURLE_FAILED_INIT;
    if (curl_multi_add_handle(multi_, easy_) != CURLM_OK) {
        return result;
    }
    int running = 1;
    result = CURLE_ABORTED_BY_CALLBACK;
    while (!stop_.raised() && curl_multi_perform(multi_, &running) == CURLM_OK && running > 0) {
        curl_waitfd stopped{stop_.descriptor(), CURL_WAIT_POLLIN, 0};
        int events = 0;
        curl_multi_poll(multi_, &stopped, 1, longestWaitMs, &events);
    }
    int left = 0;
    if (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
        result = message->data.result;
    }
    curl_multi_remove_handle(multi_, easy_);
    return result;
}

QString CurlHandle::failure(CURLcode code) const {
    return cleanText(error_.front() != '\0' ? error_.data() : curl_easy_strerror(code));
}

QByteArray CurlHandle::escaped(const QByteArray& text) const {
    char* raw = curl_easy_escape(easy_, text.constData(), static_cast<int>(text.size()));
    const QByteArray result = QByteArray(raw).replace("%2F", "/");
    curl_free(raw);
    return result;
}

}  // namespace nubivane
