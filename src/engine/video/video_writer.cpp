// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/video/video_writer.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"
#include "engine/video/video_encoder.h"

#include <QFile>

#include <algorithm>
#include <stdexcept>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& cause) {
    throw Error(error_number::InvalidVideo, u"video"_s, u"Cannot encode the video."_s, cause);
}

}  // namespace

/// The file on its way. Encoders pass on that a write has failed, but not why.
class VideoWriter::File final : public VideoOutput {
  public:
    explicit File(const QString& path) : file_(host_files::toHost(path), Durability::Flushed) {}

    bool write(const char* bytes, qint64 size) override {
        QFileDevice& device = file_.device();
        // Flushed at once, since the encoder may read what it wrote by ways of its own.
        const bool written = device.write(bytes, size) == size && device.flush();
        if (!written && refusal_.isEmpty()) {
            refusal_ = durable_file::reasonOf(device);
        }
        return written;
    }
    bool seek(qint64 place) override { return file_.device().seek(place); }
    qint64 place() override { return file_.device().pos(); }
    qint64 size() override { return file_.device().size(); }
    QByteArray path() const override { return QFile::encodeName(file_.temporaryPath()); }

    void commit() { file_.commit(); }

    /// Raises the failure of the file where there was one, and otherwise the encoder's.
    [[noreturn]] void failBecause(const std::runtime_error& cause) const {
        if (refusal_.isEmpty()) {
            fail(QString::fromUtf8(cause.what()));
        }
        failToWrite(u"video"_s, file_.target(), refusal_);
    }

  private:
    ReplacedFile file_;
    QString refusal_;  ///< the system's reason for the first write that failed
};

/// Does a part of the encoder's work.
template <class Part>
void VideoWriter::doing(Part part) {
    try {
        part();
    } catch (const std::runtime_error& error) {
        file_->failBecause(error);
    }
}

VideoWriter::VideoWriter(const QString& path, VideoFormat format, QSize size, VideoRate rate) {
    if (size != sizeFor(format, size) || rate.count < 1 || rate.seconds < 1) {
        fail(QStringLiteral("%1 x %2 pixels are no size of a video")
                 .arg(size.width())
                 .arg(size.height()));
    }
    file_ = std::make_unique<File>(path);
    doing([&] { encoder_ = VideoEncoder::make(*file_, format, size, rate); });
}

VideoWriter::~VideoWriter() = default;

QSize VideoWriter::sizeFor(VideoFormat format, QSize asked) {
    const auto side = [format](int pixels) {
        const int bounded = std::clamp(pixels, 2, MaxVideoSide);
        return format == VideoFormat::Mp4 ? bounded & ~1 : bounded;
    };
    return {side(asked.width()), side(asked.height())};
}

void VideoWriter::add(const QImage& picture) {
    doing([&] { encoder_->add(picture); });
}

void VideoWriter::finish() {
    doing([&] { encoder_->finish(); });
    file_->commit();
}

}  // namespace nubivane
