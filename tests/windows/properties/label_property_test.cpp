// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_fixture.h"

#include <QPainter>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// The properties of a Label that was dropped on the middle of the map.
class LabelProperty : public testing::PropertyFixture {
  protected:
    void startWithLabel() {
        start();
        key = placeLabel({250, 200});
        workspace.ProjectChanged = false;
    }
    cLabel& label() { return labels().Item(key); }
    QRect rect() { return labelControl(key)->rect; }
    QRect framed() { return selection().shpSelector()->rect(); }
    static QRect around(const QRect& rect) { return rect.adjusted(-8, -8, 8, 8); }

    QString key;
};

TEST_F(LabelProperty, OpensForTheSelectedLabel) {
    startWithLabel();
    withProperties([](QWidget& window) {
        EXPECT_EQ(window.objectName(), "frmLabelProperty");
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(partOf<QLabel>(window, "txtType").text(), "Label");
    });
}

TEST_F(LabelProperty, HasItsRowsWithTheirHelp) {
    startWithLabel();
    label().Border = 1;
    withProperties([](QWidget& window) {
        expectRows(window,
                   {{"txtFont", "Font", "Font", "Sets font"},
                    {"cmdFont", "Font", "Font", "Sets font"},
                    {"txtFontSize", "Size", "Size", "Sets font size"},
                    {"txtFontbold", "Bold", "Bold", "Sets font bold attribute"},
                    {"txtFontItalic", "Italic", "Italic", "Sets font italic attribute"},
                    {"txtFontUnderline", "Underline", "Underline", "Sets underline effect"},
                    {"txtFontOverline", "Overline", "Overline", "Sets overline effect"},
                    {"txtFontStrikethourht", "Strikeout", "Strikeout", "Sets strikeout effect"},
                    {"txtForeColor", "Color", "Color", "Sets font color"},
                    {"cboBackcolor", "Back color", "Back Color",
                     "Sets background color used to display text"},
                    {"cboBorder", "Border", "Border", "Sets border style"},
                    {"cboBorderColor", "Border color", "Border color", "Sets border color"},
                    {"txtText", "Text", "Text", "Sets label text"},
                    {"txtPosX", "X", "X",
                     "Sets the position of the left corner of the label with respect to the map"},
                    {"txtPosY", "Y", "Y",
                     "Sets the position of the top corner of the label with respect to the map"},
                    {"txtNote", "Notes", "Notes", "Stores notes for internal use"}});
    });
}

TEST_F(LabelProperty, RulesEachRowOff) {
    startWithLabel();
    withProperties([](QWidget& window) {
        for (int i = 1; i <= 15; ++i) {
            partOf<QWidget>(window, qPrintable("sepLine" + QString::number(i)));
        }
        EXPECT_EQ(window.findChild<QWidget*>("sepLine16"), nullptr);
    });
}

TEST_F(LabelProperty, ShowsWhatTheLabelHolds) {
    startWithLabel();
    label().Font.Name = "Courier New";
    label().Font.Size = 18;
    label().Font.Bold = true;
    label().Font.Underline = true;
    label().Font.Strikeout = true;
    label().Font.Color = 255;
    label().BackColor = 65535;
    label().Border = 1;
    label().BorderColor = 16711680;
    label().Text = " Sun & rain ";
    label().PosX = -3;
    label().PosY = 17;
    label().Note = "a note";
    withProperties([](QWidget& window) {
        const QHash<const char*, const char*> texts{{"txtFont", "Courier New"},
                                                    {"txtFontSize", "18"},
                                                    {"txtFontbold", "Yes"},
                                                    {"txtFontItalic", "No"},
                                                    {"txtFontUnderline", "Yes"},
                                                    {"txtFontOverline", "No"},
                                                    {"txtFontStrikethourht", "Yes"},
                                                    {"txtForeColor", "Red"},
                                                    {"txtText", " Sun & rain "},
                                                    {"txtPosX", "-3"},
                                                    {"txtPosY", "17"},
                                                    {"txtNote", "a note"}};
        for (auto each = texts.begin(); each != texts.end(); ++each) {
            EXPECT_EQ(text(window, each.key()), each.value()) << each.key();
        }
        EXPECT_EQ(swatch(window, "pctForecolor"), 255);
        EXPECT_EQ(chosen(window, "cboBackcolor"), "Yellow");
        EXPECT_EQ(chosen(window, "cboBorder"), "Yes");
        EXPECT_EQ(chosen(window, "cboBorderColor"), "Blue");
        EXPECT_TRUE(partOf<QWidget>(window, "cboBorderColor").isEnabled());
    });
}

