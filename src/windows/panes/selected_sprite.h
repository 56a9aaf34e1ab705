// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/panes/frame_canvas.h"
#include "windows/properties/sprite_on_map.h"

namespace nubivane {

/// The selected sprite's control on the canvas, as the property windows see it.
class SelectedSprite : public SpriteOnMap {
  public:
    explicit SelectedSprite(FrameCanvas& canvas) : canvas_(canvas) {}

    /// Whether there is one at all.
    bool exists() const { return control() != nullptr; }

    QRect rect() const override;
    void Move(const QRect& rect) override;
    QRect borderedRect() const override;
    void setBorderedRect(const QRect& rect) override;
    void show(const cLabel& label) override;
    void setBackColor(qint32 color) override;
    void setFontStrikethru(bool strikethru) override;
    void StopAnimation() override;
    void StartAnimation() override;
    void setFileName(const QString& path) override;
    void setToolTipText(const QString& text) override;

  private:
    SpriteControl* control() const { return canvas_.selection().control(); }
    GifSymbol* symbol() const { return dynamic_cast<GifSymbol*>(control()); }
    LblTesto* label() const { return dynamic_cast<LblTesto*>(control()); }

    FrameCanvas& canvas_;
};

}  // namespace nubivane
