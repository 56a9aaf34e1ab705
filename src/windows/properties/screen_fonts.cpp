// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/screen_fonts.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>
#include <array>

namespace nubivane {

namespace {

/// Names that web pages build on, and the families of the same widths that systems draw them with.
struct Substitute {
    const char* name;
    std::array<const char*, 8> drawnAs;
};

constexpr std::array substitutes = {
    Substitute{"Arial",
               {"Liberation Sans", "Arimo", "Albany", "Albany AMT", "Helvetica", "Nimbus Sans",
                "Nimbus Sans L", "TeX Gyre Heros"}},
    Substitute{"Courier New",
               {"Liberation Mono", "Cousine", "Cumberland", "Cumberland AMT", "Courier",
                "Nimbus Mono PS", "Nimbus Mono L", "TeX Gyre Cursor"}},
    Substitute{"Times New Roman",
               {"Liberation Serif", "Tinos", "Thorndale", "Thorndale AMT", "Times", "Nimbus Roman",
                "Nimbus Roman No9 L", "TeX Gyre Termes"}},
};

bool comesBefore(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

bool isDrawnAs(const Substitute& font, const QString& family) {
    return std::any_of(font.drawnAs.begin(), font.drawnAs.end(),
                       [&family](const char* each) { return family == QLatin1String(each); });
}

}  // namespace

QStringList withWebFonts(QStringList families,
                         const std::function<QString(const QString&)>& familyDrawn) {
    for (const Substitute& each : substitutes) {
        const QString name = QLatin1String(each.name);
        if (!families.contains(name) && isDrawnAs(each, familyDrawn(name))) {
            families.insert(std::lower_bound(families.begin(), families.end(), name, comesBefore),
                            name);
        }
    }
    return families;
}

QStringList screenFonts() {
    QStringList fonts;
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isPrivateFamily(family)) {
            fonts << family;
        }
    }
    return withWebFonts(fonts, [](const QString& name) { return QFontInfo(QFont(name)).family(); });
}

}  // namespace nubivane
