// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/json_writer.h"
#include "engine/project/recovery_copy.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QList<RecoveryEntry> entries() {
    QStringList faults;
    const QList<RecoveryEntry> found = recoveryEntries(RecoveryCopy::folderOfUser(), faults);
    for (const QString& fault : faults) {
        streams::printError(fault);
    }
    return found;
}

QString projectOf(const RecoveryEntry& entry) {
    return host_files::toHost(entry.project);
}

QString timeOf(const RecoveryEntry& entry) {
    return entry.time.toUTC().toString(Qt::ISODate);
}

QString stateOf(const RecoveryEntry& entry) {
    return entry.isOpen ? u"open"_s : u"crashed"_s;
}

QByteArray asJson(const QList<RecoveryEntry>& list) {
    JsonWriter json;
    json.startArray();
    for (qsizetype i = 0; i < list.size(); ++i) {
        json.startObject();
        json.member("number", static_cast<qint32>(i) + 1);
        json.member("project", projectOf(list[i]));
        json.member("time", timeOf(list[i]));
        json.member("state", stateOf(list[i]));
        json.endObject();
    }
    json.endArray();
    return json.text() + '\n';
}

QByteArray asLines(const QList<RecoveryEntry>& list) {
    QString text;
    for (qsizetype i = 0; i < list.size(); ++i) {
        text += u"%1\t%2\t%3\t%4\n"_s.arg(i + 1).arg(projectOf(list[i]), timeOf(list[i]),
                                                     stateOf(list[i]));
    }
    return text.toUtf8();
}

}  // namespace

int runRecovered(CommandContext& context) {
    const QList<RecoveryEntry> list = entries();
    const QByteArray text = context.options.contains(u"--json"_s) ? asJson(list) : asLines(list);
    return text.isEmpty() || streams::writeResult(text) ? exit_code::Done : exit_code::Failed;
}

int runRecover(CommandContext& context) {
    const QList<RecoveryEntry> list = entries();
    const qsizetype number = context.arguments[0].toLongLong();
    if (number < 1 || number > list.size()) {
        throw Error(error_number::OutOfRange, u"command line"_s,
                    u"There is no recovery copy %1."_s.arg(context.arguments[0]));
    }
    writeRecovered(list[number - 1], modelPath(context.arguments[1]), context.workspace.settings);
    return exit_code::Done;
}

}  // namespace nubivane
