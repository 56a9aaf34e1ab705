// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_data.h"

#include <jerror.h>
#include <jpeglib.h>

#include <csetjmp>
#include <cstdio>
#include <vector>

namespace nubivane {

namespace {

/// The library's error handler, with what it found.
struct Findings {
    jpeg_error_mgr handler;  ///< first: the library hands it back by its address
    std::jmp_buf giveUp;
    bool missing = false;
};

Findings& findingsOf(j_common_ptr file) {
    return *reinterpret_cast<Findings*>(file->err);
}

[[noreturn]] void onError(j_common_ptr file) {
    std::longjmp(findingsOf(file).giveUp, 1);
}

/// Of all that the library warns of, only missing data counts: stray bytes between the segments are
/// common and harmless.
void onWarning(j_common_ptr file, int level) {
    const int code = file->err->msg_code;
    if (level < 0 && (code == JWRN_HIT_MARKER || code == JWRN_JPEG_EOF)) {
        findingsOf(file).missing = true;
    }
}

/// Nothing with a destructor may live here: an error jumps out.
bool readsToItsEnd(jpeg_decompress_struct& file, Findings& findings, const QByteArray& bytes,
                   std::vector<JSAMPLE>& row) {
    if (setjmp(findings.giveUp)) {
        return false;
    }
    jpeg_mem_src(&file, reinterpret_cast<const uchar*>(bytes.constData()),
                 static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&file, TRUE);
    // An eighth of the pixels needs all of the data but hardly any memory.
    file.scale_num = 1;
    file.scale_denom = 8;
    jpeg_start_decompress(&file);
    row.resize(std::size_t{file.output_width} * static_cast<std::size_t>(file.output_components));
    JSAMPROW line = row.data();
    while (file.output_scanline < file.output_height && !findings.missing) {
        jpeg_read_scanlines(&file, &line, 1);
    }
    if (!findings.missing) {
        jpeg_finish_decompress(&file);
    }
    return !findings.missing;
}

}  // namespace

bool isWholeJpeg(const QByteArray& bytes) {
    Findings findings;
    jpeg_decompress_struct file;
    file.err = jpeg_std_error(&findings.handler);
    findings.handler.error_exit = onError;
    findings.handler.emit_message = onWarning;
    jpeg_create_decompress(&file);
    std::vector<JSAMPLE> row;
    const bool whole = readsToItsEnd(file, findings, bytes, row);
    jpeg_destroy_decompress(&file);
    return whole;
}

}  // namespace nubivane
