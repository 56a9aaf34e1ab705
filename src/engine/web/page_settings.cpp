// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_settings.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/version.h"

#include <QLocale>
#include <QRegularExpression>
#include <QUrl>

#include <cstdlib>
#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int DefaultTimer = 4;
/// Beyond this the milliseconds no longer fit a browser's timer.
constexpr int MaxTimer = std::numeric_limits<qint32>::max() / 1000;

qint32 color(const SettingsStore& settings, Setting setting) {
    const QString text = settings.text(setting);
    if (const auto number = toInt32(text)) {
        return *number;
    }
    throw Error(error_number::TypeMismatch, u"page"_s,
                u"The setting \""_s + QString(QLatin1String(rowOf(setting).key)) +
                    u"\" is no colour: \""_s + text + u"\"."_s);
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

/// A tag that is none would make the page invalid: then, as without one, the system's language.
QString languageOf(const SettingsStore& settings) {
    static const QRegularExpression tag(QStringLiteral("^[A-Za-z]{2,3}(-[A-Za-z0-9]{2,8})*$"));
    const QString text = trimBlanks(settings.text(Setting::PageLanguage));
    return tag.match(text).hasMatch() ? text : QLocale::system().bcp47Name();
}

template <class Choice>
Choice choice(const SettingsStore& settings, Setting setting, Choice last, Choice otherwise) {
    const int number = settings.number(setting).value_or(-1);
    return number >= 0 && number <= static_cast<int>(last) ? static_cast<Choice>(number)
                                                           : otherwise;
}

QString addressOf(const SettingsStore& settings) {
    const QUrl url(trimBlanks(settings.text(Setting::PageAddress)), QUrl::StrictMode);
    const bool isWeb =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || !isWeb || url.host().isEmpty()) {
        return {};
    }
    const QString folder = QString::fromLatin1(
        url.toEncoded(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment));
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

}  // namespace

QString readPageFilename(const SettingsStore& settings) {
    const QString name = settings.text(Setting::PageFilename);
    if (!host_files::isPlainName(name)) {
        throw Error(
            error_number::InvalidArgument, u"page"_s,
            u"The page's file name in the settings is no plain name: \""_s + name + u"\"."_s);
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
        .ownBackcolor = color(settings, Setting::PageBackcolorInDialog),
        .language = languageOf(settings),
        .theme = choice(settings, Setting::PageTheme, PageTheme::Dark, PageTheme::Automatic),
        .play = choice(settings, Setting::PagePlay, PagePlay::Running, PagePlay::Offered),
        .address = addressOf(settings),
    };
}

}  // namespace nubivane
