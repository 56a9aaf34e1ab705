// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/web/page_pictures.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/parallel.h"
#include "engine/core/path_text.h"
#include "engine/core/picture_limits.h"
#include "engine/core/settings_store.h"
#include "engine/export/label_painter.h"
#include "engine/model/workspace.h"
#include "engine/picture/animation.h"
#include "engine/picture/sheet.h"
#include "engine/web/map_pictures.h"
#include "engine/web/page_settings.h"
#include "engine/web/site_folder.h"

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QSet>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QByteArray encodeWebp(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "webp");
    writer.setQuality(WebpQuality);
    if (!writer.write(image)) {
        throw Error(error_number::InvalidPicture, u"page"_s, u"Invalid picture."_s,
                    u"WebP: "_s + writer.errorString());
    }
    return bytes;
}

/// The mean colour of a picture's part; white where the part lies outside.
QRgb meanColor(const QImage& image, const QRect& part) {
    const QRect area = part.intersected(image.rect());
    if (area.isEmpty()) {
        return qRgb(255, 255, 255);
    }
    return image.copy(area)
        .convertToFormat(QImage::Format_RGB32)
        .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .pixel(0, 0);
}

/// Frames whose pictures were read from files with the same bytes share one too.
std::vector<SharedPicture> groupByContent(const FramePanels& panels) {
    std::vector<SharedPicture> groups;
    QHash<QByteArray, std::size_t> known;
    for (SharedPicture& group : groupByPicture(panels)) {
        const QByteArray bytes = group.picture.originalBytes();
        const auto found = known.constFind(bytes);
        if (bytes.isEmpty() || found == known.cend()) {
            known.insert(bytes, groups.size());
            groups.push_back(std::move(group));
        } else {
            auto& frames = groups[*found].frames;
            frames.insert(frames.end(), group.frames.begin(), group.frames.end());
        }
    }
    return groups;
}

/// The pictures of one page, gathered while they are written.
class PictureWriter {
  public:
    PictureWriter(Workspace& workspace, SiteFolder& site)
        : workspace_(workspace), site_(site), name_(readPageFilename(workspace.settings)) {
        pictures_.maps.resize(static_cast<std::size_t>(workspace.Frames().Count()));
    }

    PagePictures write(const std::function<void()>& waiting) {
        const std::vector<SharedPicture> groups = groupByContent(workspace_.pctPanel);
        parallelFor(
            groups.size(), [&](std::size_t i) { writeMap(groups[i]); },
            [&](std::size_t) { waiting(); });
        for (qint32 i = 1; i <= workspace_.Frames().Count(); ++i) {
            for (const cSymbol& symbol : workspace_.Frames().Item(i).Sprites().Symbols()) {
                writeSymbol(symbol.FileGif);
            }
            waiting();
        }
        writeCard();
        writeIcon();
        writeBack();
        return std::move(pictures_);
    }

  private:
    QString web(const QString& rest) const { return u"Web/"_s + name_ + rest; }

    void writeMap(const SharedPicture& group) {
        const QString stem = QString::number(group.frames.front());
        QImage image = group.picture.image();
        if (image.hasAlphaChannel()) {
            image = onWhite(image);
        }
        PagePictures::Map map{.jpeg = web(stem + u".jpg"_s), .webp = web(stem + u".webp"_s)};
        site_.write(map.jpeg, pageJpeg(group.picture, image));
        site_.write(map.webp, encodeWebp(image));
        const QSize shown(workspace_.pctMap.ScaleWidth(), workspace_.pctMap.ScaleHeight());
        for (const qint32 frame : group.frames) {
            map.grounds.clear();
            for (const cLabel& label : workspace_.Frames().Item(frame).Sprites().Labels()) {
                map.grounds.push_back(groundOf(label, image, shown));
            }
            pictures_.maps[static_cast<std::size_t>(frame) - 1] = map;
        }
    }

    /// A picture of another size than the map is stretched over it.
    static QRgb groundOf(const cLabel& label, const QImage& image, QSize shown) {
        const QRectF box = placeOf(label);
        const double x = static_cast<double>(image.width()) / std::max(shown.width(), 1);
        const double y = static_cast<double>(image.height()) / std::max(shown.height(), 1);
        return meanColor(
            image,
            QRectF(box.x() * x, box.y() * y, box.width() * x, box.height() * y).toAlignedRect());
    }

