// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <curl/curl.h>

#include <array>

namespace nubivane {

class StopSignal;

/// A handle of libcurl whose transfers end at once when a stop signal is raised, name look-ups
/// included. Its connections stay open between the transfers.
class CurlHandle {
  public:
    explicit CurlHandle(const StopSignal& stop);
    ~CurlHandle();
    CurlHandle(const CurlHandle&) = delete;
    CurlHandle& operator=(const CurlHandle&) = delete;

    /// Back to what holds for every transfer; connections stay.
    void reset();
    template <class Value>
    void set(CURLoption option, Value value) {
        curl_easy_setopt(easy_, option, value);
    }

    /// Carries the transfer out. After a stop the result is CURLE_ABORTED_BY_CALLBACK.
    CURLcode perform();
    /// What the last `perform` failed with, fit to be shown.
    QString failure(CURLcode code) const;
    /// A part of a URL's path.
    QByteArray escaped(const QByteArray& text) const;

  private:
    const StopSignal& stop_;
    CURL* easy_;
    CURLM* multi_;
    std::array<char, CURL_ERROR_SIZE> error_{};
};

}  // namespace nubivane
