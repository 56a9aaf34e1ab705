// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/lzx_decoder.h"

#include "engine/help/help_error.h"
#include "engine/help/huffman_code.h"

#include <algorithm>

namespace nubivane {

namespace {

constexpr int Literals = 256;
constexpr int ShortestMatch = 2;
constexpr int LongestHeaderLength = 7;  // a longer match has the rest of its length coded apart
constexpr int MaxSlots = 50;

/// The distances of a position slot: the first of them, and how many bits tell which one.
struct Slot {
    std::uint32_t base;
    int extraBits;
};

constexpr std::array<Slot, MaxSlots + 1> makeSlotTable() {
    std::array<Slot, MaxSlots + 1> slotTable{};
    std::uint32_t base = 0;
    for (int i = 0; i <= MaxSlots; ++i) {
        const int extraBits = i < 4 ? 0 : std::min(i / 2 - 1, 17);
        slotTable[static_cast<std::size_t>(i)] = {base, extraBits};
        base += 1U << extraBits;
    }
    return slotTable;
}

constexpr std::array<Slot, MaxSlots + 1> slotTable = makeSlotTable();

/// How many slots reach over the whole window.
int slotCount(qint64 windowSize) {
    if (!LzxDecoder::isWindowSize(windowSize)) {
        throw damagedHelp("a window size that there is not");
    }
    int count = 0;
    while (slotTable[static_cast<std::size_t>(count)].base < windowSize) {
        ++count;
    }
    return count;
}

}  // namespace

bool LzxDecoder::isWindowSize(qint64 bytes) {
    constexpr qint64 Smallest = 1 << 15;
    constexpr qint64 Largest = 1 << 21;
    return bytes >= Smallest && bytes <= Largest && (bytes & (bytes - 1)) == 0;
}

LzxDecoder::LzxDecoder(qint64 windowSize)
    : mainLengths_(static_cast<std::size_t>(Literals + slotCount(windowSize) * 8)) {}

LzxDecoder::~LzxDecoder() = default;

void LzxDecoder::unpackFrame(QByteArrayView packed, qsizetype size) {
    packed_ = packed;
    next_ = 0;
    wordBits_ = 0;
    if (!started_) {
        started_ = true;
        readRunHeader();
    }
    const qsizetype begin = unpacked_.size();
    const qsizetype end = begin + std::min<qsizetype>(size, FrameSize);
    unpacked_.reserve(begin + FrameSize);
    while (unpacked_.size() < end) {
        if (blockLeft_ == 0) {
            readBlockHeader();
        }
        const qsizetype before = unpacked_.size();
        const qsizetype blockEnd = before + blockLeft_;
        if (block_ == Block::Raw) {
            unpackRaw(std::min(end, blockEnd) - before);
        } else {
            unpackCoded(std::min(end, blockEnd), std::min<qsizetype>(begin + FrameSize, blockEnd));
        }
        blockLeft_ -= unpacked_.size() - before;
    }
    // A last frame is packed with what fills it up.
    unpacked_.truncate(end);
}

std::uint32_t LzxDecoder::word() {
    if (packed_.size() - next_ < 2) {
        throw damagedHelp("packed bytes end too soon");
    }
    const auto low = static_cast<std::uint8_t>(packed_[next_]);
    const auto high = static_cast<std::uint8_t>(packed_[next_ + 1]);
    next_ += 2;
    return low | static_cast<std::uint32_t>(high) << 8;
}

std::uint32_t LzxDecoder::bit() {
    if (wordBits_ == 0) {
        word_ = word();
        wordBits_ = 16;
    }
    return word_ >> --wordBits_ & 1;
}

std::uint32_t LzxDecoder::bits(int count) {
    std::uint32_t value = 0;
    for (int i = 0; i < count; ++i) {
        value = value << 1 | bit();
    }
    return value;
}

/// Programs can be packed with their jump targets made absolute; help files never are.
void LzxDecoder::readRunHeader() {
    if (bit() != 0) {
        throw damagedHelp("packed as a program");
    }
}

void LzxDecoder::readBlockHeader() {
    if (padding_) {
        padding_ = false;
        ++next_;
    }
    const std::uint32_t kind = bits(3);
    blockLeft_ = static_cast<qsizetype>(bits(24));
    if (kind < 1 || kind > 3 || blockLeft_ == 0) {
        throw damagedHelp("a block of no known kind");
    }
    block_ = static_cast<Block>(kind);
    if (block_ == Block::Raw) {
        readRawHeader();
    } else {
        readCodes();
    }
}

void LzxDecoder::readCodes() {
    if (block_ == Block::Aligned) {
        for (std::uint8_t& length : alignedLengths_) {
            length = static_cast<std::uint8_t>(bits(3));
        }
    }
    const std::span<std::uint8_t> main(mainLengths_);
    readLengths(main.first(Literals));
    readLengths(main.subspan(Literals));
    readLengths(lengthLengths_);
    codes_.clear();
    codes_.emplace_back(mainLengths_);
    codes_.emplace_back(lengthLengths_);
    if (block_ == Block::Aligned) {
        codes_.emplace_back(alignedLengths_);
    }
}

/// The lengths of a code's symbols, told as differences from those of the block before, themselves
/// coded.
void LzxDecoder::readLengths(std::span<std::uint8_t> lengths) {
    std::array<std::uint8_t, 20> ownLengths{};
    for (std::uint8_t& length : ownLengths) {
        length = static_cast<std::uint8_t>(bits(4));
    }
    const HuffmanCode code(ownLengths);
    const auto next = [this, &code] { return code.decode([this] { return bit(); }); };
    const auto changed = [](std::uint8_t old, int difference) {
        return static_cast<std::uint8_t>((old + 17 - difference) % 17);
    };
    std::size_t i = 0;
    while (i < lengths.size()) {
        const int symbol = next();
        std::size_t count = 1;
        std::uint8_t value = 0;
        if (symbol == 17) {
            count = 4 + bits(4);
        } else if (symbol == 18) {
            count = 20 + bits(5);
        } else if (symbol == 19) {
            count = 4 + bits(1);
            const int difference = next();
            if (difference > 16) {
                throw damagedHelp("a repetition of a repetition");
            }
            value = changed(lengths[i], difference);
        } else {
            value = changed(lengths[i], symbol);
        }
        if (count > lengths.size() - i) {
            throw damagedHelp("more lengths than symbols");
        }
        std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(i), count, value);
        i += count;
    }
}

