// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/sprite_edits.h"

#include "engine/core/path_text.h"
#include "engine/model/edits/edit_scene.h"

#include <QSet>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace nubivane {

namespace {

template <class Record>
constexpr SpriteKind kindOf =
    std::is_same_v<Record, cSymbol> ? SpriteKind::Symbol : SpriteKind::Label;

/// The list of a Frame that a record belongs to.
template <class Record, class Sprites>
auto& listOf(Sprites& sprites) {
    if constexpr (std::is_same_v<Record, cSymbol>) {
        return sprites.Symbols();
    } else {
        return sprites.Labels();
    }
}

/// `Index` is the canvas' own and no part of what an edit changes.
template <class Record>
bool isSame(Record a, const Record& b) {
    a.Index = b.Index;
    return a == b;
}

template <class Record>
qsizetype sizeOf(const Record& record) {
    qsizetype letters = 0;
    Record::forEachSlot(record, [&letters](const Slot&, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, QString>) {
            letters += value.size();
        }
    });
    return static_cast<qsizetype>(sizeof(Record)) + 2 * letters;
}

qsizetype sizeOf(const SpriteRecord& record) {
    return std::visit([](const auto& value) { return sizeOf(value); }, record);
}

void renameFolderOf(cSymbol& symbol, const QString& from, const QString& to) {
    for (QString* path : {&symbol.FileGif, &symbol.PathFileGif}) {
        if (getFolder(*path) == from) {
            *path = to + u'\\' + getFileName(*path);
        }
    }
}

void renameFolderOf(cLabel&, const QString&, const QString&) {}

void renameFolderOf(SpriteRecord& record, const QString& from, const QString& to) {
    std::visit([&](auto& value) { renameFolderOf(value, from, to); }, record);
}

void insert(cSprites& sprites, qint32 position, const SpriteRecord& record) {
    std::visit(
        [&](const auto& value) {
            listOf<std::decay_t<decltype(value)>>(sprites).Insert(position, value);
        },
        record);
}

/// Takes a sprite out of its list; returns where it stood.
qint32 remove(cSprites& sprites, const SpriteId& id) {
    const auto from = [&id](auto& list) {
        const qint32 position = list.positionOf(id.key);
        list.Remove(position);
        return position;
    };
    return id.kind == SpriteKind::Symbol ? from(sprites.Symbols()) : from(sprites.Labels());
}

/// The index of the control that shows the sprite now goes over to the other record.
void assign(cSprites& sprites, const SpriteRecord& record) {
    std::visit(
        [&](const auto& value) {
            auto& item = listOf<std::decay_t<decltype(value)>>(sprites).Item(value.Key_);
            const qint32 index = item.Index;
            item = value;
            item.Index = index;
        },
        record);
}

}  // namespace

SpriteId idOf(const SpriteRecord& record) {
    return std::visit(
        [](const auto& value) {
            return SpriteId{kindOf<std::decay_t<decltype(value)>>, value.Key_};
        },
        record);
}

SpriteRecord recordOf(const cFrame& frame, const SpriteId& id) {
    if (id.kind == SpriteKind::Symbol) {
        return frame.Sprites().Symbols().Item(id.key);
    }
    return frame.Sprites().Labels().Item(id.key);
}

AddSprite::AddSprite(const char* name, Marks marks, const cFrame& frame, qint32 number,
                     SpriteRecord record, Arrival arrival)
    : Edit(name, marks, number), record_(std::move(record)), arrival_(arrival) {
    std::visit(
        [&](auto& value) {
            using Record = std::decay_t<decltype(value)>;
            value.Key_ = listOf<Record>(frame.Sprites()).issueKey();
            value.Type_ = static_cast<qint16>(kindOf<Record>);
            value.Frame = static_cast<qint16>(number);
        },
        record_);
    id_ = idOf(record_);
}

void AddSprite::apply(EditScene& scene) {
    cSprites& sprites = scene.frame(frame()).Sprites();
    const qint32 end =
        id_.kind == SpriteKind::Symbol ? sprites.Symbols().Count() : sprites.Labels().Count();
    insert(sprites, end + 1, record_);
    scene.spriteAdded(frame(), id_, arrival_, std::nullopt);
}

