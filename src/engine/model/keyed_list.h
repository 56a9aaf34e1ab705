// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"

#include <QHash>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

namespace nubivane {

/// An ordered list whose items are reached by 1-based position or by key. Removal closes the gap.
/// Items keep their address while they live; whoever may only read the list may only read them. An
/// unknown key raises `Error` (InvalidArgument), a position outside the list `Error` (OutOfRange).
template <class T>
class KeyedList {
  public:
    qint32 Count() const { return static_cast<qint32>(entries_.size()); }

    const T& Item(qint32 position) const { return *entries_[indexOf(position)].item; }
    T& Item(qint32 position) { return *entries_[indexOf(position)].item; }
    const T& Item(const QString& key) const { return *find(key); }
    T& Item(const QString& key) { return *find(key); }

    bool contains(const QString& key) const { return byKey_.contains(key); }

    /// The position of a key, from 1.
    qint32 positionOf(const QString& key) const {
        const T* const item = &Item(key);
        std::size_t index = 0;
        while (entries_[index].item.get() != item) {
            ++index;
        }
        return static_cast<qint32>(index) + 1;
    }

    void Remove(qint32 position) { removeAt(indexOf(position)); }
    void Remove(const QString& key) { Remove(positionOf(key)); }

    /// Walks the items in order: `for (const cLabel& label : labels)`.
    template <class List, class Value>
    class Walk {
      public:
        Walk(List& list, std::size_t index) : list_(&list), index_(index) {}
        Value& operator*() const { return *list_->entries_[index_].item; }
        Walk& operator++() {
            ++index_;
            return *this;
        }
        bool operator!=(const Walk& other) const { return index_ != other.index_; }

      private:
        List* list_;
        std::size_t index_;
    };
    using Iterator = Walk<KeyedList, T>;
    using ConstIterator = Walk<const KeyedList, const T>;
    Iterator begin() { return Iterator(*this, 0); }
    Iterator end() { return Iterator(*this, entries_.size()); }
    ConstIterator begin() const { return ConstIterator(*this, 0); }
    ConstIterator end() const { return ConstIterator(*this, entries_.size()); }

  protected:
    T& append(const QString& key, T item) { return insertAt(Count() + 1, key, std::move(item)); }
    /// The items from that position on move up.
    T& insertAt(qint32 position, const QString& key, T item) {
        if (byKey_.contains(key)) {
            refuseKey(key, "is in the list already");
        }
        const auto index = position == Count() + 1 ? entries_.size() : indexOf(position);
        auto place = entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(index),
                                     Entry{key, std::make_unique<T>(std::move(item))});
        T& added = *place->item;
        byKey_.insert(key, &added);
        return added;
    }

  private:
    struct Entry {
        QString key;
        std::unique_ptr<T> item;
    };

    [[noreturn]] static void refuseKey(const QString& key, const char* why) {
        throw Error(
            error_number::InvalidArgument, QStringLiteral("KeyedList"),
            QStringLiteral("Invalid key."),
            QStringLiteral("the key \"") + key + QStringLiteral("\" ") + QLatin1String(why));
    }

    T* find(const QString& key) const {
        const auto found = byKey_.constFind(key);
        if (found == byKey_.cend()) {
            refuseKey(key, "is not in the list");
        }
        return *found;
    }

    std::size_t indexOf(qint32 position) const {
        if (position < 1 || position > Count()) {
            throw Error(error_number::OutOfRange, QStringLiteral("KeyedList"),
                        QStringLiteral("Position outside the list."),
                        QStringLiteral("position %1 of a list of %2").arg(position).arg(Count()));
        }
        return static_cast<std::size_t>(position) - 1;
    }

    void removeAt(std::size_t index) {
        byKey_.remove(entries_[index].key);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
    }

    std::vector<Entry> entries_;
    QHash<QString, T*> byKey_;
};

}  // namespace nubivane
