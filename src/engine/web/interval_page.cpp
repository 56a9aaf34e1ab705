// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/interval_page.h"

namespace nubivane {

using namespace Qt::StringLiterals;

QString IntervalPage::loadCall() const {
    if (frameCount() < 2) {
        return u"javascript:_Render();"_s;
    }
    return u"javascript:_Render(); setInterval('_Render()', "_s +
           QString::number(settings().timer * 1000) + u");"_s;
}

void IntervalPage::writeScript(TextLines& out) const {
    writeSpriteIndexes(out);
    // Starting on the last Frame, the first call wraps to the first one and shows it.
    out << u"var currFrame = "_s + QString::number(frameCount()) + u';';
    writeFrameFunctions(out, true);
}

}  // namespace nubivane
