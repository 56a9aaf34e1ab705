// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_fixture.h"

#include <QAccessible>
#include <QSet>

#include <algorithm>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// The texts of the first Frame.
class FrameProperty : public testing::PropertyFixture {
  protected:
    cForecast& forecast() { return frame().Texts().Forecast(); }

    /// Opens the font dialog by a button and closes it at once.
    static void lookAtFont(QWidget& window, const char* button) {
        withModal([&] { click(window, button); }, [](QWidget& font) { font.close(); });
    }
};

TEST_F(FrameProperty, OpensWithNothingSelected) {
    start();
    withProperties([](QWidget& window) {
        EXPECT_EQ(window.objectName(), "frmFrameProperty");
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(partOf<QLabel>(window, "txtType").text(), "Map");
    });
}

TEST_F(FrameProperty, HasTheRowsOfATitleAndASubtitle) {
    start();
    forecast().Title().Border = 1;
    forecast().Subtitle().Border = 1;
    withProperties([](QWidget& window) {
        for (const QByteArray line : {"Title", "subTitle"}) {
            expectFontRows(window, line);
            expectRows(window, {{"cbo" + line + "Border", "Border", "Border", "Sets border style"},
                                {"cbo" + line + "BorderColor", "Border color", "Border color",
                                 "Sets border color"},
                                {"cbo" + line + "Align", "Alignment", "Alignment",
                                 "Sets alignment of text"},
                                {"txt" + line + "Text", "Text", "Text",
                                 line == "Title" ? "Sets title text" : "Sets subtitle text"}});
        }
    });
}

TEST_F(FrameProperty, HasTheRowsOfTheForecast) {
    start();
    forecast().Div().Border = 1;
    withProperties([](QWidget& window) {
        expectRows(window,
                   {{"cboForecastBackcolor", "Back Color", "Back Color",
                     "Sets background color used to display text"},
                    {"cboForecastBorder", "Border", "Border", "Sets border style"},
                    {"cboForecastBorderColor", "Border color", "Border color", "Sets border color"},
                    {"cmdForecastText", "Text", "Text", "Sets forecast text"}});
    });
}

TEST_F(FrameProperty, ListsBordersAndAlignmentsInTheOrderOfTheirValues) {
    start();
    withProperties([](QWidget& window) {
        const auto items = [&window](const char* name) {
            const auto& combo = partOf<QComboBox>(window, name);
            QStringList texts;
            for (int i = 0; i < combo.count(); ++i) {
                texts << combo.itemText(i);
            }
            return texts;
        };
        EXPECT_EQ(items("cboTitleBorder"), QStringList({"Yes", "No"}));
        EXPECT_EQ(items("cbosubTitleBorder"), QStringList({"Yes", "No"}));
        EXPECT_EQ(items("cboForecastBorder"),
                  QStringList({"none", "solid", "double", "groove", "ridge", "inset", "outset"}));
        EXPECT_EQ(items("cboTitleAlign"), QStringList({"left", "right", "center"}));
        EXPECT_EQ(items("cbosubTitleAlign"), QStringList({"left", "right", "center"}));
    });
}

TEST_F(FrameProperty, ShowsTheDefaultsOfANewFrame) {
    start();
    withProperties([](QWidget& window) {
        EXPECT_EQ(text(window, "txtTitleFont"), "Arial");
        EXPECT_EQ(text(window, "txtTitleFontSize"), "24");
        EXPECT_EQ(text(window, "txtsubTitleFontSize"), "14");
        EXPECT_EQ(text(window, "txtTitleFontbold"), "No");
        EXPECT_EQ(text(window, "txtTitleForeColor"), "Black");
        EXPECT_EQ(chosen(window, "cboTitleBackcolor"), "none");
        EXPECT_EQ(chosen(window, "cboTitleBorder"), "No");
        EXPECT_EQ(chosen(window, "cboTitleBorderColor"), "Black");
        EXPECT_EQ(chosen(window, "cbosubTitleAlign"), "left");
        EXPECT_EQ(chosen(window, "cboForecastBackcolor"), "none");
        EXPECT_EQ(chosen(window, "cboForecastBorder"), "none");
        EXPECT_EQ(chosen(window, "cboForecastBorderColor"), "White");
        for (const char* name :
             {"cboTitleBorderColor", "cbosubTitleBorderColor", "cboForecastBorderColor"}) {
            EXPECT_FALSE(partOf<QWidget>(window, name).isEnabled()) << name;
        }
    });
}

