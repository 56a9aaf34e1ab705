// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_arguments.h"

#include "cli/streams.h"
#include "engine/core/error.h"

namespace nubivane {

using namespace Qt::StringLiterals;

qint32 frameNumber(const CommandContext& context, const QString& text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    const qint32 count = context.workspace.Frames().Count();
    if (!isNumber || number < 1 || number > count) {
        throw Error(error_number::OutOfRange, u"command line"_s,
                    u"There is no Frame \""_s + text + u"\"."_s,
                    QStringLiteral("the project has Frames 1 to %1").arg(count));
    }
    return number;
}

int compressionOf(const CommandContext& context) {
    return context.options.value(u"--compression"_s, u"1"_s).toInt();
}

GifQuality qualityOf(const CommandContext& context) {
    return context.options.contains(u"--fine"_s) ? GifQuality::Fine : GifQuality::Usual;
}

void RemarkWatcher::remark(const QString& sentence) {
    const std::lock_guard lock(mutex_);
    if (!told_.contains(sentence)) {
        told_ += sentence;
    }
}

RemarkWatcher::~RemarkWatcher() {
    for (const QString& sentence : told_) {
        streams::printError(sentence);
    }
}

int printWritten(const QStringList& hostFiles) {
    return streams::writeResult(hostFiles.join(u'\n').toUtf8() + '\n') ? exit_code::Done
                                                                       : exit_code::Failed;
}

void failSaving(const Error& error) {
    throw Error(error.number(), error.source(), u"An error occurred while saving the file."_s,
                QString::fromUtf8(error.what()));
}

}  // namespace nubivane
