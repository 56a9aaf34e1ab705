// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"
#include "support/processes.h"

#include <QLibraryInfo>

namespace nubivane::testing {

namespace {

/// True when Qt's module of that name offers the header `include`.
bool belongsTo(const QString& module, const QString& include) {
    const QString headers = QLibraryInfo::path(QLibraryInfo::HeadersPath);
    return include.startsWith(module + u'/') ||
           QFile::exists(headers + u'/' + module + u'/' + include);
}

class ToolkitHeaders : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!belongsTo("QtCore", "QString") || !belongsTo("QtGui", "QImage")) {
            GTEST_SKIP() << "Qt's headers are not where Qt says they are";
        }
    }
};

/// The libraries that a program names, or with `ldd` also those that they name in turn.
QStringList libraries(const QString& tool, const QStringList& arguments) {
    const ProcessResult result = runProgram(tool, arguments + QStringList{cliProgram()});
    EXPECT_EQ(result.exitCode, 0) << result.err.toStdString();
    static const QRegularExpression name(R"re((lib[\w+-]+)\.so)re");
    QStringList names;
    auto matches = name.globalMatch(QString::fromUtf8(result.out));
    while (matches.hasNext()) {
        names += matches.next().captured(1);
    }
    return names;
}

}  // namespace

TEST_F(ToolkitHeaders, TheCoreUsesQtCoreAlone) {
    for (const SourceFile& file : sourceFiles()) {
        if (file.folder() != u"engine/core") {
            continue;
        }
        for (const QString& include : includesOf(file, false)) {
            EXPECT_FALSE(include.startsWith("QtGui/") || include.startsWith("QtWidgets/"))
                << file.path.toStdString();
            EXPECT_TRUE(!include.startsWith(u'Q') || belongsTo("QtCore", include))
                << file.path.toStdString() << " includes " << include.toStdString();
        }
    }
}

TEST_F(ToolkitHeaders, NothingInTheEngineUsesWidgets) {
    for (const SourceFile& file : sourceFiles()) {
        if (file.target() != u"engine" && file.target() != u"cli") {
            continue;
        }
        for (const QString& include : includesOf(file, false)) {
            EXPECT_FALSE(include.startsWith("QtWidgets/") || include.startsWith("QtPrintSupport/"))
                << file.path.toStdString();
            EXPECT_TRUE(!include.startsWith(u'Q') || belongsTo("QtCore", include) ||
                        belongsTo("QtGui", include))
                << file.path.toStdString() << " includes " << include.toStdString();
        }
    }
}

/// A plain one changes unseen when the wheel that was to scroll the form passes over it.
TEST(ComboBoxes, AreOfTheKindThatTheWheelLeavesAlone) {
    static const QRegularExpression plain(R"re(new QComboBox\b|\bQComboBox \w+[;({])re");
    int kinds = 0;
    for (const SourceFile& file : sourceFiles()) {
        EXPECT_FALSE(file.text.contains(plain)) << file.path.toStdString();
        kinds += file.text.contains("new comboEx") ? 1 : 0;
    }
    EXPECT_GT(kinds, 3);
}

TEST(CommandLineProgram, NamesNoWidgetsLibrary) {
    const QStringList names = libraries("readelf", {"-d"});
    EXPECT_TRUE(names.contains("libQt6Core"));
    EXPECT_FALSE(names.contains("libQt6Widgets"));
    EXPECT_FALSE(names.contains("libQt6PrintSupport"));
}

TEST(CommandLineProgram, LoadsNoWidgetsLibraryByWayOfAnother) {
    const QStringList names = libraries("ldd", {});
    EXPECT_TRUE(names.contains("libQt6Core"));
    EXPECT_TRUE(names.contains("libQt6Gui"));
    EXPECT_FALSE(names.contains("libQt6Widgets"));
    EXPECT_FALSE(names.contains("libQt6PrintSupport"));
}

/// They are most of what would have to be loaded, and few starts write a video.
TEST(CommandLineProgram, LoadsNoCodecsBeforeItWritesAVideo) {
    const QStringList names = libraries("ldd", {});
    EXPECT_TRUE(names.contains("libcurl"));
    EXPECT_FALSE(names.contains("libavcodec"));
    EXPECT_FALSE(names.contains("libavformat"));
}

}  // namespace nubivane::testing
