// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/video/video_writer.h"

#include "engine/core/durable_file.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/replaced_file.h"

#include <QThread>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

#include <algorithm>
#include <array>
#include <cstdio>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int BufferBytes = 64 * 1024;
constexpr int MjpegQuality = 2;       // 2 is best, 31 is least
constexpr char H264Quality[] = "18";  // 0 is lossless, 51 is least; 18 looks like the original

/// A video larger than those of television is written with fewer pictures held at a time, to
/// compare them and to work on several side by side. It comes out some hundredths longer, and needs
/// a third of the memory.
constexpr qint64 LargePixels = 2'500'000;
constexpr int LookaheadOfLarge = 4;

bool isLarge(QSize size) {
    return qint64{size.width()} * size.height() > LargePixels;
}

/// Cores that work on a video, each on a picture of its own; 0 stands for all.
int threadsFor(VideoFormat format, QSize size) {
    const int most = format == VideoFormat::Mp4 ? 1 : 2;
    return isLarge(size) ? std::min(most, QThread::idealThreadCount()) : 0;
}

[[noreturn]] void fail(const QString& cause) {
    throw Error(error_number::InvalidVideo, u"video"_s, u"Cannot encode the video."_s, cause);
}

void check(int result) {
    if (result < 0) {
        std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
        av_strerror(result, text.data(), text.size());
        fail(QString::fromLatin1(text.data()));
    }
}

template <class T>
T* checked(T* made) {
    if (!made) {
        fail(u"there is not enough memory"_s);
    }
    return made;
}

/// Where the libraries write. They pass on that a write has failed, but not why.
struct Output {
    QFileDevice& device;
    QString refusal;  ///< the system's reason for the first write that failed
};

int writePacket(void* opaque, std::uint8_t* bytes, int size) {
    auto& output = *static_cast<Output*>(opaque);
    // Flushed at once, since the library may read what it wrote by ways of its own.
    if (output.device.write(reinterpret_cast<const char*>(bytes), size) == size &&
        output.device.flush()) {
        return size;
    }
    if (output.refusal.isEmpty()) {
        output.refusal = durable_file::reasonOf(output.device);
    }
    return AVERROR(EIO);
}

std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
    auto& device = static_cast<Output*>(opaque)->device;
    if (whence == AVSEEK_SIZE) {
        return device.size();
    }
    const qint64 base = whence == SEEK_CUR ? device.pos() : whence == SEEK_END ? device.size() : 0;
    return device.seek(base + offset) ? device.pos() : AVERROR(EIO);
}

struct FreeContext {
    void operator()(AVFormatContext* context) const { avformat_free_context(context); }
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
    void operator()(AVIOContext* io) const {
        av_freep(&io->buffer);
        avio_context_free(&io);
    }
};

template <class T>
using Handle = std::unique_ptr<T, FreeContext>;

/// What a format needs to be told.
struct FormatRow {
    const char* container;
    AVCodecID codec;
    AVPixelFormat pixels;
    int swsFlags;
};

constexpr FormatRow rowOf(VideoFormat format) {
    constexpr int Exact = SWS_ACCURATE_RND | SWS_FULL_CHR_H_INP;
    return format == VideoFormat::Avi
               ? FormatRow{"avi", AV_CODEC_ID_MJPEG, AV_PIX_FMT_YUVJ444P, SWS_BICUBIC | Exact}
               : FormatRow{"mp4", AV_CODEC_ID_H264, AV_PIX_FMT_YUV420P, SWS_BICUBIC | Exact};
}

}  // namespace

/// The libraries' objects in the order in which they need each other.
class VideoWriter::Encoder {
  public:
    Encoder(const QString& path, VideoFormat format, QSize size, VideoRate rate)
        : row_(rowOf(format)), size_(size), file_(host_files::toHost(path), Durability::Flushed) {
        openContainer();
        openCodec(format, rate);
        frame_.reset(checked(av_frame_alloc()));
        frame_->format = row_.pixels;
        frame_->width = size.width();
        frame_->height = size.height();
        check(av_frame_get_buffer(frame_.get(), 0));
        packet_.reset(checked(av_packet_alloc()));
        writing([this, format] { writeHeader(format); });
    }

    /// Does a part of the work; where the file is why that fails, this is told.
    template <class Part>
    void writing(Part part) {
        try {
            part();
        } catch (const Error&) {
            if (output_.refusal.isEmpty()) {
                throw;
            }
            throw Error(error_number::FileAccess, u"video"_s, u"Cannot write the file."_s,
                        file_.target() + u": "_s + output_.refusal);
        }
    }

    void add(const QImage& picture) {
        const QImage source = picture.convertToFormat(QImage::Format_RGB32);
        prepareScaler(source.size());
        check(av_frame_make_writable(frame_.get()));
        const std::array<const std::uint8_t*, 1> lines{source.constBits()};
        const std::array<int, 1> strides{static_cast<int>(source.bytesPerLine())};
        sws_scale(scaler_.get(), lines.data(), strides.data(), 0, source.height(), frame_->data,
                  frame_->linesize);
        frame_->pts = next_++;
        frame_->quality = codec_->global_quality;
        encode(frame_.get());
    }

    void finish() {
        encode(nullptr);
        check(av_write_trailer(container_.get()));
        avio_flush(io_.get());
        file_.commit();
    }

