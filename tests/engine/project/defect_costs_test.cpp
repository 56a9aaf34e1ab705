// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/defects.h"
#include "engine/project/limited_process.h"

namespace nubivane::testing {

namespace {

constexpr rlim_t MostMemory = rlim_t{200} * 1024 * 1024;  ///< bytes
constexpr rlim_t MostSeconds = 1;                         ///< of the processor's time

std::vector<Limit> limits() {
#if defined(__SANITIZE_ADDRESS__)
    return {};  // the sanitizer alone takes more of both
#else
    return {{RLIMIT_DATA, MostMemory}, {RLIMIT_CPU, MostSeconds}};
#endif
}

}  // namespace

TEST(DefectCosts, NoneTakesMuchMemoryOrTime) {
    TemporaryFolder temporary;
    copyFolder(testFile("fixtures/program"), temporary.file("program"));
    for (const Defect& defect : allDefects()) {
        const ProcessResult result =
            runLimited({"--program-folder", temporary.file("program"), "--settings",
                        temporary.file("settings.ini"), "show", defect.file()},
                       limits());
        EXPECT_EQ(result.exitCode, defect.expected == "opens" ? 0 : 1)
            << defect.name.toStdString() << ": " << result.err.left(500).toStdString();
        EXPECT_LT(result.err.size(), 2000) << defect.name.toStdString();
    }
}

TEST(DefectCosts, TheLimitsOfThisTestDoStopAProgram) {
    if (limits().empty()) {
        GTEST_SKIP();
    }
    TemporaryFolder temporary;
    copyFolder(testFile("fixtures/program"), temporary.file("program"));
    const ProcessResult result = runLimited(
        {"--program-folder", temporary.file("program"), "--settings",
         temporary.file("settings.ini"), "show", testFile("engine/project/defects/sound.nvpf")},
        {{RLIMIT_DATA, 1024 * 1024}});
    EXPECT_NE(result.exitCode, 0);
}

}  // namespace nubivane::testing
