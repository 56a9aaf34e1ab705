// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>

namespace nubivane {

/// The entries of a settings file by name.
using SettingsMap = QMap<QString, QString>;

/// What a settings file says.
struct SettingsContent {
    SettingsMap entries;
    /// Lines that are no UTF-8, such as one whose last character was cut. They say nothing to us
    /// and are kept as they are.
    QList<QByteArray> unreadable;
};

/// The form of the settings file: UTF-8 text, one "key=value" a line, with "%XX" for what would
/// break a line or a key.
QByteArray settingsText(const SettingsContent& content);

/// The content of such a text; nothing when it holds text that `settingsText` never writes.
std::optional<SettingsContent> parseSettings(const QByteArray& text);

}  // namespace nubivane
