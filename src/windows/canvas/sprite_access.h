// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/canvas_child.h"

namespace nubivane {

/// A sprite on the map, as assistive technology sees it.
class SpriteAccess : public CanvasChild {
  public:
    SpriteAccess(MapCanvas& canvas, SpriteId id);

    const SpriteId& id() const { return id_; }
    /// Its place from below among the sprites; -1 for one that has gone.
    int index() const;
    /// Where it was found, so that it is not searched for.
    void setIndex(int index) const { index_ = index; }

    QAccessible::Role role() const override;
    QStringList actionNames() const override;
    QStringList keyBindingsForAction(const QString& action) const override;

  protected:
    bool exists() const override { return control(); }
    QString name() const override;
    QString description() const override;
    QString value() const override;
    QRect placeOnMap() const override { return control()->rect; }
    void addState(QAccessible::State& state) const override;
    void act(const QString& action) override;
    QString nameOfAction(const QString& action) const override;

  private:
    SpriteControl* control() const;

    SpriteId id_;
    mutable int index_ = 0;  ///< where it was last; others may have come or gone below it
};

}  // namespace nubivane
