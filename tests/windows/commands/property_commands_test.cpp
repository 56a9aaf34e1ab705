// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_fixture.h"

#include <QMenu>

namespace nubivane {

using testing::partOf;
using testing::withModal;

/// Which window each command opens, and when.
class PropertyWindows : public testing::PropertyFixture {
  protected:
    void startActive() {
        start();
        canvas().setFocus();
        activate();
    }
    /// The window that opens.
    QString opened(const std::function<void()>& open) {
        activate();
        QString name;
        withModal(open, [&name](QWidget& modal) { name = modal.objectName(); });
        return name;
    }
    bool enabled(const char* name) { return window().findChild<QAction*>(name)->isEnabled(); }
    void activate() {
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return QApplication::activeWindow() == &window() && QApplication::focusWidget();
        }));
    }
    void pressF4() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4); }
    void pressButton() {
        QTest::mouseClick(&partOf<QWidget>(window(), "btnProperty"), Qt::LeftButton);
    }
};

TEST_F(PropertyWindows, F4FollowsTheSelection) {
    startActive();
    EXPECT_EQ(opened([this] { pressF4(); }), "frmFrameProperty");
    placeSymbol({100, 100});
    EXPECT_EQ(opened([this] { pressF4(); }), "frmSymbolProperty");
    placeLabel({200, 100});
    EXPECT_EQ(opened([this] { pressF4(); }), "frmLabelProperty");
    window().clearSelection();
    EXPECT_EQ(opened([this] { pressF4(); }), "frmFrameProperty");
}

TEST_F(PropertyWindows, F4WorksWhereverTheFocusIs) {
    startActive();
    window().palette().currentList()->setFocus();
    EXPECT_EQ(opened([this] { pressF4(); }), "frmFrameProperty");
    window().tabs().tabDay()->setFocus();
    EXPECT_EQ(opened([this] { pressF4(); }), "frmFrameProperty");
}

TEST_F(PropertyWindows, F4WithAnotherKeyOpensNothing) {
    startActive();
    QTest::keyClick(&canvas(), Qt::Key_F4, Qt::ShiftModifier);
    QTest::keyClick(&canvas(), Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PropertyWindows, TheButtonFollowsTheSelection) {
    startActive();
    EXPECT_EQ(opened([this] { pressButton(); }), "frmFrameProperty");
    placeSymbol({100, 100});
    EXPECT_EQ(opened([this] { pressButton(); }), "frmSymbolProperty");
    placeLabel({200, 100});
    EXPECT_EQ(opened([this] { pressButton(); }), "frmLabelProperty");
}

TEST_F(PropertyWindows, TheMenuEntriesAreForASelectedSprite) {
    startActive();
    EXPECT_FALSE(enabled("mnuProperty"));
    EXPECT_FALSE(enabled("subProperty"));
    placeSymbol({100, 100});
    EXPECT_TRUE(enabled("mnuProperty"));
    EXPECT_TRUE(enabled("subProperty"));
    EXPECT_EQ(opened([this] { trigger("mnuProperty"); }), "frmSymbolProperty");
    EXPECT_EQ(opened([this] { window().findChild<QAction*>("subProperty")->trigger(); }),
              "frmSymbolProperty");
    window().clearSelection();
    EXPECT_FALSE(enabled("mnuProperty"));
    EXPECT_FALSE(enabled("subProperty"));
}

TEST_F(PropertyWindows, TheSelectionStaysWhenTheWindowCloses) {
    startActive();
    const QString key = placeSymbol({100, 100});
    withProperties([](QWidget&) {});
    EXPECT_EQ(workspace.Status.CurrentShapeControlKey, key);
    EXPECT_EQ(selection().control(), symbolControl(key));
}

TEST_F(PropertyWindows, ASpriteThatIsGoneOpensNothing) {
    startActive();
    workspace.Status.CurrentShapeControlType = sprite_type::Label;
    workspace.Status.CurrentShapeControlKey = "K-7";
    window().findChild<PropertyCommands*>()->showSpriteProperties();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    workspace.Status.CurrentShapeControlType = sprite_type::None;
}

TEST_F(PropertyWindows, TheButtonsHintNamesTheKey) {
    start();
    EXPECT_EQ(partOf<QToolButton>(window(), "btnProperty").toolTip(), "Properties (F4)");
}

}  // namespace nubivane
