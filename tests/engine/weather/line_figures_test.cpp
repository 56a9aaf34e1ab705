// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/weather/figure_fixture.h"
#include "engine/weather/figure_parts.h"
#include "engine/weather/letters.h"

namespace nubivane::weather::testing {

namespace {

WeatherFigure isobar(qreal length, const QString& value, int repeats = 1) {
    return levelLine(FigureKind::Isoline, length, {.width = 2, .text = value, .repeats = repeats});
}

qreal lengthOf(const std::vector<Ink>& parts) {
    qreal length = 0;
    for (const Ink& ink : parts) {
        length += ink.path.length();
    }
    return length;
}

}  // namespace

TEST(Isolines, WithoutAValueAreOneLine) {
    const Drawing drawing = isobar(300, "").drawing();
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_NEAR(drawing.front().path.length(), 300, 1e-6);
}

TEST(Isolines, StopForTheirValue) {
    const Drawing drawing = isobar(300, "1015").drawing();
    const std::vector<Ink> values = filledParts(drawing);
    ASSERT_EQ(values.size(), 1U);
    const QRectF value = values.front().path.boundingRect();
    EXPECT_NEAR(value.center().x(), 160, 1);
    EXPECT_NEAR(value.center().y(), 100, 0.5);
    ASSERT_EQ(lines(drawing).size(), 2U);
    for (const Ink& line : lines(drawing)) {
        const QRectF bounds = line.path.boundingRect();
        EXPECT_TRUE(bounds.right() < value.left() - 2 || bounds.left() > value.right() + 2);
    }
}

TEST(Isolines, SetTheirValueInAsOftenAsAskedAtEqualDistances) {
    const std::vector<Ink> values = filledParts(isobar(400, "1020", 4).drawing());
    ASSERT_EQ(values.size(), 4U);
    for (std::size_t i = 0; i < values.size(); ++i) {
        EXPECT_NEAR(values[i].path.boundingRect().center().x(),
                    10 + 100 * (static_cast<qreal>(i) + 0.5), 1);
    }
}

TEST(Isolines, SetInNoMoreValuesThanLeaveHalfOfTheLine) {
    for (qreal length = 5; length < 400; length += 13) {
        const Drawing drawing = isobar(length, "1020", 40).drawing();
        EXPECT_GE(lengthOf(lines(drawing)), length / 2 - 1e-6) << length;
    }
    EXPECT_EQ(filledParts(isobar(30, "1020").drawing()).size(), 0U);
    EXPECT_EQ(filledParts(isobar(300, "1020", 0).drawing()).size(), 0U);
    EXPECT_EQ(filledParts(isobar(300, "1020", -3).drawing()).size(), 0U);
}

TEST(Isolines, ClosedOnesGoOnThroughTheirStart) {
    const WeatherFigure figure{
        FigureKind::ClosedIsoline, ring({100, 100}, 60), {.width = 2, .text = "985", .repeats = 2}};
    const Drawing drawing = figure.drawing();
    EXPECT_EQ(filledParts(drawing).size(), 2U);
    ASSERT_EQ(lines(drawing).size(), 2U);
    EXPECT_NEAR(lines(drawing)[0].path.length(), lines(drawing)[1].path.length(), 0.1);
}

TEST(Isolines, AValueNeverStandsUpsideDown) {
    const QRectF forth = filledParts(isobar(300, "7").drawing()).front().path.boundingRect();
    WeatherFigure back = isobar(300, "7");
    std::reverse(back.points.begin(), back.points.end());
    const QRectF same = filledParts(back.drawing()).front().path.boundingRect();
    EXPECT_NEAR(forth.left(), same.left(), 1e-6);
    EXPECT_NEAR(forth.top(), same.top(), 1e-6);
}

TEST(CurvedText, StandsOnTheLeftInTheMiddleOfTheLine) {
    const QRectF text =
        filledParts(levelLine(FigureKind::CurvedText, 300, {.text = "FOEHN"}).drawing())
            .front()
            .path.boundingRect();
    EXPECT_NEAR(text.center().x(), 160, 1.5);
    EXPECT_LT(text.bottom(), 100);
    EXPECT_GT(text.bottom(), 90);
    const QRectF below =
        filledParts(
            levelLine(FigureKind::CurvedText, 300, {.flipped = true, .text = "FOEHN"}).drawing())
            .front()
            .path.boundingRect();
    EXPECT_GT(below.top(), 100);
    EXPECT_NEAR(below.height(), text.height(), 1e-6);
}

TEST(CurvedText, RunsFromLeftToRightHoweverTheLineWasDrawn) {
    WeatherFigure figure{FigureKind::CurvedText, bend(), {.text = "Low over the sea"}};
    const QPainterPath forth = figure.drawing().front().path;
    std::reverse(figure.points.begin(), figure.points.end());
    EXPECT_EQ(figure.drawing().front().path, forth);
}

TEST(CurvedText, LongerThanItsCurveGoesOnStraight) {
    const QString text(60, u'x');
    const QRectF bounds = levelLine(FigureKind::CurvedText, 20, {.text = text}).boundingRect();
    EXPECT_GT(bounds.width(), 300);
    EXPECT_LT(bounds.height(), 30);
}

TEST(CurvedText, OfNothingIsNothing) {
    for (const QString& text : {QString(), QString("   \n"), QString("\x01")}) {
        const Drawing drawing = levelLine(FigureKind::CurvedText, 300, {.text = text}).drawing();
        for (const Ink& ink : drawing) {
            EXPECT_TRUE(ink.path.boundingRect().width() < 20);
        }
    }
}

TEST(LetterOutlines, AreCutAtTwoHundredCharacters) {
    const Letters most(QString(200, u'a'), 10);
    const Letters more(QString(100000, u'a'), 10);
    EXPECT_NEAR(most.width(), more.width(), 1e-6);
    EXPECT_NEAR(Letters(QString(200, u'a'), 20).width(), 2 * most.width(), 1e-6);
}

TEST(TextsOnACurve, WithoutALetterAreNothing) {
    for (const char* text : {"", "   ", "\t"}) {
        EXPECT_TRUE(levelLine(FigureKind::CurvedText, 200, {.text = text}).drawing().empty());
    }
}

TEST(Arrows, EndInAHeadWhoseTipIsTheLastPoint) {
    for (const FigureKind kind : {FigureKind::Arrow, FigureKind::CurvedArrow, FigureKind::Jet}) {
        const Drawing drawing = levelLine(kind, 200).drawing();
        const std::vector<Ink> heads = filledParts(drawing);
        ASSERT_EQ(heads.size(), 1U);
        EXPECT_NEAR(heads.front().path.boundingRect().right(), 210, 1e-6);
        EXPECT_NEAR(heads.front().path.boundingRect().center().y(), 100, 1e-6);
        // The line ends inside the head.
        ASSERT_EQ(lines(drawing).size(), 1U);
        EXPECT_LT(lines(drawing).front().path.boundingRect().right(), 203);
        EXPECT_GT(lines(drawing).front().path.boundingRect().right(),
                  heads.front().path.boundingRect().left());
    }
}

TEST(Arrows, ShorterThanTheirHeadAreAllHead) {
    const Drawing drawing = levelLine(FigureKind::Arrow, 4).drawing();
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_NEAR(drawing.front().path.boundingRect().width(), 4, 1e-6);
}

TEST(Arrows, AStraightOneTakesTwoPoints) {
    const WeatherFigure figure{FigureKind::Arrow, {{0, 0}, {100, 0}, {100, 100}}, {}};
    EXPECT_LT(figure.boundingRect().bottom(), 20);
}

}  // namespace nubivane::weather::testing
