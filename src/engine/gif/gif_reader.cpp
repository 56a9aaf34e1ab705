// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_reader.h"

#include "engine/core/error.h"
#include "engine/core/picture_limits.h"
#include "engine/gif/pixel_lines.h"

#include <QPainter>

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <optional>
#include <span>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void refuse(const QString& cause) {
    throw Error(error_number::InvalidPicture, u"gif"_s, u"Invalid picture."_s, cause);
}

QString reason(int error) {
    return QString::fromLatin1(GifErrorString(error));
}

/// The encoded bytes and how far they have been read.
struct Source {
    const QByteArray& bytes;
    qsizetype at = 0;
};

int readBytes(GifFileType* file, GifByteType* out, int length) {
    auto& source = *static_cast<Source*>(file->UserData);
    const qsizetype count = std::min<qsizetype>(length, source.bytes.size() - source.at);
    std::memcpy(out, source.bytes.constData() + source.at, static_cast<std::size_t>(count));
    source.at += count;
    return static_cast<int>(count);
}

struct CloseGif {
    void operator()(GifFileType* file) const { DGifCloseFile(file, nullptr); }
};

/// The colours of a palette by index; those that the file does not give are black, and the one that
/// stands for transparent is 0.
using Colors = std::array<QRgb, 256>;

Colors colorsOf(const ColorMapObject* palette, int transparent) {
    Colors colors;
    colors.fill(qRgb(0, 0, 0));
    for (int i = 0; palette && i < std::min(palette->ColorCount, 256); ++i) {
        const GifColorType& c = palette->Colors[i];
        colors[static_cast<std::size_t>(i)] = qRgb(c.Red, c.Green, c.Blue);
    }
    if (transparent != NO_TRANSPARENT_COLOR) {
        colors[static_cast<std::size_t>(transparent)] = 0;
    }
    return colors;
}

/// The rows of an image in the order in which the file has them.
std::vector<int> rowOrder(int height, bool interlaced) {
    struct Pass {
        int first;
        int step;
    };
    static constexpr std::array four = {Pass{0, 8}, Pass{4, 8}, Pass{2, 4}, Pass{1, 2}};
    static constexpr std::array one = {Pass{0, 1}};
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(height));
    for (const Pass& pass : interlaced ? std::span<const Pass>(four) : std::span<const Pass>(one)) {
        for (int y = pass.first; y < height; y += pass.step) {
            rows.push_back(y);
        }
    }
    return rows;
}

}  // namespace

/// Walks the records of one file and paints its images on a canvas of the screen's size.
class GifReader {
  public:
    /// What bounds the images together.
    enum class Limits { AllAtOnce, None };

    GifReader(const QByteArray& bytes, Limits limits) : source_{bytes}, limits_(limits) {
        int error = 0;
        file_.reset(DGifOpen(&source_, readBytes, &error));
        if (!file_) {
            refuse(reason(error));
        }
    }

    /// Nothing at the end of the file or where it is damaged.
    std::optional<GifImage> next() {
        GifRecordType record = UNDEFINED_RECORD_TYPE;
        while (!ended_ && DGifGetRecordType(file_.get(), &record) == GIF_OK) {
            complete_ = record == TERMINATE_RECORD_TYPE;
            if (record == IMAGE_DESC_RECORD_TYPE) {
                std::optional<GifImage> image = readImage();
                ended_ = !image;
                return image;
            }
            if (complete_ || !readExtension()) {
                break;
            }
        }
        ended_ = true;
        return std::nullopt;
    }

    bool complete() const { return complete_; }

    QString whyNoImage() const {
        return file_->Error == 0 ? QStringLiteral("the GIF holds no image") : reason(file_->Error);
    }

  private:
    /// False where the file ends or is damaged.
    bool readExtension() {
        int function = 0;
        GifByteType* block = nullptr;
        bool ok = DGifGetExtension(file_.get(), &function, &block) == GIF_OK;
        while (ok && block) {
            GraphicsControlBlock control;
            if (function == GRAPHICS_EXT_FUNC_CODE &&
                DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
                control_ = control;
            }
            ok = DGifGetExtensionNext(file_.get(), &block) == GIF_OK;
        }
        return ok;
    }

    /// Nothing where the file ends or is damaged; the canvas may then be half painted.
    std::optional<GifImage> readImage() {
        if (DGifGetImageDesc(file_.get()) != GIF_OK) {
            return std::nullopt;
        }
        const GifImageDesc& place = file_->Image;
        const QRect rect(place.Left, place.Top, place.Width, place.Height);
        checkLimits(rect);
        if (canvas_.isNull()) {
            makeCanvas(rect);
        } else {
            dispose();
        }
        // A control block counts for one image only.
        const GraphicsControlBlock control = control_.value_or(NoControl);
        control_.reset();
        before_ =
            control.DisposalMode == DISPOSE_PREVIOUS || control.DisposalMode == DisposePreviousToo
                ? canvas_
                : QImage();
        if (!paint(rect, place, control.TransparentColor)) {
            return std::nullopt;
        }
        ++count_;
        lastRect_ = rect;
        lastDisposal_ = control.DisposalMode;
        return GifImage{canvas_, control.DelayTime};
    }

