// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/gif/lzw_encoder.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

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
    explicit StringTable(int bits) : firstFree_((1 << bits) + 2), runs_(std::size_t{1} << bits) {
        clear();
    }

    void clear() {
        keys_.fill(Empty);
        next_ = firstFree_;
        for (std::size_t index = 0; index < runs_.size(); ++index) {
            runs_[index].assign(1, static_cast<std::int16_t>(index));
        }
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
        last_ = i;
        if (runs_[index].back() == prefix) {
            runs_[index].push_back(codes_[i]);
        }
    }

    /// Forgets the string that was added last.
    void dropLast() {
        std::vector<std::int16_t>& run = runs_[keys_[last_] & 0xFF];
        if (run.back() == codes_[last_]) {
            run.pop_back();
        }
        keys_[last_] = Empty;
        --next_;
    }

    /// The codes of strings of one index alone, by their length, from 1 on.
    const std::vector<std::int16_t>& runs(std::uint8_t index) const { return runs_[index]; }

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
    std::size_t last_ = 0;
    int firstFree_;
    int next_ = 0;
    std::vector<std::vector<std::int16_t>> runs_;
};

/// Follows known strings through an image and learns new ones, as a reader of the codes will.
class StringWalk {
  public:
    using Pixels = std::span<const std::uint8_t>;

    StringWalk(Pixels pixels, Pixels alternatives, int bits)
        : pixels_(pixels),
          alternatives_(alternatives),
          bits_(bits),
          table_(bits),
          runs_(pixels.size(), 1) {
        for (std::size_t i = pixels.size(); i-- > 1;) {
            if (pixels[i - 1] == pixels[i]) {
                runs_[i - 1] = runs_[i] + 1;
            }
        }
    }

    void startOver() {
        table_.clear();
        width_ = bits_ + 1;
    }

    /// A known string and the place behind it.
    struct String {
        int code;
        std::size_t end;
    };

    /// The string at a place that comes of always taking what is known, the pixel's own index
    /// first; `passing(place)` hears how far it has come.
    template <class Passing>
    String firstAt(std::size_t begin, std::size_t end, Passing passing) const {
        // Most pixels lie in plain areas; what is known of those is passed over at once.
        const std::vector<std::int16_t>& runs = table_.runs(pixels_[begin]);
        const std::size_t skipped = std::min({runs.size(), std::size_t{runs_[begin]}, end - begin});
        int code = runs[skipped - 1];
        std::size_t at = begin + skipped;
        for (; at < end; ++at) {
            passing(at);
            int longer = table_.find(code, pixels_[at]);
            if (longer < 0 && hasChoice(at)) {
                longer = table_.find(code, alternatives_[at]);
            }
            if (longer < 0) {
                break;
            }
            code = longer;
        }
        return {code, at};
    }

    /// The longest of the strings at a place that begin with an index, whichever indexes follow.
    String longestAt(std::size_t begin, std::uint8_t index, std::size_t end) const {
        std::array<int, MaxBranches> branches{index};
        std::size_t count = 1;
        std::size_t at = begin + 1;
        for (; at < end; ++at) {
            std::array<int, MaxBranches> longer{};
            std::size_t found = 0;
            const auto follow = [&](int code, std::uint8_t next) {
                const int known = table_.find(code, next);
                if (known >= 0 && found < MaxBranches) {
                    longer[found++] = known;
                }
            };
            for (std::size_t i = 0; i < count; ++i) {
                follow(branches[i], pixels_[at]);
                if (hasChoice(at)) {
                    follow(branches[i], alternatives_[at]);
                }
            }
            if (found == 0) {
                break;
            }
            branches = longer;
            count = found;
        }
        return {branches[0], at};
    }

    /// The next string after one that was written, which is learned with the index that begins
    /// the longer continuation.
    String learnAndFollow(const String& written, std::size_t end) {
        const std::size_t at = written.end;
        if (table_.full()) {
            return longestAt(at, pixels_[at], end);
        }
        table_.add(written.code, pixels_[at]);
        const String own = longestAt(at, pixels_[at], end);
        if (!hasChoice(at)) {
            return own;
        }
        table_.dropLast();
        table_.add(written.code, alternatives_[at]);
        const String other = longestAt(at, alternatives_[at], end);
        if (other.end > own.end) {
            return other;
        }
        table_.dropLast();
        table_.add(written.code, pixels_[at]);
        return own;
    }

    /// To be called when a string's code was written: a reader knows each string one code later
    /// than we do, and widens its codes then.
    void widen() {
        if (table_.next() == 1 << width_ && width_ < MaxWidth) {
            ++width_;
        }
    }
    /// The string and the pixel behind it are a new one, as long as there is room for it.
    void learn(const String& string) {
        if (!table_.full()) {
            table_.add(string.code, pixels_[string.end]);
        }
    }

    bool full() const { return table_.full(); }
    bool hasChoices() const { return !alternatives_.empty(); }
    int width() const { return width_; }
    std::size_t size() const { return pixels_.size(); }
    std::uint8_t at(std::size_t place) const { return pixels_[place]; }

  private:
    static constexpr int MaxWidth = 12;
    static constexpr std::size_t MaxBranches = 4;

    bool hasChoice(std::size_t at) const {
        return !alternatives_.empty() && alternatives_[at] != pixels_[at];
    }

    Pixels pixels_;
    Pixels alternatives_;
    int bits_;
    StringTable table_;
    std::vector<std::uint32_t> runs_;  ///< by place: how many pixels from there on are alike
    int width_ = 0;
};

/// Where new tables begin, beside the start of the image.
using Places = std::vector<std::size_t>;

class LzwEncoder {
  public:
    LzwEncoder(StringWalk& walk, int bits)
        : walk_(walk), clearCode_(1 << bits), width_(bits + 1), stream_(bits) {}

