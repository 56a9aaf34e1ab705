// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/spell_check.h"

#include "engine/model/edits/project_edits.h"
#include "engine/spelling/spelling_fixture.h"
#include "windows/properties/frm_frame_property_detail.h"
#include "windows/properties/property_fixture.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QTextBlock>
#include <QTextLayout>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// The window of the forecast text, with an English and an Italian dictionary.
class SpellCheckOfFields : public testing::PropertyFixture {
  protected:
    void SetUp() override {
        forecast.Header().add({.IndexFontSize = 1, .Text = "Sunny"});
        forecast.Body().add({.IndexFontSize = 1, .Text = "The rian in the north"});
        settings.set(Setting::Spelling, "en_GB");
    }
    void withDetail(const std::function<void(QWidget&)>& use) {
        frmFramePropertyDetail window(workspace, shell, spelling, nullptr);
        withModal([&] { window.Init(); }, use);
    }
    static WrappedField& body(const QWidget& window) {
        return partOf<WrappedField>(window, "txtBodyText");
    }
    /// The words of a field that have a red wave, once the highlighter has come to them.
    static QStringList waved(WrappedField& field) {
        QCoreApplication::processEvents();
        QStringList words;
        const QTextBlock block = field.document()->firstBlock();
        for (const auto& range : block.layout()->formats()) {
            if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline) {
                EXPECT_EQ(range.format.underlineColor(), QColor(Qt::red));
                words << block.text().mid(range.start, range.length);
            }
        }
        return words;
    }
    /// The menu of a field over a position of its text.
    static QMenu& menuAt(WrappedField& field, int position) {
        QTextCursor cursor(field.document());
        cursor.setPosition(position);
        const QPoint place = field.cursorRect(cursor).center() + QPoint(2, 0);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place,
                                field.viewport()->mapToGlobal(place));
        QApplication::sendEvent(field.viewport(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        EXPECT_TRUE(menu);
        return *menu;
    }
    static QStringList captions(const QMenu& menu) {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            texts << action->text();
        }
        return texts;
    }
    static void choose(QMenu& menu, const QString& caption) {
        for (QAction* action : menu.actions()) {
            if (action->text() == caption) {
                action->trigger();
                menu.close();
                return;
            }
        }
        ADD_FAILURE() << caption.toStdString();
        menu.close();
    }
    QMenu& languages(WrappedField& field) {
        QMenu& menu = menuAt(field, 0);
        EXPECT_EQ(menu.actions().last()->text(), "Spelling");
        return *menu.actions().last()->menu();
    }

    cForecast& forecast = workspace.Frames().Item(1).Texts().Forecast();
    Spelling spelling{settings,
                      {{testing::dictionariesForTests()}, temporary.file("own/Words.txt")}};
};

TEST_F(SpellCheckOfFields, RedWavesAreUnderMisspeltWords) {
    withDetail([](QWidget& window) {
        EXPECT_EQ(waved(body(window)), QStringList({"rian", "north"}));
        EXPECT_EQ(waved(partOf<WrappedField>(window, "txtHeaderText")), QStringList());
        body(window).setFocus();
        body(window).moveCursor(QTextCursor::End);
        QTest::keyClicks(&body(window), " clodus");
        EXPECT_EQ(waved(body(window)), QStringList({"rian", "north", "clodus"}));
    });
}

TEST_F(SpellCheckOfFields, WavesAreNoEdits) {
    const int before = workspace.edits().count();
    withDetail([](QWidget& window) { waved(body(window)); });
    EXPECT_EQ(workspace.edits().count(), before);
}

