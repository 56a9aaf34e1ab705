// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/page_writer.h"
#include "engine/web/script_library.h"

namespace nubivane {

/// A page that shows one Frame at a time: what the buttons, interval and slider pages share.
class SingleFramePage : public PageWriter {
  public:
    using PageWriter::PageWriter;

  protected:
    void writeFrameFunctions(TextLines& out, bool timed) const {
        writeFrameScript(out, {.frameCount = frameCount(),
                               .hasTitles = hasTitles(),
                               .timed = timed,
                               .effects = settings().effects,
                               .showForecastText = settings().showForecastText});
    }
};

}  // namespace nubivane
