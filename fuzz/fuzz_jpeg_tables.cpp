// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_tables.h"
#include "fuzz_support.h"

using namespace nubivane;

/// The input is a JPEG file, of which only the segments before the picture's data matter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    hasOurJpegQuality(fuzz::inputBytes(data, size));
    return 0;
}
