// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

/// Makes the transfer library ready; to be called before any other thread uses it.
void initializeCurl();

}  // namespace nubivane
