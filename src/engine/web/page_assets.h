// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The parts of the responsive page that are the same for every forecast: `responsive/page.css` and
/// `responsive/page.js`, built into the program.
namespace nubivane::page_assets {

QString styleSheet();
QString script();

}  // namespace nubivane::page_assets
