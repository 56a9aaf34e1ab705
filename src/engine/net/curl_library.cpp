// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/curl_library.h"

#include <QtGlobal>

#include <curl/curl.h>

namespace nubivane {

void initializeCurl() {
    static const CURLcode done = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(done)
}

}  // namespace nubivane