    void checkLimits(const QRect& rect) {
        if (limits_ == Limits::None) {
            return;
        }
        if (count_ == MaxGifImages) {
            refuse(QStringLiteral("more than %1 images").arg(MaxGifImages));
        }
        codedPixels_ += qint64{rect.width()} * rect.height();
        if (codedPixels_ > MaxPicturePixels) {
            refuse(QStringLiteral("the images have more than %1 pixels").arg(MaxPicturePixels));
        }
        if (count_ > 0 && (count_ + 1) * canvas_.sizeInBytes() > MaxGifBytes) {
            refuse(QStringLiteral("the decoded images take more than %1 bytes").arg(MaxGifBytes));
        }
    }

    void makeCanvas(const QRect& firstRect) {
        const QSize size = QSize(file_->SWidth, file_->SHeight)
                               .expandedTo({firstRect.left() + firstRect.width(),
                                            firstRect.top() + firstRect.height()});
        if (size.isEmpty()) {
            refuse(u"the picture has no size"_s);
        }
        if (size.width() > MaxPictureSide || size.height() > MaxPictureSide ||
            qint64{size.width()} * size.height() > MaxPicturePixels) {
            refuse(
                QStringLiteral("%1 x %2 pixels are too many").arg(size.width()).arg(size.height()));
        }
        canvas_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
        if (canvas_.isNull()) {
            refuse(u"there is not enough memory"_s);
        }
        canvas_.fill(Qt::transparent);
    }

    /// Does with the image before what its disposal asks for.
    void dispose() {
        if (!before_.isNull()) {
            canvas_ = before_;
        } else if (lastDisposal_ == DISPOSE_BACKGROUND) {
            QPainter painter(&canvas_);
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            painter.fillRect(lastRect_, Qt::transparent);
        }
    }

    bool paint(const QRect& rect, const GifImageDesc& place, int transparent) {
        if (rect.isEmpty()) {
            return skipPixels();
        }
        const Colors colors =
            colorsOf(place.ColorMap ? place.ColorMap : file_->SColorMap, transparent);
        const int visible = std::min(rect.width(), canvas_.width() - rect.left());
        std::vector<GifPixelType> indexes(static_cast<std::size_t>(rect.width()));
        for (const int row : rowOrder(rect.height(), place.Interlace)) {
            if (DGifGetLine(file_.get(), indexes.data(), rect.width()) != GIF_OK) {
                return false;
            }
            const int y = rect.top() + row;
            if (y >= canvas_.height()) {
                continue;
            }
            QRgb* line = lineOf(canvas_, y);
            for (int x = 0; x < visible; ++x) {
                const QRgb color = colors[indexes[static_cast<std::size_t>(x)]];
                if (color != 0) {
                    line[rect.left() + x] = color;
                }
            }
        }
        return true;
    }

    bool skipPixels() {
        GifByteType* block = nullptr;
        do {
            if (DGifGetCodeNext(file_.get(), &block) != GIF_OK) {
                return false;
            }
        } while (block);
        return true;
    }

    static constexpr GraphicsControlBlock NoControl{DISPOSAL_UNSPECIFIED, false, 0,
                                                    NO_TRANSPARENT_COLOR};
    /// What some encoders write for DISPOSE_PREVIOUS, having read a bit mask as a number.
    static constexpr int DisposePreviousToo = 4;

    Source source_;
    std::unique_ptr<GifFileType, CloseGif> file_;
    std::optional<GraphicsControlBlock> control_;  ///< for the image to come
    Limits limits_;
    bool ended_ = false;
    bool complete_ = false;
    qint64 count_ = 0;  ///< images so far
    qint64 codedPixels_ = 0;
    QImage canvas_;
    QImage before_;  ///< what comes back after the last image; null when nothing does
    QRect lastRect_;
    int lastDisposal_ = DISPOSAL_UNSPECIFIED;
};

bool isGif(const QByteArray& bytes) {
    return bytes.startsWith(GIF87_STAMP) || bytes.startsWith(GIF89_STAMP);
}

std::vector<GifImage> readGif(const QByteArray& bytes) {
    GifReader reader(bytes, GifReader::Limits::AllAtOnce);
    std::vector<GifImage> images;
    while (std::optional<GifImage> image = reader.next()) {
        images.push_back(std::move(*image));
    }
    if (images.empty()) {
        refuse(reader.whyNoImage());
    }
    return images;
}

GifImages::GifImages(const QByteArray& bytes)
    : reader_(std::make_unique<GifReader>(bytes, GifReader::Limits::None)) {}

GifImages::~GifImages() = default;

std::optional<GifImage> GifImages::next() {
    return reader_->next();
}

bool GifImages::complete() const {
    return reader_->complete();
}

}  // namespace nubivane
