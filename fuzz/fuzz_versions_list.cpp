// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/services/check_version.h"
#include "fuzz_support.h"

using namespace nubivane;

/// The input is a server's list of versions.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString own = "6.0.0";
    const ListedVersion found = findVersion(fuzz::inputBytes(data, size), own);
    fuzz::require(!found.upToDate || found.version == own, "up to date means our version");
    fuzz::require(!found.version.startsWith(u' ') && !found.version.endsWith(u' '),
                  "a version has no outer blanks");
    return 0;
}
