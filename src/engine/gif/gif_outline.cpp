// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/gif_outline.h"

#include "engine/gif/gif_reader.h"

namespace nubivane {

namespace {

/// Reads forward; beyond the end everything is 0 and the walk has failed.
class Walk {
  public:
    explicit Walk(const QByteArray& bytes) : bytes_(bytes) {}

    bool failed() const { return at_ > bytes_.size(); }
    void skip(qsizetype count) { at_ += count; }
    int byte() {
        const int value = at_ < bytes_.size() ? static_cast<uchar>(bytes_[at_]) : 0;
        ++at_;
        return value;
    }
    int word() {
        const int low = byte();
        return low | byte() << 8;
    }
    /// Passes over the palette that a packed byte announces.
    void skipPalette(int packed) {
        if (packed & 0x80) {
            skip(qsizetype{3} << ((packed & 7) + 1));
        }
    }
    void skipSubBlocks() {
        while (!failed()) {
            const int length = byte();
            if (length == 0) {
                return;
            }
            skip(length);
        }
    }

  private:
    const QByteArray& bytes_;
    qsizetype at_ = 0;
};

/// Passes over an image; the far corner of the first one counts for the size.
void walkImage(Walk& walk, GifOutline& outline) {
    const int left = walk.word();
    const int top = walk.word();
    const int width = walk.word();
    const int height = walk.word();
    if (outline.images == 0) {
        outline.size = outline.size.expandedTo({left + width, top + height});
    }
    walk.skipPalette(walk.byte());
    walk.skip(1);  // the code size of the pixels
    walk.skipSubBlocks();
    ++outline.images;
}

}  // namespace

std::optional<GifOutline> gifOutline(const QByteArray& bytes) {
    constexpr int Extension = 0x21;
    constexpr int Image = 0x2C;
    constexpr int Trailer = 0x3B;
    if (!isGif(bytes)) {
        return std::nullopt;
    }
    Walk walk(bytes);
    walk.skip(6);  // the signature
    GifOutline outline;
    outline.size.setWidth(walk.word());
    outline.size.setHeight(walk.word());
    const int packed = walk.byte();
    walk.skip(2);  // background and aspect ratio
    walk.skipPalette(packed);
    while (!walk.failed()) {
        switch (walk.byte()) {
            case Extension:
                walk.skip(1);  // its kind
                walk.skipSubBlocks();
                break;
            case Image:
                walkImage(walk, outline);
                break;
            case Trailer:
                return walk.failed() ? std::nullopt : std::optional(outline);
            default:
                return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace nubivane
