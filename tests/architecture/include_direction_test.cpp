#include "architecture/source_tree.h"

#include <QHash>
#include <QSet>

namespace nubivane::testing {

namespace {

/// The engine's folders from the bottom up: each may use itself and those before it. What is made
/// for the command line alone stands at their top.
const QStringList& engineFromBelow() {
    static const QStringList folders{"core",        "help",     "picture", "model",
                                     "collections", "project",  "web",     "upload",
                                     "export",      "services", "cli"};
    return folders;
}

/// The windows' folders from the bottom up. A window among the engine's folders stands below them
/// all but may use the widgets and dialogs.
const QStringList& windowsFromBelow() {
    static const QStringList folders{"widgets", "dialogs", "editor", "app"};
    return folders;
}

/// True when what is not a window may include the file `include`.
bool engineMayUse(const QString& folder, const QString& include) {
    const qsizetype used = engineFromBelow().indexOf(include.section(u'/', 0, 0));
    return used >= 0 && used <= engineFromBelow().indexOf(folder) && !isWindow(include);
}

/// True when a window may include the file `include`.
bool windowMayUse(const QString& folder, const QString& include) {
    const QString used = include.section(u'/', 0, 0);
    const qsizetype own = windowsFromBelow().contains(folder)
                              ? windowsFromBelow().indexOf(folder)
                              : windowsFromBelow().indexOf("dialogs");
    return windowsFromBelow().contains(used) ? windowsFromBelow().indexOf(used) <= own
                                             : used != u"cli";
}

/// Headers that the build makes from a file of the tree.
QString writtenAs(const QString& include) {
    return include == u"core/version.h" ? QStringLiteral("core/version.h.in") : include;
}

/// A walk along the includes that stops at the first circle.
class CircleSearch {
  public:
    explicit CircleSearch(const QHash<QString, QStringList>& includes) : includes_(includes) {}

    /// The files of a circle that `file` leads to; empty when there is none.
    QStringList from(const QString& file) {
        if (done_.contains(file)) {
            return {};
        }
        const qsizetype known = path_.indexOf(file);
        if (known >= 0) {
            return path_.mid(known) << file;
        }
        path_ += file;
        for (const QString& next : includes_.value(file)) {
            const QStringList circle = from(next);
            if (!circle.isEmpty()) {
                return circle;
            }
        }
        path_.removeLast();
        done_.insert(file);
        return {};
    }

  private:
    const QHash<QString, QStringList>& includes_;
    QStringList path_;
    QSet<QString> done_;
};

}  // namespace

TEST(IncludeDirection, EveryFolderHasAPlaceInTheOrder) {
    const std::vector<SourceFile> files = sourceFiles();
    ASSERT_GT(files.size(), 50U);
    for (const SourceFile& file : files) {
        EXPECT_TRUE(engineFromBelow().contains(file.folder()) ||
                    windowsFromBelow().contains(file.folder()))
            << file.path.toStdString();
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

TEST(IncludeDirection, FoldersUseOnlyThoseBelow) {
    for (const SourceFile& file : sourceFiles()) {
        for (const QString& include : includesOf(file, true)) {
            EXPECT_TRUE(isWindow(file.path) ? windowMayUse(file.folder(), include)
                                            : engineMayUse(file.folder(), include))
                << file.path.toStdString() << " includes " << include.toStdString();
        }
    }
}

TEST(IncludeDirection, TheRulesRefuseWhatPointsUpward) {
    EXPECT_TRUE(engineMayUse("web", "core/error.h"));
    EXPECT_TRUE(engineMayUse("web", "web/text_lines.h"));
    EXPECT_FALSE(engineMayUse("core", "model/workspace.h"));
    EXPECT_FALSE(engineMayUse("picture", "model/frames.h"));
    EXPECT_FALSE(engineMayUse("web", "web/frm_page_setting.h"));
    EXPECT_FALSE(engineMayUse("web", "editor/frm_map.h"));
    EXPECT_TRUE(windowMayUse("web", "dialogs/combo_color.h"));
    EXPECT_TRUE(windowMayUse("web", "widgets/icons.h"));
    EXPECT_FALSE(windowMayUse("widgets", "dialogs/combo_color.h"));
    EXPECT_FALSE(windowMayUse("web", "editor/frm_map.h"));
    EXPECT_FALSE(windowMayUse("editor", "app/desktop_shell.h"));
    EXPECT_FALSE(windowMayUse("app", "cli/console_shell.h"));
}

TEST(IncludeDirection, NoFileIncludesItselfByWayOfOthers) {
    QHash<QString, QStringList> includes;
    for (const SourceFile& file : sourceFiles()) {
        includes.insert(file.path, includesOf(file, true));
    }
    CircleSearch search(includes);
    for (auto file = includes.cbegin(); file != includes.cend(); ++file) {
        EXPECT_EQ(search.from(file.key()).join(" -> "), "");
    }
}

TEST(IncludeDirection, TheSearchFindsACircle) {
    const QHash<QString, QStringList> includes{
        {"a.h", {"b.h"}}, {"b.h", {"c.h"}}, {"c.h", {"b.h"}}};
    EXPECT_EQ(CircleSearch(includes).from("a.h"), QStringList({"b.h", "c.h", "b.h"}));
}

}  // namespace nubivane::testing
