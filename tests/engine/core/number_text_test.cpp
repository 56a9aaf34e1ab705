// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/number_text.h"

#include "support/fixtures.h"

#include <limits>

namespace nubivane {

TEST(NumberText, WholeNumbersWithSignAndBlanksAround) {
    EXPECT_EQ(toInt32(u"12"), 12);
    EXPECT_EQ(toInt32(u" 12 "), 12);
    EXPECT_EQ(toInt32(u"+12"), 12);
    EXPECT_EQ(toInt32(u"-12"), -12);
    EXPECT_EQ(toInt32(u"0012"), 12);
    EXPECT_EQ(toInt32(u"-0"), 0);
}

TEST(NumberText, HalvesAreRoundedToEven) {
    EXPECT_EQ(toInt32(u"0.5"), 0);
    EXPECT_EQ(toInt32(u"1.5"), 2);
    EXPECT_EQ(toInt32(u"2.5"), 2);
    EXPECT_EQ(toInt32(u"3.5"), 4);
    EXPECT_EQ(toInt32(u"-0.5"), 0);
    EXPECT_EQ(toInt32(u"-1.5"), -2);
    EXPECT_EQ(toInt32(u"-2.5"), -2);
    EXPECT_EQ(toInt16(u"2.5"), 2);
    EXPECT_EQ(toInt16(u"3.5"), 4);
}

TEST(NumberText, OtherFractionsAreRoundedToTheNearest) {
    EXPECT_EQ(toInt32(u"2.4999"), 2);
    EXPECT_EQ(toInt32(u"2.5001"), 3);
    EXPECT_EQ(toInt32(u"-2.5001"), -3);
    EXPECT_EQ(toInt32(u".9"), 1);
    EXPECT_EQ(toInt32(u"7."), 7);
}

TEST(NumberText, TextsThatAreNoNumbersGiveNothing) {
    for (const char16_t* text :
         {u"",    u" ",    u"abc", u"12 pt", u"1 2",      u"--1",          u"+-1",
          u"- 1", u"-",    u"+",   u".",     u"-.",       u"1.2.3",        u"1,5",
          u"1e3", u"0x10", u"nan", u"inf",   u"1\u00A00", u"\u0661\u0662", u"\uFF11"}) {
        const QString shown = QString::fromUtf16(text);
        EXPECT_EQ(toInt16(text), std::nullopt) << shown.toStdString();
        EXPECT_EQ(toInt32(text), std::nullopt) << shown.toStdString();
        EXPECT_EQ(integerPart(text), std::nullopt) << shown.toStdString();
    }
}

TEST(NumberText, SixteenBitsEndWhereTheyEnd) {
    EXPECT_EQ(toInt16(u"32767"), 32767);
    EXPECT_EQ(toInt16(u"32767.4"), 32767);
    EXPECT_EQ(toInt16(u"32767.5"), std::nullopt);
    EXPECT_EQ(toInt16(u"32768"), std::nullopt);
    EXPECT_EQ(toInt16(u"-32768"), -32768);
    EXPECT_EQ(toInt16(u"-32768.5"), -32768);
    EXPECT_EQ(toInt16(u"-32769"), std::nullopt);
}

TEST(NumberText, ThirtyTwoBitsEndWhereTheyEnd) {
    constexpr qint32 Low = std::numeric_limits<qint32>::min();
    constexpr qint32 High = std::numeric_limits<qint32>::max();
    EXPECT_EQ(toInt32(u"2147483647"), High);
    EXPECT_EQ(toInt32(u"2147483648"), std::nullopt);
    EXPECT_EQ(toInt32(u"-2147483648"), Low);
    EXPECT_EQ(toInt32(u"-2147483649"), std::nullopt);
    EXPECT_EQ(integerPart(u"2147483647.9"), High);
    EXPECT_EQ(integerPart(u"2147483648"), std::nullopt);
    EXPECT_EQ(integerPart(u"-2147483648.9"), Low);
}

TEST(NumberText, HundredsOfDigitsAreTooManyAndNoMishap) {
    const QString digits(400, u'9');
    EXPECT_EQ(toInt32(digits), std::nullopt);
    EXPECT_EQ(integerPart("-" + digits), std::nullopt);
    EXPECT_EQ(toInt32("0." + digits), 1);
    EXPECT_EQ(toInt32(QString(400, u'0') + "7"), 7);
}

TEST(NumberText, TheIntegerPartCutsTowardsZero) {
    EXPECT_EQ(integerPart(u"2.9"), 2);
    EXPECT_EQ(integerPart(u"-2.9"), -2);
    EXPECT_EQ(integerPart(u"-0.9"), 0);
    EXPECT_EQ(integerPart(u" 3 "), 3);
}

TEST(RoundedQuotient, HalvesGoToTheEvenNumber) {
    EXPECT_EQ(roundedQuotient(1, 2), 0);
    EXPECT_EQ(roundedQuotient(3, 2), 2);
    EXPECT_EQ(roundedQuotient(5, 2), 2);
    EXPECT_EQ(roundedQuotient(-1, 2), 0);
    EXPECT_EQ(roundedQuotient(-3, 2), -2);
    EXPECT_EQ(roundedQuotient(-5, 2), -2);
    EXPECT_EQ(roundedQuotient(50, 20), 2);
    EXPECT_EQ(roundedQuotient(70, 20), 4);
}

TEST(RoundedQuotient, EverythingElseGoesToTheNearest) {
    EXPECT_EQ(roundedQuotient(7, 3), 2);
    EXPECT_EQ(roundedQuotient(8, 3), 3);
    EXPECT_EQ(roundedQuotient(-7, 3), -2);
    EXPECT_EQ(roundedQuotient(-8, 3), -3);
    EXPECT_EQ(roundedQuotient(0, 3), 0);
    EXPECT_EQ(roundedQuotient(6, 3), 2);
    EXPECT_EQ(roundedQuotient(5, 1), 5);
}

TEST(RoundedQuotient, LargeNumeratorsKeepEveryDigit) {
    EXPECT_EQ(roundedQuotient(9007199254740993, 1), 9007199254740993);
    EXPECT_EQ(roundedQuotient(std::numeric_limits<qint64>::max(), 2), qint64{1} << 62);
}

TEST(NumberText, ANumberForComparingKeepsItsFraction) {
    EXPECT_EQ(toNumber(u" -19.5 "), -19.5);
    EXPECT_EQ(toNumber(u"+7"), 7.0);
    EXPECT_EQ(toNumber(u"99999999999"), 99999999999.0);
    EXPECT_EQ(toNumber(u""), std::nullopt);
    EXPECT_EQ(toNumber(u"1e2"), std::nullopt);
    EXPECT_EQ(toNumber(u"inf"), std::nullopt);
}

}  // namespace nubivane