TEST_F(FrameProperty, ShowsWhatTheFrameHolds) {
    start();
    cSubtitle& subtitle = forecast().Subtitle();
    subtitle.Font.Name = "Verdana";
    subtitle.Font.Italic = true;
    subtitle.Font.Overline = true;
    subtitle.BackColor = 65535;
    subtitle.Border = 1;
    subtitle.BorderColor = 255;
    subtitle.Align = 2;
    subtitle.Text = "after\r\nrain";
    forecast().Title().Align = 1;
    forecast().Title().Text = "Monday";
    forecast().Div().Border = 6;
    forecast().Div().BackColor = 255;
    forecast().Div().BorderColor = 0;
    withProperties([&](QWidget& window) {
        EXPECT_EQ(text(window, "txtsubTitleFont"), "Verdana");
        EXPECT_EQ(text(window, "txtsubTitleFontItalic"), "Yes");
        EXPECT_EQ(text(window, "txtsubTitleFontOverline"), "Yes");
        EXPECT_EQ(text(window, "txtsubTitleFontUnderline"), "No");
        EXPECT_EQ(chosen(window, "cbosubTitleBackcolor"), "Yellow");
        EXPECT_EQ(chosen(window, "cbosubTitleBorder"), "Yes");
        EXPECT_EQ(chosen(window, "cbosubTitleBorderColor"), "Red");
        EXPECT_TRUE(partOf<QWidget>(window, "cbosubTitleBorderColor").isEnabled());
        EXPECT_EQ(chosen(window, "cbosubTitleAlign"), "center");
        EXPECT_EQ(chosen(window, "cboTitleAlign"), "right");
        EXPECT_EQ(text(window, "txtTitleText"), "Monday");
        EXPECT_EQ(chosen(window, "cboForecastBorder"), "outset");
        EXPECT_EQ(chosen(window, "cboForecastBackcolor"), "Red");
        EXPECT_EQ(chosen(window, "cboForecastBorderColor"), "Black");
        EXPECT_TRUE(partOf<QWidget>(window, "cboForecastBorderColor").isEnabled());
    });
    EXPECT_EQ(subtitle.Text, "after\r\nrain");
}

TEST_F(FrameProperty, ValuesOutsideTheListsShowNothingAndStay) {
    start();
    forecast().Div().Border = 77;
    forecast().Title().Align = -5;
    forecast().Title().Border = 3;
    forecast().Title().BackColor = 12;
    withProperties([](QWidget& window) {
        EXPECT_EQ(partOf<QComboBox>(window, "cboForecastBorder").currentIndex(), -1);
        EXPECT_EQ(partOf<QComboBox>(window, "cboTitleAlign").currentIndex(), -1);
        EXPECT_EQ(partOf<QComboBox>(window, "cboTitleBackcolor").currentIndex(), -1);
        lookAtFont(window, "cmdTitleFont");
    });
    EXPECT_EQ(forecast().Div().Border, 77);
    EXPECT_EQ(forecast().Title().Align, -5);
    EXPECT_EQ(forecast().Title().Border, 3);
    EXPECT_EQ(forecast().Title().BackColor, 12);
}

TEST_F(FrameProperty, TheSubtitlesSwatchStartsWithTheTitlesColour) {
    start();
    forecast().Title().Font.Color = 255;
    forecast().Subtitle().Font.Color = 65535;
    withProperties([](QWidget& window) {
        EXPECT_EQ(swatch(window, "pctTitleForecolor"), 255);
        EXPECT_EQ(swatch(window, "pctsubTitleForecolor"), 255);
        EXPECT_EQ(text(window, "txtsubTitleForeColor"), "Yellow");
        lookAtFont(window, "cmdTitleFont");
        EXPECT_EQ(swatch(window, "pctsubTitleForecolor"), 255);
        lookAtFont(window, "cmdSubtitleFont");
        EXPECT_EQ(swatch(window, "pctsubTitleForecolor"), 65535);
    });
}

