// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_folder.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString folderOf(const QString& name) {
    const qsizetype slash = name.lastIndexOf(u'/');
    return slash < 0 ? QString() : name.left(slash);
}

}  // namespace

SiteFolder::SiteFolder(const QString& hostPath, Links links)
    : root_(QDir::cleanPath(QFileInfo(hostPath).absoluteFilePath())), links_(links) {}

void SiteFolder::makeFolderOf(const QString& name) {
    const QString folder = folderOf(name);
    const std::lock_guard lock(mutex_);
    if (folders_.contains(folder)) {
        return;
    }
    const QString path = folder.isEmpty() ? root_ : hostPath(folder);
    if (!QDir().mkpath(path)) {
        failToWrite(u"site"_s, path, u"the folder cannot be made"_s);
    }
    const QString expected =
        QFileInfo(root_).canonicalFilePath() + (folder.isEmpty() ? QString() : u'/' + folder);
    if (links_ == Links::Refused && QFileInfo(path).canonicalFilePath() != expected) {
        failToWrite(u"site"_s, path, u"the folder leads to another place"_s);
    }
    folders_ += folder;
}

void SiteFolder::write(const QString& name, const QByteArray& bytes) {
    const QStringList parts = name.split(u'/');
    if (!std::all_of(parts.begin(), parts.end(), host_files::isPlainName)) {
        failToWrite(u"site"_s, name, u"this is no name of a file"_s);
    }
    makeFolderOf(name);
    host_files::writeHostFile(hostPath(name), bytes);
    const std::lock_guard lock(mutex_);
    names_ += name;
}

bool SiteFolder::contains(const QString& name) const {
    return QFileInfo(hostPath(name)).isFile();
}

QStringList SiteFolder::names() const {
    QStringList names;
    {
        const std::lock_guard lock(mutex_);
        names = names_;
    }
    QCollator byNumber(QLocale::c());
    byNumber.setNumericMode(true);
    std::sort(names.begin(), names.end(), [&](const QString& a, const QString& b) {
        const bool inFolder = a.contains(u'/');
        return inFolder != b.contains(u'/') ? inFolder : byNumber.compare(a, b) < 0;
    });
    names.removeDuplicates();
    return names;
}

QStringList SiteFolder::written() const {
    QStringList paths = names();
    for (QString& path : paths) {
        path = hostPath(path);
    }
    return paths;
}

}  // namespace nubivane
