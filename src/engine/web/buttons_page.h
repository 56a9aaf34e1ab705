// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/single_frame_page.h"

namespace nubivane {

/// Type 1: a row of buttons under the map, one for each Frame; beyond three Frames a strip of three
/// that two arrow buttons scroll.
class ButtonsPage : public SingleFramePage {
  public:
    using SingleFramePage::SingleFramePage;

  protected:
    QString loadCall() const override;
    int textHeight() const override { return input().map.height() + 25; }
    void writeAfterTexts(TextLines& out) const override;
    void writeScript(TextLines& out) const override;

  private:
    bool scrolls() const;
    qint64 buttonWidth() const;
    QString button(const QString& id, const QString& caption, qint64 width,
                   const QString& call) const;
    void writeScrollingFunctions(TextLines& out) const;
    void writePlainFunctions(TextLines& out) const;
};

}  // namespace nubivane