void AddSprite::revert(EditScene& scene) {
    scene.spriteWillGo(frame(), id_);
    remove(scene.frame(frame()).Sprites(), id_);
}

qsizetype AddSprite::bytes() const {
    return Edit::bytes() + sizeOf(record_);
}

void AddSprite::renameFolder(const QString& from, const QString& to) {
    renameFolderOf(record_, from, to);
}

RemoveSprite::RemoveSprite(const char* name, Marks marks, qint32 frame, SpriteId id,
                           std::optional<int> depth)
    : Edit(name, marks, frame), id_(std::move(id)), depth_(depth) {}

void RemoveSprite::apply(EditScene& scene) {
    cFrame& frame = scene.frame(this->frame());
    record_ = recordOf(frame, id_);
    scene.spriteWillGo(this->frame(), id_);
    position_ = remove(frame.Sprites(), id_);
}

void RemoveSprite::revert(EditScene& scene) {
    insert(scene.frame(frame()).Sprites(), position_, *record_);
    scene.spriteAdded(frame(), id_, Arrival::Visit, depth_);
}

qsizetype RemoveSprite::bytes() const {
    return Edit::bytes() + (record_ ? sizeOf(*record_) : 0);
}

void RemoveSprite::renameFolder(const QString& from, const QString& to) {
    if (record_) {
        renameFolderOf(*record_, from, to);
    }
}

ChangeSprite::ChangeSprite(const char* name, Marks marks, qint32 frame, SpriteRecord after,
                           QString series)
    : Edit(name, marks, frame), after_(std::move(after)), series_(std::move(series)) {}

void ChangeSprite::apply(EditScene& scene) {
    cFrame& frame = scene.frame(this->frame());
    before_ = recordOf(frame, idOf(after_));
    if (!isNothing()) {
        assign(frame.Sprites(), after_);
        scene.spriteChanged(this->frame(), *before_, after_);
    }
}

void ChangeSprite::revert(EditScene& scene) {
    assign(scene.frame(frame()).Sprites(), *before_);
    scene.spriteChanged(frame(), after_, *before_);
}

bool ChangeSprite::isNothing() const {
    return std::visit(
        [this](const auto& after) {
            return isSame(std::get<std::decay_t<decltype(after)>>(*before_), after);
        },
        after_);
}

bool ChangeSprite::absorb(const Edit& next) {
    const auto* change = dynamic_cast<const ChangeSprite*>(&next);
    if (!change || series_.isEmpty() || change->series_ != series_ || change->frame() != frame() ||
        idOf(change->after_) != idOf(after_)) {
        return false;
    }
    after_ = change->after_;
    return true;
}

qsizetype ChangeSprite::bytes() const {
    return Edit::bytes() + sizeOf(after_) + (before_ ? sizeOf(*before_) : 0);
}

void ChangeSprite::renameFolder(const QString& from, const QString& to) {
    renameFolderOf(after_, from, to);
    if (before_) {
        renameFolderOf(*before_, from, to);
    }
}

namespace {

template <class List, class Record>
void collect(const List& list, std::vector<Record>& records) {
    for (const auto& item : list) {
        records.push_back(item);
    }
}

template <class List, class Record>
void insertAll(List& list, const std::vector<Record>& records) {
    for (const Record& record : records) {
        list.Insert(list.Count() + 1, record);
    }
}

void replace(EditScene& scene, qint32 frame, const ReplaceSprites::Sprites& sprites) {
    scene.spritesWillBeReplaced(frame);
    cSprites& lists = scene.frame(frame).Sprites();
    lists.RemovaAll();
    insertAll(lists.Symbols(), sprites.symbols);
    insertAll(lists.Labels(), sprites.labels);
    scene.spritesReplaced(frame);
}

}  // namespace

ReplaceSprites::ReplaceSprites(const char* name, Marks marks, std::vector<Row> rows)
    : Edit(name, marks, rows.front().frame), rows_(std::move(rows)) {}

