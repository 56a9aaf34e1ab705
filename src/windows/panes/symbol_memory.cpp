// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/panes/symbol_memory.h"

#include "engine/core/settings_store.h"

#include <chrono>

namespace nubivane {

using namespace std::chrono_literals;

SymbolMemory::SymbolMemory(SettingsStore& settings) : settings_(settings) {
    pause_.setSingleShot(true);
    pause_.setInterval(3s);
    QObject::connect(&pause_, &QTimer::timeout, &pause_, [this] { write(); });
}

SymbolMemory::~SymbolMemory() {
    write();
}

QStringList SymbolMemory::favourites() const {
    return settings_.list(SettingList::FavouriteSymbols);
}

void SymbolMemory::toggleFavourite(const QString& file) {
    QStringList files = favourites();
    if (files.removeAll(file) == 0) {
        files << file;
    }
    settings_.setList(SettingList::FavouriteSymbols, files);
}

/// Another editor may have written meanwhile what was placed there.
QStringList SymbolMemory::recent() const {
    QStringList files = placed_ + settings_.list(SettingList::RecentSymbols);
    files.removeDuplicates();
    return files.mid(0, MostRecent);
}

void SymbolMemory::placed(const QStringList& files) {
    for (const QString& file : files) {
        placed_.removeAll(file);
        placed_.prepend(file);
    }
    pause_.start();
}

void SymbolMemory::write() {
    pause_.stop();
    if (!placed_.isEmpty()) {
        settings_.setList(SettingList::RecentSymbols, recent());
        placed_.clear();
    }
}

}  // namespace nubivane
