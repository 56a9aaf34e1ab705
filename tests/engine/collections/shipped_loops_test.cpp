// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/host_files.h"
#include "engine/picture/animation.h"
#include "support/fixtures.h"

#include <QDirIterator>
#include <QRegularExpression>

namespace nubivane::testing {

namespace {

/// What has to be calm, and arrows whose pace tells the force of the wind.
bool mayBeSlow(const QString& name) {
    static const QRegularExpression calm(
        "cloudy|overcast|fog|mist|calm|slight|^sun(rise|set)|moon|quarter|starry|clear-night|frost|"
        "iceberg|drift-ice|variable|beaufort-0[1-7]|^wind-(n|e|s|w|ne|nw|se|sw)(-|\\.)");
    return calm.match(name).hasMatch() && name != u"partly-cloudy.gif";
}

}  // namespace

TEST(ShippedSymbols, MoveInAtLeastTwelveImagesASecondUnlessTheyAreCalm) {
    constexpr int LongestImage = 1000 / 12;
    int moving = 0;
    QDirIterator entries(QStringLiteral(NUBIVANE_SOURCES "/content/Symbols"), {"*.gif"},
                         QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const Animation animation = Animation::read(host_files::toModel(file));
        if (!animation.moves() || mayBeSlow(entries.fileName())) {
            continue;
        }
        ++moving;
        // An image that equals the one before stays for both.
        EXPECT_LE(animation.shortestDuration(), LongestImage) << file.toStdString();
        EXPECT_GE(animation.totalDuration(), 600) << file.toStdString();
        EXPECT_LE(animation.totalDuration(), 2000) << file.toStdString();
    }
    EXPECT_GT(moving, 200);
}

}  // namespace nubivane::testing
