// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/spelling/spelling.h"
#include "windows/properties/frm_frame_property_detail.h"
#include "windows/properties/property_fixture.h"

#include <QClipboard>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// The forecast text of a Frame, in a window without an editor.
class FrameDetail : public testing::PropertyFixture {
  protected:
    void withDetail(const std::function<void(QWidget&)>& use) {
        Spelling spelling(settings, {{}, temporary.file("Words.txt")});
        frmFramePropertyDetail window(workspace, shell, spelling, nullptr);
        withModal([&] { window.Init(); }, use);
    }
    void add(const QString& header, const QString& body) {
        forecast.Header().add({.IndexFontSize = 1, .Text = header});
        forecast.Body().add({.IndexFontSize = 1, .Text = body});
    }
    static QTreeWidget& list(QWidget& window) { return partOf<QTreeWidget>(window, "lstItems"); }
    static QStringList rows(QWidget& window) {
        QStringList texts;
        for (int i = 0; i < list(window).topLevelItemCount(); ++i) {
            texts << list(window).topLevelItem(i)->text(0);
        }
        return texts;
    }
    static int selected(QWidget& window) {
        return list(window).indexOfTopLevelItem(list(window).currentItem()) + 1;
    }
    static void select(QWidget& window, int row) {
        QTreeWidget& items = list(window);
        items.setFocus();
        const QRect place = items.visualItemRect(items.topLevelItem(row - 1));
        QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, place.center());
        EXPECT_EQ(selected(window), row);
    }
    static QString lineOf(const QWidget& window, const char* field) {
        return partOf<WrappedField>(window, field).text();
    }
    QStringList headers() { return textsOf(forecast.Header()); }
    QStringList bodies() { return textsOf(forecast.Body()); }
    template <class List>
    static QStringList textsOf(const List& items) {
        QStringList texts;
        for (const auto& item : items) {
            texts << item.Text;
        }
        return texts;
    }
    static void expectEnabled(QWidget& window, bool enabled) {
        EXPECT_EQ(partOf<QWidget>(window, "fraText").isEnabled(), enabled);
        EXPECT_EQ(partOf<QWidget>(window, "VScroll").isEnabled(), enabled);
        EXPECT_EQ(partOf<QWidget>(window, "cmdRemove").isEnabled(), enabled);
        EXPECT_TRUE(partOf<QWidget>(window, "cmdAdd").isEnabled());
    }

    cForecast& forecast = workspace.Frames().Item(1).Texts().Forecast();
};

TEST_F(FrameDetail, WithoutElementsOnlyAddIsEnabled) {
    withDetail([](QWidget& window) {
        EXPECT_EQ(rows(window), QStringList());
        expectEnabled(window, false);
        EXPECT_EQ(text(window, "txtHeaderFont"), "");
        EXPECT_EQ(lineOf(window, "txtBodyText"), "");
    });
}

TEST_F(FrameDetail, HasTheRowsOfHeaderAndBody) {
    add("a", "b");
    withDetail([](QWidget& window) {
        for (const QByteArray line : {"Header", "Body"}) {
            expectFontRows(window, line);
            expectRows(window, {{"txt" + line + "Text", "Text", "Text",
                                 line == "Header" ? "Sets header text" : "Sets body text"},
                                {"cmd" + line + "Font", "Font", "Font", "Sets font"}});
        }
    });
}

TEST_F(FrameDetail, OpensWithTheFirstOfItsElements) {
    add("h1", "b1");
    add("h2", "b2");
    withDetail([](QWidget& window) {
        EXPECT_EQ(rows(window), QStringList({"Element 1", "Element 2"}));
        EXPECT_EQ(selected(window), 1);
        expectEnabled(window, true);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h1");
        EXPECT_EQ(lineOf(window, "txtBodyText"), "b1");
    });
}

TEST_F(FrameDetail, TheTextsAreInSightFromTheStart) {
    add("h1", "b1");
    withDetail([](QWidget& window) {
        ASSERT_GT(QGuiApplication::primaryScreen()->availableSize().height(), 700);
        for (const char* name : {"txtHeaderText", "txtBodyText"}) {
            const auto& field = partOf<WrappedField>(window, name);
            EXPECT_EQ(field.visibleRegion().boundingRect(), field.rect()) << name;
        }
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
    });
}

