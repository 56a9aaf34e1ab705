// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/own_words.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/folder_lock.h"
#include "engine/core/replaced_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

OwnWords::OwnWords(const QString& hostFile) : hostFile_(hostFile) {
    QString reason;
    if (!read(reason)) {
        lines_.clear();
        words_.clear();
    }
}

bool OwnWords::read(QString& reason) {
    if (!QFileInfo::exists(hostFile_)) {
        return true;
    }
    QFile file;
    if (!openOrdinary(file, hostFile_, reason)) {
        return false;
    }
    const QByteArray bytes = file.read(MaxBytes + 1);
    if (bytes.size() > MaxBytes) {
        reason = u"the file is too large"_s;
        return false;
    }
    lines_ = QString::fromUtf8(bytes).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    words_ = QSet<QString>(lines_.begin(), lines_.end());
    return true;
}

bool OwnWords::contains(const QString& word) const {
    return words_.contains(word) ||
           (!word.isEmpty() && words_.contains(word.at(0).toLower() + word.mid(1)));
}

void OwnWords::add(const QString& word) {
    const QString folder = QFileInfo(hostFile_).absolutePath();
    QDir().mkpath(folder);
    const FolderLock lock(folder);
    QString reason;
    if (!read(reason)) {
        throw Error(error_number::FileAccess, u"OwnWords"_s, u"The word cannot be added."_s,
                    hostFile_ + u": "_s + reason);
    }
    if (words_.contains(word)) {
        return;
    }
    ReplacedFile file(hostFile_, Durability::Flushed);
    file.append((lines_ + QStringList(word)).join(u'\n').toUtf8() + '\n');
    file.commit();
    lines_ << word;
    words_.insert(word);
}

}  // namespace nubivane
