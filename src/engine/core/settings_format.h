// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>

namespace nubivane {

/// The entries of a settings file by name.
using SettingsMap = QMap<QString, QString>;

/// The form of the settings file: UTF-8 text, one "key=value" a line, with "%XX" for what would
/// break a line or a key.
QByteArray settingsText(const SettingsMap& entries);

/// The entries of such a text; nothing when it holds what `settingsText` never writes.
std::optional<SettingsMap> parseSettings(const QByteArray& text);

}  // namespace nubivane
