// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/export_target.h"

#include "cli/command.h"
#include "cli/export_arguments.h"
#include "cli/streams.h"
#include "engine/core/error.h"

#include <QFile>
#include <QFileInfo>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Endings by which people and programs tell what a file is.
const QStringList& knownEndings() {
    static const QStringList endings{
        u"bmp"_s, u"gif"_s, u"jpg"_s,  u"jpeg"_s, u"png"_s,  u"tif"_s, u"tiff"_s, u"webp"_s,
        u"svg"_s, u"ico"_s, u"avi"_s,  u"mp4"_s,  u"m4v"_s,  u"mov"_s, u"mkv"_s,  u"webm"_s,
        u"mpg"_s, u"ogv"_s, u"mpeg"_s, u"wmv"_s,  u"pdf"_s,  u"ps"_s,  u"htm"_s,  u"html"_s,
        u"js"_s,  u"css"_s, u"txt"_s,  u"xml"_s,  u"json"_s, u"zip"_s, u"nvpf"_s, u"nvpx"_s};
    return endings;
}

QString asList(QStringList endings) {
    for (QString& ending : endings) {
        ending.prepend(u'.');
    }
    return endings.join(" or "_L1);
}

bool copyToStandardOutput(const QString& hostFile) {
    constexpr qint64 Piece = 1 << 20;
    QFile file(hostFile);
    if (!file.open(QIODevice::ReadOnly)) {
        streams::printError(u"The result could not be written."_s, file.errorString());
        return false;
    }
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(Piece);
        if (bytes.isEmpty() || !streams::writeResult(bytes)) {
            return false;
        }
    }
    return true;
}

}  // namespace

ExportTarget::ExportTarget(const QString& file, const QString& ending) : file_(file) {
    if (!isStandardOutput(file)) {
        return;
    }
    scratch_ = std::make_unique<QTemporaryDir>();
    if (!scratch_->isValid()) {
        throw Error(error_number::FileAccess, u"command line"_s,
                    u"There is no place for temporary files."_s, scratch_->errorString());
    }
    file_ = scratch_->filePath(u"output."_s + ending);
}

QString ExportTarget::path() const {
    return modelPath(file_);
}

int ExportTarget::deliver() const {
    if (!scratch_) {
        return printWritten({file_});
    }
    return copyToStandardOutput(file_) ? exit_code::Done : exit_code::Failed;
}

bool ExportTarget::isStandardOutput(const QString& file) {
    return file == "-"_L1;
}

void checkEnding(const QString& file, const QStringList& endings) {
    const QString ending = QFileInfo(file).suffix().toLower();
    if (knownEndings().contains(ending) && !endings.contains(ending)) {
        throw Error(error_number::InvalidArgument, u"command line"_s,
                    u"The name \"%1\" does not fit what would be written."_s.arg(file),
                    u"it ends in .%1, and the file would be one that ends in %2"_s.arg(
                        ending, asList(endings)));
    }
}

void checkSeekable(const QString& file, const QString& format) {
    if (ExportTarget::isStandardOutput(file)) {
        throw Error(error_number::InvalidArgument, u"command line"_s,
                    u"A video cannot be written to the standard output."_s,
                    u"%1 is put in order when it is whole: give the name of a file"_s.arg(format));
    }
}

}  // namespace nubivane
