// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/quiet_color.h"

#include "windows/widgets/name_list.h"
#include "windows/widgets/prompt_edit.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace nubivane {

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

/// Dark, and without a colour for texts that step back: a theme that sets only the roles it knows.
QPalette darkTheme() {
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2a, 0x2e, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
    palette.setColor(QPalette::WindowText, QColor(0xfc, 0xfc, 0xfc));
    palette.setColor(QPalette::Text, QColor(0xfc, 0xfc, 0xfc));
    palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return palette;
}

class DarkTheme : public ::testing::Test {
  protected:
    DarkTheme() { QApplication::setPalette(darkTheme()); }
    ~DarkTheme() override { QApplication::setPalette(before_); }

  private:
    QPalette before_ = QApplication::palette();
};

}  // namespace

TEST(QuietColor, IsReadableOnLightAndDarkGroundAndQuieterThanTheText) {
    QPalette light;
    light.setColor(QPalette::Text, Qt::black);
    light.setColor(QPalette::Base, Qt::white);
    for (const QPalette& palette : {light, darkTheme()}) {
        const QColor ground = palette.color(QPalette::Base);
        const QColor quiet = quietColor(palette, QPalette::Text, QPalette::Base);
        EXPECT_GE(contrast(quiet, ground), 4.5);
        EXPECT_LT(contrast(quiet, ground), contrast(palette.color(QPalette::Text), ground));
    }
}

TEST_F(DarkTheme, ThePromptOfAFieldCanBeRead) {
    PromptEdit field("Write here", nullptr);
    EXPECT_GE(
        contrast(field.palette().color(QPalette::Text), field.palette().color(QPalette::Base)),
        4.5);
}

TEST_F(DarkTheme, TheBoxOfARowIsSeen) {
    NameList list(nullptr);
    list.addRow("set-1", "set-1", {})->setCheckState(Qt::Unchecked);
    list.resize(200, 60);
    const QImage picture = list.grab().toImage();
    double best = 0;
    for (int x = 0; x < 24; ++x) {  // left of the name
        for (int y = 2; y < 22; ++y) {
            best = std::max(
                best, contrast(picture.pixelColor(x, y), list.palette().color(QPalette::Base)));
        }
    }
    EXPECT_GE(best, 3.0);
}

}  // namespace nubivane
