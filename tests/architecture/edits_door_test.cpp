// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"

namespace nubivane::testing {

namespace {

/// What changes an open project by another way than an edit.
const QList<QRegularExpression>& waysAround() {
    static const QList<QRegularExpression> ways = {
        // A name for a part of the project through which it could be written.
        QRegularExpression(
            R"re((?<!const )\b(cWrapper|cFrames|cFrame|cSprites|cSymbols|cLabels|cForecast|cHeader|cBody)\s*[&*]\s*\w+\s*=)re"),
        // Lists that are changed where they stand.
        QRegularExpression(
            R"re((Frames\(\)|Symbols\(\)|Labels\(\)|Header\(\)|Body\(\))\s*\.(Add|add|Remove|Insert|Take)\()re"),
        QRegularExpression(R"re(\bRemovaAll\()re"),
        // Slots that are written where they stand.
        QRegularExpression(R"re((Texts\(\)\.Label|\.Item\([^;()]*\)\.(?!Checked)\w+)\s*=[^=])re"),
        QRegularExpression(R"re(pctPanel\.(set|insert|remove|append|resize|reset))re"),
        QRegularExpression(R"re(\bProject\s*(=|->))re"),
    };
    return ways;
}

}  // namespace

TEST(DoorOfEdits, NoWindowChangesAnOpenProjectByAnotherWay) {
    for (const SourceFile& file : sourceFiles()) {
        if (file.target() != u"windows") {
            continue;
        }
        for (const QRegularExpression& way : waysAround()) {
            const auto found = way.match(file.text);
            EXPECT_FALSE(found.hasMatch())
                << file.path.toStdString() << ": " << found.captured().toStdString();
        }
    }
}

TEST(DoorOfEdits, AWayAroundIsSeen) {
    for (const char* line :
         {"cFrame& frame = workspace.Frames().Item(1);", "workspace.Frames().Add();",
          "sprites.RemovaAll();", "frames.Item(3).Texts().Label = name;",
          "labels.Item(key).PosX = 5;", "workspace.Project = nullptr;",
          "workspace_.pctPanel.setPicture(1, picture);"}) {
        bool seen = false;
        for (const QRegularExpression& way : waysAround()) {
            seen = seen || way.match(QString::fromLatin1(line)).hasMatch();
        }
        EXPECT_TRUE(seen) << line;
    }
    for (const char* line : {"const cFrame& frame = workspace.Frames().Item(1);",
                             "if (labels.Item(key).PosX == 5) {"}) {
        for (const QRegularExpression& way : waysAround()) {
            EXPECT_FALSE(way.match(QString::fromLatin1(line)).hasMatch()) << line;
        }
    }
}

}  // namespace nubivane::testing
