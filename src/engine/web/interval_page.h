// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/single_frame_page.h"

namespace nubivane {

/// Type 3: the Frames follow each other in an endless cycle at a fixed interval.
class IntervalPage : public SingleFramePage {
  public:
    using SingleFramePage::SingleFramePage;

  protected:
    QString loadCall() const override;
    void writeScript(TextLines& out) const override;
};

}  // namespace nubivane
