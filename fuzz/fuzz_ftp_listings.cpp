// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/net/ftp_listing.h"

#include <QSet>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// Every entry has a plain name of its own, and a size only if it is a file.
void check(const nubivane::RemoteListing& listing) {
    QSet<QString> names;
    for (const nubivane::RemoteEntry& entry : listing) {
        const bool sized = entry.size >= 0;
        if (!nubivane::host_files::isPlainName(entry.name) || names.contains(entry.name) ||
            entry.size < -1 || (sized && entry.kind != nubivane::RemoteEntry::Kind::File)) {
            std::abort();
        }
        names.insert(entry.name);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray listing(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check(nubivane::parseMlsd(listing));
    check(nubivane::parseList(listing));
    check(nubivane::parseNames(listing));
    return 0;
}
