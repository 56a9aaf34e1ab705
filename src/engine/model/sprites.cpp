// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/sprites.h"

#include <utility>

namespace nubivane {

cLabel& cLabels::add(cLabel record) {
    record.Key_ = issueKey();
    record.Type_ = sprite_type::Label;
    const QString key = record.Key_;
    return append(key, std::move(record));
}

QString cLabels::issueKey() const {
    return QStringLiteral("K-%1").arg(nextKey_++);
}

void cLabels::Insert(qint32 position, const cLabel& label) {
    insertAt(position, label.Key_, label);
}

cSymbol& cSymbols::add(cSymbol record) {
    record.Key_ = issueKey();
    record.Type_ = sprite_type::Symbol;
    const QString key = record.Key_;
    return append(key, std::move(record));
}

QString cSymbols::issueKey() const {
    return QStringLiteral("K-%1").arg(nextKey_++);
}

void cSymbols::Insert(qint32 position, const cSymbol& symbol) {
    insertAt(position, symbol.Key_, symbol);
}

cSprites::Sprite cSprites::find(const SpriteId& id) {
    if (!contains(id)) {
        return {};
    }
    if (id.kind == SpriteKind::Symbol) {
        return &symbols_.Item(id.key);
    }
    return &labels_.Item(id.key);
}

bool cSprites::contains(const SpriteId& id) const {
    return id.kind == SpriteKind::Symbol ? symbols_.contains(id.key) : labels_.contains(id.key);
}

void cSprites::RemovaAll() {
    for (qint32 i = symbols_.Count(); i >= 1; --i) {
        symbols_.Remove(i);
    }
    for (qint32 i = labels_.Count(); i >= 1; --i) {
        labels_.Remove(i);
    }
}

qint16 cSprites::Count() const {
    return static_cast<qint16>(symbols_.Count() + labels_.Count());
}

}  // namespace nubivane
