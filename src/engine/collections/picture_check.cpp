// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/picture_check.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/picture/whole_picture.h"

#include <QSize>

#include <algorithm>
#include <array>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// What a kind of picture may measure, and how its refusals begin and end.
struct Rules {
    QSize largest;
    QSize smallest;
    const char* subject;
    const char* tooLarge;
    const char* tooSmall;
};

constexpr Rules symbolRules = {{250, 250},
                               {16, 16},
                               "Selected symbol size is ",
                               "The maximum size allowed is 250 x 250",
                               "The minimum map size is 16x16"};
constexpr Rules mapRules = {{800, 600},
                            {220, 220},
                            "Selected map size is ",
                            "The maximum size allowed is 800 x 600.",
                            "The minimum size allowed is 220x220 pixels"};

QString check(const QString& path, const Rules& rules) {
    if (!hasPictureExtension(path)) {
        return QStringLiteral("Unsupported format file");
    }
    try {
        const QByteArray bytes = host_files::read(path, MaxImportBytes);
        const QSize size = shownSize(bytes);
        const QString measured = QLatin1String(rules.subject) + QString::number(size.width()) +
                                 u" x "_s + QString::number(size.height()) + u" pixels.\r\n"_s;
        if (size.width() > rules.largest.width() || size.height() > rules.largest.height()) {
            return measured + QLatin1String(rules.tooLarge);
        }
        requireWholePicture(bytes);
        if (size.width() < rules.smallest.width() || size.height() < rules.smallest.height()) {
            return measured + QLatin1String(rules.tooSmall);
        }
    } catch (const Error&) {
        return QStringLiteral("File is not valid");
    }
    return {};
}

}  // namespace

QString checkSymbolFile(const QString& path) {
    return check(path, symbolRules);
}

QString checkMapFile(const QString& path) {
    return check(path, mapRules);
}

bool hasPictureExtension(const QString& name) {
    constexpr std::array known = {"gif", "jpg", "jpeg", "png"};
    const QString extension = getExtension(name).toLower();
    return name.contains(u'.') && std::any_of(known.begin(), known.end(), [&](const char* text) {
               return extension == QLatin1String(text);
           });
}

}  // namespace nubivane
