// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/recovery_state.h"

#include "engine/core/error.h"
#include "engine/core/file_state.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/project/project_document.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Form = 1;
constexpr qint64 MaxStateBytes = MaxDocumentBytes + qint64{4} * 1024 * 1024;

QString fileIn(const QString& folder) {
    return folder + "/state"_L1;
}

[[noreturn]] void refuse(const QString& folder, const QString& reason) {
    throw Error(error_number::FileAccess, u"recovery"_s,
                u"A recovery copy cannot be read and is left as it is."_s,
                folder + u": "_s + reason);
}

}  // namespace

void writeRecoveryState(const QString& folder, const RecoveryState& state) {
    const QJsonObject head{{u"form"_s, Form},
                           {u"project"_s, state.project},
                           {u"time"_s, state.time.toUTC().toString(Qt::ISODateWithMs)},
                           {u"blocks"_s, QJsonArray::fromStringList(state.blocks)}};
    ReplacedFile file(fileIn(folder), Durability::Flushed, {.secret = true});
    file.append(QJsonDocument(head).toJson(QJsonDocument::Compact) + '\n');
    file.append(state.document);
    file.commit();
}

RecoveryState readRecoveryState(const QString& folder) {
    QFile file;
    QString reason;
    if (!openOrdinary(file, fileIn(folder), reason)) {
        refuse(folder, reason);
    }
    if (file.size() > MaxStateBytes) {
        refuse(folder, u"it is too large"_s);
    }
    const QByteArray bytes = file.read(MaxStateBytes);
    const qsizetype end = bytes.indexOf('\n');
    const QJsonObject head = QJsonDocument::fromJson(bytes.left(end)).object();
    if (end < 0 || head.isEmpty()) {
        refuse(folder, u"it is damaged"_s);
    }
    if (head[u"form"_s].toInt() != Form) {
        refuse(folder, u"it is of a form that this program does not know"_s);
    }
    RecoveryState state{head[u"project"_s].toString(),
                        QDateTime::fromString(head[u"time"_s].toString(), Qt::ISODateWithMs),
                        {},
                        bytes.mid(end + 1)};
    for (const auto& name : head[u"blocks"_s].toArray()) {
        state.blocks += name.toString();
        if (!host_files::isPlainName(state.blocks.last()) ||
            !QFileInfo(folder + u'/' + state.blocks.last()).isFile()) {
            refuse(folder, u"it is damaged"_s);
        }
    }
    if (!state.time.isValid() || state.blocks.isEmpty()) {
        refuse(folder, u"it is damaged"_s);
    }
    return state;
}

bool hasRecoveryState(const QString& folder) {
    return QFileInfo::exists(fileIn(folder));
}

}  // namespace nubivane