    /// With a new table whenever one is full.
    QByteArray encode() {
        startOver();
        for (std::size_t at = 0; at < walk_.size();) {
            const bool full = walk_.full();
            at = writeFirst(at, walk_.size());
            if (full && at < walk_.size()) {
                startOver();
            }
        }
        return finish();
    }

    /// With new tables at given places.
    QByteArray encode(const Places& places) {
        std::size_t at = 0;
        for (std::size_t i = 0; i <= places.size(); ++i) {
            startOver();
            const std::size_t end = i < places.size() ? places[i] : walk_.size();
            while (at < end) {
                at = writeFirst(at, end);
            }
        }
        return finish();
    }

    /// With one table, and several strings followed at once.
    QByteArray encodeLongest() {
        startOver();
        const std::size_t end = walk_.size();
        StringWalk::String string = walk_.longestAt(0, walk_.at(0), end);
        write(string.code);
        while (string.end < end) {
            string = walk_.learnAndFollow(string, end);
            write(string.code);
        }
        return finish();
    }

    /// How often the table was begun.
    int tables() const { return tables_; }

  private:
    void write(int code) {
        stream_.put(code, walk_.width());
        walk_.widen();
    }

    /// Writes the code of the string at a place; returns the place behind it.
    std::size_t writeFirst(std::size_t begin, std::size_t end) {
        const StringWalk::String string = walk_.firstAt(begin, end, [](std::size_t) {});
        write(string.code);
        if (string.end < end) {
            walk_.learn(string);
        }
        return string.end;
    }

    void startOver() {
        stream_.put(clearCode_, tables_ == 0 ? width_ : walk_.width());
        walk_.startOver();
        ++tables_;
    }

    QByteArray finish() {
        stream_.put(clearCode_ + 1, walk_.width());
        return stream_.finish();
    }

    StringWalk& walk_;
    int clearCode_;
    int width_;  ///< of the first code
    CodeStream stream_;
    int tables_ = 0;
};

/// Finds the places where new tables should begin: the shortest way from the start of the image to
/// its end over a grid of places, each step being the strings between two of them coded with a
/// table of their own.
class ClearPlan {
  public:
    ClearPlan(StringWalk& walk, int tables)
        : walk_(walk),
          count_(std::min(walk.size(), placesFor(tables, walk.hasChoices()))),
          bits_(count_ + 1, Unreached),
          from_(count_ + 1, 0) {}

    Places find() {
        bits_[0] = 0;
        for (std::size_t i = 0; i < count_; ++i) {
            follow(i);
        }
        Places places;
        for (std::size_t i = from_[count_]; i > 0; i = from_[i]) {
            places.push_back(place(i));
        }
        std::reverse(places.begin(), places.end());
        return places;
    }

  private:
    /// Codes for which a full table is followed on: it may serve longer than a new one.
    static constexpr int CodesWhenFull = 4096;
    static constexpr std::size_t Unreached = SIZE_MAX;

    /// More find hardly better ways in more time. Images that have choices are changes, of which
    /// there are many in an animation and but one whole image.
    static std::size_t placesFor(int tables, bool isChange) {
        const auto count = static_cast<std::size_t>(tables);
        return isChange ? 3 * count : 48 + 2 * count;
    }

    std::size_t place(std::size_t i) const { return walk_.size() * i / count_; }

    /// Tries how far a table goes that begins at a place.
    void follow(std::size_t begin) {
        walk_.startOver();
        std::size_t bits = bits_[begin] + static_cast<std::size_t>(walk_.width());
        std::size_t next = begin + 1;
        std::size_t nextAt = place(next);
        const auto reach = [&](std::size_t at) {
            // A string may be cut at any place, and a new table begun.
            while (at >= nextAt) {
                const std::size_t sum = bits + static_cast<std::size_t>(walk_.width());
                if (sum < bits_[next]) {
                    bits_[next] = sum;
                    from_[next] = begin;
                }
                nextAt = ++next <= count_ ? place(next) : SIZE_MAX;
            }
        };
        int codesWhenFull = 0;
        for (std::size_t at = place(begin); at < walk_.size() && codesWhenFull < CodesWhenFull;) {
            const StringWalk::String string = walk_.firstAt(at, walk_.size(), reach);
            if (string.end == walk_.size()) {
                reach(string.end);
                return;
            }
            bits += static_cast<std::size_t>(walk_.width());
            walk_.widen();
            codesWhenFull += walk_.full() ? 1 : 0;
            walk_.learn(string);
            at = string.end;
        }
    }

    StringWalk& walk_;
    std::size_t count_;              ///< of the places behind the first
    std::vector<std::size_t> bits_;  ///< by place: what all before it takes
    std::vector<std::size_t> from_;  ///< by place: where the table before it begins
};

}  // namespace

QByteArray encodeLzw(std::span<const std::uint8_t> pixels,
                     std::span<const std::uint8_t> alternatives, int bits, LzwEffort effort) {
    StringWalk walk(pixels, alternatives, bits);
    LzwEncoder encoder(walk, bits);
    QByteArray best = encoder.encode();
    if (effort == LzwEffort::Quick) {
        return best;
    }
    const auto keepShorter = [&best](QByteArray coded) {
        if (coded.size() < best.size()) {
            best = std::move(coded);
        }
    };
    if (encoder.tables() > 1) {
        keepShorter(LzwEncoder(walk, bits).encode(ClearPlan(walk, encoder.tables()).find()));
    } else if (walk.hasChoices()) {
        // In longer images the choice matters less, and takes long.
        keepShorter(LzwEncoder(walk, bits).encodeLongest());
    }
    return best;
}

}  // namespace nubivane