TEST_F(FrameProperty, ColoursComeIntoTheModelAtOnce) {
    start();
    forecast().Title().Border = 1;
    forecast().Subtitle().Border = 1;
    forecast().Div().Border = 1;
    withProperties([this](QWidget& window) {
        choose(window, "cboTitleBackcolor", "Red");
        EXPECT_EQ(forecast().Title().BackColor, 255);
        choose(window, "cbosubTitleBackcolor", "Blue");
        EXPECT_EQ(forecast().Subtitle().BackColor, 16711680);
        choose(window, "cboForecastBackcolor", "Yellow");
        EXPECT_EQ(forecast().Div().BackColor, 65535);
        choose(window, "cboTitleBorderColor", "Yellow");
        EXPECT_EQ(forecast().Title().BorderColor, 65535);
        choose(window, "cbosubTitleBorderColor", "Red");
        EXPECT_EQ(forecast().Subtitle().BorderColor, 255);
        choose(window, "cboForecastBorderColor", "Blue");
        EXPECT_EQ(forecast().Div().BorderColor, 16711680);
    });
}

TEST_F(FrameProperty, TheColourNoneStoresMinusOne) {
    start();
    forecast().Title().BackColor = 255;
    forecast().Subtitle().BackColor = 255;
    forecast().Div().BackColor = 255;
    withProperties([](QWidget& window) {
        for (const char* name :
             {"cboTitleBackcolor", "cbosubTitleBackcolor", "cboForecastBackcolor"}) {
            choose(window, name, "none");
        }
    });
    EXPECT_EQ(forecast().Title().BackColor, -1);
    EXPECT_EQ(forecast().Subtitle().BackColor, -1);
    EXPECT_EQ(forecast().Div().BackColor, -1);
}

TEST_F(FrameProperty, BordersOfTitleAndSubtitleAreYesOrNo) {
    start();
    withProperties([this](QWidget& window) {
        choose(window, "cboTitleBorder", "Yes");
        EXPECT_EQ(forecast().Title().Border, 1);
        EXPECT_TRUE(partOf<QWidget>(window, "cboTitleBorderColor").isEnabled());
        EXPECT_FALSE(partOf<QWidget>(window, "cbosubTitleBorderColor").isEnabled());
        choose(window, "cbosubTitleBorder", "Yes");
        EXPECT_EQ(forecast().Subtitle().Border, 1);
        choose(window, "cboTitleBorder", "No");
        EXPECT_EQ(forecast().Title().Border, 0);
        EXPECT_FALSE(partOf<QWidget>(window, "cboTitleBorderColor").isEnabled());
        EXPECT_TRUE(partOf<QWidget>(window, "cbosubTitleBorderColor").isEnabled());
    });
}

TEST_F(FrameProperty, TheForecastsBorderIsTheIndexOfTheList) {
    start();
    withProperties([this](QWidget& window) {
        const QStringList styles{"none", "solid", "double", "groove", "ridge", "inset", "outset"};
        for (const int index : {6, 5, 4, 3, 2, 1, 0}) {
            choose(window, "cboForecastBorder", styles[index]);
            EXPECT_EQ(forecast().Div().Border, index);
            EXPECT_EQ(partOf<QWidget>(window, "cboForecastBorderColor").isEnabled(), index != 0);
        }
    });
}

TEST_F(FrameProperty, AlignmentsAreStoredByTheirData) {
    start();
    withProperties([this](QWidget& window) {
        choose(window, "cboTitleAlign", "right");
        EXPECT_EQ(forecast().Title().Align, 1);
        choose(window, "cbosubTitleAlign", "center");
        EXPECT_EQ(forecast().Subtitle().Align, 2);
        choose(window, "cboTitleAlign", "left");
        EXPECT_EQ(forecast().Title().Align, 0);
    });
}