  private:
    void writeHeader(VideoFormat format) {
        AVDictionary* options = nullptr;
        if (format == VideoFormat::Mp4) {
            // The table of contents goes to the front, so that a page plays what it has loaded. For
            // that the library reads its own file again.
            const QByteArray url = "file:" + QFile::encodeName(file_.temporaryPath());
            container_->url = checked(av_strdup(url.constData()));
            check(av_dict_set(&options, "movflags", "+faststart", 0));
        }
        const int result = avformat_write_header(container_.get(), &options);
        av_dict_free(&options);
        check(result);
    }

    void openContainer() {
        AVFormatContext* container = nullptr;
        check(avformat_alloc_output_context2(&container, nullptr, row_.container, nullptr));
        container_.reset(container);
        auto* buffer = static_cast<unsigned char*>(checked(av_malloc(BufferBytes)));
        io_.reset(checked(
            avio_alloc_context(buffer, BufferBytes, 1, &output_, nullptr, writePacket, seek)));
        container_->pb = io_.get();
        // The same pictures give the same file.
        container_->flags |= AVFMT_FLAG_BITEXACT;
    }

    void openCodec(VideoFormat format, VideoRate rate) {
        const AVCodec* encoder = avcodec_find_encoder(row_.codec);
        if (!encoder) {
            fail(u"the encoder is not installed"_s);
        }
        codec_.reset(checked(avcodec_alloc_context3(encoder)));
        codec_->width = size_.width();
        codec_->height = size_.height();
        codec_->pix_fmt = row_.pixels;
        codec_->time_base = {rate.seconds, rate.count};
        codec_->framerate = {rate.count, rate.seconds};
        codec_->colorspace = AVCOL_SPC_SMPTE170M;  // to which the pictures are scaled
        codec_->thread_count = threadsFor(format, size_);
        if (format == VideoFormat::Avi) {
            codec_->color_range = AVCOL_RANGE_JPEG;
            codec_->flags |= AV_CODEC_FLAG_QSCALE;
            codec_->global_quality = MjpegQuality * FF_QP2LAMBDA;
        } else {
            codec_->color_range = AVCOL_RANGE_MPEG;
            codec_->color_primaries = AVCOL_PRI_SMPTE170M;
            codec_->color_trc = AVCOL_TRC_SMPTE170M;
            check(av_opt_set(codec_->priv_data, "crf", H264Quality, 0));
            if (isLarge(size_)) {
                codec_->refs = 1;
                codec_->max_b_frames = 0;
                check(av_opt_set_int(codec_->priv_data, "rc-lookahead", LookaheadOfLarge, 0));
            }
        }
        if (container_->oformat->flags & AVFMT_GLOBALHEADER) {
            codec_->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        }
        check(avcodec_open2(codec_.get(), encoder, nullptr));
        stream_ = checked(avformat_new_stream(container_.get(), nullptr));
        stream_->time_base = codec_->time_base;
        stream_->avg_frame_rate = codec_->framerate;
        stream_->r_frame_rate = codec_->framerate;
        check(avcodec_parameters_from_context(stream_->codecpar, codec_.get()));
    }

    void prepareScaler(QSize source) {
        if (scaler_ && source == sourceSize_) {
            return;
        }
        sourceSize_ = source;
        scaler_.reset(checked(sws_getContext(source.width(), source.height(), AV_PIX_FMT_RGB32,
                                             size_.width(), size_.height(), row_.pixels,
                                             row_.swsFlags, nullptr, nullptr, nullptr)));
    }

    void encode(const AVFrame* frame) {
        check(avcodec_send_frame(codec_.get(), frame));
        int result = 0;
        while ((result = avcodec_receive_packet(codec_.get(), packet_.get())) >= 0) {
            packet_->duration = 1;
            av_packet_rescale_ts(packet_.get(), codec_->time_base, stream_->time_base);
            packet_->stream_index = stream_->index;
            check(av_interleaved_write_frame(container_.get(), packet_.get()));
        }
        if (result != AVERROR(EAGAIN) && result != AVERROR_EOF) {
            check(result);
        }
    }

    FormatRow row_;
    QSize size_;
    ReplacedFile file_;
    Output output_{file_.device(), {}};
    Handle<AVIOContext> io_;
    Handle<AVFormatContext> container_;
    Handle<AVCodecContext> codec_;
    AVStream* stream_ = nullptr;  ///< the container's
    Handle<AVFrame> frame_;
    Handle<AVPacket> packet_;
    Handle<SwsContext> scaler_;
    QSize sourceSize_;
    std::int64_t next_ = 0;
};

VideoWriter::VideoWriter(const QString& path, VideoFormat format, QSize size, VideoRate rate) {
    if (size != sizeFor(format, size) || rate.count < 1 || rate.seconds < 1) {
        fail(QStringLiteral("%1 x %2 pixels are no size of a video")
                 .arg(size.width())
                 .arg(size.height()));
    }
    av_log_set_level(AV_LOG_QUIET);  // failures are told by us, in our words
    encoder_ = std::make_unique<Encoder>(path, format, size, rate);
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
    encoder_->writing([this, &picture] { encoder_->add(picture); });
}

void VideoWriter::finish() {
    encoder_->writing([this] { encoder_->finish(); });
}

}  // namespace nubivane
