// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/label_text.h"

#include "engine/export/label_painter.h"
#include "engine/export/stage_fixture.h"
#include "engine/export/still_export.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace nubivane::testing {

namespace {

using namespace Qt::StringLiterals;

/// A family that has Arabic letters upright and none in its slanted face.
class SlantWithoutLetters : public StageFixture {
  protected:
    static void SetUpTestSuite() {
        for (const char* face : {"DejaVuSans.ttf", "DejaVuSans-Oblique.ttf"}) {
            fonts_ += QFontDatabase::addApplicationFont("/usr/share/fonts/truetype/dejavu/" +
                                                        QString(face));
        }
    }
    static void TearDownTestSuite() {
        for (const int font : fonts_) {
            QFontDatabase::removeApplicationFont(font);
        }
    }

    void SetUp() override { ASSERT_FALSE(fonts_.contains(-1)) << "fonts-dejavu-extra is missing"; }

    static QFont font(bool italic) {
        return mapFont({.Name = "DejaVu Sans", .Size = 20, .Italic = italic});
    }

    static QImage drawn(const QString& text, const QFont& font) {
        const LabelText label(text, font);
        QImage image(label.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        label.draw(painter, image.rect(), Qt::black, false);
        return image;
    }

    const QString arabic = u"\u0637\u0642\u0633"_s;  // weather

  private:
    static inline QList<int> fonts_;
};

int inkOf(const QImage& image) {
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            pixels += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        }
    }
    return pixels;
}

}  // namespace

TEST_F(SlantWithoutLetters, AreDrawnUpright) {
    EXPECT_EQ(drawn(arabic, font(true)), drawn(arabic, font(false)));
    EXPECT_EQ(LabelText(arabic, font(true)).withoutFont(), "");
}

TEST_F(SlantWithoutLetters, LettersThatTheSlantHasKeepIt) {
    EXPECT_NE(drawn(u"Rain \u20AC"_s, font(true)), drawn(u"Rain \u20AC"_s, font(false)));
    const QImage mixed = drawn(u"Rain "_s + arabic, font(true));
    const QImage upright = drawn(u"Rain "_s + arabic, font(false));
    EXPECT_NE(mixed, upright);
    EXPECT_NEAR(inkOf(mixed), inkOf(upright), inkOf(upright) / 5);
}

TEST_F(SlantWithoutLetters, EachLineStandsBelowTheOther) {
    const int one = LabelText(arabic, font(true)).size().height();
    const QSize three = LabelText(arabic + "\r\n" + arabic + "\n" + arabic, font(true)).size();
    EXPECT_NEAR(three.height(), 3 * one, 3);
    EXPECT_NEAR(LabelText("a\nb\nc", font(true)).size().height(), three.height(), 3);
}

/// Columns from the first to the last with ink, within rows.
static std::pair<int, int> inkedColumns(const QImage& image, int top, int bottom) {
    std::pair<int, int> found(image.width(), -1);
    for (int y = top; y < std::min(bottom, image.height()); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 128) {
                found = {std::min(found.first, x), std::max(found.second, x)};
            }
        }
    }
    return found;
}

TEST_F(SlantWithoutLetters, LinesThatAreReadFromTheRightStandWhereTheUprightOnesDo) {
    const QString hebrew = u"\u05DE\u05D6\u05D2"_s;  // weather
    for (const QString& word : {arabic, hebrew}) {
        // With a figure, which the slant has, the text is drawn in parts.
        for (const QString& tail : {QString(), u" 7"_s}) {
            const QString text = word + u' ' + word + u' ' + word + u'\n' + word + tail;
            const QImage slanted = drawn(text, font(true));
            const QImage upright = drawn(text, font(false));
            EXPECT_NEAR(slanted.height(), upright.height(), 2);
            EXPECT_NEAR(slanted.width(), upright.width(), 2);
            const int half = upright.height() / 2;
            for (const int top : {0, half}) {
                const auto lean = inkedColumns(slanted, top, top + half);
                const auto plain = inkedColumns(upright, top, top + half);
                EXPECT_NEAR(lean.first, plain.first, 4) << text.toStdString() << top;
                EXPECT_NEAR(lean.second, plain.second, 4) << text.toStdString() << top;
            }
        }
    }
}

