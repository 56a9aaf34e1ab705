// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_store.h"

#include "engine/core/error.h"
#include "engine/core/folder_lock.h"
#include "engine/core/path_text.h"
#include "engine/core/replaced_file.h"
#include "engine/core/user_folders.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <limits>

namespace nubivane {

namespace {

/// A settings file holds some dozens of short texts; a larger one is not ours.
constexpr qint64 MaxFileBytes = qint64{16} * 1024 * 1024;

/// Time stamps of files are no finer than this: two writes that are closer may look the same.
constexpr qint64 StampNanoseconds = qint64{2} * 1000 * 1000 * 1000;

/// The name of an entry in the file. Folding the case here makes the store case-insensitive; the
/// parts are joined by "/", so one inside a part is written in another way.
QString entryName(const QString& section, const QString& group, const QString& key) {
    const auto part = [](QString text) {
        return text.isEmpty() ? QStringLiteral("%00")
                              : text.replace(u'%', QLatin1String("%25"))
                                    .replace(u'/', QLatin1String("%2F"))
                                    .toLower();
    };
    return part(section) + u'/' + part(group) + u'/' + part(key);
}

/// Renames a damaged file, so that nothing of it is lost. Returns its new name.
QString moveAside(const QString& hostFile) {
    for (int n = 1;; ++n) {
        const QString target = hostFile + QStringLiteral(".damaged-%1").arg(n);
        if (!QFileInfo::exists(target)) {
            if (!QFile::rename(hostFile, target)) {
                return {};
            }
            QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
            return target;
        }
    }
}

}  // namespace

SettingsStore::SettingsStore(const QString& hostFile) : hostFile_(hostFile) {
    if (read() == Reading::Damaged) {
        // A second program that finds the same damage must not move away what the first one wrote.
        const FolderLock lock(QFileInfo(hostFile).absolutePath());
        prepare();
    }
}

/// Reads the file if another program may have written it.
void SettingsStore::refresh() const {
    if (!settled_ || !(fileStateOf(hostFile_) == seen_)) {
        read();
    }
}

SettingsStore::Reading SettingsStore::read() const {
    seen_ = fileStateOf(hostFile_);
    settled_ = QDateTime::currentMSecsSinceEpoch() * 1000000 - seen_.modified > StampNanoseconds;
    if (!QFileInfo::exists(hostFile_)) {
        content_ = {};
        return Reading::Done;
    }
    // A folder, a pipe or a device given by mistake is not ours to move, nor to wait for.
    QFile file;
    QString reason;
    if (!openOrdinary(file, hostFile_, reason)) {
        return Reading::NotPossible;
    }
    if (file.size() > MaxFileBytes) {
        return Reading::Damaged;
    }
    const QByteArray text = file.read(MaxFileBytes);
    if (file.error() != QFileDevice::NoError) {
        return Reading::NotPossible;
    }
    const std::optional<SettingsContent> content = parseSettings(text);
    if (!content) {
        return Reading::Damaged;
    }
    content_ = *content;
    return Reading::Done;
}

bool SettingsStore::prepare() {
    const Reading reading = read();
    if (reading != Reading::Damaged) {
        return reading == Reading::Done;
    }
    setAside_ = moveAside(hostFile_);
    return !setAside_.isEmpty();
}

QString SettingsStore::standardFile() {
    return user_folders::config() + QStringLiteral("/Nubivane/settings.ini");
}

QString SettingsStore::GetSetting(const QString& section, const QString& group, const QString& key,
                                  const QString& defaultValue) const {
    refresh();
    return content_.entries.value(entryName(section, group, key), defaultValue);
}

bool SettingsStore::SaveSetting(const QString& section, const QString& group, const QString& key,
                                const QString& value) {
    return change(
        [&](SettingsMap& entries) { entries.insert(entryName(section, group, key), value); });
}

bool SettingsStore::DeleteSetting(const QString& section, const QString& group,
                                  const QString& key) {
    return change([&](SettingsMap& entries) { entries.remove(entryName(section, group, key)); });
}

bool SettingsStore::change(const std::function<void(SettingsMap&)>& edit) {
    const QString folder = QFileInfo(hostFile_).absolutePath();
    QDir().mkpath(folder);
    const FolderLock lock(folder);
    if (lock.state() == FolderLock::State::Busy || !prepare()) {
        return false;
    }
    SettingsContent content = content_;
    edit(content.entries);
    if (!writeFile(content)) {
        return false;
    }
    content_ = content;
    settled_ = false;
    return true;
}

bool SettingsStore::writeFile(const SettingsContent& content) const {
    try {
        ReplacedFile file(hostFile_, Durability::Flushed, {.secret = true});
        file.append(settingsText(content));
        file.commit();
    } catch (const Error&) {
        return false;
    }
    return true;
}

QString SettingsStore::text(Setting setting) const {
    const SettingRow& row = rowOf(setting);
    return GetSetting(QLatin1String(row.section), QLatin1String(row.group), QLatin1String(row.key),
                      QLatin1String(row.defaultValue));
}

std::optional<int> SettingsStore::number(Setting setting) const {
    bool isNumber = false;
    const double value = text(setting).trimmed().toDouble(&isNumber);
    // The comparison also refuses "nan", which toDouble() takes for a number.
    if (!isNumber || !(value > std::numeric_limits<int>::min() - 1.0 &&
                       value < std::numeric_limits<int>::max() + 1.0)) {
        return std::nullopt;
    }
    return static_cast<int>(value);
}

bool SettingsStore::set(Setting setting, const QString& value) {
    const SettingRow& row = rowOf(setting);
    return SaveSetting(QLatin1String(row.section), QLatin1String(row.group), QLatin1String(row.key),
                       value);
}

QStringList SettingsStore::list(SettingList list) const {
    const SettingListRow& row = rowOf(list);
    QStringList values;
    for (int n = 1;; ++n) {
        const QString value =
            GetSetting(QLatin1String(row.section), QLatin1String(row.group), QString::number(n));
        if (trimBlanks(value).isEmpty()) {
            return values;
        }
        values += value;
    }
}

bool SettingsStore::setList(SettingList list, const QStringList& values) {
    const SettingListRow& row = rowOf(list);
    const QString section = QLatin1String(row.section);
    const QString group = QLatin1String(row.group);
    return change([&](SettingsMap& entries) {
        const auto name = [&](qsizetype n) {
            return entryName(section, group, QString::number(n));
        };
        for (qsizetype n = 1; !trimBlanks(entries.value(name(n))).isEmpty(); ++n) {
            entries.remove(name(n));
        }
        for (qsizetype n = 1; n <= values.size(); ++n) {
            entries.insert(name(n), values[n - 1]);
        }
    });
}

}  // namespace nubivane
