// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace nubivane::testing {

/// Runs `open`, which shows a modal window and waits for it, and `use` with that window once it is
/// active. A window that is still open afterwards is closed.
inline void withModal(const std::function<void()>& open, const std::function<void(QWidget&)>& use) {
    bool used = false;
    QObject context;
    QTimer::singleShot(0, &context, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal) {
            ADD_FAILURE() << "no modal window came";
            return;
        }
        used = true;
        // Waiting for its QWindow would be satisfied by an active parent.
        EXPECT_TRUE(QTest::qWaitFor([modal] { return QApplication::activeWindow() == modal; }));
        try {
            use(*modal);
        } catch (const std::exception& error) {
            ADD_FAILURE() << error.what();  // it must not fly through the event loop
        }
        if (QApplication::activeModalWidget() == modal) {
            modal->close();
        }
    });
    open();
    EXPECT_TRUE(used);
}

/// The part of a window of a control name and a type.
template <class Widget>
Widget& partOf(const QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    if (!found) {
        throw std::runtime_error(std::string("there is no ") + name);
    }
    return *found;
}

/// Replaces the text of a field as a person does: select, type.
inline void type(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keySequence(&field, QKeySequence::SelectAll);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

}  // namespace nubivane::testing
