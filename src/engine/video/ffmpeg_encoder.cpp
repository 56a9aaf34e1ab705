// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/video/video_encoder.h"

#include <QThread>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace nubivane {

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

void check(int result) {
    if (result < 0) {
        std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
        av_strerror(result, text.data(), text.size());
        throw std::runtime_error(text.data());
    }
}

template <class T>
T* checked(T* made) {
    if (!made) {
        throw std::runtime_error("there is not enough memory");
    }
    return made;
}

int writePacket(void* output, std::uint8_t* bytes, int size) {
    const bool written =
        static_cast<VideoOutput*>(output)->write(reinterpret_cast<const char*>(bytes), size);
    return written ? size : AVERROR(EIO);
}

std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
    auto& output = *static_cast<VideoOutput*>(opaque);
    if (whence == AVSEEK_SIZE) {
        return output.size();
    }
    const qint64 base = whence == SEEK_CUR   ? output.place()
                        : whence == SEEK_END ? output.size()
                                             : 0;
    return output.seek(base + offset) ? output.place() : AVERROR(EIO);
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

/// The libraries' objects in the order in which they need each other.
class FfmpegEncoder final : public VideoEncoder {
  public:
    FfmpegEncoder(VideoOutput& output, VideoFormat format, QSize size, VideoRate rate)
        : row_(rowOf(format)), size_(size), output_(output) {
        openContainer();
        openCodec(format, rate);
        frame_.reset(checked(av_frame_alloc()));
        frame_->format = row_.pixels;
        frame_->width = size.width();
        frame_->height = size.height();
        check(av_frame_get_buffer(frame_.get(), 0));
        packet_.reset(checked(av_packet_alloc()));
        writeHeader(format);
    }

    void add(const QImage& picture) override {
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

    void finish() override {
        encode(nullptr);
        check(av_write_trailer(container_.get()));
        avio_flush(io_.get());
    }

  private:
    void writeHeader(VideoFormat format) {
        AVDictionary* options = nullptr;
        if (format == VideoFormat::Mp4) {
            // The table of contents goes to the front, so that a page plays what it has loaded. For
            // that the library reads its own file again.
            const QByteArray url = "file:" + output_.path();
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
            throw std::runtime_error("the encoder is not installed");
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
    VideoOutput& output_;
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

}  // namespace

}  // namespace nubivane

extern "C" Q_DECL_EXPORT nubivane::VideoEncoder* nubivane_make_video_encoder(
    nubivane::VideoOutput& output, nubivane::VideoFormat format, QSize size,
    nubivane::VideoRate rate) {
    av_log_set_level(AV_LOG_QUIET);  // failures are told by us, in our words
    return new nubivane::FfmpegEncoder(output, format, size, rate);
}
