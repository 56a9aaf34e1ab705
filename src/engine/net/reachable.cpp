// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/reachable.h"

#include "engine/core/shell.h"
#include "engine/net/server_address.h"
#include "engine/net/targets.h"

#include <QRegularExpression>

namespace nubivane {

using namespace Qt::StringLiterals;

bool isLoopbackHost(const QString& host) {
    static const QRegularExpression names(
        uR"(^(localhost\.?|.+\.localhost\.?|127(\.\d{1,3}){3}|::1)$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    return names.match(host.trimmed()).hasMatch();
}

bool isReachable(Shell& shell, const QString& host) {
    if (isLocalTarget(host.trimmed())) {
        return true;
    }
    const auto address = parseServerAddress(host);
    return isLoopbackHost(address ? address->host : host) || shell.networkPresent();
}

}  // namespace nubivane
