// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"
#include "engine/picture/jpeg_inspection.h"
#include "fuzz_support.h"

using namespace nubivane;

/// The input is a JPEG file, of which only the segments before the picture's data matter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = fuzz::inputBytes(data, size);
    hasJpegQuality(bytes, JpegQuality);
    fuzz::require(2 * qsizetype{jpegScans(bytes)} <= bytes.size(), "more scans than markers");
    return 0;
}
