// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"
#include "support/small_png.h"

#include <QtEndian>

#include <functional>

namespace nubivane {

namespace {

template <class Number>
QByteArray little(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

template <class Number>
QByteArray big(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToBigEndian(number, bytes.data());
    return bytes;
}

// Each gives the start of a file that claims a size, with hardly a pixel behind it: what the
// limits must be judged by, and all that a hostile file needs to send.

QByteArray bmpClaiming(QSize size) {
    return "BM" + little(quint32{200}) + little(quint32{0}) + little(quint32{54}) +
           little(quint32{40}) + little(qint32{size.width()}) + little(qint32{size.height()}) +
           little(quint16{1}) + little(quint16{24}) + QByteArray(24, 0) + QByteArray(146, 0);
}

QByteArray gifClaiming(QSize size) {
    QByteArray bytes = encodePicture(testing::plainImage({300, 300}, Qt::red), PictureFormat::Gif);
    return bytes.replace(
        6, 4,
        little(static_cast<quint16>(size.width())) + little(static_cast<quint16>(size.height())));
}

QByteArray jpegClaiming(QSize size) {
    QByteArray bytes = encodePicture(testing::plainImage({8, 8}, Qt::red), PictureFormat::Jpeg);
    const qsizetype frame = bytes.indexOf("\xFF\xC0");
    return bytes.replace(
        frame + 5, 4,
        big(static_cast<quint16>(size.height())) + big(static_cast<quint16>(size.width())));
}

QByteArray pngClaiming(QSize size) {
    return testing::small_png::file(size, {}, "x");
}

QByteArray tiffClaiming(QSize size) {
    const auto entry = [](quint16 tag, quint32 value) {
        return little(tag) + little(quint16{4}) + little(quint32{1}) + little(value);
    };
    return QByteArray("II*\0\x08\0\0\0", 8) + little(quint16{8}) +
           entry(256, static_cast<quint32>(size.width())) +
           entry(257, static_cast<quint32>(size.height())) + entry(258, 8) + entry(259, 1) +
           entry(262, 1) + entry(273, 200) + entry(278, static_cast<quint32>(size.height())) +
           entry(279, 100) + little(quint32{0}) + QByteArray(300, 0);
}

struct Format {
    const char* name;
    PictureFormat format;
    QByteArray (*claiming)(QSize);
};

class PictureLimits : public ::testing::TestWithParam<Format> {
  protected:
    QSize sizeRead(QSize claimed) const {
        const PictureInfo info = probePicture(GetParam().claiming(claimed));
        EXPECT_EQ(info.format, GetParam().format);
        return info.size;
    }
    bool isRefused(QSize claimed) const {
        const QByteArray bytes = GetParam().claiming(claimed);
        const auto refuses = [&](const std::function<void()>& read) {
            try {
                read();
            } catch (const Error& error) {
                return error.number() == error_number::InvalidPicture;
            }
            return false;
        };
        return refuses([&] { probePicture(bytes); }) && refuses([&] { decodePicture(bytes); });
    }
};

}  // namespace

TEST_P(PictureLimits, ASideOfTheLimitIsTaken) {
    EXPECT_EQ(sizeRead({MaxPictureSide, 1}), QSize(MaxPictureSide, 1));
    EXPECT_EQ(sizeRead({1, MaxPictureSide}), QSize(1, MaxPictureSide));
}

TEST_P(PictureLimits, ASideOneStepBeyondTheLimitIsRefused) {
    EXPECT_TRUE(isRefused({MaxPictureSide + 1, 1}));
    EXPECT_TRUE(isRefused({1, MaxPictureSide + 1}));
}

TEST_P(PictureLimits, AsManyPixelsAsTheLimitAreTaken) {
    static_assert(5000 * 5000 == MaxPicturePixels);
    EXPECT_EQ(sizeRead({5000, 5000}), QSize(5000, 5000));
}

TEST_P(PictureLimits, OneRowOfPixelsBeyondTheLimitIsRefused) {
    EXPECT_TRUE(isRefused({5000, 5001}));
    EXPECT_TRUE(isRefused({5001, 5000}));
}

TEST_P(PictureLimits, TheLargestSizeThatAHeaderCanClaimIsRefused) {
    EXPECT_TRUE(isRefused({65535, 65535}));
}

TEST_P(PictureLimits, ASideOfZeroIsRefused) {
    EXPECT_TRUE(isRefused({0, 10}));
    EXPECT_TRUE(isRefused({10, 0}));
}

INSTANTIATE_TEST_SUITE_P(Formats, PictureLimits,
                         ::testing::Values(Format{"bmp", PictureFormat::Bmp, bmpClaiming},
                                           Format{"gif", PictureFormat::Gif, gifClaiming},
                                           Format{"jpeg", PictureFormat::Jpeg, jpegClaiming},
                                           Format{"png", PictureFormat::Png, pngClaiming},
                                           Format{"tiff", PictureFormat::Tiff, tiffClaiming}),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace nubivane
