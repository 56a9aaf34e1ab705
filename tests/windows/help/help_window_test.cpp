// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/help/help_book.h"
#include "engine/help/page_guard.h"
#include "support/built_help.h"
#include "support/dialog_parts.h"
#include "windows/help/frm_help.h"
#include "windows/help/frm_help_page.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace nubivane::testing {

namespace {

class HelpWindow : public ::testing::Test {
  protected:
    /// Shows a topic and gives the window the keyboard.
    void start(const QString& topic = "index.htm") {
        ASSERT_TRUE(window.openTopic(builtHelp(), topic));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    HelpPage& page() { return *part<HelpPage>(window, "page"); }
    QTreeWidget& contents() { return *part<QTreeWidget>(window, "contents"); }
    QListWidget& list(const char* name) { return *part<QListWidget>(window, name); }
    QLineEdit& field(const char* name) { return *part<QLineEdit>(window, name); }
    void showTab(int index) { part<QTabWidget>(window, "tabs")->setCurrentIndex(index); }

    QTreeWidgetItem* line(const QString& title) {
        return contents().findItems(title, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    void clickLine(const QString& title) {
        QTreeWidgetItem* item = line(title);
        ASSERT_TRUE(item) << title.toStdString();
        contents().scrollToItem(item);
        QTest::mouseClick(contents().viewport(), Qt::LeftButton, {},
                          contents().visualItemRect(item).center());
    }
    void clickRow(QListWidget& rows, int row) {
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                          rows.visualItemRect(rows.item(row)).center());
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Clicks on the first link of a page that leads to another.
    void clickLink(const QString& target) {
        QTextCursor cursor(page().document());
        while (!cursor.atEnd()) {
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            if (cursor.charFormat().anchorHref() == target) {
                page().setTextCursor(cursor);
                page().ensureCursorVisible();
                const QPoint place = page().cursorRect(cursor).center() - QPoint(3, 0);
                QTest::mouseMove(page().viewport(), place);
                QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, place);
                return;
            }
            cursor.clearSelection();
        }
        ADD_FAILURE() << "no link to " << target.toStdString();
    }

    frmHelp window;
};

}  // namespace

TEST_F(HelpWindow, ShowsATopicWithItsLineInTheContents) {
    start("PageSettings.htm");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(page().page(), "PageSettings.htm");
    EXPECT_EQ(window.windowTitle(), "Html page options - Nubivane Help");
    EXPECT_EQ(contents().currentItem(), line("Html page options"));
    EXPECT_TRUE(page().toPlainText().contains("Html name"));
}

TEST_F(HelpWindow, WithoutFileOrTopicNothingIsShown) {
    EXPECT_FALSE(window.openTopic(builtHelp() + "x", "index.htm"));
    EXPECT_FALSE(window.openTopic(builtHelp(), "missing.htm"));
    EXPECT_FALSE(window.openTopic(builtHelp(), ""));
    const TemporaryFolder folder;
    writeFile(folder.file("damaged.chm"), readFile(builtHelp()).first(5000));
    EXPECT_FALSE(window.openTopic(folder.file("damaged.chm"), "index.htm"));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpWindow, TheTopicsOfTheButtonsAreFoundInAnyCase) {
    EXPECT_TRUE(window.openTopic(builtHelp(), "FTPSETTINGS.HTM"));
    EXPECT_TRUE(page().toPlainText().startsWith("Ftp settings"));
    EXPECT_EQ(contents().currentItem(), line("Ftp settings"));
}

TEST_F(HelpWindow, AClickInTheContentsOpensThePage) {
    start();
    clickLine("Drawing on the map");
    EXPECT_EQ(page().page(), "Drawing.htm");
    clickLine("Reference");  // a heading without a page
    EXPECT_EQ(page().page(), "Drawing.htm");
    clickLine("Keys");
    EXPECT_EQ(page().page(), "Keyboard.htm");
}

TEST_F(HelpWindow, TheContentsCanBeWalkedByKeys) {
    start();
    contents().setFocus();
    key(Qt::Key_Down);
    EXPECT_EQ(page().page(), "FirstForecast.htm");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(page().page(), "MainWindow.htm");
}

TEST_F(HelpWindow, BackForwardAndHome) {
    start();
    auto* back = part<QAction>(window, "btnBack");
    auto* forward = part<QAction>(window, "btnForward");
    EXPECT_FALSE(back->isEnabled());
    EXPECT_FALSE(forward->isEnabled());
    clickLine("Labels");
    clickLine("Keys");
    EXPECT_TRUE(back->isEnabled());
    QTest::mouseClick(window.findChild<QToolBar*>()->widgetForAction(back), Qt::LeftButton);
    EXPECT_EQ(page().page(), "Labels.htm");
    EXPECT_EQ(contents().currentItem(), line("Labels"));
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page().page(), "index.htm");
    EXPECT_FALSE(back->isEnabled());
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page().page(), "Labels.htm");
    QTest::mouseClick(window.findChild<QToolBar*>()->widgetForAction(forward), Qt::LeftButton);
    EXPECT_EQ(page().page(), "Keyboard.htm");
    key(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(page().page(), "index.htm");
}

TEST_F(HelpWindow, ALinkIsFollowedInsideTheHelpOnly) {
    start("Labels.htm");
    clickLink("Symbols.htm");
    EXPECT_EQ(page().page(), "Symbols.htm");
    QStringList addresses;
    QObject::connect(&window, &frmHelp::addressFollowed, &window,
                     [&addresses](const QString& url) { addresses << url; });
    for (const char* link : {"file:///etc/passwd", "../../etc/passwd", "missing.htm",
                             "javascript:alert(1)", "help:/../index.html"}) {
        Q_EMIT page().anchorClicked(QUrl(link));
        EXPECT_EQ(page().page(), "Symbols.htm") << link;
    }
    EXPECT_EQ(addresses, QStringList());
    Q_EMIT page().anchorClicked(QUrl("https://example.org/"));
    EXPECT_EQ(addresses, QStringList("https://example.org/"));
    EXPECT_EQ(page().page(), "Symbols.htm");
}

TEST_F(HelpWindow, PagesAndPicturesComeOutOfTheHelpFileAlone) {
    start();
    EXPECT_FALSE(page()
                     .loadResource(QTextDocument::ImageResource, QUrl("pictures/font.png"))
                     .value<QImage>()
                     .isNull());
    const TemporaryFolder folder;
    writeFile(folder.file("page.htm"), "secret");
    for (const QUrl& url : {QUrl::fromLocalFile(folder.file("page.htm")),
                            QUrl("http://example.org/x.png"), QUrl("qrc:/icons/help.svg")}) {
        for (const int type : {QTextDocument::HtmlResource, QTextDocument::ImageResource,
                               QTextDocument::StyleSheetResource}) {
            EXPECT_FALSE(page().loadResource(type, url).isValid()) << url.toString().toStdString();
        }
    }
}

TEST(PageGuard, LetsEveryPageOfTheHelpPass) {
    const HelpBook book(builtHelp());
    for (const QString& page : book.pages()) {
        EXPECT_TRUE(isHarmlessPage(book.read(page))) << page.toStdString();
    }
}

TEST(PageGuard, RefusesWhatWouldTakeForever) {
    const auto nested = [](int depth) {
        return QByteArray("<table><tr><td>").repeated(depth) + "x" +
               QByteArray("</td></tr></table>").repeated(depth);
    };
    EXPECT_TRUE(isHarmlessPage(""));
    EXPECT_TRUE(isHarmlessPage(nested(4)));
    EXPECT_FALSE(isHarmlessPage(nested(5)));
    EXPECT_FALSE(isHarmlessPage(nested(150)));
    EXPECT_FALSE(isHarmlessPage(nested(20000)));
    EXPECT_FALSE(isHarmlessPage(QByteArray("< TABLE>").repeated(201)));
    EXPECT_FALSE(isHarmlessPage("<table><tr><td ColSpan=1000000000>x</td></tr></table>"));
    EXPECT_FALSE(isHarmlessPage(QByteArray(600 * 1024, 'x')));
}

TEST_F(HelpWindow, TheIndexIsNarrowedByTyping) {
    start();
    showTab(1);
    const int all = list("index").count();
    EXPECT_GT(all, 100);
    QTest::keyClicks(&field("indexWord"), "poly");
    ASSERT_EQ(list("index").count(), 1);
    EXPECT_EQ(list("index").item(0)->text(), "polygon");
    QTest::keyClick(&field("indexWord"), Qt::Key_Return);
    EXPECT_EQ(page().page(), "Drawing.htm");
    field("indexWord").clear();
    EXPECT_EQ(list("index").count(), all);
    clickRow(list("index"), 0);
    EXPECT_NE(page().page(), "Drawing.htm");
}

TEST_F(HelpWindow, ASearchListsPagesAndMarksTheWords) {
    start();
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), &field("searchWords"));
    QTest::keyClicks(QApplication::focusWidget(), "polygon corners");
    ASSERT_EQ(list("hits").count(), 1);
    EXPECT_EQ(list("hits").item(0)->text(), "Drawing on the map");
    clickRow(list("hits"), 0);
    EXPECT_EQ(page().page(), "Drawing.htm");
    EXPECT_GE(page().extraSelections().size(), 3);
    for (const auto& mark : page().extraSelections()) {
        const QString word = mark.cursor.selectedText().toLower();
        EXPECT_TRUE(word == u"polygon" || word == u"corners") << word.toStdString();
    }
    clickLine("Keys");
    EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(HelpWindow, ASearchWithoutAHitSaysSo) {
    start();
    showTab(2);
    auto* note = part<QLabel>(window, "noHits");
    EXPECT_FALSE(note->isVisible());
    QTest::keyClicks(&field("searchWords"), "xyzzy");
    EXPECT_EQ(list("hits").count(), 0);
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->text(), "No page holds all of these words.");
    QTest::keyClick(&field("searchWords"), Qt::Key_Return);  // there is nothing to open
    EXPECT_EQ(page().page(), "index.htm");
    field("searchWords").clear();
    EXPECT_FALSE(note->isVisible());
}

