// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/forecast.h"
#include "engine/model/sprites.h"
#include "engine/picture/animation.h"

#include <QRect>
#include <QString>

#include <memory>
#include <optional>

class QPainter;

namespace nubivane {

/// An element of `gifSymbol` or `lblTesto`: what stands on the canvas for a sprite of the current
/// Frame. The model is the truth; a control is made from it and thrown away with the Frame's visit.
/// Rectangles are pixels of the map.
class SpriteControl {
  public:
    virtual ~SpriteControl() = default;

    int Index = 0;  ///< its number in its array, from 1
    SpriteId id;    ///< the sprite of the current Frame that it stands for
    QRect rect;
    bool visible = false;

    virtual void paint(QPainter& painter) const = 0;
    /// Whether the border around it has handles: a Label's size follows its text.
    virtual bool isResizable() const = 0;
};

/// An animated picture object.
class GifSymbol : public SpriteControl {
  public:
    std::shared_ptr<const Animation> animation;  ///< nothing when its file cannot be shown
    QString ToolTipText;                         ///< shown while the pointer rests on it

    /// Shows the first image of another animation, standing still.
    void setAnimation(std::shared_ptr<const Animation> other);

    void StartAnimation(qint64 nowMs);
    void StopAnimation() { playing_ = false; }

    /// Moves on to the image of a time. True when that is another one.
    bool advance(qint64 nowMs);
    /// When the image changes next; nothing for one that stands still.
    std::optional<qint64> nextChange(qint64 nowMs) const;

    void paint(QPainter& painter) const override;
    bool isResizable() const override { return true; }

  private:
    bool playing_ = false;
    qint64 startedMs_ = 0;
    int image_ = 0;
};

/// A text label.
class LblTesto : public SpriteControl {
  public:
    bool FontStrikethru = false;  ///< the control's own: a Label's flag is not taken over by `show`

    LblTesto() { look_.BackColor = NoColor; }

    /// Takes over text, font, text colour and border of a model's Label, and its size from them.
    /// The colour of a border is for pages alone.
    void show(const cLabel& label);
    /// Stays from one `show` to the next; transparent at first.
    void setBackColor(qint32 color) { look_.BackColor = color; }

    void paint(QPainter& painter) const override;
    bool isResizable() const override { return false; }

  private:
    cLabel look_;
};

}  // namespace nubivane
