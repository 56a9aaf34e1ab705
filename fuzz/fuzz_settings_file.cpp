// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/settings_format.h"
#include "fuzz_support.h"

using namespace nubivane;

/// The input is a settings file. What was read from it is what the next program reads after it was
/// written, and a setting more takes nothing away.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = fuzz::inputBytes(data, size);
    const auto content = parseSettings(bytes);
    if (!content) {
        return 0;
    }
    const QByteArray text = settingsText(*content);
    const auto again = parseSettings(text);
    fuzz::require(again.has_value(), "settings that were written can be read");
    fuzz::require(settingsText(*again) == text, "settings come back as they were");

    const QByteArray line = "section/group/a key of ours=a value\n";
    const auto more = parseSettings(text + line);
    fuzz::require(more && settingsText(*more).contains(line), "a setting more is read");
    fuzz::require(settingsText(*more).size() >= text.size(), "a setting more leaves the others");
    return 0;
}
