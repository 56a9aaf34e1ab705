// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/single_frame_page.h"

namespace nubivane {

/// The Frames are chosen with a cursor that is dragged along a track under the map.
class SliderPage : public SingleFramePage {
  public:
    using SingleFramePage::SingleFramePage;

  protected:
    QString loadCall() const override { return QStringLiteral("javascript:_Render(1);"); }
    QString bodyAttributes() const override;
    QString titleWidth() const override { return QStringLiteral("90%"); }
    int textHeight() const override { return input().map.height() + 25; }
    void writeAfterMaps(TextLines& out) const override;
    void writeScript(TextLines& out) const override;

  private:
    bool hasSlider() const { return frameCount() > 1; }
    void writeTicks(TextLines& out, qint64 top) const;
    void writeCursor(TextLines& out, qint64 top) const;
    void writeTickLabel(TextLines& out, qint64 top) const;
    void writeVariables(TextLines& out) const;
    void writeDoDown(TextLines& out) const;
    void writeDoMove(TextLines& out) const;
    void writeDoUp(TextLines& out) const;
};

}  // namespace nubivane
