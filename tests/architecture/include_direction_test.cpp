// SPDX-License-Identifier: GPL-3.0-or-later
#include "architecture/source_tree.h"

#include <QHash>
#include <QMap>
#include <QSet>

namespace nubivane::testing {

namespace {

/// For each folder or file those that it uses.
using Arrows = QMap<QString, QSet<QString>>;

/// The arrows that ARCHITECTURE.md prints: in the table headed "folder of `engine/`" a row
/// "| `web/` | core, model |" says that engine/web uses engine/core and engine/model.
Arrows printedArrows() {
    static const QRegularExpression head(R"re(^\| folder of `(\w+)/` \| uses \|)re");
    static const QRegularExpression row(R"re(^\| `(\w+)/` \| ([\w, ]*)\|)re");
    Arrows printed;
    QString target;
    const QString page = QString::fromUtf8(readFile(NUBIVANE_SOURCES "/ARCHITECTURE.md"));
    for (const QString& line : page.split(u'\n')) {
        if (const auto found = head.match(line); found.hasMatch()) {
            target = found.captured(1) + u'/';
        } else if (!line.startsWith(u'|')) {
            target.clear();
        } else if (const auto entry = row.match(line); entry.hasMatch() && !target.isEmpty()) {
            QSet<QString>& uses = printed[target + entry.captured(1)];
            for (const QString& used : entry.captured(2).split(u',', Qt::SkipEmptyParts)) {
                uses.insert(target + used.trimmed());
            }
        }
    }
    return printed;
}

/// The arrows between folders of one target, as the sources have them.
Arrows foldersUsed() {
    Arrows used;
    for (const SourceFile& file : sourceFiles()) {
        if (file.target() != u"engine" && file.target() != u"windows") {
            continue;
        }
        QSet<QString>& uses = used[file.folder()];
        for (const QString& include : includesOf(file, true)) {
            if (targetOf(include) == file.target() && folderOf(include) != file.folder()) {
                uses.insert(folderOf(include));
            }
        }
    }
    return used;
}

Arrows filesUsed() {
    Arrows used;
    for (const SourceFile& file : sourceFiles()) {
        const QStringList includes = includesOf(file, true);
        used[file.path] = QSet<QString>(includes.cbegin(), includes.cend());
    }
    return used;
}

/// True when a file of the first target may include one of the second.
bool targetMayUse(const QString& target, const QString& used) {
    static const QHash<QString, QStringList> allowed{
        {"engine", {"engine"}},
        {"windows", {"engine", "windows"}},
        {"cli", {"engine", "cli"}},
        {"app", {"engine", "windows", "app"}},
    };
    return allowed.value(target).contains(used);
}

/// Headers that the build makes from a file of the tree.
QString writtenAs(const QString& include) {
    static const QString version = QStringLiteral("engine/core/version.h");
    return include == version ? version + ".in" : include;
}

QString inOrder(const QSet<QString>& names) {
    QStringList list(names.cbegin(), names.cend());
    list.sort();
    return list.join(", ");
}

/// A walk along arrows that stops at the first circle.
class CircleSearch {
  public:
    explicit CircleSearch(const Arrows& arrows) : arrows_(arrows) {}

    /// The members of a circle that `start` leads to; empty when there is none.
    QStringList from(const QString& start) {
        if (done_.contains(start)) {
            return {};
        }
        const qsizetype known = path_.indexOf(start);
        if (known >= 0) {
            return path_.mid(known) << start;
        }
        path_ += start;
        for (const QString& next : arrows_.value(start)) {
            const QStringList circle = from(next);
            if (!circle.isEmpty()) {
                return circle;
            }
        }
        path_.removeLast();
        done_.insert(start);
        return {};
    }

  private:
    const Arrows& arrows_;
    QStringList path_;
    QSet<QString> done_;
};

void expectNoCircle(const Arrows& arrows) {
    ASSERT_GT(arrows.size(), 10);
    CircleSearch search(arrows);
    for (auto start = arrows.cbegin(); start != arrows.cend(); ++start) {
        EXPECT_EQ(search.from(start.key()).join(" -> "), "");
    }
}

}  // namespace

TEST(IncludeDirection, EveryFileBelongsToATarget) {
    const std::vector<SourceFile> files = sourceFiles();
    ASSERT_GT(files.size(), 50U);
    for (const SourceFile& file : files) {
        EXPECT_TRUE(targetMayUse(file.target(), file.target())) << file.path.toStdString();
    }
}

TEST(IncludeDirection, EveryQuotedIncludeNamesAFileFromTheTopOfTheTree) {
    for (const SourceFile& file : sourceFiles()) {
        for (const QString& include : includesOf(file, true)) {
            EXPECT_TRUE(QFile::exists(sourceFolder() + u'/' + writtenAs(include)))
                << file.path.toStdString() << " includes " << include.toStdString();
        }
    }
}

TEST(IncludeDirection, TargetsUseOnlyThoseBelow) {
    for (const SourceFile& file : sourceFiles()) {
        for (const QString& include : includesOf(file, true)) {
            EXPECT_TRUE(targetMayUse(file.target(), targetOf(include)))
                << file.path.toStdString() << " includes " << include.toStdString();
        }
    }
}

TEST(IncludeDirection, FoldersUseExactlyThoseThatTheArchitecturePrints) {
    const Arrows printed = printedArrows();
    const Arrows used = foldersUsed();
    ASSERT_GT(used.size(), 20);
    for (auto folder = used.cbegin(); folder != used.cend(); ++folder) {
        ASSERT_TRUE(printed.contains(folder.key())) << folder.key().toStdString();
        EXPECT_EQ(inOrder(folder.value()), inOrder(printed[folder.key()]))
            << "used and printed of " << folder.key().toStdString();
    }
    for (auto folder = printed.cbegin(); folder != printed.cend(); ++folder) {
        EXPECT_TRUE(used.contains(folder.key()))
            << "no such folder: " << folder.key().toStdString();
    }
}

TEST(IncludeDirection, NoFolderUsesItselfByWayOfOthers) {
    expectNoCircle(foldersUsed());
}

TEST(IncludeDirection, NoFileIncludesItselfByWayOfOthers) {
    expectNoCircle(filesUsed());
}

TEST(IncludeDirection, TheRulesRefuseWhatPointsUpward) {
    EXPECT_TRUE(targetMayUse("windows", "engine"));
    EXPECT_FALSE(targetMayUse("engine", "windows"));
    EXPECT_FALSE(targetMayUse("cli", "windows"));
    EXPECT_FALSE(targetMayUse("app", "cli"));
    EXPECT_TRUE(printedArrows().value("engine/web").contains("engine/model"));
    EXPECT_FALSE(printedArrows().value("engine/core").contains("engine/model"));
}

TEST(IncludeDirection, TheSearchFindsACircle) {
    const Arrows arrows{{"a", {"b"}}, {"b", {"c"}}, {"c", {"b"}}};
    EXPECT_EQ(CircleSearch(arrows).from("a"), QStringList({"b", "c", "b"}));
}

}  // namespace nubivane::testing