TEST_F(HelpWindow, ZoomHasBoundsAndAWayBack) {
    start();
    const double usual = page().document()->defaultFont().pointSizeF();
    const auto size = [this] { return page().document()->defaultFont().pointSizeF(); };
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(size(), usual + 1);
    key(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(size(), usual + 2);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(size(), usual + 1);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), usual);
    QWheelEvent wheel({10, 10}, page().mapToGlobal(QPointF(10, 10)), {}, {0, 240}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(page().viewport(), &wheel);
    EXPECT_GT(size(), usual);
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), usual);
    for (int i = 0; i < 40; ++i) {
        key(Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_EQ(size(), usual - 4);
    for (int i = 0; i < 60; ++i) {
        key(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_EQ(size(), usual + 16);
}

TEST_F(HelpWindow, EscCloses) {
    start();
    key(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    start("Labels.htm");
    EXPECT_EQ(page().page(), "Labels.htm");
}

TEST_F(HelpWindow, AFileThatHasChangedIsReadAnew) {
    const TemporaryFolder folder;
    const QString file = folder.file("help.chm");
    writeFile(file, readFile(builtHelp()));
    ASSERT_TRUE(window.openTopic(file, "Labels.htm"));
    writeFile(file, "no help any more");
    QFile touched(file);
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    ASSERT_TRUE(touched.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                    QFileDevice::FileModificationTime));
    touched.close();
    EXPECT_FALSE(window.openTopic(file, "Labels.htm"));
}

TEST_F(HelpWindow, OfADamagedFileItShowsWhatCanBeRead) {
    const TemporaryFolder folder;
    const QByteArray whole = readFile(builtHelp());
    QRandomGenerator chance(11);
    int shown = 0;
    for (int round = 0; round < 12; ++round) {
        // Few faults leave something to show, many leave nothing.
        const int faults = 1 << (round % 6);
        QByteArray damaged = whole;
        for (int i = 0; i < faults; ++i) {
            damaged[chance.bounded(static_cast<int>(whole.size()))] =
                static_cast<char>(chance.bounded(256));
        }
        const QString file = folder.file(QString::number(round) + ".chm");
        writeFile(file, damaged);
        if (!window.openTopic(file, "index.htm")) {
            continue;
        }
        ++shown;
        field("searchWords").setText("map");
        for (QTreeWidgetItemIterator line(&contents()); *line; ++line) {
            contents().setCurrentItem(*line);
        }
        QApplication::processEvents();
    }
    EXPECT_GT(shown, 0);
}

TEST_F(HelpWindow, ADialogThatWaitsDoesNotShutIt) {
    start();
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QApplication::processEvents();
    // Through the window system, which keeps clicks from windows that are shut.
    contents().scrollToItem(line("Labels"));
    const QPoint place =
        contents().viewport()->mapTo(&window, contents().visualItemRect(line("Labels")).center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(page().page(), "Labels.htm");
    {
        QDialog second(&dialog);
        second.setWindowModality(Qt::ApplicationModal);
        second.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&second));
        QApplication::processEvents();
        QTest::keyClick(window.windowHandle(), Qt::Key_Home, Qt::AltModifier);
        EXPECT_EQ(window.windowHandle()->transientParent(), second.windowHandle());
    }
    QApplication::processEvents();
    EXPECT_EQ(window.windowHandle()->transientParent(), dialog.windowHandle());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    dialog.close();
    QApplication::processEvents();
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
}

TEST_F(HelpWindow, OpenedFromADialogItCanBeUsed) {
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    ASSERT_TRUE(window.openTopic(builtHelp(), "PageSettings.htm"));
    QApplication::processEvents();
    contents().scrollToItem(line("Labels"));
    const QPoint place =
        contents().viewport()->mapTo(&window, contents().visualItemRect(line("Labels")).center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_EQ(page().page(), "Labels.htm");
}

TEST_F(HelpWindow, TheKeyboardReachesEverything) {
    start();
    for (const char* name : {"contents", "index", "hits", "indexWord", "searchWords", "page"}) {
        EXPECT_FALSE(part<QWidget>(window, name)->accessibleName().isEmpty()) << name;
    }
    for (const char* name : {"btnBack", "btnForward", "btnHome", "btnZoomIn", "btnZoomOut"}) {
        const auto* action = part<QAction>(window, name);
        EXPECT_FALSE(action->shortcut().isEmpty()) << name;
        EXPECT_FALSE(action->icon().pixmap(32, 32).isNull()) << name;
        EXPECT_FALSE(action->toolTip().isEmpty()) << name;
    }
}

TEST_F(HelpWindow, ItDoesNotKeepTheProgramRunning) {
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose));
}

}  // namespace nubivane::testing
