// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/weather_fixture.h"

#include <cmath>

namespace nubivane {

/// Weather figures as they leave the editor: in the page and in the exports.
class WeatherPages : public testing::WeatherFixture {
  protected:
    void SetUp() override {
        WeatherFixture::SetUp();
        QDir().mkpath(host("out"));
    }
    void drawAll() {
        for (const Kind kind : {Kind::RainArea, Kind::ColdFront, Kind::ClosedIsoline, Kind::Jet}) {
            draw(kind, pointsFor(kind));
        }
        ASSERT_TRUE(onScreen() == committed());
        ASSERT_FALSE(committed() == bare);
    }
    /// Mean difference of the colours of two pictures, 0 to 255.
    static double difference(const QImage& left, const QImage& right) {
        EXPECT_EQ(left.size(), right.size());
        const QImage a = left.convertToFormat(QImage::Format_RGB32);
        const QImage b = right.convertToFormat(QImage::Format_RGB32);
        double sum = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                       std::abs(qBlue(p) - qBlue(q));
            }
        }
        return sum / (3.0 * a.width() * a.height());
    }
    /// JPEG blurs thin lines a little; a figure that is not there, or a few pixels off, is another
    /// matter.
    void expectNearly(const QImage& picture) {
        const QImage wanted = committed();
        ASSERT_EQ(picture.size(), wanted.size());
        const double missing = difference(bare, wanted);
        const double moved = difference(wanted.copy(2, 0, wanted.width(), wanted.height())
                                            .convertToFormat(QImage::Format_RGB32),
                                        wanted);
        const double found = difference(picture, wanted);
        EXPECT_LT(found, missing / 2) << "missing would be " << missing;
        EXPECT_LT(found, moved / 2) << "moved would be " << moved;
    }
    QImage exported(const char* command, const QString& name) {
        shell.expectSaveDialog("Export map", model("out/" + name));
        trigger(command);
        return QImage(host("out/" + name));
    }
};

TEST_F(WeatherPages, ThePageHasThePixelsOfTheScreenAsFarAsItsJpegDoes) {
    drawAll();
    trigger("mnuCrea");
    expectNearly(QImage(host("Web/Forecast1.jpg")));
}

TEST_F(WeatherPages, ExportsWithoutLossHaveThemAll) {
    drawAll();
    EXPECT_TRUE(exported("subEsportaPng", "still.png").convertToFormat(QImage::Format_RGB32) ==
                onScreen());
    EXPECT_TRUE(exported("subEsportaBmp", "still.bmp").convertToFormat(QImage::Format_RGB32) ==
                onScreen());
}

TEST_F(WeatherPages, AJpegHasThemNearly) {
    drawAll();
    expectNearly(exported("subEsportaJpg", "still.jpg"));
}

}  // namespace nubivane