TEST_F(LabelProperty, ShowsTheOtherFlagsTheOtherWayRound) {
    startWithLabel();
    label().Font.Italic = true;
    label().Font.Overline = true;
    withProperties([](QWidget& window) {
        EXPECT_EQ(text(window, "txtFontbold"), "No");
        EXPECT_EQ(text(window, "txtFontItalic"), "Yes");
        EXPECT_EQ(text(window, "txtFontUnderline"), "No");
        EXPECT_EQ(text(window, "txtFontOverline"), "Yes");
        EXPECT_EQ(text(window, "txtFontStrikethourht"), "No");
        EXPECT_EQ(chosen(window, "cboBackcolor"), "none");
        EXPECT_EQ(chosen(window, "cboBorder"), "No");
        EXPECT_FALSE(partOf<QWidget>(window, "cboBorderColor").isEnabled());
    });
}

TEST_F(LabelProperty, LeavesEmptyWhatNoColourStandsFor) {
    startWithLabel();
    label().Font.Color = 254;
    label().BackColor = 3;
    withProperties([](QWidget& window) {
        EXPECT_EQ(text(window, "txtForeColor"), "");
        EXPECT_EQ(swatch(window, "pctForecolor"), 254);
        EXPECT_EQ(chosen(window, "cboBackcolor"), "");
    });
    EXPECT_EQ(label().BackColor, 3);
}

TEST_F(LabelProperty, LookingChangesNothing) {
    startWithLabel();
    label().Text = "two\r\nlines";
    label().Border = 7;
    const cLabel before = label();
    withProperties([](QWidget& window) {
        for (int i = 0; i < 40; ++i) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        }
    });
    EXPECT_EQ(label().Text, before.Text);
    EXPECT_EQ(label().Border, 7);
    EXPECT_EQ(label().PosX, before.PosX);
    EXPECT_EQ(label().PosY, before.PosY);
}

TEST_F(LabelProperty, ABackColourComesIntoModelAndControlAtOnce) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        choose(window, "cboBackcolor", "Yellow");
        EXPECT_EQ(label().BackColor, 65535);
        EXPECT_EQ(shown(rect().topRight()), QColor(255, 255, 0));
    });
}

TEST_F(LabelProperty, TheColourNoneMakesItTransparentAtOnce) {
    startWithLabel();
    const QColor bare = shown(rect().topRight());
    label().BackColor = 65535;
    withProperties([&](QWidget& window) {
        choose(window, "cboBackcolor", "none");
        EXPECT_EQ(label().BackColor, -1);
        EXPECT_EQ(shown(rect().topRight()), bare);
    });
}

TEST_F(LabelProperty, ABorderComesIntoModelAndControlAtOnce) {
    startWithLabel();
    const QColor bare = shown(rect().bottomRight());
    withProperties([&](QWidget& window) {
        choose(window, "cboBorder", "Yes");
        EXPECT_EQ(label().Border, 1);
        EXPECT_TRUE(partOf<QWidget>(window, "cboBorderColor").isEnabled());
        EXPECT_EQ(shown(rect().bottomRight()), QColor(Qt::black));
        choose(window, "cboBorder", "No");
        EXPECT_EQ(label().Border, 0);
        EXPECT_FALSE(partOf<QWidget>(window, "cboBorderColor").isEnabled());
        EXPECT_EQ(shown(rect().bottomRight()), bare);
    });
}

TEST_F(LabelProperty, ABorderColourStaysOutOfTheMap) {
    startWithLabel();
    label().Border = 1;
    withProperties([this](QWidget& window) {
        choose(window, "cboBorder", "No");
        choose(window, "cboBorder", "Yes");
        choose(window, "cboBorderColor", "Red");
        EXPECT_EQ(label().BorderColor, 255);
        EXPECT_EQ(shown(rect().bottomRight()), QColor(Qt::black));
    });
    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_EQ(shown(rect().bottomRight()), QColor(Qt::black));
}

