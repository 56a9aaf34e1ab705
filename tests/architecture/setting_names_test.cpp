// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"
#include "engine/core/settings_table.h"

#include <QSet>

namespace nubivane::testing {

namespace {

constexpr char Table[] = "engine/core/settings_table.cpp";

/// Keys that no code would name for any other reason. One-word keys such as "Top" are names of
/// properties and of picture sides as well.
QSet<QString> unmistakableKeys() {
    QSet<QString> keys;
    for (const SettingRow& row : settingsTable()) {
        const QString key = QLatin1String(row.key);
        if (key.contains(u' ')) {
            keys.insert(key);
        }
    }
    return keys;
}

bool usesTheStore(const SourceFile& file) {
    const QStringList includes = includesOf(file, true);
    return includes.contains("engine/core/settings_store.h") ||
           includes.contains("engine/core/settings_table.h") ||
           includes.contains("cli/command.h") || includes.contains("engine/model/workspace.h");
}

}  // namespace

TEST(SettingNames, TheRootOfTheSectionsIsWrittenInTheTableAlone) {
    QStringList files;
    for (const SourceFile& file : sourceFiles()) {
        if (file.text.contains("\"Nubivane\\\\6") || file.text.contains("\\\\Settings")) {
            files += file.path;
        }
    }
    EXPECT_EQ(files, QStringList({Table}));
}

TEST(SettingNames, KeysAreWrittenInTheTableAlone) {
    const QSet<QString> keys = unmistakableKeys();
    ASSERT_GT(keys.size(), 10);
    for (const SourceFile& file : sourceFiles()) {
        if (file.path == Table || !usesTheStore(file)) {
            continue;
        }
        for (const QString& key : keys) {
            EXPECT_FALSE(file.text.contains('"' + key + '"', Qt::CaseInsensitive))
                << file.path.toStdString() << " names the setting " << key.toStdString();
        }
    }
}

TEST(SettingNames, TheTableHoldsTheKeysThatTheSearchLooksFor) {
    const QString table = QString::fromUtf8(readFile(sourceFolder() + u'/' + Table));
    for (const QString& key : unmistakableKeys()) {
        EXPECT_TRUE(table.contains('"' + key + '"')) << key.toStdString();
    }
}

TEST(SettingNames, TheStoreIsAskedByRowNotByText) {
    static const QRegularExpression byText(
        R"re(\b(Get|Save|Delete)Setting\(\s*(QStringLiteral\(|QLatin1String\(|u)?")re");
    for (const SourceFile& file : sourceFiles()) {
        EXPECT_FALSE(byText.match(file.text).hasMatch()) << file.path.toStdString();
    }
}

}  // namespace nubivane::testing
