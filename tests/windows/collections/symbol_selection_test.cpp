// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/animation_cache.h"
#include "support/dialog_parts.h"
#include "support/fixtures.h"
#include "windows/collections/frm_symbol_selection.h"

#include <QDir>

#include <memory>

namespace nubivane {

using namespace testing;

/// The picker, over "sea" (wave.png) and "set-1" (rain, snow, sun.gif).
class SymbolSelectionWindow : public WorkspaceFixture {
  protected:
    frmSymbolSelection& start() {
        window_ = std::make_unique<frmSymbolSelection>(workspace, animations, shell, nullptr);
        showActive(*window_);
        return *window_;
    }
    frmSymbolSelection& window() { return *window_; }
    NameList& rows() { return *window_->pane().lvwCollection(); }
    ListImage& thumbnails() { return *window_->pane().listImageSymbols(); }

    AnimationCache animations;

  private:
    std::unique_ptr<frmSymbolSelection> window_;
};

TEST_F(SymbolSelectionWindow, ShowsTheFirstCollectionAndItsFirstSymbol) {
    start();
    EXPECT_EQ(window().windowTitle(), "Load a symbol");
    EXPECT_EQ(rows().count(), 2);
    EXPECT_EQ(textOf(window(), "txtCollection"), "sea");
    EXPECT_EQ(textOf(window(), "txtFile"), host("Symbols/sea/wave.png"));
    EXPECT_FALSE(window().FileName());
}

TEST_F(SymbolSelectionWindow, NamesCannotBeChangedAndThereAreNoBoxes) {
    start();
    EXPECT_FALSE(rows().item(0)->flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(rows().item(0)->data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(window().findChild<QWidget*>("tlbSymbols"));
}

TEST_F(SymbolSelectionWindow, OKGivesTheSelectedFile) {
    start();
    rows().setCurrentRow(1);
    thumbnails().setCurrentIndex(thumbnails().symbols().index(2));
    clickPart(window(), "cmdOK");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().FileName(), workspace.folder.symbols() + "\\set-1\\sun.gif");
}

TEST_F(SymbolSelectionWindow, EnterAndADoubleClickOnAThumbnailChooseIt) {
    start();
    QTest::keyClick(&thumbnails(), Qt::Key_Return);
    EXPECT_EQ(window().FileName(), workspace.folder.symbols() + "\\sea\\wave.png");
    start();
    const QPoint cell = thumbnails().visualRect(thumbnails().symbols().index(0)).center();
    QTest::mouseClick(thumbnails().viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(thumbnails().viewport(), Qt::LeftButton, {}, cell);
    EXPECT_EQ(window().FileName(), workspace.folder.symbols() + "\\sea\\wave.png");
    EXPECT_FALSE(window().isVisible());
}

TEST_F(SymbolSelectionWindow, OKWithoutAThumbnailAsksForOne) {
    ASSERT_TRUE(QDir(host("Symbols")).removeRecursively());
    start();
    shell.expectMessage("Select a symbol from the list", Icon::Exclamation);
    clickPart(window(), "cmdOK");
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(window().FileName());
}

TEST_F(SymbolSelectionWindow, CloseGivesAnEmptyText) {
    start();
    clickPart(window(), "cmdClose");
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(window().FileName(), QString(""));
}

TEST_F(SymbolSelectionWindow, EscapeGivesNothing) {
    start();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(window().FileName());
}

}  // namespace nubivane
