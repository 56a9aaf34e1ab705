// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/upload/site_manifest.h"

#include <QCryptographicHash>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void check(const QByteArray& bytes) {
    const auto manifest = nubivane::SiteManifest::fromBytes(bytes);
    if (!manifest) {
        return;
    }
    for (auto file = manifest->files.cbegin(); file != manifest->files.cend(); ++file) {
        if (!nubivane::SiteManifest::isName(file.key()) || file->size < 0 ||
            file->hash.size() != 64) {
            std::abort();
        }
    }
    const auto again = nubivane::SiteManifest::fromBytes(manifest->toBytes());
    if (!again || again->files != manifest->files) {
        std::abort();
    }
}

}  // namespace

/// What is no manifest is refused; what is one is the same when it is written and read again. The
/// fuzzer cannot find the hash at the end, so it is given one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check(bytes);
    const QByteArray body = "nubivane-manifest 1\n" + bytes;
    check(body + "end " + QCryptographicHash::hash(body, QCryptographicHash::Sha256).toHex() +
          '\n');
    return 0;
}
