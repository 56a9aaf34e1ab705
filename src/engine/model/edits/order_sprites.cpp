// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/order_sprites.h"

#include "engine/model/edits/edit_scene.h"
#include "engine/model/frames.h"

#include <QSet>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace nubivane {

namespace {

template <class List>
QStringList keysOf(const List& list) {
    QStringList keys;
    for (const auto& item : list) {
        keys << item.Key_;
    }
    return keys;
}

QSet<QString> keysOf(const std::vector<SpriteId>& ids, SpriteKind kind) {
    QSet<QString> keys;
    for (const SpriteId& id : ids) {
        if (id.kind == kind) {
            keys << id.key;
        }
    }
    return keys;
}

/// Each key of `moved` one place on, past those that are not.
void raise(QStringList& keys, const QSet<QString>& moved) {
    for (qsizetype i = keys.size() - 2; i >= 0; --i) {
        if (moved.contains(keys[i]) && !moved.contains(keys[i + 1])) {
            keys.swapItemsAt(i, i + 1);
        }
    }
}

/// Puts the records of a list into the order of their keys, each of which is given once.
template <class List>
void arrange(List& list, const QStringList& keys) {
    std::vector<std::decay_t<decltype(list.Item(1))>> records;
    for (const QString& key : keys) {
        records.push_back(list.Item(key));
    }
    while (list.Count() > 0) {
        list.Remove(list.Count());
    }
    for (const auto& record : records) {
        list.Insert(list.Count() + 1, record);
    }
}

QStringList stacked(QStringList keys, const QSet<QString>& moved, Stacking stacking) {
    const auto isMoved = [&moved](const QString& key) { return moved.contains(key); };
    const auto isLeft = [&moved](const QString& key) { return !moved.contains(key); };
    switch (stacking) {
        case Stacking::ToFront:
            std::stable_partition(keys.begin(), keys.end(), isLeft);
            break;
        case Stacking::ToBack:
            std::stable_partition(keys.begin(), keys.end(), isMoved);
            break;
        case Stacking::Raise:
            raise(keys, moved);
            break;
        case Stacking::Lower:
            std::reverse(keys.begin(), keys.end());
            raise(keys, moved);
            std::reverse(keys.begin(), keys.end());
            break;
    }
    return keys;
}

}  // namespace

OrderSprites::OrderSprites(const char* name, Marks marks, const cFrame& frame, qint32 number,
                           std::vector<SpriteId> moved, Stacking stacking)
    : Edit(name, marks, number),
      moved_(std::move(moved)),
      before_{keysOf(frame.Sprites().Symbols()), keysOf(frame.Sprites().Labels())},
      after_{stacked(before_.symbols, keysOf(moved_, SpriteKind::Symbol), stacking),
             stacked(before_.labels, keysOf(moved_, SpriteKind::Label), stacking)} {}

void OrderSprites::apply(EditScene& scene) {
    arrange(scene, after_);
}

void OrderSprites::revert(EditScene& scene) {
    arrange(scene, before_);
}

void OrderSprites::arrange(EditScene& scene, const Order& order) const {
    if (isNothing()) {
        return;
    }
    cSprites& sprites = scene.frame(frame()).Sprites();
    nubivane::arrange(sprites.Symbols(), order.symbols);
    nubivane::arrange(sprites.Labels(), order.labels);
    scene.spritesReordered(frame());
}

EditPlace OrderSprites::placeAfter() const {
    return EditPlace::of(frame(), moved_);
}

qsizetype OrderSprites::bytes() const {
    constexpr qsizetype PerKey = 40;
    return Edit::bytes() + PerKey * (static_cast<qsizetype>(moved_.size()) +
                                     2 * (before_.symbols.size() + before_.labels.size()));
}

}  // namespace nubivane
