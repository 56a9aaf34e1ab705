// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_symbol_property.h"
#include "windows/properties/property_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace nubivane {

using testing::partOf;

/// The properties of a symbol of 32 x 32 pixels in the middle of a map of 500 x 400.
class SymbolProperty : public testing::PropertyFixture {
  protected:
    void startWithSymbol() {
        addStill("still.png", {32, 32});
        start();
        key = placeSymbol({250, 200}, "still.png");
        workspace.ProjectChanged = false;
    }
    cSymbol& symbol() { return symbols().Item(key); }
    QRect rect() { return symbolControl(key)->rect; }
    QRect framed() { return selection().shpSelector()->spriteRect(); }
    /// What the picker answers from now on.
    void answer(const QString& path) {
        window().findChild<PropertyCommands*>()->setChooser([this, path](QWidget*) {
            ++asks;
            return std::optional(path);
        });
    }

    QString key;
    int asks = 0;
};

TEST_F(SymbolProperty, OpensForTheSelectedSymbol) {
    startWithSymbol();
    withProperties([](QWidget& window) {
        EXPECT_EQ(window.objectName(), "frmSymbolProperty");
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(partOf<QLabel>(window, "txtType").text(), "Symbol");
        EXPECT_EQ(partOf<QLabel>(window, "txtHttp").text(), "http://");
    });
}

TEST_F(SymbolProperty, HasItsRowsWithTheirHelp) {
    startWithSymbol();
    answer({});
    withProperties([](QWidget& window) {
        expectRows(window,
                   {{"txtFilename", "Symbol", "Symbol", "Sets the displayed symbol"},
                    {"cmdSymbol", "Symbol", "Symbol", "Sets the displayed symbol"},
                    {"txtHeight", "Height", "Height", "Sets the height of the symbol"},
                    {"txtWidth", "Width", "Width", "Sets the width of the symbol"},
                    {"txtPosX", "X", "X",
                     "Sets the position of the left corner of the symbol with respect to the map"},
                    {"txtPosY", "Y", "Y",
                     "Sets the position of the top corner of the symbol with respect to the map"},
                    {"txtLink", "Link", "Link", "Sets the url to navigate to"},
                    {"txtTooltip", "Tooltip", "Tooltip",
                     "Sets the text displayed when the mouse is paused over the symbol"},
                    {"txtNote", "Notes", "Notes", "Stores notes for internal use"}});
    });
}

TEST_F(SymbolProperty, ShowsWhatTheSymbolHolds) {
    startWithSymbol();
    symbol().Link = "www.example.org/a?b&c";
    symbol().Tooltip = "Sunny";
    symbol().Note = "a note";
    symbol().PosX = 7;
    symbol().PosY = 8;
    symbol().Width = 33;
    symbol().Height = 44;
    withProperties([this](QWidget& window) {
        EXPECT_EQ(text(window, "txtFilename"), host("Symbols/set-1/still.png"));
        EXPECT_TRUE(partOf<QLineEdit>(window, "txtFilename").isReadOnly());
        EXPECT_EQ(text(window, "txtHeight"), "44");
        EXPECT_EQ(text(window, "txtWidth"), "33");
        EXPECT_EQ(text(window, "txtPosX"), "7");
        EXPECT_EQ(text(window, "txtPosY"), "8");
        EXPECT_EQ(text(window, "txtLink"), "www.example.org/a?b&c");
        EXPECT_EQ(text(window, "txtTooltip"), "Sunny");
        EXPECT_EQ(text(window, "txtNote"), "a note");
    });
}

TEST_F(SymbolProperty, AWidthOf16IsTheLeast) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        expectInvalid();
        enter(window, "txtWidth", "15");
        EXPECT_EQ(symbol().Width, 32);
        EXPECT_EQ(text(window, "txtWidth"), "32");
        EXPECT_EQ(partOf<QLineEdit>(window, "txtWidth").selectedText(), "32");
        enter(window, "txtWidth", "16");
        EXPECT_EQ(symbol().Width, 16);
        EXPECT_EQ(rect(), QRect(234, 184, 16, 32));
        EXPECT_EQ(framed(), rect());
        EXPECT_EQ(symbol().Height, 32);
    });
}

TEST_F(SymbolProperty, AHeightOf16IsTheLeast) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        expectInvalid();
        enter(window, "txtHeight", "15");
        EXPECT_EQ(symbol().Height, 32);
        enter(window, "txtHeight", "16");
        EXPECT_EQ(symbol().Height, 16);
        EXPECT_EQ(rect(), QRect(234, 184, 32, 16));
        EXPECT_EQ(framed(), rect());
        EXPECT_EQ(symbol().Width, 32);
    });
}

TEST_F(SymbolProperty, ASizeMustEndOnTheMap) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        enter(window, "txtWidth", "266");  // 234 + 266 = 500
        EXPECT_EQ(symbol().Width, 266);
        expectInvalid();
        enter(window, "txtWidth", "267");
        EXPECT_EQ(symbol().Width, 266);
        enter(window, "txtHeight", "216");  // 184 + 216 = 400
        EXPECT_EQ(symbol().Height, 216);
        expectInvalid();
        enter(window, "txtHeight", "217");
        EXPECT_EQ(symbol().Height, 216);
    });
}

