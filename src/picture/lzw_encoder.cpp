#include "picture/lzw_encoder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace nubivane {

namespace {

constexpr int MaxCodes = 4096;

/// Collects codes of growing width, lowest bit first, in sub-blocks of at most 255 bytes.
class CodeStream {
  public:
    explicit CodeStream(int bits) { bytes_.append(static_cast<char>(bits)); }

    void put(int code, int width) {
        pending_ |= static_cast<std::uint64_t>(code) << filled_;
        filled_ += width;
        while (filled_ >= 8) {
            putByte();
        }
    }

    QByteArray finish() {
        if (filled_ > 0) {
            putByte();
        }
        closeBlock();
        bytes_.append('\0');
        return std::move(bytes_);
    }

  private:
    void putByte() {
        block_[used_++] = static_cast<char>(pending_ & 0xFF);
        pending_ >>= 8;
        filled_ = std::max(0, filled_ - 8);
        if (used_ == block_.size()) {
            closeBlock();
        }
    }

    void closeBlock() {
        if (used_ > 0) {
            bytes_.append(static_cast<char>(used_));
            bytes_.append(block_.data(), static_cast<qsizetype>(used_));
            used_ = 0;
        }
    }

    QByteArray bytes_;
    std::array<char, 255> block_{};
    std::size_t used_ = 0;
    std::uint64_t pending_ = 0;
    int filled_ = 0;
};

/// The strings known so far: the code of a known string and one more index.
class StringTable {
  public:
    explicit StringTable(int bits) : firstFree_((1 << bits) + 2) { clear(); }

    void clear() {
        keys_.fill(Empty);
        next_ = firstFree_;
    }

    /// The code of the longer string, or -1.
    int find(int prefix, std::uint8_t index) const {
        const std::uint32_t key = keyOf(prefix, index);
        for (std::size_t i = hash(key);; i = (i + 1) % Size) {
            if (keys_[i] == key) {
                return codes_[i];
            }
            if (keys_[i] == Empty) {
                return -1;
            }
        }
    }

    void add(int prefix, std::uint8_t index) {
        const std::uint32_t key = keyOf(prefix, index);
        std::size_t i = hash(key);
        while (keys_[i] != Empty) {
            i = (i + 1) % Size;
        }
        keys_[i] = key;
        codes_[i] = static_cast<std::int16_t>(next_++);
    }

    bool full() const { return next_ == MaxCodes; }
    int next() const { return next_; }

  private:
    static constexpr std::size_t Size = 16384;
    static constexpr std::uint32_t Empty = 0xFFFFFFFF;

    static std::uint32_t keyOf(int prefix, std::uint8_t index) {
        return static_cast<std::uint32_t>(prefix) << 8 | index;
    }
    static std::size_t hash(std::uint32_t key) { return key * 2654435761U >> 18; }

    std::array<std::uint32_t, Size> keys_{};
    std::array<std::int16_t, Size> codes_{};
    int firstFree_;
    int next_ = 0;
};

/// Tells when a full table has ceased to serve: when a stretch of the image takes clearly more
/// codes than the best stretch since the table was filled.
class TableWatch {
  public:
    void reset() { *this = TableWatch(); }

    /// To be told of each string written with a full table; true when it is time for a new one.
    bool hasGrownOld(std::size_t pixels) {
        pixels_ += pixels;
        if (++codes_ < Stretch) {
            return false;
        }
        const std::size_t covered = std::exchange(pixels_, 0);
        codes_ = 0;
        best_ = std::max(best_, covered);
        return covered * 8 < best_ * 7;
    }

  private:
    static constexpr int Stretch = 512;
    std::size_t pixels_ = 0;
    std::size_t best_ = 0;
    int codes_ = 0;
};

class LzwEncoder {
  public:
    LzwEncoder(int bits, LzwTable mode)
        : bits_(bits), mode_(mode), clearCode_(1 << bits), stream_(bits), table_(bits) {}

    QByteArray encode(std::span<const std::uint8_t> pixels,
                      std::span<const std::uint8_t> alternatives) {
        startOver();
        std::size_t at = 0;
        while (at < pixels.size()) {
            at = writeString(pixels, alternatives, at);
        }
        stream_.put(clearCode_ + 1, width_);
        return stream_.finish();
    }

  private:
    /// Writes the code of the longest known string at a place; returns the place behind it.
    std::size_t writeString(std::span<const std::uint8_t> pixels,
                            std::span<const std::uint8_t> alternatives, std::size_t begin) {
        int code = pixels[begin];
        std::size_t at = begin + 1;
        for (; at < pixels.size(); ++at) {
            int longer = table_.find(code, pixels[at]);
            if (longer < 0 && !alternatives.empty() && alternatives[at] != pixels[at]) {
                longer = table_.find(code, alternatives[at]);
            }
            if (longer < 0) {
                break;
            }
            code = longer;
        }
        stream_.put(code, width_);
        // A reader knows each string one code later than we do, and widens its codes then.
        if (table_.next() == 1 << width_ && width_ < 12) {
            ++width_;
        }
        if (at < pixels.size()) {
            learn(code, pixels[at], at - begin);
        }
        return at;
    }

    void learn(int code, std::uint8_t index, std::size_t length) {
        if (!table_.full()) {
            table_.add(code, index);
        } else if (mode_ == LzwTable::StartOver || watch_.hasGrownOld(length)) {
            startOver();
        }
    }

    void startOver() {
        stream_.put(clearCode_, width_);
        table_.clear();
        watch_.reset();
        width_ = bits_ + 1;
    }

    int bits_;
    LzwTable mode_;
    int clearCode_;
    CodeStream stream_;
    StringTable table_;
    TableWatch watch_;
    int width_ = bits_ + 1;
};

}  // namespace

QByteArray encodeLzw(std::span<const std::uint8_t> pixels,
                     std::span<const std::uint8_t> alternatives, int bits, LzwTable table) {
    return LzwEncoder(bits, table).encode(pixels, alternatives);
}

}  // namespace nubivane
