// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/canvas/canvas_fixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace nubivane::testing {

/// An editor beside a system clipboard that is empty at the start and at the end.
class ClipboardFixture : public CanvasFixture {
  protected:
    void SetUp() override { clipboard().clear(); }
    void TearDown() override {
        clipboard().clear();
        workspace.ProjectChanged = false;
    }

    static QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
    /// The clipboard's text with its control characters as digits in brackets.
    static QString marker() {
        QString text;
        for (const QChar c : clipboard().text()) {
            text += c < u' ' ? '<' + QString::number(c.unicode()) + '>' : QString(c);
        }
        return text;
    }
    bool enabled(const char* name) { return window().findChild<QAction*>(name)->isEnabled(); }

    void startActive() {
        start();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        canvas().setFocus();
    }
};

}  // namespace nubivane::testing
