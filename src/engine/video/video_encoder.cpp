// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/video/video_encoder.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

#include <stdexcept>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String Library("nubivane-video.so");

/// Beside the programs, or where a system-wide installation keeps it. Never by its name alone: the
/// system would look in folders that others may write.
QString libraryFile() {
    const QString programs = QCoreApplication::applicationDirPath();
    const QString beside = programs + u'/' + Library;
    return QFileInfo::exists(beside) ? beside : programs + u"/../lib/nubivane/modules/"_s + Library;
}

MakeVideoEncoder* loaded() {
    // It stays, since the codecs' threads may outlive the last video by a moment.
    QLibrary library(libraryFile());
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const QFunctionPointer made = library.resolve(MakeVideoEncoderName);
    if (!made) {
        throw std::runtime_error(library.errorString().toStdString());
    }
    return reinterpret_cast<MakeVideoEncoder*>(made);
}

}  // namespace

std::unique_ptr<VideoEncoder> VideoEncoder::make(VideoOutput& output, VideoFormat format,
                                                 QSize size, VideoRate rate) {
    static MakeVideoEncoder* const maker = loaded();
    return std::unique_ptr<VideoEncoder>(maker(output, format, size, rate));
}

}  // namespace nubivane
