// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/project_edits.h"
#include "windows/canvas/canvas_fixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace nubivane::testing {

/// Three symbols of 32 x 32 in a row, at (84, 84), (184, 84) and (284, 84), and a label below them;
/// nothing is selected.
class ManyFixture : public CanvasFixture {
  protected:
    ~ManyFixture() override { QGuiApplication::clipboard()->clear(); }

    void startWithSprites() {
        start();
        first = {SpriteKind::Symbol, placeSymbol({100, 100})};
        second = {SpriteKind::Symbol, placeSymbol({200, 100})};
        third = {SpriteKind::Symbol, placeSymbol({300, 100})};
        label = {SpriteKind::Label, placeLabel({200, 250})};
        window().clearSelection();
        workspace.ProjectChanged = false;
        edits = workspace.edits().count();
    }
    std::vector<SpriteId> selected() { return selection().ids(); }
    void select(const std::vector<SpriteId>& ids) { selection().selectAll(ids); }
    /// Edits made since the sprites were placed.
    int made() { return workspace.edits().count() - edits; }

    QRect rect(const SpriteId& id) { return sprites().find(id)->rect; }
    QPoint position(const SpriteId& id) {
        const auto at = [](const auto& sprite) { return QPoint(sprite.PosX, sprite.PosY); };
        return id.kind == SpriteKind::Symbol ? at(symbols().Item(id.key))
                                             : at(labels().Item(id.key));
    }

    void send(QEvent::Type type, QPoint mapPosition, Qt::KeyboardModifiers keys) {
        const QPoint at = canvas().toWidget(QRect(mapPosition, QSize(1, 1))).center();
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, canvas().mapToGlobal(at), moves ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, keys);
        QApplication::sendEvent(&canvas(), &event);
    }
    void clickWith(Qt::KeyboardModifiers keys, QPoint position) {
        send(QEvent::MouseButtonPress, position, keys);
        send(QEvent::MouseButtonRelease, position, keys);
    }
    void dragWith(Qt::KeyboardModifiers keys, QPoint from, QPoint to) {
        send(QEvent::MouseButtonPress, from, keys);
        send(QEvent::MouseMove, (from + to) / 2, keys);
        send(QEvent::MouseMove, to, keys);
        send(QEvent::MouseButtonRelease, to, keys);
    }
    void keyOnMap(Qt::Key key, Qt::KeyboardModifiers keys = {}) {
        window().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        canvas().setFocus();
        QTest::keyClick(&canvas(), key, keys);
    }

    SpriteId first;
    SpriteId second;
    SpriteId third;
    SpriteId label;
    int edits = 0;
};

}  // namespace nubivane::testing