TEST_F(SlantWithoutLetters, LettersReadFromTheRightStandInTheirOrder) {
    // The upright look has both scripts: the parts of a mixed text have to stand as it places them.
    const QString text = arabic + u" 25 "_s + arabic;
    const QImage slanted = drawn(text, font(true));
    const QImage upright = drawn(text, font(false));
    ASSERT_NEAR(slanted.width(), upright.width(), 3);
    const auto inkOfThird = [](const QImage& image, int third) {
        return inkOf(image.copy(third * image.width() / 3, 0, image.width() / 3, image.height()));
    };
    for (const int third : {0, 1, 2}) {
        EXPECT_NEAR(inkOfThird(slanted, third), inkOfThird(upright, third),
                    inkOfThird(upright, third) / 5)
            << third;
    }
}

TEST_F(SlantWithoutLetters, ALabelHasTheSizeOfWhatIsDrawn) {
    cLabel& label = addLabel(arabic, {5, 5});
    label.Font.Name = "DejaVu Sans";
    const QSize upright = labelSize(label);
    label.Font.Italic = true;
    EXPECT_EQ(labelSize(label), upright);
    label.Border = 1;
    EXPECT_EQ(labelSize(label), upright + QSize(2, 2));
}

class LettersWithoutFont : public StageFixture {
  protected:
    static QString missing(const QString& text) {
        return LabelText(text, mapFont({.Name = "Arial", .Size = 12})).withoutFont();
    }
};

TEST_F(LettersWithoutFont, AreNamedOnceEach) {
    EXPECT_EQ(missing(u"\u65E5\u672C\u65E5 12"_s), u"\u65E5\u672C"_s);
    EXPECT_EQ(missing(u"Tokyo \u65E5"_s), u"\u65E5"_s);
}

TEST_F(LettersWithoutFont, AreNoneInUsualTexts) {
    for (const QString& text : {u""_s, u"23\u00B0C"_s, u"\u041F\u043E\u0433\u043E\u0434\u0430"_s,
                                u"a\tb\nc\r\nd"_s, u"caf\u00E9, na\u00EFve"_s}) {
        EXPECT_EQ(missing(text), "") << text.toStdString();
    }
}

TEST_F(LettersWithoutFont, AreNoMarksThatAreNeverSeen) {
    EXPECT_EQ(missing(u"\u200E23\u00A0\u200D\u202A\u00B0\u2009C\u202C"_s), "");
}

TEST_F(LettersWithoutFont, AreToldOfALabelAndItsFrame) {
    workspace.Frames().Add();
    workspace.pctPanel.resize(2);
    addLabel(u"Tokyo \u65E5"_s, {5, 5}, -1, 2);
    addLabel("Rome", {9, 9}, -1, 2);
    run(StillRequest{{{2, output("a.png")}}});
    EXPECT_EQ(
        watcher.remarks,
        QStringList({u"Frame 2: no installed font has \u65E5 of the label \"Tokyo \u65E5\"."_s}));
    watcher.remarks.clear();
    run(StillRequest{{{1, output("a.png")}}});
    EXPECT_EQ(watcher.remarks, QStringList());
}

/// The sprites of the current Frame stand on a film's first image, and on their own.
TEST_F(LettersWithoutFont, AreToldOncePerLabelOfAFilmWhateverFrameItBeginsWith) {
    workspace.Frames().Add();
    workspace.pctPanel.resize(2);
    addLabel(u"Kyoto \u4EAC"_s, {5, 5}, -1, 1);
    addLabel(u"Tokyo \u65E5"_s, {5, 5}, -1, 2);
    const QString first = u"Frame 1: no installed font has \u4EAC of the label \"Kyoto \u4EAC\"."_s;
    const QString second =
        u"Frame 2: no installed font has \u65E5 of the label \"Tokyo \u65E5\"."_s;
    run(FilmRequest{.path = output("a.gif"), .FrameInterval = 10});
    EXPECT_EQ(watcher.remarks, QStringList({first, second}));
    watcher.remarks.clear();
    run(FilmRequest{.path = output("a.gif"), .current = 2, .FrameInterval = 10});
    EXPECT_EQ(watcher.remarks, QStringList(second));
}

}  // namespace nubivane::testing