void ReplaceSprites::apply(EditScene& scene) {
    if (!std::exchange(applied_, true)) {
        for (Row& row : rows_) {
            const cSprites& sprites = scene.frame(row.frame).Sprites();
            collect(sprites.Symbols(), row.before.symbols);
            collect(sprites.Labels(), row.before.labels);
        }
    }
    for (const Row& row : rows_) {
        replace(scene, row.frame, row.after);
    }
}

void ReplaceSprites::revert(EditScene& scene) {
    for (const Row& row : rows_) {
        replace(scene, row.frame, row.before);
    }
}

bool ReplaceSprites::isNothing() const {
    for (const Row& row : rows_) {
        for (const Sprites* sprites : {&row.before, &row.after}) {
            if (!sprites->symbols.empty() || !sprites->labels.empty()) {
                return false;
            }
        }
    }
    return true;
}

qsizetype ReplaceSprites::bytes() const {
    qsizetype sum = Edit::bytes();
    for (const Row& row : rows_) {
        for (const Sprites* sprites : {&row.before, &row.after}) {
            for (const cSymbol& symbol : sprites->symbols) {
                sum += sizeOf(symbol);
            }
            for (const cLabel& label : sprites->labels) {
                sum += sizeOf(label);
            }
        }
    }
    return sum;
}

void ReplaceSprites::renameFolder(const QString& from, const QString& to) {
    for (Row& row : rows_) {
        for (Sprites* sprites : {&row.before, &row.after}) {
            for (cSymbol& symbol : sprites->symbols) {
                renameFolderOf(symbol, from, to);
            }
        }
    }
}

void EditGroup::apply(EditScene& scene) {
    for (const auto& edit : edits_) {
        edit->apply(scene);
    }
}

void EditGroup::revert(EditScene& scene) {
    for (auto edit = edits_.rbegin(); edit != edits_.rend(); ++edit) {
        (*edit)->revert(scene);
    }
}

namespace {

/// The Frame of the place that counts, with the sprites of all places on it.
EditPlace joined(EditPlace last, const std::vector<EditPlace>& places) {
    QSet<SpriteId> known;
    if (last.sprite) {
        known << *last.sprite;
    }
    last.others.clear();
    // Of a sprite that comes up again the last time counts.
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        if (place->frame == last.frame && place->sprite && !known.contains(*place->sprite)) {
            known << *place->sprite;
            last.others.push_back(*place->sprite);
        }
    }
    std::reverse(last.others.begin(), last.others.end());
    return last;
}

}  // namespace

EditPlace EditGroup::placeAfter() const {
    std::vector<EditPlace> places;
    for (const auto& edit : edits_) {
        places.push_back(edit->placeAfter());
    }
    return joined(places.back(), places);
}

EditPlace EditGroup::placeBefore() const {
    std::vector<EditPlace> places;
    for (const auto& edit : edits_) {
        places.push_back(edit->placeBefore());
    }
    return joined(places.front(), places);
}

bool EditGroup::isNothing() const {
    return std::all_of(edits_.begin(), edits_.end(),
                       [](const auto& edit) { return edit->isNothing(); });
}

/// A series names the sprites it is about, so that all of them continue or none does.
bool EditGroup::absorb(const Edit& next) {
    const auto* group = dynamic_cast<const EditGroup*>(&next);
    if (!group || series_.isEmpty() || group->series_ != series_ || group->frame() != frame() ||
        group->edits_.size() != edits_.size()) {
        return false;
    }
    bool all = true;
    for (std::size_t i = 0; i < edits_.size(); ++i) {
        all = edits_[i]->absorb(*group->edits_[i]) && all;
    }
    return all;
}

qsizetype EditGroup::bytes() const {
    qsizetype sum = Edit::bytes();
    for (const auto& edit : edits_) {
        sum += edit->bytes();
    }
    return sum;
}

void EditGroup::renameFolder(const QString& from, const QString& to) {
    for (const auto& edit : edits_) {
        edit->renameFolder(from, to);
    }
}

}  // namespace nubivane
