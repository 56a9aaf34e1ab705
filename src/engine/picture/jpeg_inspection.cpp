// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_inspection.h"

#include "engine/picture/jpeg_errors.h"

#include <array>
#include <cstring>
#include <iterator>
#include <vector>

namespace nubivane {

namespace {

/// A JPEG file that is being read.
class JpegFile {
  public:
    explicit JpegFile(const QByteArray& bytes) : bytes_(bytes) {
        file.err = errors.handler();
        created_ = errors.survives([this] { jpeg_create_decompress(&file); });
    }
    ~JpegFile() { jpeg_destroy_decompress(&file); }
    JpegFile(const JpegFile&) = delete;
    JpegFile& operator=(const JpegFile&) = delete;

    bool readHeader() {
        return created_ && errors.survives([this] {
            jpeg_mem_src(&file, reinterpret_cast<const uchar*>(bytes_.constData()),
                         static_cast<unsigned long>(bytes_.size()));
            jpeg_read_header(&file, TRUE);
        });
    }

    JpegErrors errors;
    jpeg_decompress_struct file{};

  private:
    const QByteArray& bytes_;
    bool created_ = false;
};

/// By their numbers; one that a file does not have is empty.
using Tables = std::array<std::vector<UINT16>, NUM_QUANT_TBLS>;

Tables tablesOf(JQUANT_TBL* const (&tables)[NUM_QUANT_TBLS]) {
    Tables result;
    for (std::size_t i = 0; i < result.size(); ++i) {
        if (tables[i]) {
            result[i].assign(std::begin(tables[i]->quantval), std::end(tables[i]->quantval));
        }
    }
    return result;
}

/// The tables with which a quality is encoded.
Tables tablesOf(int quality) {
    JpegErrors errors;
    jpeg_compress_struct file{};
    file.err = errors.handler();
    Tables tables;
    const bool made = errors.survives([&file, quality] {
        jpeg_create_compress(&file);
        file.input_components = JpegChannels;
        file.in_color_space = JCS_RGB;
        jpeg_set_defaults(&file);
        jpeg_set_quality(&file, quality, TRUE);
    });
    if (made) {
        tables = tablesOf(file.quant_tbl_ptrs);
    }
    jpeg_destroy_compress(&file);
    return tables;
}

}  // namespace

bool hasJpegQuality(const QByteArray& bytes, int quality) {
    JpegFile jpeg(bytes);
    return jpeg.readHeader() && jpeg.file.num_components == JpegChannels &&
           tablesOf(jpeg.file.quant_tbl_ptrs) == tablesOf(quality);
}

bool isWholeJpeg(const QByteArray& bytes) {
    JpegFile jpeg(bytes);
    if (!jpeg.readHeader()) {
        return false;
    }
    jpeg_decompress_struct& file = jpeg.file;
    // An eighth of the pixels needs all of the data but hardly any memory.
    file.scale_num = 1;
    file.scale_denom = 8;
    if (!jpeg.errors.survives([&file] { jpeg_start_decompress(&file); })) {
        return false;
    }
    std::vector<JSAMPLE> row(std::size_t{file.output_width} *
                             static_cast<std::size_t>(file.output_components));
    JSAMPROW line = row.data();
    const bool finished = jpeg.errors.survives([&jpeg, &file, &line] {
        while (file.output_scanline < file.output_height && !jpeg.errors.dataMissing()) {
            jpeg_read_scanlines(&file, &line, 1);
        }
        if (!jpeg.errors.dataMissing()) {
            jpeg_finish_decompress(&file);
        }
    });
    return finished && !jpeg.errors.dataMissing();
}

/// The library tells of scans as it decodes them, and too many of them are refused because
/// decoding them takes so long. Their marker cannot stand among the data, and its first byte is
/// rare there, so the search for it costs next to nothing.
int jpegScans(const QByteArray& bytes) {
    constexpr int MarkerStart = 0xFF;
    constexpr char StartOfScan = '\xDA';
    int scans = 0;
    const char* const end = bytes.constData() + bytes.size();
    for (const char* at = bytes.constData(); at + 1 < end; ++at) {
        at = static_cast<const char*>(
            std::memchr(at, MarkerStart, static_cast<std::size_t>(end - 1 - at)));
        if (!at) {
            break;
        }
        scans += at[1] == StartOfScan ? 1 : 0;
    }
    return scans;
}

}  // namespace nubivane
