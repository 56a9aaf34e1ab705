// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/sprite_access.h"

#include "windows/canvas/sprite_name.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String EditAction("Edit");

}  // namespace

SpriteAccess::SpriteAccess(MapCanvas& canvas, SpriteId id)
    : CanvasChild(canvas), id_(std::move(id)) {}

int SpriteAccess::index() const {
    const auto& controls = canvas().sprites().controls();
    const auto isThis = [this](const SpriteControl* control) { return control->id == id_; };
    const auto known = static_cast<std::size_t>(index_);
    if (known >= controls.size() || !isThis(controls[known])) {
        const auto found = std::find_if(controls.begin(), controls.end(), isThis);
        if (found == controls.end()) {
            return -1;
        }
        index_ = static_cast<int>(found - controls.begin());
    }
    return index_;
}

SpriteControl* SpriteAccess::control() const {
    const int at = index();
    return at < 0 ? nullptr : canvas().sprites().controls()[static_cast<std::size_t>(at)];
}

QAccessible::Role SpriteAccess::role() const {
    return id_.kind == SpriteKind::Symbol ? QAccessible::Graphic : QAccessible::StaticText;
}

QString SpriteAccess::name() const {
    return spriteName(canvas().workspace(), id_);
}

QString SpriteAccess::value() const {
    const QRect place = placeOnMap();
    return u"%1, %2, %3 x %4"_s.arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

QString SpriteAccess::description() const {
    return (id_.kind == SpriteKind::Symbol
                ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Symbol at %1"))
                : said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Label at %1")))
        .arg(value());
}

void SpriteAccess::addState(QAccessible::State& state) const {
    const SpriteControl* last = canvas().selection().control();
    state.selectable = true;
    state.multiSelectable = true;
    state.extSelectable = true;
    state.focusable = true;
    state.movable = true;
    state.sizeable = id_.kind == SpriteKind::Symbol;
    state.selected = canvas().selection().contains(id_);
    state.focused = last && last->id == id_ && canvas().hasFocus();
}

QStringList SpriteAccess::actionNames() const {
    return {pressAction(), toggleAction(), EditAction, showMenuAction()};
}

QString SpriteAccess::nameOfAction(const QString& action) const {
    if (action == pressAction()) {
        return said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Select"));
    }
    if (action == toggleAction()) {
        return said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Take into the selection"));
    }
    return action == EditAction ? said(QT_TRANSLATE_NOOP("nubivane::CanvasAccess", "Edit"))
                                : QString();
}

QStringList SpriteAccess::keyBindingsForAction(const QString& action) const {
    return action == EditAction ? QStringList(u"Return"_s) : QStringList();
}

void SpriteAccess::act(const QString& action) {
    SpriteControl& shown = *control();
    Selection& selection = canvas().selection();
    if (action == pressAction()) {
        selection.select(shown);
    } else if (action == toggleAction()) {
        selection.toggle(shown);
    } else if (action == EditAction) {
        selection.select(shown);
        Q_EMIT canvas().spriteActivated(id_);
    } else if (action == showMenuAction()) {
        selection.select(shown);
        Q_EMIT canvas().menuAsked();
    }
}

}  // namespace nubivane
