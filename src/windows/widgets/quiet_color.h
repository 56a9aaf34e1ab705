// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace nubivane {

/// The colour of a text that steps back, half-way from the text's to the ground's. Not every
/// desktop's theme has such a colour that fits its ground.
inline QColor quietColor(const QPalette& palette, QPalette::ColorRole text,
                         QPalette::ColorRole ground) {
    constexpr float Text = 0.62F;
    const QColor front = palette.color(text);
    const QColor back = palette.color(ground);
    const auto mixed = [](float a, float b) { return Text * a + (1 - Text) * b; };
    return QColor::fromRgbF(mixed(front.redF(), back.redF()), mixed(front.greenF(), back.greenF()),
                            mixed(front.blueF(), back.blueF()));
}

}  // namespace nubivane
