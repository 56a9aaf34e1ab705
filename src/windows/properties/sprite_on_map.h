// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprites.h"

#include <QRect>
#include <QString>

namespace nubivane {

/// The control on the map of the sprite that a property window edits, and the selection's border
/// around it. The window writes the model itself. Rectangles are pixels of the map.
class SpriteOnMap {
  public:
    virtual ~SpriteOnMap() = default;

    /// The control's own rectangle, which the model's can differ from until the next drag.
    virtual QRect rect() const = 0;
    virtual void Move(const QRect& rect) = 0;

    /// The rectangle that the selection's border surrounds.
    virtual QRect borderedRect() const = 0;
    virtual void setBorderedRect(const QRect& rect) = 0;

    /// A Label's control takes over text, font, text colour and border, and its size from them.
    virtual void show(const cLabel& label) = 0;
    /// -1 is transparent. The control's alone, since a pasted Label shows none at first.
    virtual void setBackColor(qint32 color) = 0;
    /// Strike-through stands in the control alone until the Frame is visited again.
    virtual void setFontStrikethru(bool strikethru) = 0;

    /// A Symbol's control.
    virtual void StopAnimation() = 0;
    virtual void StartAnimation() = 0;
    virtual void setFileName(const QString& path) = 0;
    virtual void setToolTipText(const QString& text) = 0;
};

}  // namespace nubivane
