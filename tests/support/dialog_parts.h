// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace nubivane::testing {

/// A part of a window by its object name.
template <class Part>
Part* part(const QWidget& window, const char* name) {
    auto* found = window.findChild<Part*>(name);
    EXPECT_TRUE(found) << name;
    return found;
}

/// Presses and releases the left button on a part of a shown window.
inline void clickPart(const QWidget& window, const char* name) {
    QTest::mouseClick(part<QAbstractButton>(window, name), Qt::LeftButton);
}

inline QString textOf(const QWidget& window, const char* name) {
    return part<QLineEdit>(window, name)->text();
}

/// Shows a window and gives it the keyboard.
inline void showActive(QWidget& window) {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Types into the field that has the keyboard, in place of what it holds, presses a key, and waits
/// until the field has closed and what was typed has been dealt with.
inline void typeName(const QString& name, Qt::Key key = Qt::Key_Return) {
    const QPointer field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field);
    field->selectAll();
    QTest::keyClicks(field, name);
    QTest::keyClick(field, key);
    EXPECT_TRUE(QTest::qWaitFor([&field] { return field.isNull(); }));
    QApplication::processEvents();
}

/// The names of what the Tab key reaches one after the other, once around.
inline QStringList tabOrder(QWidget& window) {
    QWidget* const first = window.focusWidget();
    QStringList names;
    for (int i = 0; i < 50 && first; ++i) {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (QApplication::focusWidget() == first) {
            break;
        }
    }
    return names;
}

}  // namespace nubivane::testing
