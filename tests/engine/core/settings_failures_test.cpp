// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"
#include "support/failing_calls.h"

namespace nubivane::testing {

TEST(SettingsFailures, NoFailingCallTearsTheSettings) {
    const TemporaryFolder folder;
    const QString file = folder.file("settings.ini");
    SettingsStore(file).set(Setting::FtpUrl, "ftp.example.org");
    const QByteArray before = readFile(file);
    for (const int error : {ENOSPC, EIO}) {
        bool ended = false;
        for (int n = 1; !ended && n < 1000; ++n) {
            writeFile(file, before);
            SettingsStore store(file);
            std::string failed;
            bool told = false;
            {
                const system_calls::Watch watch([&, seen = 0](system_calls::Call& call) mutable {
                    if (++seen == n) {
                        failed = call.name;
                        call.error = error;
                    }
                });
                told = !store.set(Setting::FtpPort, "2121");
            }
            ended = failed.empty();
            const std::string when = "call " + std::to_string(n) + " (" + failed + ") failed";
            const SettingsStore found(file);
            EXPECT_EQ(found.setAside(), "") << when;
            EXPECT_EQ(found.text(Setting::FtpUrl), "ftp.example.org") << when;
            EXPECT_EQ(found.text(Setting::FtpPort), told ? "21" : "2121") << when;
            if (ended) {
                EXPECT_FALSE(told);
                EXPECT_GT(n, 5) << "the calls are not seen";
            }
        }
        EXPECT_TRUE(ended);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
                  QStringList("settings.ini"));
    }
}

TEST(SettingsFailures, NoFailingCallTearsAFileThatIsReplaced) {
    const TemporaryFolder folder;
    const QString file = folder.file("a.txt");
    failEveryCallOf({
        .name = "host_files::write",
        .run =
            [&] {
                try {
                    host_files::write(host_files::toModel(file), "what stands there now");
                } catch (const Error&) {
                    return false;
                }
                return true;
            },
        .files = {file},
        .isNew = [](const QString&,
                    const QByteArray& content) { return content == "what stands there now"; },
    });
}

}  // namespace nubivane::testing
