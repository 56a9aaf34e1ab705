// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/map_canvas.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QPointer>

namespace nubivane {

/// Something that lies on the map, as assistive technology sees it: a place, a name, a description
/// and actions. It looks at the canvas each time it is asked, so that it is never out of date.
class CanvasChild : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    explicit CanvasChild(MapCanvas& canvas) : canvas_(&canvas) {}

    bool isValid() const final { return canvas_ && exists(); }
    QObject* object() const final { return nullptr; }
    QWindow* window() const final;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const final;
    void setText(QAccessible::Text, const QString&) final {}
    QRect rect() const final;
    QAccessible::State state() const final;

    void* interface_cast(QAccessible::InterfaceType type) final;
    QString localizedActionName(const QString& action) const final;
    QString localizedActionDescription(const QString& action) const final;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) final;

  protected:
    // None of these is asked when the canvas has gone, and none but `exists` when it does not.
    virtual bool exists() const = 0;
    virtual QString name() const = 0;
    virtual QString description() const = 0;
    virtual QString value() const = 0;
    virtual QRect placeOnMap() const = 0;
    /// Adds to what every child is.
    virtual void addState(QAccessible::State& state) const = 0;
    virtual void act(const QString& action) = 0;
    /// Empty for an action whose name is the toolkit's.
    virtual QString nameOfAction(const QString& action) const = 0;

    MapCanvas& canvas() const { return *canvas_; }

    /// What is said of all that lies on the map, in the person's language.
    static QString said(const char* text) {
        return QCoreApplication::translate("nubivane::CanvasAccess", text);
    }

  private:
    QPointer<MapCanvas> canvas_;
};

}  // namespace nubivane
