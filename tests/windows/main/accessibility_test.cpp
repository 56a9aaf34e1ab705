// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/editor_fixture.h"

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace nubivane {

/// What a person without a mouse or without sight needs of the window.
class Accessibility : public testing::EditorFixture {
  protected:
    void startActive() {
        start();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    static QString nameOf(QWidget* widget) {
        QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
        return seen ? seen->text(QAccessible::Name) : QString();
    }
    /// Names of the widgets that a key reaches one after the other, from `first` once around.
    static QStringList round(QWidget& first, Qt::Key key) {
        first.setFocus();
        QStringList names;
        for (int i = 0; i < 100; ++i) {
            QWidget* focus = QApplication::focusWidget();
            if (!focus || (i > 0 && focus == &first)) {
                break;
            }
            names << focus->objectName();
            QTest::keyClick(focus, key,
                            key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        }
        return names;
    }
};

TEST_F(Accessibility, EveryWidgetThatTakesTheFocusHasAName) {
    startActive();
    int seen = 0;
    for (QWidget* widget : window().findChildren<QWidget*>()) {
        const bool isOfAMenu = qobject_cast<QMenu*>(widget) || qobject_cast<QMenuBar*>(widget);
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || isOfAMenu) {
            continue;
        }
        ++seen;
        EXPECT_FALSE(nameOf(widget).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
    EXPECT_GT(seen, 12);
}

TEST_F(Accessibility, TheListOfSymbolsHasTheNameOfEachSymbol) {
    startActive();
    const QAbstractItemModel& symbols = window().palette().currentList()->symbols();
    ASSERT_EQ(symbols.rowCount(), 3);
    for (int row = 0; row < symbols.rowCount(); ++row) {
        const QModelIndex index = symbols.index(row, 0);
        const QString name =
            index.data(Qt::AccessibleTextRole).toString() + index.data(Qt::DisplayRole).toString();
        EXPECT_FALSE(name.isEmpty()) << row;
    }
}

TEST_F(Accessibility, EveryMenuEntryHasAText) {
    startActive();
    for (const QMenu* menu : window().findChildren<QMenu*>()) {
        for (const QAction* action : menu->actions()) {
            EXPECT_TRUE(action->isSeparator() || !action->text().isEmpty());
        }
    }
}

TEST_F(Accessibility, TabReachesButtonsPaletteSplitterMapAndTabs) {
    startActive();
    const QStringList reached = round(canvas(), Qt::Key_Tab);
    for (const char* name : {"btnNewProject", "btnOpenProject", "btnSaveProject", "btnCreateHtml",
                             "btnHelp", "btnLock", "imgText", "tabSymbols", "listImageSymbols1",
                             "pctSplitter", "pctMap", "tabDay"}) {
        EXPECT_TRUE(reached.contains(name)) << name << " in " << reached.join(' ').toStdString();
    }
}

TEST_F(Accessibility, TabGoesFromTheButtonsToThePaletteTheMapAndTheTabs) {
    startActive();
    auto* first = window().findChild<ToolStrip*>()->findChild<QWidget*>("btnNewProject");
    const QStringList reached = round(*first, Qt::Key_Tab);
    QList<qsizetype> places;
    for (const char* name : {"btnNewProject", "btnHelp", "imgText", "tabSymbols",
                             "listImageSymbols1", "pctMap", "tabDay"}) {
        places << reached.indexOf(name);
    }
    EXPECT_TRUE(std::is_sorted(places.cbegin(), places.cend())) << reached.join(' ').toStdString();
    EXPECT_GE(places.first(), 0);
}

TEST_F(Accessibility, BacktabGoesTheSameWayBack) {
    startActive();
    QStringList forward = round(canvas(), Qt::Key_Tab);
    QStringList backward = round(canvas(), Qt::Key_Backtab);
    std::reverse(backward.begin() + 1, backward.end());
    EXPECT_EQ(backward, forward);
}

TEST_F(Accessibility, AButtonIsPressedByTheSpaceBar) {
    startActive();
    auto* lock = window().findChild<ToolStrip*>()->findChild<QWidget*>("btnLock");
    lock->setFocus();
    QTest::keyClick(lock, Qt::Key_Space);
    EXPECT_TRUE(window().locked());
}

TEST_F(Accessibility, MapAndSplitterSayWhatTheyAre) {
    startActive();
    const auto roleOf = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->role();
    };
    EXPECT_EQ(roleOf(&canvas()), QAccessible::Canvas);
    EXPECT_EQ(nameOf(&canvas()), "Map");
    EXPECT_EQ(roleOf(window().findChild<QWidget*>("pctSplitter")), QAccessible::Splitter);
    EXPECT_EQ(roleOf(window().tabs().txtDay()), QAccessible::EditableText);
}

}  // namespace nubivane