TEST_F(LabelProperty, EnterAppliesATextAndTheSizeFollows) {
    startWithLabel();
    const QRect before = rect();
    withProperties([&](QWidget& window) {
        enter(window, "txtText", "  A much longer label");
        EXPECT_EQ(label().Text, "  A much longer label");
        EXPECT_GT(rect().width(), before.width());
        EXPECT_EQ(rect().topLeft(), before.topLeft());
        EXPECT_EQ(label().Width, rect().width());
        EXPECT_EQ(label().Height, rect().height());
        EXPECT_EQ(framed(), around(rect()));
        EXPECT_EQ(partOf<QLineEdit>(window, "txtText").selectedText(), "  A much longer label");
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(LabelProperty, LeavingTheFieldAppliesATextToo) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        leave(window, "txtText", "Wind");
        EXPECT_EQ(label().Text, "Wind");
        EXPECT_EQ(label().Width, rect().width());
    });
}

TEST_F(LabelProperty, AnEmptyTextIsRefused) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        for (const char* refused : {"", "   "}) {
            shell.expectMessage("Label text cannot be empty.", Icon::Critical);
            enter(window, "txtText", refused);
            EXPECT_EQ(label().Text, "Label");
            EXPECT_EQ(text(window, "txtText"), "Label");
            EXPECT_EQ(partOf<QLineEdit>(window, "txtText").selectedText(), "Label");
        }
        shell.expectMessage("Label text cannot be empty.", Icon::Critical);
        leave(window, "txtText", " ");
        EXPECT_EQ(text(window, "txtText"), "Label");
        EXPECT_EQ(label().Text, "Label");
    });
}

TEST_F(LabelProperty, GoingToAnotherWindowIsNotLeavingAField) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        auto& field = partOf<QLineEdit>(window, "txtText");
        testing::type(field, "");
        QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(&field, &away);
        QCoreApplication::processEvents();
        EXPECT_EQ(field.text(), "");
        EXPECT_EQ(label().Text, "Label");
        testing::type(field, "Wind");
    });
}

TEST_F(LabelProperty, XMayLieHalfOutsideTheMap) {
    startWithLabel();
    label().Text = "Wind";
    withProperties([this](QWidget& window) {
        enter(window, "txtText", "Wind");
        const double half = rect().width() / 2.0;
        const auto number = [](double value) { return QString::number(value, 'f', 1); };
        enter(window, "txtPosX", number(-half));
        EXPECT_EQ(label().PosX, std::nearbyint(-half));
        EXPECT_EQ(rect().x(), label().PosX);
        EXPECT_EQ(framed(), around(rect()));
        expectInvalid();
        enter(window, "txtPosX", number(-half - 1));
        EXPECT_EQ(label().PosX, std::nearbyint(-half));
        EXPECT_EQ(text(window, "txtPosX"), QString::number(label().PosX));
        EXPECT_EQ(partOf<QLineEdit>(window, "txtPosX").selectedText(), text(window, "txtPosX"));
        enter(window, "txtPosX", number(500 - half));
        EXPECT_EQ(label().PosX, std::nearbyint(500 - half));
        expectInvalid();
        enter(window, "txtPosX", number(501 - half));
        EXPECT_EQ(label().PosX, std::nearbyint(500 - half));
        enter(window, "txtPosX", "10");
    });
}

TEST_F(LabelProperty, YMayLieHalfOutsideTheMap) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        const double half = rect().height() / 2.0;
        const auto number = [](double value) { return QString::number(value, 'f', 1); };
        enter(window, "txtPosY", number(-half));
        EXPECT_EQ(label().PosY, std::nearbyint(-half));
        EXPECT_EQ(rect().y(), label().PosY);
        EXPECT_EQ(framed(), around(rect()));
        expectInvalid();
        enter(window, "txtPosY", number(-half - 1));
        enter(window, "txtPosY", number(400 - half));
        EXPECT_EQ(label().PosY, std::nearbyint(400 - half));
        expectInvalid();
        enter(window, "txtPosY", number(401 - half));
        EXPECT_EQ(label().PosY, std::nearbyint(400 - half));
        enter(window, "txtPosY", "10");
    });
}

