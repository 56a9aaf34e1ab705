// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/history/version_store.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/replaced_file.h"
#include "engine/core/settings_store.h"
#include "engine/core/temporary_name.h"
#include "engine/core/user_folders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String DocumentEnd(".nvpf");
constexpr QLatin1String DataEnd(".nvpx");

struct CauseRow {
    VersionCause cause;
    const char* inNames;
    const char* text;
};
constexpr std::array causes = {
    CauseRow{VersionCause::Saved, "saved", "saved"},
    CauseRow{VersionCause::ClosedWithoutSaving, "closed", "closed without saving"},
    CauseRow{VersionCause::BeforeOpening, "opening", "before opening"},
};

const CauseRow& rowOf(VersionCause cause) {
    return *std::find_if(causes.begin(), causes.end(),
                         [cause](const CauseRow& row) { return row.cause == cause; });
}

/// The file's name without its ending: the moment in milliseconds and the cause.
std::optional<KeptVersion> versionOf(const QString& folder, const QString& name) {
    const QString stem = name.chopped(DocumentEnd.size());
    bool isNumber = false;
    const qint64 moment = stem.section(u'-', 0, 0).toLongLong(&isNumber);
    const QString word = stem.section(u'-', 1);
    const auto row = std::find_if(causes.begin(), causes.end(), [&](const CauseRow& one) {
        return word == QLatin1String(one.inNames);
    });
    const KeptVersion version{QDateTime::fromMSecsSinceEpoch(moment),
                              row == causes.end() ? VersionCause::Saved : row->cause,
                              folder + u'/' + name, folder + u'/' + stem + DataEnd};
    return isNumber && row != causes.end() && QFileInfo(version.data).isFile()
               ? std::optional(version)
               : std::nullopt;
}

QList<KeptVersion> versionsIn(const QString& folder) {
    QList<KeptVersion> versions;
    for (const QString& name : QDir(folder).entryList({u'*' + DocumentEnd}, QDir::Files)) {
        if (const auto version = versionOf(folder, name)) {
            versions += *version;
        }
    }
    std::sort(versions.begin(), versions.end(),
              [](const KeptVersion& a, const KeptVersion& b) { return a.time > b.time; });
    return versions;
}

