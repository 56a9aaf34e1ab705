// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/widgets/path_label.h"

#include <QTest>

#include <gtest/gtest.h>

namespace nubivane {

namespace {

constexpr char Start[] = "Uploading file ";

}  // namespace

TEST(PathLabels, ShowAShortTextAsItIs) {
    PathLabel label(2, nullptr);
    label.resize(label.sizeHint());
    label.setText("Connecting to the server...");
    EXPECT_EQ(label.shownText(), "Connecting to the server...");
}

TEST(PathLabels, GoOnInTheNextLineInsideAWord) {
    PathLabel label(2, nullptr);
    label.resize(label.sizeHint());
    const QString text = QString("w").repeated(60);  // wider than a line
    ASSERT_GT(label.fontMetrics().horizontalAdvance(text), label.width());
    label.setText(text);
    EXPECT_EQ(label.shownText(), text);
}

TEST(PathLabels, LeaveOutTheMiddleOfALongPath) {
    PathLabel label(3, nullptr);
    label.resize(label.sizeHint());
    const QString text = Start + QString("/some folder").repeated(40) + "/sun.gif";
    label.setText(text);
    const QString shown = label.shownText();
    EXPECT_LT(shown.size(), text.size());
    EXPECT_TRUE(shown.startsWith(Start)) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith("/sun.gif")) << shown.toStdString();
    EXPECT_EQ(label.text(), text);
}

TEST(PathLabels, KeepTheirSizeWhateverTheySay) {
    PathLabel label(3, nullptr);
    const QSize before = label.sizeHint();
    label.setText(QString("/folder").repeated(1000));
    EXPECT_EQ(label.sizeHint(), before);
    EXPECT_EQ(label.minimumSizeHint(), before);
}

TEST(PathLabels, TakeMarkupAsText) {
    PathLabel label(2, nullptr);
    label.resize(label.sizeHint());
    label.setText("<b>bold</b>.gif");
    EXPECT_EQ(label.shownText(), "<b>bold</b>.gif");
    label.show();
    EXPECT_FALSE(label.grab().isNull());
}

}  // namespace nubivane
