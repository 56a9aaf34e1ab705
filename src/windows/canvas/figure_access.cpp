// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/figure_access.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String DrawAction("Draw");
constexpr QLatin1String DropAction("Drop");
constexpr QLatin1String RemoveAction("Remove");

/// From the middle of a point to where it can be clicked, pixels of the map.
constexpr int PointReach = 4;

}  // namespace

/// One point of the figure under edit.
class FigureAccess::Point : public CanvasChild {
  public:
    Point(MapCanvas& canvas, const FigureAccess& figure, int index)
        : CanvasChild(canvas), figure_(figure), index_(index) {}

    int index() const { return index_; }

    QAccessibleInterface* parent() const override { return const_cast<FigureAccess*>(&figure_); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QStringList actionNames() const override {
        return isValid() && edited().pointInHand() ? QStringList{pressAction(), RemoveAction}
                                                   : QStringList();
    }
    QStringList keyBindingsForAction(const QString& action) const override {
        return action == RemoveAction ? QStringList(u"Delete"_s) : QStringList();
    }

  protected:
    bool exists() const override { return index_ < figure_.childCount(); }
    QString name() const override {
        return said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Point %1 of %2"))
            .arg(index_ + 1)
            .arg(figure_.childCount());
    }
    QString description() const override {
        return said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Point at %1")).arg(value());
    }
    QString value() const override { return u"%1, %2"_s.arg(position().x()).arg(position().y()); }
    QRect placeOnMap() const override {
        return {position() - QPoint(PointReach, PointReach),
                position() + QPoint(PointReach, PointReach)};
    }
    void addState(QAccessible::State& state) const override {
        const auto inHand = edited().pointInHand();
        state.selectable = inHand.has_value();
        state.focusable = inHand.has_value();
        state.movable = true;
        state.selected = inHand == index_;
        state.focused = inHand == index_ && canvas().hasFocus();
    }
    void act(const QString& action) override {
        if (action == pressAction()) {
            canvas().figure()->takePointInHand(index_);
        } else if (action == RemoveAction) {
            canvas().figure()->removePoint(index_);
        }
    }
    QString nameOfAction(const QString& action) const override {
        return action == pressAction()
                   ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Take in hand"))
               : action == RemoveAction
                   ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Remove"))
                   : QString();
    }

  private:
    const EditedFigure& edited() const { return *canvas().figure(); }
    QPoint position() const { return edited().figurePoints()[static_cast<std::size_t>(index_)]; }

    const FigureAccess& figure_;  ///< which owns this one
    int index_;
};

FigureAccess::FigureAccess(MapCanvas& canvas) : CanvasChild(canvas) {}

FigureAccess::~FigureAccess() {
    for (const QAccessible::Id point : points_) {
        QAccessible::deleteAccessibleInterface(point);
    }
}

bool FigureAccess::exists() const {
    return canvas().figure() && (leaving_ || !canvas().figure()->figurePoints().empty());
}

int FigureAccess::childCount() const {
    return isValid() ? static_cast<int>(canvas().figure()->figurePoints().size()) : 0;
}

QAccessibleInterface* FigureAccess::child(int index) const {
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    while (points_.size() <= static_cast<std::size_t>(index)) {
        points_.push_back(QAccessible::registerAccessibleInterface(
            new Point(canvas(), *this, static_cast<int>(points_.size()))));
    }
    return QAccessible::accessibleInterface(points_[static_cast<std::size_t>(index)]);
}

/// The one drawn last lies on top.
QAccessibleInterface* FigureAccess::childAt(int x, int y) const {
    for (int i = childCount() - 1; i >= 0; --i) {
        QAccessibleInterface* point = child(i);
        if (point->rect().contains(x, y)) {
            return point;
        }
    }
    return nullptr;
}

int FigureAccess::indexOfChild(const QAccessibleInterface* child) const {
    const auto* point = dynamic_cast<const Point*>(child);
    return point && point->isValid() ? point->index() : -1;
}

QString FigureAccess::name() const {
    return canvas().figure()->figureName();
}

QString FigureAccess::description() const {
    return QCoreApplication::translate(
        "nubivane::CanvasAccess", "Figure being drawn, with %n point(s)", nullptr, childCount());
}

QRect FigureAccess::placeOnMap() const {
    QRect place;
    for (const QPoint& point : canvas().figure()->figurePoints()) {
        place |=
            QRect(point - QPoint(PointReach, PointReach), point + QPoint(PointReach, PointReach));
    }
    return place;
}

QStringList FigureAccess::actionNames() const {
    return {DrawAction, DropAction};
}

void FigureAccess::act(const QString& action) {
    if (action == DrawAction) {
        canvas().figure()->applyFigure();
    } else if (action == DropAction) {
        canvas().figure()->dropFigure();
    }
}

QString FigureAccess::nameOfAction(const QString& action) const {
    return action == DrawAction   ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Draw"))
           : action == DropAction ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Drop"))
                                  : QString();
}

}  // namespace nubivane