TEST_F(FrameProperty, TextsAreKeptAtEveryChangeAndMayBeEmpty) {
    start();
    withProperties([this](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtTitleText"), "Mon");
        EXPECT_EQ(forecast().Title().Text, "Mon");
        testing::type(partOf<QLineEdit>(window, "txtsubTitleText"), "Tue");
        EXPECT_EQ(forecast().Subtitle().Text, "Tue");
        enter(window, "txtTitleText", "");
        EXPECT_EQ(forecast().Title().Text, "");
        enter(window, "txtsubTitleText", "");
        EXPECT_EQ(forecast().Subtitle().Text, "");
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(FrameProperty, EnterSelectsTheTextAndAddsNoLine) {
    start();
    withProperties([this](QWidget& window) {
        enter(window, "txtTitleText", "Mon");
        EXPECT_EQ(partOf<QLineEdit>(window, "txtTitleText").selectedText(), "Mon");
        EXPECT_EQ(forecast().Title().Text, "Mon");
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(FrameProperty, AfterTheFontDialogFlagsSaySiUntilTheWindowIsOpenedAgain) {
    start();
    forecast().Title().Font.Bold = true;
    withProperties([](QWidget& window) {
        EXPECT_EQ(text(window, "txtTitleFontbold"), "Yes");
        lookAtFont(window, "cmdTitleFont");
        EXPECT_EQ(text(window, "txtTitleFontbold"), "Si");
        EXPECT_EQ(text(window, "txtTitleFontItalic"), "No");
        EXPECT_EQ(text(window, "txtsubTitleFontbold"), "No");
    });
    withProperties([](QWidget& window) { EXPECT_EQ(text(window, "txtTitleFontbold"), "Yes"); });
}

TEST_F(FrameProperty, TheFontDialogChangesTheSectionItWasOpenedFrom) {
    start();
    withProperties([this](QWidget& window) {
        withModal([&] { click(window, "cmdSubtitleFont"); },
                  [](QWidget& font) {
                      QTest::keyClick(&partOf<QWidget>(font, "lstFontSize"), Qt::Key_Home);
                      QTest::keyClick(&partOf<QWidget>(font, "lstFontStyle"), Qt::Key_End);
                      choose(font, "cboColor", "Blue");
                      click(font, "cmdOk");
                  });
        EXPECT_EQ(forecast().Subtitle().Font.Size, 8);
        EXPECT_TRUE(forecast().Subtitle().Font.Bold);
        EXPECT_TRUE(forecast().Subtitle().Font.Italic);
        EXPECT_EQ(forecast().Subtitle().Font.Color, 16711680);
        EXPECT_EQ(forecast().Title().Font.Size, 24);
        EXPECT_EQ(text(window, "txtsubTitleFontSize"), "8");
        EXPECT_EQ(text(window, "txtsubTitleFontbold"), "Si");
        EXPECT_EQ(text(window, "txtsubTitleFontUnderline"), "No");
        EXPECT_EQ(text(window, "txtsubTitleForeColor"), "Blue");
        EXPECT_EQ(swatch(window, "pctsubTitleForecolor"), 16711680);
        EXPECT_EQ(text(window, "txtTitleFontSize"), "24");
    });
}

TEST_F(FrameProperty, EditsTheFrameOnTheCanvas) {
    start();
    trigger("mnuFrameInsert");
    withProperties([](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtTitleText"), "second");
    });
    EXPECT_EQ(frame(1).Texts().Forecast().Title().Text, "");
    EXPECT_EQ(frame(2).Texts().Forecast().Title().Text, "second");
}

TEST_F(FrameProperty, NoChangeCountsAsUnsavedWork) {
    start();
    withProperties([](QWidget& window) {
        choose(window, "cboTitleBackcolor", "Red");
        choose(window, "cboTitleBorder", "Yes");
        choose(window, "cboForecastBorder", "solid");
        choose(window, "cboTitleAlign", "right");
        enter(window, "txtTitleText", "Mon");
    });
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(FrameProperty, TheForecastTextHasAWindowOfItsOwn) {
    start();
    withProperties([](QWidget& window) {
        withModal([&] { click(window, "cmdForecastText"); },
                  [&](QWidget& detail) {
                      EXPECT_EQ(detail.objectName(), "frmFramePropertyDetail");
                      QTest::keyClick(&detail, Qt::Key_Escape);
                      EXPECT_FALSE(detail.isVisible());
                  });
        EXPECT_TRUE(window.isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
}

TEST_F(FrameProperty, OpensOnTheTextOfTheTitleWhichIsInSight) {
    start();
    withProperties([](QWidget& window) {
        auto& field = partOf<QLineEdit>(window, "txtTitleText");
        EXPECT_TRUE(field.hasFocus());
        const QRect seen = field.visibleRegion().boundingRect();
        EXPECT_EQ(seen.height(), field.height());
    });
}

TEST_F(FrameProperty, TheAccessKeyOfATextGoesFromSectionToSection) {
    start();
    withProperties([](QWidget&) {
        const auto press = [] {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::AltModifier);
            return QApplication::focusWidget()->objectName();
        };
        const QStringList reached = {press(), press(), press()};
        EXPECT_EQ(QSet<QString>(reached.begin(), reached.end()),
                  QSet<QString>({"txtTitleText", "txtsubTitleText", "cmdForecastText"}));
    });
}

TEST_F(FrameProperty, TheAccessKeyOfTextsGoesOnFromOneTextToTheNext) {
    start();
    withProperties([](QWidget& window) {
        ASSERT_EQ(window.focusWidget()->objectName(), "txtTitleText");
        QStringList reached;
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(window.focusWidget(), Qt::Key_T, Qt::AltModifier);
            reached << window.focusWidget()->objectName();
        }
        EXPECT_EQ(reached, QStringList({"txtsubTitleText", "cmdForecastText", "txtTitleText",
                                        "txtsubTitleText"}));
    });
}

/// The names under which what reads the window aloud finds the combo boxes of a grid: those of the
/// labels that are related to them.
static QStringList heardCombos(const QWidget& window) {
    QStringList names;
    for (QComboBox* combo : window.findChildren<QComboBox*>()) {
        const auto related =
            QAccessible::queryAccessibleInterface(combo)->relations(QAccessible::Label);
        EXPECT_FALSE(related.isEmpty()) << combo->objectName().toStdString();
        for (const auto& [label, relation] : related) {
            names << label->text(QAccessible::Name);
        }
    }
    return names;
}

TEST_F(FrameProperty, EveryRowIsNamedForThoseWhoHearTheWindow) {
    start();
    withProperties([](QWidget& window) {
        EXPECT_EQ(heardCombos(window),
                  QStringList({"Title Back color", "Title Border", "Title Border color",
                               "Title Alignment", "Subtitle Back color", "Subtitle Border",
                               "Subtitle Border color", "Subtitle Alignment", "Forecast Back Color",
                               "Forecast Border", "Forecast Border color"}));
        QSet<QString> names;
        for (QLineEdit* field : window.findChildren<QLineEdit*>()) {
            const QString name =
                QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty() || names.contains(name))
                << field->objectName().toStdString();
            names << name;
        }
        EXPECT_TRUE(names.contains("Subtitle Text"));
        withModal([&] { click(window, "cmdForecastText"); },
                  [](QWidget& detail) {
                      EXPECT_EQ(heardCombos(detail),
                                QStringList({"Header Back color", "Body Back color"}));
                  });
        withModal([&] { click(window, "cmdTitleFont"); },
                  [](QWidget& font) { EXPECT_TRUE(heardCombos(font).contains("Color:")); });
    });
    placeLabel({100, 100});
    withProperties([](QWidget& window) {
        EXPECT_EQ(heardCombos(window), QStringList({"Back color", "Border", "Border color"}));
    });
}

}  // namespace nubivane