    void writeSymbol(const QString& path) {
        if (seen_.contains(path)) {
            return;
        }
        seen_.insert(path);
        try {
            const QByteArray bytes = host_files::read(path, MaxPictureBytes);
            const Animation animation = Animation::fromEncoded(bytes);
            const QImage& first = animation.images().front().picture;
            const QString stem = stemOf(path);
            PagePictures::Symbol symbol;
            switch (probePicture(bytes).format) {
                case PictureFormat::Gif:
                    symbol.file = add(stem, u".gif"_s, bytes);
                    break;
                case PictureFormat::Jpeg:
                    symbol.file = add(stem, u".jpg"_s, bytes);
                    break;
                case PictureFormat::Png:
                    symbol.file = add(stem, u".png"_s, bytes);
                    break;
                case PictureFormat::Bmp:
                case PictureFormat::Tiff:  // not shown by browsers
                    symbol.file = add(stem, u".png"_s, encodePicture(first, PictureFormat::Png));
                    break;
            }
            if (animation.moves()) {
                symbol.still = add(stem, u"-still.png"_s, encodePicture(first, PictureFormat::Png));
            }
            pictures_.symbols.insert(path, symbol);
            firstImages_.insert(path, first);
        } catch (const Error& error) {
            if (error.number() != error_number::InvalidPicture &&
                error.number() != error_number::FileNotFound) {
                throw;
            }
            // The page shows its name in its place.
        }
    }

    /// Names that every server takes: "Symbols\Set 1\sun.gif" gives "set-1-sun".
    QString stemOf(const QString& path) {
        QString stem;
        const QString words =
            getFileName(getFolder(path)) + u'-' + stripExtension(getFileName(path));
        for (const QChar c : words.toLower()) {
            if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9')) {
                stem += c;
            } else if (!stem.isEmpty() && !stem.endsWith(u'-')) {
                stem += u'-';
            }
        }
        while (stem.endsWith(u'-')) {
            stem.chop(1);
        }
        stem = u"-symbol-"_s + (stem.isEmpty() ? u"1"_s : stem.left(80));
        const QString wish = stem;
        for (int n = 2; stems_.contains(stem); ++n) {
            stem = wish + u'-' + QString::number(n);
        }
        stems_.insert(stem);
        return stem;
    }

    QString add(const QString& stem, const QString& ending, const QByteArray& bytes) {
        const QString name = web(stem + ending);
        site_.write(name, bytes);
        return name;
    }

    /// The first Frame as the page shows it, symbols in the sizes that they have there.
    void writeCard() {
        QImage card = onWhite(workspace_.pctPanel.picture(1).image());
        QPainter painter(&card);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const cSprites& sprites = workspace_.Frames().Item(1).Sprites();
        for (const cSymbol& symbol : sprites.Symbols()) {
            const QRect box = placeOf(symbol);
            if (box.intersects(card.rect()) && firstImages_.contains(symbol.FileGif)) {
                painter.drawImage(box, firstImages_.value(symbol.FileGif));
            }
        }
        for (const cLabel& label : sprites.Labels()) {
            const QRect box(placeOf(label).topLeft(), labelSize(label));
            if (box.intersects(card.rect())) {
                paintLabel(painter, label, box);
            }
        }
        painter.end();
        pictures_.card = web(u"-card.jpg"_s);
        pictures_.cardSize = card.size();
        site_.write(pictures_.card, encodePicture(card, PictureFormat::Jpeg));
    }

    /// The first symbol of the forecast, or the middle of its map.
    void writeIcon() {
        QImage source;
        for (qint32 i = 1; source.isNull() && i <= workspace_.Frames().Count(); ++i) {
            for (const cSymbol& symbol : workspace_.Frames().Item(i).Sprites().Symbols()) {
                if (source.isNull()) {
                    source = firstImages_.value(symbol.FileGif);
                }
            }
        }
        if (source.isNull()) {
            source = workspace_.pctPanel.picture(1).image();
            const int side = std::min(source.width(), source.height());
            source =
                source.copy((source.width() - side) / 2, (source.height() - side) / 2, side, side);
        }
        const QImage small =
            source.scaled(IconSide, IconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QImage icon(IconSide, IconSide, QImage::Format_ARGB32_Premultiplied);
        icon.fill(Qt::transparent);
        QPainter(&icon).drawImage((IconSide - small.width()) / 2, (IconSide - small.height()) / 2,
                                  small);
        pictures_.icon = web(u"-icon.png"_s);
        site_.write(pictures_.icon, encodePicture(icon, PictureFormat::Png));
    }

    void writeBack() {
        const QString path = workspace_.settings.text(Setting::PageBackpicture);
        if (trimBlanks(path).isEmpty() || !host_files::fileExists(path)) {
            return;
        }
        const QByteArray bytes = host_files::read(path, MaxPictureBytes);
        const PictureFormat format = probePicture(bytes).format;
        if (format == PictureFormat::Jpeg) {
            pictures_.back = add(u"-back"_s, u".jpg"_s, bytes);
        } else {
            // One that moves could not be told to stand still behind a text.
            pictures_.back =
                add(u"-back"_s, u".png"_s, encodePicture(decodePicture(bytes), PictureFormat::Png));
        }
    }

    Workspace& workspace_;
    SiteFolder& site_;
    QString name_;
    PagePictures pictures_;
    QSet<QString> seen_;
    QSet<QString> stems_;
    QHash<QString, QImage> firstImages_;
};

}  // namespace

PagePictures writePagePictures(Workspace& workspace, SiteFolder& site,
                               const std::function<void()>& waiting) {
    return PictureWriter(workspace, site).write(waiting);
}

}  // namespace nubivane