TEST_F(FrameDetail, SelectingARowShowsThatElement) {
    add("h1", "b1");
    add("h2", "b2");
    cHeaderAttribute& header = forecast.Header().Item(2);
    header.Font.Name = "Verdana";
    header.Font.Size = 18;
    header.Font.Bold = true;
    header.Font.Strikeout = true;
    header.Font.Color = 255;
    header.BackColor = -1;
    cBodyAttribute& body = forecast.Body().Item(2);
    body.Font.Italic = true;
    body.Font.Color = 65535;
    body.BackColor = 16711680;
    withDetail([](QWidget& window) {
        select(window, 2);
        EXPECT_EQ(text(window, "txtHeaderFont"), "Verdana");
        EXPECT_EQ(text(window, "txtHeaderFontSize"), "18");
        EXPECT_EQ(text(window, "txtHeaderFontbold"), "Yes");
        EXPECT_EQ(text(window, "txtHeaderFontItalic"), "No");
        EXPECT_EQ(text(window, "txtHeaderFontStrikethourht"), "Yes");
        EXPECT_EQ(text(window, "txtHeaderForeColor"), "Red");
        EXPECT_EQ(swatch(window, "pctHeaderForecolor"), 255);
        EXPECT_EQ(chosen(window, "cboHeaderBackcolor"), "none");
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h2");
        EXPECT_EQ(text(window, "txtBodyFontbold"), "No");
        EXPECT_EQ(text(window, "txtBodyFontItalic"), "Yes");
        EXPECT_EQ(text(window, "txtBodyForeColor"), "Yellow");
        EXPECT_EQ(swatch(window, "pctBodyForecolor"), 65535);
        EXPECT_EQ(chosen(window, "cboBodyBackcolor"), "Blue");
        EXPECT_EQ(lineOf(window, "txtBodyText"), "b2");
        QTest::keyClick(&list(window), Qt::Key_Up);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h1");
        EXPECT_EQ(text(window, "txtHeaderFontbold"), "No");
    });
    EXPECT_EQ(headers(), QStringList({"h1", "h2"}));
    EXPECT_EQ(bodies(), QStringList({"b1", "b2"}));
}

TEST_F(FrameDetail, AddAppendsAnElementWithTheDefaults) {
    withDetail([this](QWidget& window) {
        click(window, "cmdAdd");
        EXPECT_EQ(rows(window), QStringList({"Element 1"}));
        EXPECT_EQ(selected(window), 1);
        expectEnabled(window, true);
        ASSERT_EQ(forecast.Header().Count(), 1);
        ASSERT_EQ(forecast.Body().Count(), 1);
        const TextItem* items[] = {&forecast.Header().Item(1), &forecast.Body().Item(1)};
        for (const TextItem* item : items) {
            EXPECT_EQ(item->BackColor, 16777215);
            EXPECT_EQ(item->Font.Color, 0);
            EXPECT_EQ(item->Font.Name, "Arial");
            EXPECT_EQ(item->Font.Size, 8);
            EXPECT_EQ(item->IndexFontSize, 1);
            EXPECT_FALSE(item->Font.Bold || item->Font.Italic || item->Font.Underline ||
                         item->Font.Overline || item->Font.Strikeout);
            EXPECT_EQ(item->Text, "");
        }
        EXPECT_EQ(text(window, "txtHeaderFont"), "Arial");
        EXPECT_EQ(chosen(window, "cboBodyBackcolor"), "White");
    });
}

TEST_F(FrameDetail, AddSelectsTheNewElement) {
    add("h1", "b1");
    add("h2", "b2");
    withDetail([this](QWidget& window) {
        click(window, "cmdAdd");
        EXPECT_EQ(selected(window), 3);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "");
        testing::type(partOf<WrappedField>(window, "txtBodyText"), "new");
        EXPECT_EQ(bodies(), QStringList({"b1", "b2", "new"}));
    });
}

TEST_F(FrameDetail, RemovingTheMiddleOfThreeNumbersTheRestAnew) {
    add("h1", "b1");
    add("h2", "b2");
    add("h3", "b3");
    withDetail([this](QWidget& window) {
        select(window, 2);
        click(window, "cmdRemove");
        EXPECT_EQ(rows(window), QStringList({"Element 1", "Element 2"}));
        EXPECT_EQ(headers(), QStringList({"h1", "h3"}));
        EXPECT_EQ(bodies(), QStringList({"b1", "b3"}));
        EXPECT_EQ(selected(window), 1);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h1");
    });
}

TEST_F(FrameDetail, RemovingTheFirstSelectsTheNewFirst) {
    add("h1", "b1");
    add("h2", "b2");
    withDetail([](QWidget& window) {
        click(window, "cmdRemove");
        EXPECT_EQ(selected(window), 1);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h2");
        EXPECT_EQ(lineOf(window, "txtBodyText"), "b2");
    });
}

TEST_F(FrameDetail, RemovingTheLastSelectsTheOneBefore) {
    add("h1", "b1");
    add("h2", "b2");
    add("h3", "b3");
    withDetail([](QWidget& window) {
        select(window, 3);
        click(window, "cmdRemove");
        EXPECT_EQ(selected(window), 2);
        EXPECT_EQ(lineOf(window, "txtBodyText"), "b2");
    });
}

