// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/page_content.h"

#include <QByteArray>

namespace nubivane {

/// The forecast for other programs, as docs/forecast-json.md and its schema tell it: JSON (RFC
/// 8259) in UTF-8, in which "<" stands as an escape so that it can go into any document.
QByteArray forecastJson(const PageContent& content);

}  // namespace nubivane
