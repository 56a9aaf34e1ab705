// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/site_fixture.h"
#include "support/failing_calls.h"

#include <QMap>

namespace nubivane::testing {

namespace {

/// Takes every message; the page is made without anybody.
class SilentShell : public ScriptedShell {
  public:
    Answer messageBox(const Message&) override { return Answer::Ok; }
};

class PageCalls : public SiteTest {
  protected:
    PageCalls() { useFrames(2); }

    void failEveryCall(std::optional<PageType> type, const QStringList& names) {
        const auto create = [this, type] {
            return createPage({workspace, silent, view}, type).has_value();
        };
        ASSERT_TRUE(create());
        QMap<QString, QByteArray> whole;
        for (const QString& name : names) {
            whole[host(name)] = readFile(host(name));
            ASSERT_FALSE(whole[host(name)].isEmpty()) << name.toStdString();
        }
        failEveryCallOf({
            .name = "page",
            .run = create,
            .files = whole.keys(),
            .isNew = [whole](const QString& file,
                             const QByteArray& content) { return content == whole[file]; },
            .mayVanish = true,
        });
    }

    SilentShell silent;
};

}  // namespace

TEST_F(PageCalls, NoFailingCallTearsAPage) {
    failEveryCall(PageType::NavigationButtons,
                  {"Forecast.htm", "Forecast.js", "Web/Forecast1.jpg", "Web/Forecast2.jpg"});
}

TEST_F(PageCalls, NoFailingCallTearsAResponsivePage) {
    failEveryCall(PageType::Responsive, {"Forecast.htm"});
}

}  // namespace nubivane::testing
