// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/file_state.h"
#include "engine/core/settings_format.h"
#include "engine/core/settings_table.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace nubivane {

/// All that the program remembers between runs apart from project files: texts addressed by
/// section path, group and key, all three without regard to case.
///
/// One file a user. Each read sees what other processes have written; each write is on disk, as a
/// whole or not at all, when the call returns, and takes nothing from another process's writes. It
/// holds a password, so nobody but its owner may read it. A line that is no UTF-8 is passed over. A
/// damaged file is set aside under a name of its own and the store starts empty; where that is not
/// possible, the file cannot be read, or something else stands in its place, nothing is touched:
/// the store is empty and no write succeeds.
class SettingsStore {
  public:
    /// Opens the store in `hostFile`; the file need not exist.
    explicit SettingsStore(const QString& hostFile);

    /// The file of the current user. Raises `Error` for one who has no home.
    static QString standardFile();

    /// The stored text, or `defaultValue` when there is none.
    QString GetSetting(const QString& section, const QString& group, const QString& key,
                       const QString& defaultValue = {}) const;
    /// Creates or replaces an entry. False when the file could not be written.
    bool SaveSetting(const QString& section, const QString& group, const QString& key,
                     const QString& value);
    /// Removes one entry. False when the file could not be written.
    bool DeleteSetting(const QString& section, const QString& group, const QString& key);

    /// The value of a setting of the table, or its default.
    QString text(Setting setting) const;
    /// The same as a whole number (a fraction is cut off); nothing when the text is no number.
    std::optional<int> number(Setting setting) const;
    bool set(Setting setting, const QString& value);

    /// Values of a numbered list up to the first that is empty but for blanks.
    QStringList list(SettingList list) const;
    /// Writes a numbered list anew, its old keys deleted first.
    bool setList(SettingList list, const QStringList& values);

    /// Where a damaged settings file was put by this store; empty when it was sound.
    const QString& setAside() const { return setAside_; }

  private:
    enum class Reading { Done, Damaged, NotPossible };

    void refresh() const;
    Reading read() const;
    /// Reads the file, setting it aside when it is damaged. False when nothing may be written.
    bool prepare();
    bool change(const std::function<void(SettingsMap&)>& edit);
    bool writeFile(const SettingsContent& content) const;

    QString hostFile_;
    QString setAside_;
    mutable SettingsContent content_;
    mutable FileState seen_;
    mutable bool settled_ = false;  ///< a later state of the file cannot look like the one seen
};

}  // namespace nubivane
