// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/user_folders.h"

#include "engine/core/error.h"

#include <QDir>
#include <QFile>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <vector>

namespace nubivane::user_folders {

using namespace Qt::StringLiterals;

namespace {

/// The value of a variable that holds an absolute path.
QString pathIn(const char* variable) {
    const QString path = QFile::decodeName(qgetenv(variable));
    return path.startsWith(u'/') ? QDir::cleanPath(path) : QString();
}

QString homeInTheListOfUsers() {
    constexpr std::size_t Enough = 16 * 1024;
    std::vector<char> texts(Enough);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) != 0 || !found) {
        return {};
    }
    const QString path = QFile::decodeName(QByteArray(entry.pw_dir));
    return path.startsWith(u'/') ? path : QString();
}

QString folder(const char* variable, QLatin1String atHome) {
    const QString given = pathIn(variable);
    return given.isEmpty() ? home() + u'/' + atHome : given;
}

/// True for a folder of this user that nobody else can write.
bool isOurs(const QString& path) {
    constexpr mode_t WritableByOthers = S_IWGRP | S_IWOTH;
    const QByteArray native = QFile::encodeName(path);
    struct stat status {};
    return ::lstat(native.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & WritableByOthers) == 0;
}

/// The same, for one that is made where it is missing.
bool makeOurs(const QString& path) {
    constexpr mode_t ForUs = 0700;
    ::mkdir(QFile::encodeName(path).constData(), ForUs);
    return isOurs(path);
}

}  // namespace

QString home() {
    QString path = pathIn("HOME");
    if (path.isEmpty()) {
        path = homeInTheListOfUsers();
    }
    if (path.isEmpty()) {
        throw Error(error_number::FileAccess, u"user_folders"_s,
                    u"There is no home folder to keep settings and files in."_s,
                    u"HOME is not set, and the list of users has no home for this one"_s);
    }
    return path;
}

QString config() {
    return folder("XDG_CONFIG_HOME", ".config"_L1);
}

QString data() {
    return folder("XDG_DATA_HOME", ".local/share"_L1);
}

QString state() {
    return folder("XDG_STATE_HOME", ".local/state"_L1);
}

QString runtime() {
    const QString session = pathIn("XDG_RUNTIME_DIR");
    if (!session.isEmpty() && isOurs(session) && makeOurs(session + "/nubivane"_L1)) {
        return session + "/nubivane"_L1;
    }
    const QString own = state() + "/Nubivane"_L1;
    QDir().mkpath(own);
    if (!makeOurs(own + "/run"_L1)) {
        throw Error(error_number::FileAccess, u"user_folders"_s,
                    u"There is no folder that only you can write."_s, own + "/run"_L1);
    }
    return own + "/run"_L1;
}

}  // namespace nubivane::user_folders