TEST_F(FrameDetail, RemovingTheOnlyElementDisablesThePanel) {
    add("h1", "b1");
    withDetail([this](QWidget& window) {
        click(window, "cmdRemove");
        EXPECT_EQ(rows(window), QStringList());
        expectEnabled(window, false);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "");
        EXPECT_EQ(forecast.Header().Count() + forecast.Body().Count(), 0);
        click(window, "cmdAdd");
        expectEnabled(window, true);
    });
    EXPECT_EQ(headers(), QStringList({""}));
}

TEST_F(FrameDetail, TheColumnIsNarrowerWithMoreThan17Rows) {
    for (int i = 0; i < 16; ++i) {
        add("h", "b");
    }
    withDetail([](QWidget& window) {
        EXPECT_EQ(list(window).columnWidth(0), 153);
        click(window, "cmdAdd");
        EXPECT_EQ(list(window).columnWidth(0), 153);
        EXPECT_FALSE(list(window).verticalScrollBar()->isVisible());
        click(window, "cmdAdd");
        EXPECT_EQ(rows(window).last(), "Element 18");
        EXPECT_EQ(list(window).columnWidth(0), 135);
        click(window, "cmdRemove");
        EXPECT_EQ(list(window).columnWidth(0), 153);
    });
    add("h", "b");
    withDetail([](QWidget& window) { EXPECT_EQ(list(window).columnWidth(0), 135); });
}