TEST_F(LabelProperty, WhatIsNoNumberIsNoPosition) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        const QRect before = rect();
        for (const char* refused : {"", "abc", "1e2", "0x10", "12px", "99999999999999999999"}) {
            expectInvalid();
            enter(window, "txtPosX", refused);
            expectInvalid();
            enter(window, "txtPosY", refused);
        }
        EXPECT_EQ(rect(), before);
        EXPECT_EQ(QPoint(label().PosX, label().PosY), before.topLeft());
    });
}

TEST_F(LabelProperty, LeavingAPositionChecksIt) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        leave(window, "txtPosX", "40");
        EXPECT_EQ(label().PosX, 40);
        leave(window, "txtPosY", " 50 ");
        EXPECT_EQ(label().PosY, 50);
        EXPECT_EQ(rect().topLeft(), QPoint(40, 50));
        expectInvalid();
        leave(window, "txtPosX", "-400");
        EXPECT_EQ(label().PosX, 40);
        EXPECT_EQ(text(window, "txtPosX"), "40");
    });
}

TEST_F(LabelProperty, NotesAreKeptAtEveryChange) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        auto& field = partOf<QLineEdit>(window, "txtNote");
        field.setFocus();
        QTest::keyClicks(&field, "ab");
        EXPECT_EQ(label().Note, "ab");
        QTest::keyClick(&field, Qt::Key_Backspace);
        EXPECT_EQ(label().Note, "a");
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(field.selectedText(), "a");
    });
}

TEST_F(LabelProperty, TheFontDialogChangesRowsModelAndControl) {
    startWithLabel();
    const QRect before = rect();
    withProperties([&](QWidget& window) {
        withModal([&] { click(window, "cmdFont"); },
                  [&](QWidget& font) {
                      auto& sizes = partOf<QWidget>(font, "lstFontSize");
                      QTest::keyClick(&sizes, Qt::Key_End);
                      QTest::keyClick(&partOf<QWidget>(font, "chkUnderline"), Qt::Key_Space);
                      choose(font, "cboColor", "Red");
                      click(font, "cmdOk");
                  });
        EXPECT_EQ(label().Font.Size, 36);
        EXPECT_EQ(text(window, "txtFontSize"), "36");
        EXPECT_EQ(text(window, "txtFontUnderline"), "Yes");
        EXPECT_EQ(text(window, "txtFontOverline"), "Yes");
        EXPECT_EQ(text(window, "txtForeColor"), "Red");
        EXPECT_EQ(swatch(window, "pctForecolor"), 255);
        EXPECT_GT(rect().height(), before.height());
        EXPECT_EQ(label().Height, rect().height());
        EXPECT_EQ(label().Width, rect().width());
        EXPECT_EQ(framed(), around(rect()));
    });
}

TEST_F(LabelProperty, StrikeOutShowsInTheControlUntilTheFrameIsVisitedAgain) {
    startWithLabel();
    label().Font.Color = 255;
    // How many pixels of the label's lower half are wholly red.
    const auto redPixels = [this] {
        int count = 0;
        for (int x = rect().left(); x <= rect().right(); ++x) {
            for (int y = rect().top(); y <= rect().bottom(); ++y) {
                count += shown({x, y}) == QColor(255, 0, 0) ? 1 : 0;
            }
        }
        return count;
    };
    withProperties([&](QWidget& window) {
        enter(window, "txtText", "Label");
        const int plain = redPixels();
        withModal([&] { click(window, "cmdFont"); },
                  [&](QWidget& font) {
                      QTest::keyClick(&partOf<QWidget>(font, "chkStrikeout"), Qt::Key_Space);
                      click(font, "cmdOk");
                  });
        EXPECT_TRUE(label().Font.Strikeout);
        const int struck = redPixels();
        EXPECT_GT(struck, plain + 5);
        enter(window, "txtText", "Label");
        EXPECT_EQ(redPixels(), struck);
    });
    trigger("mnuFrameInsert");
    selectTab(1);
    EXPECT_LT(redPixels(), 40);
}

