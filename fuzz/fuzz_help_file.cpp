// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/help/chm_file.h"
#include "engine/help/site_map.h"
#include "fuzz_support.h"

using namespace nubivane;

/// The input is a compiled help file. Everything in it is read, and what may be contents or index
/// is taken apart.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const ChmFile file(fuzz::inputBytes(data, size));
        qint64 bytes = 0;
        for (const QString& name : file.names()) {
            constexpr qint64 Enough = 8 << 20;  // many names may share the same bytes
            if (bytes > Enough) {
                break;
            }
            try {
                const QByteArray content = file.read(name);
                bytes += content.size();
                constexpr qsizetype LongestSiteMap = 20000;
                readSiteMap(QString::fromUtf8(content.first(qMin(content.size(), LongestSiteMap))));
            } catch (const Error&) {
                continue;
            }
        }
    } catch (const Error&) {
        return 0;
    }
    return 0;
}