/// Another name for a file's content; false where the file system has no such thing.
bool linkTo(const QString& from, const QString& to) {
    return ::link(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool makeClone(QFile& from, ReplacedFile& to) {
    return ::ioctl(to.device().handle(), FICLONE, from.handle()) == 0;
}

/// A copy that is as old as the original, by which it is known again.
void copyTo(const QString& from, const QString& to) {
    constexpr qint64 Piece = 1 << 20;
    QFile original;
    QString reason;
    if (!openOrdinary(original, from, reason)) {
        throw Error(error_number::FileAccess, u"versions"_s, u"Cannot read the file."_s,
                    from + u": "_s + reason);
    }
    const FileState state = fileStateOf(original);
    ReplacedFile copy(to, Durability::Quick, {.secret = true});
    if (!makeClone(original, copy)) {
        while (!original.atEnd()) {
            copy.append(original.read(Piece));
        }
    }
    copy.finish();
    constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
    const timespec time{static_cast<time_t>(state.modified / NanosecondsPerSecond),
                        static_cast<long>(state.modified % NanosecondsPerSecond)};
    const std::array times{time, time};
    ::futimens(copy.device().handle(), times.data());
    copy.putInPlace();
}

bool sameContent(const FileState& one, const FileState& other) {
    return one.exists() && one.size == other.size && one.modified == other.modified;
}

/// Keeps one file of a pair. `before` is its forerunner in the version before, if there is one.
void keepFile(const QString& from, const QString& to, bool isReplaced, const QString& before) {
    const FileState state = fileStateOf(from);
    if (isReplaced && linkTo(from, to)) {
        return;
    }
    if (!before.isEmpty() && sameContent(fileStateOf(before), state) && linkTo(before, to)) {
        return;
    }
    copyTo(from, to);
}

/// The moment of a new version: later than all before.
qint64 momentAfter(const QList<KeptVersion>& versions) {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    return versions.isEmpty() ? now : std::max(now, versions.first().time.toMSecsSinceEpoch() + 1);
}

/// Those of a project's versions, newest first, that its limits do not allow.
QList<KeptVersion> beyondLimits(const QList<KeptVersion>& versions, const VersionLimits& limits) {
    const QDate oldest = QDate::currentDate().addDays(-limits.days);
    QSet<QDate> daysSeen;
    QList<KeptVersion> beyond;
    for (qsizetype i = 0; i < versions.size(); ++i) {
        const QDate day = versions[i].time.date();
        const bool isLastOfItsDay = !daysSeen.contains(day);
        daysSeen += day;
        if (i >= limits.last && (!isLastOfItsDay || day < oldest)) {
            beyond += versions[i];
        }
    }
    return beyond;
}

/// What a set of files takes on the disk, each counted once however many names it has.
class Usage {
  public:
    void add(const KeptVersion& version) { bytes_ += cost(version.document) + cost(version.data); }
    qint64 bytes() const { return bytes_; }

  private:
    qint64 cost(const QString& path) {
        const FileState state = fileStateOf(path);
        if (!state.exists() || files_.contains(state.inode)) {
            return 0;
        }
        files_ += state.inode;
        return state.size;
    }

    QSet<quint64> files_;
    qint64 bytes_ = 0;
};

}  // namespace

QString causeText(VersionCause cause) {
    return QLatin1String(rowOf(cause).text);
}

VersionStore::VersionStore(QString hostFolder, const VersionLimits& limits)
    : folder_(std::move(hostFolder)), limits_(limits) {}

VersionStore VersionStore::ofUser(const VersionLimits& limits) {
    return {user_folders::state() + "/Nubivane"_L1, limits};
}

std::optional<VersionStore> VersionStore::ofUser(const SettingsStore& settings) {
    constexpr qint64 Megabyte = 1024 * 1024;
    if (settings.number(Setting::VersionsKept).value_or(1) == 0) {
        return std::nullopt;
    }
    const VersionLimits usual;
    const auto limit = [&](Setting setting, qint64 otherwise) {
        return std::max<qint64>(0, settings.number(setting).value_or(static_cast<int>(otherwise)));
    };
    try {
        return ofUser({static_cast<int>(limit(Setting::VersionsLast, usual.last)),
                       static_cast<int>(limit(Setting::VersionsDays, usual.days)),
                       limit(Setting::VersionsMegabytes, usual.bytes / Megabyte) * Megabyte});
    } catch (const Error&) {
        return std::nullopt;
    }
}

QString VersionStore::folderOf(const QString& projectFile) const {
    constexpr qsizetype Digits = 32;
    if (projectFile.isEmpty()) {
        return folder_ + "/versions/unnamed"_L1;
    }
    const QFileInfo info(projectFile);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    const QByteArray digest = QCryptographicHash::hash(
        QFile::encodeName(folder + u'/' + info.fileName()), QCryptographicHash::Blake2b_256);
    return folder_ + "/versions/"_L1 + QString::fromLatin1(digest.toHex().left(Digits));
}

std::optional<KeptVersion> VersionStore::keep(const QString& projectFile, const QString& dataFile,
                                              VersionCause cause, Replaced replaced) const {
    const FileState document = fileStateOf(projectFile);
    const FileState data = fileStateOf(dataFile);
    if (!document.exists() || !data.exists() || document.size + data.size > limits_.bytes) {
        return std::nullopt;
    }
    const KeptVersion version = next(projectFile, cause);
    const KeptVersion last = versionsIn(folderOf(projectFile)).value(0);
    // The document last: with it the version counts.
    keepFile(dataFile, version.data, replaced.data, last.data);
    keepFile(projectFile, version.document, replaced.document, last.document);
    prune();
    return version;
}

/// The names of a version that is to be kept now, in a folder that is there.
KeptVersion VersionStore::next(const QString& projectFile, VersionCause cause) const {
    const QString folder = folderOf(projectFile);
    if (!QDir().mkpath(folder)) {
        throw Error(error_number::FileAccess, u"versions"_s, u"Cannot create the folder."_s,
                    folder);
    }
    ::chmod(QFile::encodeName(folder_).constData(), S_IRWXU);
    const QString stem = folder + u'/' + QString::number(momentAfter(versionsIn(folder))) + u'-' +
                         QLatin1String(rowOf(cause).inNames);
    return {QDateTime::currentDateTime(), cause, stem + DocumentEnd, stem + DataEnd};
}

void VersionStore::add(const QString& projectFile, VersionCause cause,
                       const std::function<QByteArray(ReplacedFile& data)>& write) const {
    const KeptVersion version = next(projectFile, cause);
    ReplacedFile data(version.data, Durability::Quick, {.secret = true});
    const QByteArray bytes = write(data);
    ReplacedFile document(version.document, Durability::Quick, {.secret = true});
    document.append(bytes);
    document.finish();
    data.putInPlace();
    document.putInPlace();
    prune();
}

void VersionStore::forget(const KeptVersion& version) {
    QFile::remove(version.document);
    QFile::remove(version.data);
}

QList<KeptVersion> VersionStore::versionsOf(const QString& projectFile,
                                            const QString& dataFile) const {
    QList<KeptVersion> versions = versionsIn(folderOf(projectFile));
    const FileState document = fileStateOf(projectFile);
    const FileState data = fileStateOf(dataFile);
    // A save that was killed may have kept what it did not come to replace.
    while (!versions.isEmpty() && fileStateOf(versions.first().document) == document &&
           sameContent(fileStateOf(versions.first().data), data)) {
        versions.removeFirst();
    }
    return versions;
}

void VersionStore::prune() const {
    QList<KeptVersion> all;
    const QDir root(folder_ + "/versions"_L1);
    for (const QString& name : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString folder = root.filePath(name);
        QList<KeptVersion> versions = versionsIn(folder);
        for (const KeptVersion& version : beyondLimits(versions, limits_)) {
            forget(version);
            versions.removeIf(
                [&](const KeptVersion& one) { return one.document == version.document; });
        }
        all += versions;
    }
    std::sort(all.begin(), all.end(),
              [](const KeptVersion& a, const KeptVersion& b) { return a.time > b.time; });
    Usage usage;
    for (const KeptVersion& version : all) {
        usage.add(version);
        if (usage.bytes() > limits_.bytes) {
            forget(version);
        }
    }
}

}  // namespace nubivane
