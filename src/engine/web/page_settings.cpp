// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_settings.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/version.h"

#include <cstdlib>
#include <limits>

namespace nubivane {

namespace {

constexpr int DefaultTimer = 4;
/// Beyond this the milliseconds no longer fit a browser's timer.
constexpr int MaxTimer = std::numeric_limits<qint32>::max() / 1000;

qint32 color(const SettingsStore& settings, Setting setting) {
    const QString text = settings.text(setting);
    if (const auto number = toInt32(text)) {
        return *number;
    }
    throw Error(error_number::TypeMismatch, "page",
                "The setting \"" + QString(QLatin1String(rowOf(setting).key)) +
                    "\" is no colour: \"" + text + "\".");
}

/// Flags count only when they are exactly "1".
bool isOne(const SettingsStore& settings, Setting setting) {
    return settings.text(setting) == u"1";
}

int timerSeconds(const SettingsStore& settings) {
    const auto seconds = settings.number(Setting::PageTimer);
    return seconds && std::abs(qint64{*seconds}) <= MaxTimer ? *seconds : DefaultTimer;
}

QString footer(const SettingsStore& settings) {
    const QString text = settings.text(Setting::PagePoweredLabel);
    return text.isEmpty() ? QStringLiteral("Powered by nVane ") + Version : text;
}

}  // namespace

QString readPageFilename(const SettingsStore& settings) {
    const QString name = settings.text(Setting::PageFilename);
    if (!host_files::isPlainName(name)) {
        throw Error(error_number::InvalidArgument, "page",
                    "The page's file name in the settings is no plain name: \"" + name + "\".");
    }
    return name;
}

PageSettings PageSettings::read(const SettingsStore& settings) {
    return {
        .filename = readPageFilename(settings),
        .title = settings.text(Setting::PageTitle),
        .poweredLabel = footer(settings),
        .backcolor = color(settings, Setting::PageBackcolor),
        .backpicture = settings.text(Setting::PageBackpicture),
        .timer = timerSeconds(settings),
        .effects = isOne(settings, Setting::PageEffects),
        .showForecastText = isOne(settings, Setting::PageShowForecastText),
        .sliderTicks = isOne(settings, Setting::SliderTick),
        .sliderColor = toInt32(settings.text(Setting::SliderColor)),
        .sliderTooltip = isOne(settings, Setting::SliderTooltip),
    };
}

}  // namespace nubivane
