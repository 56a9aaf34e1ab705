// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/net/rclone_target.h"

#include "engine/net/clean_text.h"
#include "engine/net/conversation.h"
#include "engine/net/server_address.h"
#include "engine/net/transfer_error.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using Kind = TransferError::Kind;

constexpr int SliceMs = 50;  // between two looks at the stop signal
constexpr int KillMs = 1000;

// What rclone ends with.
constexpr int NoSuchFolder = 3;
constexpr int NoSuchFile = 4;
constexpr int MayWorkLater = 5;

RemoteEntry entryOf(const QJsonObject& object) {
    const bool folder = object.value(u"IsDir"_s).toBool();
    return {object.value(u"Name"_s).toString(),
            folder ? RemoteEntry::Kind::Folder : RemoteEntry::Kind::File,
            folder ? -1 : static_cast<qint64>(object.value(u"Size"_s).toDouble(-1))};
}

}  // namespace

RcloneTarget::RcloneTarget(QString root, FtpOptions options)
    : root_(std::move(root)), options_(std::move(options)) {}

QString RcloneTarget::pathOf(const QString& name) const {
    if (!isSendable(name.toUtf8())) {
        throw TransferError(Kind::Refused, u"the server cannot be given that name"_s);
    }
    const QString below = QDir::cleanPath(folder_ + u'/' + QString(name).replace(u'\\', u'/'));
    if (below.startsWith(".."_L1) || below.contains("/.."_L1)) {
        throw TransferError(Kind::Refused, u"there is nothing above the folder of the remote"_s);
    }
    const QString relative = below.startsWith(u'/') ? below.mid(1) : below;
    const bool joined = root_.endsWith(u':') || root_.endsWith(u'/');
    return relative.isEmpty() || relative == u"."_s ? root_
                                                    : root_ + (joined ? u""_s : u"/"_s) + relative;
}

/// One line of its log, which is a JSON object: how far it is, or what is wrong.
void RcloneTarget::watch(const QByteArray& line, Outcome& outcome) {
    const QJsonObject told = QJsonDocument::fromJson(line).object();
    if (const QJsonObject stats = told.value(u"stats"_s).toObject(); !stats.isEmpty()) {
        running_ = static_cast<qint64>(stats.value(u"bytes"_s).toDouble());
    }
    const QString level = told.value(u"level"_s).toString();
    if (told.isEmpty()) {
        outcome.complaint = cleanText(line);
    } else if (level == "error"_L1 || level == "critical"_L1 || level == "fatal"_L1) {
        outcome.complaint = cleanText(told.value(u"msg"_s).toString().toUtf8());
    }
}

/// A remote that is written down with its settings may hold a password: then its kind is shown.
QString RcloneTarget::shown(const QStringList& arguments) const {
    const QString root = root_.contains(u',') ? root_.section(u',', 0, 0) + u",...:"_s : root_;
    QString text = arguments.join(u' ');
    return cleanText(text.replace(root_, root).toUtf8());
}

RcloneTarget::Outcome RcloneTarget::run(const QStringList& arguments, QIODevice* input,
                                        qint64 maxOutput) {
    const QStringList always{u"--ask-password=false"_s, u"--use-json-log"_s,
                             u"--stats=500ms"_s,        u"--stats-log-level=NOTICE"_s,
                             u"--contimeout=20s"_s,     u"--timeout=30s"_s,
                             u"--retries=2"_s,          u"--low-level-retries=3"_s};
    tell(options_, u"> rclone "_s + shown(arguments));
    QProcess process;
    process.start(program_, always + arguments);
    if (!process.waitForStarted()) {
        throw TransferError(Kind::Local, u"rclone cannot be run: "_s + process.errorString());
    }
    if (input) {
        process.write(input->readAll());
    }
    process.closeWriteChannel();
    Outcome outcome;
    process.setReadChannel(QProcess::StandardError);
    const auto drain = [&] {
        while (process.canReadLine()) {
            watch(process.readLine().trimmed(), outcome);
        }
        outcome.output += process.readAllStandardOutput();
    };
    while (process.state() != QProcess::NotRunning) {
        if (stop_.raised() || outcome.output.size() > maxOutput) {
            process.kill();
            process.waitForFinished(KillMs);
            throw stop_.raised() ? TransferError(Kind::Stopped, u"stopped"_s)
                                 : TransferError(Kind::Refused, u"rclone answers too much"_s);
        }
        process.waitForFinished(SliceMs);
        drain();
    }
    drain();
    outcome.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : MayWorkLater;
    if (outcome.code != 0 && outcome.complaint.isEmpty()) {
        outcome.complaint = u"rclone has ended with %1"_s.arg(outcome.code);
    }
    tell(options_, u"< "_s + (outcome.code == 0 ? u"done"_s : outcome.complaint));
    return outcome;
}