TEST_F(SymbolProperty, ASizePastTheEdgeIsRefusedAlsoWhenTheSymbolSticksOutAlready) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        enter(window, "txtPosX", "480");
        expectInvalid();
        enter(window, "txtWidth", "21");
        expectInvalid();
        enter(window, "txtWidth", "32");
        EXPECT_EQ(symbol().Width, 32);
        enter(window, "txtWidth", "20");
        EXPECT_EQ(symbol().Width, 20);
    });
}

TEST_F(SymbolProperty, WhatIsNoNumberIsNoSize) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        for (const char* refused : {"", "abc", "-20", "20 px", "999999999999"}) {
            expectInvalid();
            enter(window, "txtWidth", refused);
            expectInvalid();
            enter(window, "txtHeight", refused);
        }
        EXPECT_EQ(rect(), QRect(234, 184, 32, 32));
    });
}

TEST_F(SymbolProperty, LeavingASizeChecksIt) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        leave(window, "txtWidth", "50");
        leave(window, "txtHeight", "60");
        EXPECT_EQ(rect(), QRect(234, 184, 50, 60));
        expectInvalid();
        leave(window, "txtWidth", "1");
        EXPECT_EQ(symbol().Width, 50);
    });
}

TEST_F(SymbolProperty, AFieldThatNobodyHasChangedIsLeftInPeace) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        // It sticks out, so that its own size would be refused if it were typed.
        enter(window, "txtPosX", "480");
        enter(window, "txtPosY", "380");
        for (const char* name : {"txtHeight", "txtWidth", "txtPosX", "txtPosY"}) {
            auto& field = partOf<QLineEdit>(window, name);
            const QString before = field.text();
            field.setFocus();
            QTest::keyClick(&field, Qt::Key_Tab);
            // Typed away and back again it is the same.
            field.setFocus();
            field.end(false);
            QTest::keyClick(&field, Qt::Key_7);
            QTest::keyClick(&field, Qt::Key_Backspace);
            QTest::keyClick(&field, Qt::Key_Backtab);
            QCoreApplication::processEvents();
            EXPECT_EQ(field.text(), before) << name;
        }
        partOf<QLineEdit>(window, "txtWidth").setFocus();
        window.close();
    });
    EXPECT_EQ(symbol().Width, 32);
    EXPECT_EQ(symbol().Height, 32);
}

TEST_F(SymbolProperty, TheFrameGoesToTheModelsPlaceWhenTheSizeChanges) {
    startWithSymbol();
    const QString corner = placeSymbol({0, 0}, "still.png");
    // Dropped on the corner the model keeps the place before the control was pushed onto the map.
    ASSERT_EQ(symbols().Item(corner).PosX, -16);
    ASSERT_EQ(symbolControl(corner)->rect.x(), 0);
    withProperties([&](QWidget& window) {
        enter(window, "txtWidth", "40");
        EXPECT_EQ(symbolControl(corner)->rect, QRect(0, 0, 40, 32));
        EXPECT_EQ(framed(), QRect(-16, 0, 40, 32));
        enter(window, "txtPosX", "5");
        EXPECT_EQ(symbolControl(corner)->rect, QRect(5, 0, 40, 32));
        EXPECT_EQ(framed(), QRect(5, 0, 40, 32));
    });
}

TEST_F(SymbolProperty, APositionMayLieHalfOutsideTheMap) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        enter(window, "txtPosX", "-16");
        enter(window, "txtPosY", "-16");
        EXPECT_EQ(rect().topLeft(), QPoint(-16, -16));
        expectInvalid();
        enter(window, "txtPosX", "-17");
        expectInvalid();
        enter(window, "txtPosY", "-17");
        enter(window, "txtPosX", "484");
        enter(window, "txtPosY", "384");
        expectInvalid();
        enter(window, "txtPosX", "485");
        expectInvalid();
        enter(window, "txtPosY", "385");
        EXPECT_EQ(QPoint(symbol().PosX, symbol().PosY), QPoint(484, 384));
        EXPECT_EQ(rect().topLeft(), QPoint(484, 384));
        EXPECT_EQ(framed(), rect());
    });
}

TEST_F(SymbolProperty, TextsAreKeptAtEveryChange) {
    startWithSymbol();
    withProperties([this](QWidget& window) {
        const std::pair<const char*, QString cSymbol::*> rows[] = {
            {"txtLink", &cSymbol::Link},
            {"txtTooltip", &cSymbol::Tooltip},
            {"txtNote", &cSymbol::Note}};
        for (const auto& [name, member] : rows) {
            auto& field = partOf<QLineEdit>(window, name);
            field.setFocus();
            QTest::keyClicks(&field, "ab");
            EXPECT_EQ(symbol().*member, "ab") << name;
            QTest::keyClick(&field, Qt::Key_Backspace);
            EXPECT_EQ(symbol().*member, "a") << name;
        }
        for (const char* name : {"txtLink", "txtNote"}) {
            QTest::keyClick(&partOf<QWidget>(window, name), Qt::Key_Return);
            EXPECT_EQ(partOf<QLineEdit>(window, name).selectedText(), "a") << name;
        }
    });
}

