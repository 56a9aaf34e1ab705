// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_errors.h"

#include <jerror.h>

namespace nubivane {

JpegErrors::JpegErrors() {
    jpeg_std_error(&state_.handler);
    state_.handler.error_exit = onError;
    state_.handler.emit_message = onWarning;
}

JpegErrors::State& JpegErrors::stateOf(j_common_ptr file) {
    return *reinterpret_cast<State*>(file->err);
}

void JpegErrors::onError(j_common_ptr file) {
    State& state = stateOf(file);
    state.handler.format_message(file, state.text.data());
    std::longjmp(state.giveUp, 1);
}

/// Of all that the library warns of, only missing data counts: stray bytes between the segments are
/// common and harmless.
void JpegErrors::onWarning(j_common_ptr file, int level) {
    const int code = file->err->msg_code;
    if (level < 0 && (code == JWRN_HIT_MARKER || code == JWRN_JPEG_EOF)) {
        stateOf(file).dataMissing = true;
    }
}

}  // namespace nubivane
