// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

namespace nubivane {

/// An ordered list whose items are reached by 1-based position or by key. Removal closes the gap.
/// Items keep their address while they live. An unknown key raises `Error` (InvalidArgument), a
/// position outside the list `Error` (OutOfRange).
template <class T>
class KeyedList {
  public:
    qint32 Count() const { return static_cast<qint32>(entries_.size()); }

    T& Item(qint32 position) const { return *entries_[indexOf(position)].item; }
    T& Item(const QString& key) const {
        const auto found = byKey_.constFind(key);
        if (found == byKey_.cend()) {
            refuseKey(key, "is not in the list");
        }
        return **found;
    }

    bool contains(const QString& key) const { return byKey_.contains(key); }

    void Remove(qint32 position) { removeAt(indexOf(position)); }
    void Remove(const QString& key) {
        const T* const item = &Item(key);
        std::size_t index = 0;
        while (entries_[index].item.get() != item) {
            ++index;
        }
        removeAt(index);
    }

    /// Walks the items in order: `for (cLabel& label : labels)`.
    class Iterator {
      public:
        Iterator(const KeyedList& list, std::size_t index) : list_(&list), index_(index) {}
        T& operator*() const { return *list_->entries_[index_].item; }
        Iterator& operator++() {
            ++index_;
            return *this;
        }
        bool operator!=(const Iterator& other) const { return index_ != other.index_; }

      private:
        const KeyedList* list_;
        std::size_t index_;
    };
    Iterator begin() const { return Iterator(*this, 0); }
    Iterator end() const { return Iterator(*this, entries_.size()); }

  protected:
    T& append(const QString& key, std::unique_ptr<T> item) {
        if (byKey_.contains(key)) {
            refuseKey(key, "is in the list already");
        }
        T& added = *item;
        entries_.push_back({key, std::move(item)});
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
