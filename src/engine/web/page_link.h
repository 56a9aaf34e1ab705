// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace nubivane {

/// The address that a symbol's `Link` leads to, ready for an `href`. As everywhere, a link without
/// a scheme of its own is one of "http://". Nothing when there is no link, when its scheme is
/// another than http, https, mailto and tel, or when it is no valid address; one that starts with
/// "/", "./", "../", "?" or "#" is relative to the page.
std::optional<QString> pageLink(const QString& link);

/// True for a link that leads away from the page and so gets a window of its own.
bool leadsAway(const QString& address);

}  // namespace nubivane
