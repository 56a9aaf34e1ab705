// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/period_ids.h"

#include "support/fixtures.h"

#include <QSet>

namespace nubivane::testing {

TEST(PeriodIds, ComeFromTheCaptionsInTheirOrder) {
    EXPECT_EQ(periodIds({"Sunday", "Monday morning", "12/5 – 13/5", "Übermorgen"}),
              QStringList({"sunday", "monday-morning", "12-5-13-5", "übermorgen"}));
}

TEST(PeriodIds, KeepEveryScript) {
    EXPECT_EQ(periodIds({"Вторник", "يوم الأحد", "日曜日", "शनिवार"}),
              QStringList({"вторник", "يوم-الأحد", "日曜日", "शनिवार"}));
}

TEST(PeriodIds, AreNeverIssuedTwice) {
    EXPECT_EQ(periodIds({"Map", "map", "Map-2", "MAP", "map 2"}),
              QStringList({"map", "map-2", "map-2-2", "map-3", "map-2-3"}));
    const QStringList many = periodIds(QStringList(500, "Map"));
    EXPECT_EQ(QSet<QString>(many.begin(), many.end()).size(), 500);
}

TEST(PeriodIds, ACaptionWithoutLettersHasOneToo) {
    EXPECT_EQ(periodIds({"", "---", "</script>", "_"}),
              QStringList({"period", "period-2", "script", "period-3"}));
}

TEST(PeriodIds, HoldNoUnderscoreAndAreNotTooLong) {
    const QString id = periodIds({QString("a_b ").repeated(100)}).first();
    EXPECT_FALSE(id.contains(u'_'));
    EXPECT_LE(id.size(), 60);
}

}  // namespace nubivane::testing