TEST_F(LabelProperty, ClosingWithAPositionInHandAppliesBoth) {
    startWithLabel();
    withProperties([this](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtPosX"), "33");
        partOf<QLineEdit>(window, "txtPosY").setText("44");
        QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(label().PosX, 33);
    EXPECT_EQ(label().PosY, 44);
    EXPECT_EQ(rect().topLeft(), QPoint(33, 44));
}

TEST_F(LabelProperty, ClosingWithABadPositionInHandKeepsTheOldOneAndCloses) {
    startWithLabel();
    const QPoint before(label().PosX, label().PosY);
    for (const char* refused : {"abc", "-4000"}) {
        withProperties([&](QWidget& window) {
            testing::type(partOf<QLineEdit>(window, "txtPosX"), refused);
            expectInvalid();
            QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
            EXPECT_FALSE(window.isVisible());
        });
        EXPECT_EQ(QPoint(label().PosX, label().PosY), before);
    }
}

TEST_F(LabelProperty, ClosingWithTheTextInHandAppliesOrRefusesIt) {
    startWithLabel();
    withProperties([](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtText"), "Fog");
        window.close();
    });
    EXPECT_EQ(label().Text, "Fog");
    EXPECT_EQ(label().Width, rect().width());
    withProperties([this](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtText"), " ");
        shell.expectMessage("Label text cannot be empty.", Icon::Critical);
        window.close();
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(label().Text, "Fog");
}

TEST_F(LabelProperty, NoChangeCountsAsUnsavedWork) {
    startWithLabel();
    withProperties([](QWidget& window) {
        choose(window, "cboBackcolor", "Red");
        choose(window, "cboBorder", "Yes");
        choose(window, "cboBorderColor", "Red");
        enter(window, "txtText", "Fog");
        enter(window, "txtPosX", "10");
        enter(window, "txtNote", "a");
    });
    EXPECT_FALSE(workspace.ProjectChanged);
}

TEST_F(LabelProperty, TheKeyboardGoesFromRowToRow) {
    startWithLabel();
    label().Border = 1;
    withProperties([](QWidget& window) {
        partOf<QWidget>(window, "txtFont").setFocus();
        QStringList names;
        for (int i = 0; i < 16; ++i) {
            names << window.focusWidget()->objectName();
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(names,
                  QStringList({"txtFont", "cmdFont", "txtFontSize", "txtFontbold", "txtFontItalic",
                               "txtFontUnderline", "txtFontOverline", "txtFontStrikethourht",
                               "txtForeColor", "cboBackcolor", "cboBorder", "cboBorderColor",
                               "txtText", "txtPosX", "txtPosY", "txtNote"}));
        EXPECT_EQ(window.focusWidget()->objectName(), "txtFont");
    });
}

TEST_F(LabelProperty, TheRowThatHasTheKeyboardIsInSight) {
    startWithLabel();
    withProperties([](QWidget& window) {
        auto& container = partOf<QWidget>(window, "fraContainer");
        for (const char* name : {"txtNote", "txtFont", "txtPosX"}) {
            auto& field = partOf<QWidget>(window, name);
            field.setFocus();
            const QRect place(field.mapTo(&container, QPoint(0, 0)), field.size());
            EXPECT_TRUE(container.rect().contains(place)) << name;
        }
    });
}

TEST_F(LabelProperty, OnlyTheBackColourItselfChangesTheControlsBackColour) {
    startWithLabel();
    // As after a paste: the model is opaque, the control not yet.
    label().BackColor = 0x00FF00;
    const auto ground = [this] {
        const SpriteControl& control = *labelControl(key);
        QImage shown(control.rect.size(), QImage::Format_RGB32);
        shown.fill(Qt::white);
        QPainter painter(&shown);
        painter.translate(-control.rect.topLeft());
        control.paint(painter);
        return shown.pixelColor(2, 2);
    };
    withProperties([&](QWidget& window) {
        choose(window, "cboBorder", "Yes");
        EXPECT_EQ(ground(), QColor(Qt::white));
        enter(window, "txtText", "Rain");
        EXPECT_EQ(ground(), QColor(Qt::white));
        choose(window, "cboBackcolor", "Red");
        EXPECT_EQ(ground(), QColor(Qt::red));
    });
}

}  // namespace nubivane