TEST_F(SpellCheckOfFields, TheMenuOffersOtherWords) {
    withDetail([&](QWidget& window) {
        QMenu& menu = menuAt(body(window), 6);
        const QStringList offered = captions(menu);
        EXPECT_TRUE(offered.contains("rain")) << offered.join(", ").toStdString();
        EXPECT_LT(offered.indexOf("rain"), offered.indexOf("Add to dictionary"));
        EXPECT_LT(offered.indexOf("Add to dictionary"), offered.size() - 5);
        choose(menu, "rain");
        EXPECT_EQ(waved(body(window)), QStringList("north"));
    });
    EXPECT_EQ(forecast.Body().Item(1).Text, "The rain in the north");
    ASSERT_TRUE(workspace.edits().canUndo());
    workspace.edits().undo();
    EXPECT_EQ(forecast.Body().Item(1).Text, "The rian in the north");
}

TEST_F(SpellCheckOfFields, AWordIsAddedToTheDictionary) {
    forecast.Header().Item(1).Text = "north";
    withDetail([&](QWidget& window) {
        choose(menuAt(body(window), 18), "Add to dictionary");
        EXPECT_EQ(waved(body(window)), QStringList("rian"));
        EXPECT_EQ(waved(partOf<WrappedField>(window, "txtHeaderText")), QStringList());
    });
    EXPECT_EQ(testing::readFile(temporary.file("own/Words.txt")), "north\n");
    EXPECT_FALSE(workspace.edits().canUndo());
}

TEST_F(SpellCheckOfFields, AWordThatCannotBeAddedIsToldOf) {
    testing::writeFile(temporary.file("own"), "no folder");
    shell.expectMessage("The word could not be added to the dictionary.", Icon::Critical);
    withDetail([&](QWidget& window) {
        choose(menuAt(body(window), 18), "Add to dictionary");
        EXPECT_EQ(waved(body(window)), QStringList({"rian", "north"}));
    });
}

TEST_F(SpellCheckOfFields, ARightWordHasNoOthers) {
    withDetail([&](QWidget& window) {
        QMenu& menu = menuAt(body(window), 1);
        EXPECT_FALSE(captions(menu).contains("Add to dictionary"));
        EXPECT_EQ(menu.actions().last()->text(), "Spelling");
        menu.close();
    });
}

TEST_F(SpellCheckOfFields, TheKeyboardsMenuIsThatOfTheWordWhereItStands) {
    withDetail([&](QWidget& window) {
        WrappedField& field = body(window);
        field.setFocus();
        QTextCursor cursor = field.textCursor();
        cursor.setPosition(6);
        field.setTextCursor(cursor);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), field.mapToGlobal(QPoint()));
        QApplication::sendEvent(&field, &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        choose(*menu, "rain");
        EXPECT_EQ(field.text(), "The rain in the north");
    });
}

TEST_F(SpellCheckOfFields, TheMenuHasTheLanguages) {
    withDetail([&](QWidget& window) {
        QMenu& first = languages(body(window));
        ASSERT_EQ(first.actions().size(), 3);
        EXPECT_TRUE(first.actions()[0]->isChecked());
        EXPECT_TRUE(first.actions()[1]->text().endsWith("(it_IT)"));
        first.actions()[1]->trigger();
        QApplication::activePopupWidget()->close();
        EXPECT_EQ(waved(body(window)), QStringList({"The", "rian", "in", "the", "north"}));
        choose(languages(body(window)), "Off");
        QApplication::activePopupWidget()->close();
        EXPECT_EQ(waved(body(window)), QStringList());
    });
    EXPECT_EQ(settings.text(Setting::Spelling), "none");
}

TEST_F(SpellCheckOfFields, WithoutDictionariesTheFieldIsAsItWas) {
    Spelling none(settings, {{temporary.file("nowhere")}, temporary.file("Words.txt")});
    frmFramePropertyDetail window(workspace, shell, none, nullptr);
    withModal([&] { window.Init(); },
              [](QWidget& shown) {
                  EXPECT_EQ(waved(body(shown)), QStringList());
                  QMenu& menu = menuAt(body(shown), 6);
                  EXPECT_FALSE(captions(menu).contains("Add to dictionary"));
                  EXPECT_FALSE(captions(menu).contains("Spelling"));
                  menu.close();
              });
}

}  // namespace nubivane
