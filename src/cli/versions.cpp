// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command.h"
#include "cli/streams.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/json_writer.h"
#include "engine/core/replaced_file.h"
#include "engine/history/version_store.h"
#include "engine/project/kept_pair.h"
#include "engine/project/project_paths.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QList<KeptVersion> versionsOf(const QString& hostProject) {
    const QString data = host_files::toHost(dataFileOf(modelPath(hostProject)));
    return VersionStore::ofUser(VersionLimits{})
        .versionsOf(behindLinks(host_files::toHost(modelPath(hostProject))), behindLinks(data));
}

QString timeOf(const KeptVersion& version) {
    return version.time.toUTC().toString(Qt::ISODate);
}

QByteArray asJson(const QList<KeptVersion>& versions) {
    JsonWriter json;
    json.startArray();
    for (qsizetype i = 0; i < versions.size(); ++i) {
        const DocumentCount count = countDocument(versions[i].document);
        json.startObject();
        json.member("number", static_cast<qint32>(i) + 1);
        json.member("time", timeOf(versions[i]));
        json.member("cause", causeText(versions[i].cause));
        json.member("frames", count.frames);
        json.member("sprites", count.sprites);
        json.endObject();
    }
    json.endArray();
    return json.text() + '\n';
}

QByteArray asLines(const QList<KeptVersion>& versions) {
    QString text;
    for (qsizetype i = 0; i < versions.size(); ++i) {
        const DocumentCount count = countDocument(versions[i].document);
        text += u"%1\t%2\t%3\t%4\t%5\n"_s.arg(i + 1)
                    .arg(timeOf(versions[i]), causeText(versions[i].cause))
                    .arg(count.frames)
                    .arg(count.sprites);
    }
    return text.toUtf8();
}

}  // namespace

int runVersions(CommandContext& context) {
    const QList<KeptVersion> versions = versionsOf(context.arguments[0]);
    const QByteArray text =
        context.options.contains(u"--json"_s) ? asJson(versions) : asLines(versions);
    return text.isEmpty() || streams::writeResult(text) ? exit_code::Done : exit_code::Failed;
}

int runVersion(CommandContext& context) {
    const QList<KeptVersion> versions = versionsOf(context.arguments[0]);
    const qsizetype number = context.arguments[1].toLongLong();
    if (number < 1 || number > versions.size()) {
        throw Error(
            error_number::OutOfRange, u"command line"_s,
            u"There is no version %1 of %2."_s.arg(context.arguments[1], context.arguments[0]));
    }
    const KeptVersion& version = versions[number - 1];
    writeKeptPair(version.document, version.data, modelPath(context.arguments[2]),
                  context.workspace.settings);
    return exit_code::Done;
}

}  // namespace nubivane
