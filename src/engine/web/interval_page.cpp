// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/interval_page.h"

namespace nubivane {

QString IntervalPage::loadCall() const {
    if (frameCount() < 2) {
        return "javascript:_Render();";
    }
    return "javascript:_Render(); setInterval('_Render()', " +
           QString::number(settings().timer * 1000) + ");";
}

void IntervalPage::writeScript(TextLines& out) const {
    writeSpriteIndexes(out);
    // Starting on the last Frame, the first call wraps to the first one and shows it.
    out << "var currFrame = " + QString::number(frameCount()) + ';';
    writeFrameFunctions(out, true);
}

}  // namespace nubivane
