#pragma once

#include <QSettings>

namespace nubivane {

/// The form of the settings file: UTF-8 text, one "key=value" a line, with "%XX" for what would
/// break a line or a key. A form of our own, because the reader must notice every damage and the
/// writer a full disk, which QSettings' own formats do not.
QSettings::Format settingsFormat();

}  // namespace nubivane