TEST_F(SymbolProperty, TheTooltipShowsOverTheSymbolAsItIsWritten) {
    startWithSymbol();
    withProperties([](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtTooltip"), "<b>5 & 6");
    });
    const auto rest = [this](QPoint position) {
        const QPoint at = position + QPoint(1, 1);
        QHelpEvent event(QEvent::ToolTip, at, canvas().mapToGlobal(at));
        QApplication::sendEvent(&canvas(), &event);
    };
    rest({250, 200});
    EXPECT_EQ(QToolTip::text(), "<qt>&lt;b&gt;5 &amp; 6</qt>");
    rest({10, 10});
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(SymbolProperty, AnotherSymbolComesIntoModelAndControl) {
    startWithSymbol();
    addStill("wide.png", {64, 40}, Qt::green);
    const QString wide = model("Symbols/set-1/wide.png");
    answer(wide);
    symbol().Width = 31;  // the model follows the control when the symbol changes
    withProperties([&](QWidget& window) {
        click(window, "cmdSymbol");
        EXPECT_EQ(text(window, "txtFilename"), host("Symbols/set-1/wide.png"));
        EXPECT_EQ(text(window, "txtWidth"), "32");
        EXPECT_EQ(symbol().FileGif, wide);
        EXPECT_EQ(symbol().PathFileGif, wide);
        EXPECT_EQ(shown({250, 200}), QColor(Qt::green));
        EXPECT_EQ(rect(), QRect(234, 184, 32, 32));
        EXPECT_EQ(symbol().Width, 32);
        EXPECT_EQ(symbol().Height, 32);
        EXPECT_EQ(QPoint(symbol().PosX, symbol().PosY), QPoint(234, 184));
        EXPECT_EQ(framed(), rect());
    });
    EXPECT_EQ(asks, 1);
    EXPECT_EQ(shell.pointer, Pointer::Default);
}

TEST_F(SymbolProperty, AMovingSymbolThatIsChosenPlays) {
    startWithSymbol();
    answer(model("Symbols/set-1/" + addMoving("moving.gif", {50, 50})));
    withProperties([this](QWidget& window) {
        click(window, "cmdSymbol");
        EXPECT_TRUE(static_cast<GifSymbol*>(symbolControl(key))->nextChange(0).has_value());
    });
}

TEST_F(SymbolProperty, AStillSymbolInPlaceOfAMovingOneStandsStill) {
    startWithSymbol();
    const QString moving = placeSymbol({100, 100}, addMoving("moving.gif", {50, 50, 50}));
    answer(model("Symbols/set-1/still.png"));
    withProperties([&](QWidget& window) {
        click(window, "cmdSymbol");
        EXPECT_FALSE(static_cast<GifSymbol*>(symbolControl(moving))->nextChange(0).has_value());
    });
}

TEST_F(SymbolProperty, NoChoiceChangesNothing) {
    startWithSymbol();
    answer({});
    withProperties([this](QWidget& window) {
        click(window, "cmdSymbol");
        EXPECT_EQ(symbol().PathFileGif, model("Symbols/set-1/still.png"));
        EXPECT_EQ(text(window, "txtFilename"), host("Symbols/set-1/still.png"));
    });
    EXPECT_EQ(asks, 1);
}

TEST_F(SymbolProperty, ASymbolThatCannotBeReadLeavesAnEmptyPlace) {
    startWithSymbol();
    testing::writeFile(host("Symbols/set-1/broken.gif"), "GIF89a and nothing");
    answer(model("Symbols/set-1/broken.gif"));
    const QColor bare = shown({20, 20});
    withProperties([&](QWidget& window) {
        click(window, "cmdSymbol");
        EXPECT_EQ(shown({250, 200}), bare);
        EXPECT_EQ(rect(), QRect(234, 184, 32, 32));
    });
}

TEST_F(SymbolProperty, ClosingWithAPositionInHandChecksIt) {
    startWithSymbol();
    withProperties([](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtPosY"), "12");
        QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(symbol().PosY, 12);
    withProperties([this](QWidget& window) {
        testing::type(partOf<QLineEdit>(window, "txtPosY"), "x");
        expectInvalid();
        window.close();
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(symbol().PosY, 12);
}

TEST_F(SymbolProperty, NoChangeCountsAsUnsavedWork) {
    startWithSymbol();
    answer(model("Symbols/set-1/sun.gif"));
    withProperties([](QWidget& window) {
        enter(window, "txtWidth", "40");
        enter(window, "txtPosX", "40");
        enter(window, "txtLink", "a");
        enter(window, "txtTooltip", "a");
        enter(window, "txtNote", "a");
        click(window, "cmdSymbol");
    });
    EXPECT_FALSE(workspace.ProjectChanged);
}

}  // namespace nubivane
