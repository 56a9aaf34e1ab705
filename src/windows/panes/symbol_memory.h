// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTimer>

namespace nubivane {

class SettingsStore;

/// The symbols that somebody likes and those that were placed last, by their files. What was placed
/// is written to the settings when no more is for a while, and at the latest when this goes.
class SymbolMemory {
  public:
    /// Symbols that are remembered as placed.
    static constexpr qsizetype MostRecent = 24;

    explicit SymbolMemory(SettingsStore& settings);
    ~SymbolMemory();
    SymbolMemory(const SymbolMemory&) = delete;
    SymbolMemory& operator=(const SymbolMemory&) = delete;

    QStringList favourites() const;
    bool isFavourite(const QString& file) const { return favourites().contains(file); }
    void toggleFavourite(const QString& file);

    /// The one placed last comes first.
    QStringList recent() const;
    void placed(const QStringList& files);

  private:
    void write();

    SettingsStore& settings_;
    QStringList placed_;  ///< what the settings do not have yet
    QTimer pause_;
};

}  // namespace nubivane
