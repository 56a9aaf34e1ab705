// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/pixel_change.h"

#include <cstring>
#include <utility>

namespace nubivane {

namespace {

/// Packing this much takes about a millisecond.
constexpr qsizetype MostPacked = 64 * 1024;

/// A run: pixels of a line to pass over, pixels that differ, then these before and after.
struct Run {
    quint32 line;
    quint32 first;
    quint32 count;
};

const QRgb* lineOf(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

void append(QByteArray& runs, const Run& run, const QRgb* before, const QRgb* after) {
    const auto pixels = static_cast<qsizetype>(run.count * sizeof(QRgb));
    runs.append(reinterpret_cast<const char*>(&run), sizeof(run));
    runs.append(reinterpret_cast<const char*>(before), pixels);
    runs.append(reinterpret_cast<const char*>(after), pixels);
}

}  // namespace

PixelChange::PixelChange(const QImage& before, const QImage& picture, QPoint corner) {
    for (int y = 0; y < before.height(); ++y) {
        const QRgb* const old = lineOf(before, y);
        const QRgb* const now = lineOf(picture, corner.y() + y) + corner.x();
        if (std::memcmp(old, now, static_cast<std::size_t>(before.width()) * sizeof(QRgb)) == 0) {
            continue;
        }
        for (int x = 0; x < before.width();) {
            if (old[x] == now[x]) {
                ++x;
                continue;
            }
            const int first = x;
            while (x < before.width() && old[x] != now[x]) {
                ++x;
            }
            const QPoint start = corner + QPoint(first, y);
            append(runs_,
                   {static_cast<quint32>(start.y()), static_cast<quint32>(start.x()),
                    static_cast<quint32>(x - first)},
                   old + first, now + first);
            area_ |= QRect(start, QSize(x - first, 1));
        }
    }
    if (!runs_.isEmpty() && runs_.size() <= MostPacked) {
        const QByteArray packed = qCompress(runs_, 1);
        packed_ = packed.size() < runs_.size();
        runs_ = packed_ ? packed : runs_;
    }
    runs_.squeeze();
}

/// Calls `visit` with each run and its colours before and after.
template <class Visit>
void PixelChange::forEachRun(Visit visit) const {
    const QByteArray runs = packed_ ? qUncompress(runs_) : runs_;
    for (qsizetype at = 0; at < runs.size();) {
        Run run;
        std::memcpy(&run, runs.constData() + at, sizeof(run));
        at += static_cast<qsizetype>(sizeof(run));
        const auto pixels = static_cast<qsizetype>(run.count * sizeof(QRgb));
        visit(run, runs.constData() + at, runs.constData() + at + pixels);
        at += 2 * pixels;
    }
}

void PixelChange::write(QImage& picture, bool after) const {
    forEachRun([&](const Run& run, const char* old, const char* now) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(static_cast<int>(run.line)));
        std::memcpy(line + run.first, after ? now : old, run.count * sizeof(QRgb));
    });
}

bool PixelChange::lift(QImage& picture) const {
    bool seen = false;
    if (!picture.rect().contains(area_)) {
        return seen;  // another map lies there now
    }
    forEachRun([&](const Run& run, const char* old, const char* now) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(static_cast<int>(run.line)));
        for (quint32 i = 0; i < run.count; ++i) {
            QRgb* const pixel = line + run.first + i;
            if (std::memcmp(pixel, now + i * sizeof(QRgb), sizeof(QRgb)) == 0) {
                std::memcpy(pixel, old + i * sizeof(QRgb), sizeof(QRgb));
                seen = true;
            }
        }
    });
    return seen;
}

}  // namespace nubivane
