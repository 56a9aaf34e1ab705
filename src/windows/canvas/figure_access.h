// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/canvas_child.h"
#include "windows/canvas/edited_figure.h"

namespace nubivane {

/// The figure under edit, as assistive technology sees it: a list of its points, which can be drawn
/// or dropped.
class FigureAccess : public CanvasChild {
  public:
    explicit FigureAccess(MapCanvas& canvas);
    ~FigureAccess() override;

    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    /// One that is on its way out is told of once more.
    void setLeaving(bool leaving) { leaving_ = leaving; }

    QAccessible::Role role() const override { return QAccessible::List; }
    QStringList actionNames() const override;

  protected:
    bool exists() const override;
    QString name() const override;
    QString description() const override;
    QString value() const override { return {}; }
    QRect placeOnMap() const override;
    void addState(QAccessible::State&) const override {}
    void act(const QString& action) override;
    QString nameOfAction(const QString& action) const override;

  private:
    class Point;

    bool leaving_ = false;
    mutable std::vector<QAccessible::Id> points_;  ///< those asked for so far
};

}  // namespace nubivane
