// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/jpeg_encoder.h"

#include "engine/core/resolution.h"
#include "engine/gif/pixel_lines.h"
#include "engine/picture/invalid_picture.h"
#include "engine/picture/jpeg_errors.h"
#include "engine/picture/sheet.h"

#include <cstdlib>
#include <vector>

namespace nubivane {

namespace {

struct Output {
    unsigned char* bytes = nullptr;  ///< the library's, from malloc
    unsigned long size = 0;
};

void start(jpeg_compress_struct& file, QSize size, int quality) {
    file.image_width = static_cast<JDIMENSION>(size.width());
    file.image_height = static_cast<JDIMENSION>(size.height());
    file.input_components = JpegChannels;
    file.in_color_space = JCS_RGB;
    jpeg_set_defaults(&file);
    jpeg_set_quality(&file, quality, TRUE);
    // Brightness has a place for each pixel anyway; this gives colour as many.
    file.comp_info[0].h_samp_factor = 1;
    file.comp_info[0].v_samp_factor = 1;
    file.optimize_coding = TRUE;
    file.density_unit = 1;  // pixels per inch
    file.X_density = PixelsPerInch;
    file.Y_density = PixelsPerInch;
    jpeg_start_compress(&file, TRUE);
}

void encode(jpeg_compress_struct& file, const QImage& image, int quality, JSAMPROW line) {
    start(file, image.size(), quality);
    for (int y = 0; y < image.height(); ++y) {
        const QRgb* pixels = constLineOf(image, y);
        JSAMPLE* next = line;
        for (int x = 0; x < image.width(); ++x) {
            *next++ = static_cast<JSAMPLE>(qRed(pixels[x]));
            *next++ = static_cast<JSAMPLE>(qGreen(pixels[x]));
            *next++ = static_cast<JSAMPLE>(qBlue(pixels[x]));
        }
        jpeg_write_scanlines(&file, &line, 1);
    }
    jpeg_finish_compress(&file);
}

}  // namespace

QByteArray encodeJpegWithFullColor(const QImage& image, int quality) {
    const QImage picture = onWhite(image);
    std::vector<JSAMPLE> row(static_cast<std::size_t>(picture.width()) * JpegChannels + 1);
    JpegErrors errors;
    jpeg_compress_struct file{};
    file.err = errors.handler();
    Output output;
    const bool done = errors.survives([&] {
        jpeg_create_compress(&file);
        jpeg_mem_dest(&file, &output.bytes, &output.size);
        encode(file, picture, quality, row.data());
    });
    jpeg_destroy_compress(&file);
    const QByteArray bytes(reinterpret_cast<const char*>(output.bytes),
                           done ? static_cast<qsizetype>(output.size) : 0);
    std::free(output.bytes);
    if (!done) {
        refusePicture(errors.cause());
    }
    return bytes;
}

}  // namespace nubivane
