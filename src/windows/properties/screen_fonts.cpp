// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/screen_fonts.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>

namespace nubivane {

namespace {

struct Substitute {
    const char* name;
    const char* drawnAs;
};

constexpr std::array substitutes = {
    Substitute{"Arial", "Liberation Sans"},
    Substitute{"Courier New", "Liberation Mono"},
    Substitute{"Times New Roman", "Liberation Serif"},
};

bool comesBefore(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

}  // namespace

QStringList screenFonts() {
    QStringList fonts;
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family)) {
            fonts << family;
        }
    }
    for (const Substitute& each : substitutes) {
        const QString name = QLatin1String(each.name);
        if (!fonts.contains(name) &&
            QFontInfo(QFont(name)).family() == QLatin1String(each.drawnAs)) {
            fonts.insert(std::lower_bound(fonts.begin(), fonts.end(), name, comesBefore), name);
        }
    }
    return fonts;
}

}  // namespace nubivane