/// Raw bytes begin with the next word; where the header ends with one, a whole word is left out.
void LzxDecoder::readRawHeader() {
    if (wordBits_ == 0) {
        word();
    }
    wordBits_ = 0;
    for (std::uint32_t& distance : recent_) {
        distance = word();
        distance |= word() << 16;
    }
    padding_ = blockLeft_ % 2 != 0;
}

void LzxDecoder::unpackRaw(qsizetype count) {
    if (packed_.size() - next_ < count) {
        throw damagedHelp("packed bytes end too soon");
    }
    unpacked_.append(packed_.sliced(next_, count).data(), count);
    next_ += count;
}

/// Until `end` is reached; what is repeated last may go on to `limit`.
void LzxDecoder::unpackCoded(qsizetype end, qsizetype limit) {
    const HuffmanCode& main = codes_.front();
    while (unpacked_.size() < end) {
        const int symbol = main.decode([this] { return bit(); });
        if (symbol < Literals) {
            unpacked_.append(static_cast<char>(symbol));
        } else {
            repeat(symbol - Literals, limit);
        }
    }
}

void LzxDecoder::repeat(int symbol, qsizetype limit) {
    int length = symbol % 8;
    if (length == LongestHeaderLength) {
        length += codes_[1].decode([this] { return bit(); });
    }
    length += ShortestMatch;
    const std::uint32_t distance = distanceOf(symbol / 8);
    if (distance == 0 || distance > static_cast<std::uint64_t>(unpacked_.size()) ||
        length > limit - unpacked_.size()) {
        throw damagedHelp("a repetition of what is not there");
    }
    // Byte by byte, for what is repeated may begin inside the repetition.
    for (int i = 0; i < length; ++i) {
        unpacked_.append(unpacked_[unpacked_.size() - static_cast<qsizetype>(distance)]);
    }
}

/// How far back a match lies. The first three slots are the distances used last, which come to the
/// front when they are used again.
std::uint32_t LzxDecoder::distanceOf(int slot) {
    if (slot < 3) {
        std::swap(recent_[0], recent_[static_cast<std::size_t>(slot)]);
        return recent_[0];
    }
    recent_[2] = recent_[1];
    recent_[1] = recent_[0];
    recent_[0] = farDistance(slot);
    return recent_[0];
}

std::uint32_t LzxDecoder::farDistance(int slot) {
    constexpr int AlignedBits = 3;
    const auto [base, extraBits] = slotTable[static_cast<std::size_t>(slot)];
    if (block_ == Block::Aligned && extraBits >= AlignedBits) {
        const std::uint32_t high = bits(extraBits - AlignedBits) << AlignedBits;
        const int low = codes_[2].decode([this] { return bit(); });
        return base - 2 + high + static_cast<std::uint32_t>(low);
    }
    return base - 2 + bits(extraBits);
}

}  // namespace nubivane
