#include "core/settings_store.h"

#include "core/path_text.h"
#include "core/settings_format.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <limits>
#include <utility>

namespace nubivane {

namespace {

/// A settings file holds some dozens of short texts; a larger one is not ours.
constexpr qint64 MaxFileBytes = qint64{16} * 1024 * 1024;

/// The name of an entry in the file. Folding the case here makes the store case-insensitive;
/// "/" is QSettings' own separator, so one inside a part is written in another way.
QString entryName(const QString& section, const QString& group, const QString& key) {
    const auto part = [](QString text) {
        // An empty part would vanish and the name mean a whole group.
        return text.isEmpty() ? QStringLiteral("%00")
                              : text.replace(u'%', QLatin1String("%25"))
                                    .replace(u'/', QLatin1String("%2F"))
                                    .toLower();
    };
    return part(section) + u'/' + part(group) + u'/' + part(key);
}

/// True when there is nothing in the file's place that would have to be set aside.
bool isSound(const QString& hostFile) {
    const QFileInfo info(hostFile);
    if (info.size() > MaxFileBytes) {
        return false;
    }
    return QSettings(hostFile, settingsFormat()).status() != QSettings::FormatError;
}

/// Renames a damaged file, so that nothing of it is lost. Returns its new name.
QString moveAside(const QString& hostFile) {
    for (int n = 1;; ++n) {
        const QString target = hostFile + QStringLiteral(".damaged-%1").arg(n);
        if (!QFileInfo::exists(target)) {
            return QFile::rename(hostFile, target) ? target : QString();
        }
    }
}

}  // namespace

SettingsStore::SettingsStore(const QString& hostFile) : hostFile_(hostFile) {
    const QFileInfo info(hostFile);
    if (info.exists()) {
        // A folder, a pipe or a device given by mistake is not ours to move, nor to open.
        if (!info.isFile()) {
            return;
        }
        if (!isSound(hostFile)) {
            setAside_ = moveAside(hostFile);
            if (setAside_.isEmpty()) {
                return;
            }
        }
    }
    reopen();
}

void SettingsStore::reopen() {
    file_ = std::make_unique<QSettings>(hostFile_, settingsFormat());
    file_->setFallbacksEnabled(false);
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::standardFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Nubivane/settings.ini");
}

QString SettingsStore::GetSetting(const QString& section, const QString& group, const QString& key,
                                  const QString& defaultValue) const {
    if (!file_) {
        return defaultValue;
    }
    file_->sync();  // cheap while the file is unchanged: one look at its time stamp
    return file_->value(entryName(section, group, key), defaultValue).toString();
}

bool SettingsStore::SaveSetting(const QString& section, const QString& group, const QString& key,
                                const QString& value) {
    if (prepareWrite()) {
        file_->setValue(entryName(section, group, key), value);
    }
    return flush();
}

bool SettingsStore::DeleteSetting(const QString& section, const QString& group,
                                  const QString& key) {
    if (prepareWrite()) {
        file_->remove(entryName(section, group, key));
    }
    return flush();
}

/// QSettings keeps its first error for good, so after a failure the next write gets a fresh one.
bool SettingsStore::prepareWrite() {
    if (std::exchange(failed_, false)) {
        file_.reset();
        reopen();
    }
    return file_ != nullptr;
}

bool SettingsStore::flush() {
    if (!file_) {
        return false;
    }
    file_->sync();
    const bool written = file_->status() == QSettings::NoError;
    if (!written) {
        failed_ = true;
    }
    return written;
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
    if (!prepareWrite()) {
        return false;
    }
    const QString section = QLatin1String(row.section);
    const QString group = QLatin1String(row.group);
    const qsizetype oldCount = this->list(list).size();
    for (qsizetype n = 1; n <= oldCount; ++n) {
        file_->remove(entryName(section, group, QString::number(n)));
    }
    for (qsizetype n = 1; n <= values.size(); ++n) {
        file_->setValue(entryName(section, group, QString::number(n)), values[n - 1]);
    }
    return flush();
}

}  // namespace nubivane
