// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QRect>
#include <QSize>
#include <QString>

#include <algorithm>
#include <functional>
#include <vector>

namespace nubivane {

class SiteFolder;
class Workspace;

/// The pictures that a responsive page shows, by their names relative to it ("Web/…"); an empty
/// name is no picture.
struct PagePictures {
    struct Map {
        QString jpeg;
        QString webp;
        std::vector<QRgb> grounds{};  ///< the map's colour behind each Label of the Frame
    };
    struct Symbol {
        QString file;
        QString still;  ///< of one that moves: its first image
    };

    std::vector<Map> maps;           ///< by Frame
    QHash<QString, Symbol> symbols;  ///< by path; one that cannot be shown is missing
    QString card;                    ///< the first Frame with its sprites
    QSize cardSize;
    QString icon;
    QString back;  ///< background of the page
};

/// Quality (0 to 100) of a page's WebP pictures: at this one the differences from the JPEG beside
/// it disappear in what that has lost itself, in half its bytes (figures in bench/README.md).
inline constexpr int WebpQuality = 82;
inline constexpr int IconSide = 64;  ///< pixels

/// Where a sprite stands on the map, in pixels. What a file holds may be any number: far outside,
/// one place is as good as another.
template <class Sprite>
QRect placeOf(const Sprite& sprite) {
    constexpr qint32 far = 1'000'000;
    return {std::clamp(sprite.PosX, -far, far), std::clamp(sprite.PosY, -far, far),
            std::clamp(sprite.Width, 0, far), std::clamp(sprite.Height, 0, far)};
}

/// Writes the pictures of the open project's page, whose panels are filled. Frames that show one
/// picture share its files. `waiting` runs on the calling thread now and then. Raises `Error`.
PagePictures writePagePictures(Workspace& workspace, SiteFolder& site,
                               const std::function<void()>& waiting);

}  // namespace nubivane