TEST_F(FrameDetail, TextsAndColoursComeIntoTheSelectedElementAtOnce) {
    add("h1", "b1");
    add("h2", "b2");
    withDetail([this](QWidget& window) {
        select(window, 2);
        testing::type(partOf<WrappedField>(window, "txtHeaderText"), "morning");
        EXPECT_EQ(headers(), QStringList({"h1", "morning"}));
        testing::type(partOf<WrappedField>(window, "txtBodyText"), "rain");
        QTest::keyClick(&partOf<QWidget>(window, "txtBodyText"), Qt::Key_Return);
        EXPECT_EQ(bodies(), QStringList({"b1", "rain"}));
        EXPECT_EQ(partOf<WrappedField>(window, "txtBodyText").textCursor().selectedText(), "rain");
        choose(window, "cboHeaderBackcolor", "Red");
        EXPECT_EQ(forecast.Header().Item(2).BackColor, 255);
        choose(window, "cboBodyBackcolor", "none");
        EXPECT_EQ(forecast.Body().Item(2).BackColor, -1);
        EXPECT_EQ(forecast.Header().Item(1).BackColor, White);
        EXPECT_EQ(forecast.Body().Item(1).BackColor, White);
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(FrameDetail, AnElementWithoutTextsStays) {
    add("h1", "b1");
    withDetail([](QWidget& window) {
        testing::type(partOf<WrappedField>(window, "txtHeaderText"), "");
        testing::type(partOf<WrappedField>(window, "txtBodyText"), "");
    });
    EXPECT_EQ(headers(), QStringList({""}));
    EXPECT_EQ(bodies(), QStringList({""}));
    withDetail([](QWidget& window) { EXPECT_EQ(rows(window), QStringList({"Element 1"})); });
}

TEST_F(FrameDetail, AfterTheFontDialogFlagsSaySiUntilTheElementIsShownAgain) {
    add("h1", "b1");
    add("h2", "b2");
    forecast.Header().Item(1).Font.Italic = true;
    withDetail([this](QWidget& window) {
        withModal([&] { click(window, "cmdHeaderFont"); },
                  [](QWidget& font) {
                      QTest::keyClick(&partOf<QWidget>(font, "lstFontSize"), Qt::Key_End);
                      click(font, "cmdOk");
                  });
        EXPECT_EQ(forecast.Header().Item(1).Font.Size, 36);
        EXPECT_EQ(forecast.Body().Item(1).Font.Size, 8);
        EXPECT_EQ(text(window, "txtHeaderFontSize"), "36");
        EXPECT_EQ(text(window, "txtHeaderFontItalic"), "Si");
        EXPECT_EQ(text(window, "txtHeaderFontbold"), "No");
        EXPECT_EQ(text(window, "txtBodyFontItalic"), "No");
        select(window, 2);
        select(window, 1);
        EXPECT_EQ(text(window, "txtHeaderFontItalic"), "Yes");
    });
}

TEST_F(FrameDetail, TheFontOfABodyIsItsOwn) {
    add("h1", "b1");
    withDetail([this](QWidget& window) {
        withModal([&] { click(window, "cmdBodyFont"); },
                  [](QWidget& font) {
                      choose(font, "cboColor", "Blue");
                      click(font, "cmdOk");
                  });
        EXPECT_EQ(forecast.Body().Item(1).Font.Color, 16711680);
        EXPECT_EQ(forecast.Header().Item(1).Font.Color, 0);
        EXPECT_EQ(text(window, "txtBodyForeColor"), "Blue");
        EXPECT_EQ(swatch(window, "pctBodyForecolor"), 16711680);
    });
}

TEST_F(FrameDetail, ListsOfDifferentLengthsAreShownAndBroughtTogether) {
    add("h1", "b1");
    forecast.Header().add({.IndexFontSize = 1, .Text = "h2"});
    withDetail([this](QWidget& window) {
        EXPECT_EQ(rows(window), QStringList({"Element 1", "Element 2"}));
        select(window, 2);
        EXPECT_EQ(lineOf(window, "txtHeaderText"), "h2");
        EXPECT_EQ(lineOf(window, "txtBodyText"), "");
        EXPECT_FALSE(partOf<QWidget>(window, "cmdBodyFont").isEnabled());
        testing::type(partOf<WrappedField>(window, "txtBodyText"), "nowhere");
        EXPECT_EQ(bodies(), QStringList({"b1"}));
        click(window, "cmdAdd");
        EXPECT_EQ(headers(), QStringList({"h1", "h2", ""}));
        EXPECT_EQ(bodies(), QStringList({"b1", "", ""}));
        select(window, 2);
        click(window, "cmdRemove");
        EXPECT_EQ(forecast.Header().Count(), forecast.Body().Count());
    });
}

TEST_F(FrameDetail, ABodyLongerThanTheHeaderLosesNothing) {
    forecast.Body().add({.IndexFontSize = 1, .Text = "b1"});
    withDetail([this](QWidget& window) {
        EXPECT_EQ(rows(window), QStringList());
        expectEnabled(window, false);
        click(window, "cmdAdd");
        EXPECT_EQ(headers(), QStringList({"", ""}));
        EXPECT_EQ(bodies(), QStringList({"b1", ""}));
        EXPECT_EQ(selected(window), 2);
    });
}

TEST_F(FrameDetail, EscCloses) {
    add("h1", "b1");
    withDetail([](QWidget& window) {
        QTest::keyClick(&partOf<QWidget>(window, "txtHeaderText"), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(FrameDetail, EnterPressesNoButton) {
    add("h1", "b1");
    withDetail([](QWidget& window) {
        for (const char* name : {"lstItems", "txtHeaderText", "cboBodyBackcolor"}) {
            partOf<QWidget>(window, name).setFocus();
            QTest::keyClick(window.focusWidget(), Qt::Key_Return);
            EXPECT_EQ(rows(window).size(), 1) << name;
            EXPECT_TRUE(window.isVisible()) << name;
        }
    });
}

TEST_F(FrameDetail, ALongTextIsWrappedInAFieldThatGrowsAndStaysOneLine) {
    add("h1", "b1");
    withDetail([this](QWidget& window) {
        auto& field = partOf<WrappedField>(window, "txtBodyText");
        const int one = field.height();
        QString sentence = "In the north some rain, later clear, with winds from the west. ";
        testing::type(field, sentence.repeated(4));
        EXPECT_EQ(bodies(), QStringList(sentence.repeated(4)));
        EXPECT_GT(field.height(), 2 * one);
        QApplication::clipboard()->setText("Second\r\nline\n");
        QTest::keySequence(&field, QKeySequence::Paste);
        EXPECT_EQ(bodies(), QStringList(sentence.repeated(4) + "Second line"));
        testing::type(field, "rain");
        EXPECT_EQ(field.height(), one);
        // Tab goes on, and Esc closes the window.
        QTest::keyClick(&field, Qt::Key_Tab);
        EXPECT_FALSE(field.hasFocus());
    });
    EXPECT_EQ(bodies(), QStringList("rain"));
}

TEST_F(FrameDetail, TheAccessKeyOfATextGoesFromTheHeadersToTheBodys) {
    add("h1", "b1");
    withDetail([](QWidget& window) {
        QTest::keyClick(&window, Qt::Key_T, Qt::AltModifier);
        EXPECT_TRUE(partOf<WrappedField>(window, "txtHeaderText").hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::AltModifier);
        EXPECT_TRUE(partOf<WrappedField>(window, "txtBodyText").hasFocus());
    });
}

TEST_F(FrameDetail, TheKeysOfTheButtonsAreTheirsAlone) {
    withDetail([](QWidget& window) {
        QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
        QTest::keyClick(&window, Qt::Key_A, Qt::AltModifier);
        EXPECT_EQ(rows(window), QStringList({"Element 1", "Element 2"}));
        QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(rows(window), QStringList("Element 1"));
    });
}

}  // namespace nubivane