RcloneTarget::Outcome RcloneTarget::require(const QStringList& arguments, QIODevice* input) {
    Outcome outcome = run(arguments, input);
    if (outcome.code != 0) {
        throw TransferError(outcome.code == MayWorkLater ? Kind::Lost : Kind::Refused,
                            outcome.complaint);
    }
    return outcome;
}

void RcloneTarget::connect() {
    program_ = QStandardPaths::findExecutable(u"rclone"_s);
    if (program_.isEmpty()) {
        throw TransferError(Kind::Local, u"the program rclone is not installed"_s);
    }
    if (!root_.contains(u':')) {
        throw TransferError(Kind::Refused, u"\"%1\" names no remote of rclone"_s.arg(root_));
    }
    folder_.clear();
    const Outcome seen = run({u"lsf"_s, u"--max-depth=1"_s, u"--"_s, root_});
    if (seen.code != 0) {
        throw TransferError(Kind::Refused, seen.complaint);
    }
}

void RcloneTarget::makeFolder(const QString& name) {
    const QString path = pathOf(name);
    require({u"mkdir"_s, u"--"_s, path});
    made_->insert(path);
}

void RcloneTarget::changeFolder(const QString& name) {
    const QString path = pathOf(name);
    const QString next = QDir::cleanPath(folder_ + u'/' + QString(name).replace(u'\\', u'/'));
    const bool upwards = folder_.startsWith(next);
    if (!upwards && !made_->contains(path) && !list(name)) {
        throw TransferError(Kind::Refused, u"there is no such folder"_s);
    }
    folder_ = next;
    folder_ = folder_ == u"."_s || folder_ == u"/"_s ? QString() : folder_;
}

void RcloneTarget::put(const Outgoing& file) {
    const QString temporary = pathOf(file.temporary);
    const QString path = pathOf(file.name);
    file.source.seek(0);
    running_ = 0;
    if (const auto* onDisk = qobject_cast<QFile*>(&file.source)) {
        require({u"copyto"_s, u"--ignore-times"_s, u"--"_s, onDisk->fileName(), temporary});
    } else {
        require({u"rcat"_s, u"--"_s, temporary}, &file.source);
    }
    // It has compared what arrived with what was sent, by itself.
    require({u"moveto"_s, u"--ignore-times"_s, u"--"_s, temporary, path});
    running_ = 0;
    sent_ += file.source.size();
}

std::optional<RemoteListing> RcloneTarget::list(const QString& folder) {
    const Outcome told = run({u"lsjson"_s, u"--max-depth=1"_s, u"--no-modtime"_s,
                              u"--no-mimetype"_s, u"--"_s, pathOf(folder)});
    if (told.code == NoSuchFolder) {
        return std::nullopt;
    }
    if (told.code != 0) {
        throw TransferError(told.code == MayWorkLater ? Kind::Lost : Kind::Refused, told.complaint);
    }
    RemoteListing listing;
    for (const QJsonValue& value : QJsonDocument::fromJson(told.output).array()) {
        listing.push_back(entryOf(value.toObject()));
    }
    return listing;
}

std::optional<qint64> RcloneTarget::sizeOf(const QString& name) {
    const Outcome told = run(
        {u"lsjson"_s, u"--stat"_s, u"--no-modtime"_s, u"--no-mimetype"_s, u"--"_s, pathOf(name)});
    const QJsonObject object = QJsonDocument::fromJson(told.output).object();
    if (told.code != 0 || object.isEmpty() || object.value(u"IsDir"_s).toBool()) {
        return std::nullopt;
    }
    return entryOf(object).size;
}

std::optional<QByteArray> RcloneTarget::read(const QString& name, qint64 maxBytes) {
    if (!sizeOf(name)) {
        return std::nullopt;  // "cat" of nothing is nothing and no failure
    }
    const Outcome told = run({u"cat"_s, u"--"_s, pathOf(name)}, nullptr, maxBytes);
    if (told.code != 0) {
        return std::nullopt;
    }
    return told.output;
}

void RcloneTarget::remove(const QString& name) {
    const Outcome told = run({u"deletefile"_s, u"--"_s, pathOf(name)});
    if (told.code != 0 && told.code != NoSuchFile && told.code != NoSuchFolder) {
        throw TransferError(Kind::Refused, told.complaint);
    }
}

std::unique_ptr<Transfer> RcloneTarget::sibling() {
    auto other = std::make_unique<RcloneTarget>(root_, options_);
    *other->made_ = *made_;
    return other;
}

}  // namespace nubivane
