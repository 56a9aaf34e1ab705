// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/picture/image_codec.h"
#include "support/fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>

#include <cmath>

/// Every symbol that ships stands out on every map that ships: on each ground that covers some part
/// of it, enough of the symbol's pixels have another colour.
namespace nubivane::testing {

namespace {

constexpr double LeastGround = 0.02;  // of a map's pixels
constexpr double LeastShare = 0.075;  // of a symbol's: an outline takes as many
constexpr double LeastDistance = 70;

struct Tone {
    double red = 0;
    double green = 0;
    double blue = 0;
    int pixels = 0;
};

/// Colours in coarse steps, each with the mean of its pixels.
QList<Tone> tonesOf(const QImage& image, int leastAlpha) {
    QHash<QRgb, Tone> tones;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) >= leastAlpha) {
                Tone& tone = tones[line[x] & 0xF0F0F0];
                tone.red += qRed(line[x]);
                tone.green += qGreen(line[x]);
                tone.blue += qBlue(line[x]);
                ++tone.pixels;
            }
        }
    }
    QList<Tone> means;
    for (const Tone& tone : tones) {
        means.append({tone.red / tone.pixels, tone.green / tone.pixels, tone.blue / tone.pixels,
                      tone.pixels});
    }
    return means;
}

/// Roughly as the eye weighs them.
double distance(const Tone& a, const Tone& b) {
    return std::sqrt(0.9 * std::pow(a.red - b.red, 2) + 1.4 * std::pow(a.green - b.green, 2) +
                     0.7 * std::pow(a.blue - b.blue, 2));
}

QString content(const QString& folder) {
    return QStringLiteral(NUBIVANE_SOURCES "/content/") + folder;
}

/// The grounds of all maps, each with the name of its map.
QList<std::pair<QString, Tone>> grounds() {
    QList<std::pair<QString, Tone>> found;
    for (const QString& name : QDir(content("Maps")).entryList(QDir::Files)) {
        const QImage map = decodePicture(readFile(content("Maps/" + name)))
                               .scaled(80, 60, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_RGB32);
        for (const Tone& tone : tonesOf(map, 0)) {
            if (tone.pixels >= LeastGround * 80 * 60) {
                found.append({name, tone});
            }
        }
    }
    return found;
}

double shareThatStandsOut(const QList<Tone>& symbol, const Tone& ground) {
    int all = 0;
    int seen = 0;
    for (const Tone& tone : symbol) {
        all += tone.pixels;
        seen += distance(tone, ground) >= LeastDistance ? tone.pixels : 0;
    }
    return all == 0 ? 0 : static_cast<double>(seen) / all;
}

}  // namespace

TEST(ShippedSymbols, StandOutOnEveryShippedMap) {
    const auto everywhere = grounds();
    ASSERT_GE(everywhere.size(), 19 * 3);
    int symbols = 0;
    QDirIterator files(content("Symbols"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QImage picture = decodePicture(readFile(file)).convertToFormat(QImage::Format_ARGB32);
        const QList<Tone> tones = tonesOf(picture, 200);
        for (const auto& [map, ground] : everywhere) {
            ASSERT_GE(shareThatStandsOut(tones, ground), LeastShare)
                << file.toStdString() << " on " << map.toStdString();
        }
        ++symbols;
    }
    EXPECT_GE(symbols, 600);
}

}  // namespace nubivane::testing
