// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace nubivane {

class HuffmanCode;

/// Unpacks one run of LZX, the packing of compiled help files: a run begins anew, with nothing
/// before it to repeat from, and is cut into frames of 32 KB, each with its own packed bytes.
///
/// Raises `Error` for bytes that no packer writes; it never reads or writes outside its buffers,
/// whatever they hold.
class LzxDecoder {
  public:
    static constexpr int FrameSize = 32768;  // bytes, unpacked

    /// A power of two from 32 KB to 2 MB.
    static bool isWindowSize(qint64 bytes);

    /// Raises `Error` for a size that is none.
    explicit LzxDecoder(qint64 windowSize);
    ~LzxDecoder();

    /// Appends the next frame, of `size` bytes, at most FrameSize.
    void unpackFrame(QByteArrayView packed, qsizetype size);

    /// All frames so far.
    const QByteArray& unpacked() const { return unpacked_; }

  private:
    enum class Block { None, Verbatim, Aligned, Raw };

    std::uint32_t bit();
    std::uint32_t bits(int count);
    std::uint32_t word();

    void readRunHeader();
    void readBlockHeader();
    void readCodes();
    void readLengths(std::span<std::uint8_t> lengths);
    void readRawHeader();

    void unpackRaw(qsizetype count);
    void unpackCoded(qsizetype end, qsizetype limit);
    void repeat(int symbol, qsizetype limit);
    std::uint32_t distanceOf(int slot);
    std::uint32_t farDistance(int slot);

    QByteArrayView packed_;
    qsizetype next_ = 0;  ///< first byte not yet in `word_`
    std::uint32_t word_ = 0;
    int wordBits_ = 0;  ///< bits of it not yet used

    bool started_ = false;
    Block block_ = Block::None;
    qsizetype blockLeft_ = 0;  ///< bytes, unpacked
    bool padding_ = false;     ///< an odd raw block is followed by a byte without meaning
    std::array<std::uint32_t, 3> recent_{1, 1, 1};
    std::vector<std::uint8_t> mainLengths_;
    std::array<std::uint8_t, 249> lengthLengths_{};
    std::array<std::uint8_t, 8> alignedLengths_{};
    std::vector<HuffmanCode> codes_;  ///< main, length and, in an aligned block, aligned
    QByteArray unpacked_;
};

}  // namespace nubivane
