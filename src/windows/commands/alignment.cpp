// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/alignment.h"

#include <algorithm>
#include <cmath>

namespace nubivane {

std::vector<QRect> aligned(std::vector<QRect> rects, Alignment alignment) {
    QRect whole;
    for (const QRect& rect : rects) {
        whole |= rect;
    }
    for (QRect& rect : rects) {
        switch (alignment) {
            case Alignment::Left:
                rect.moveLeft(whole.left());
                break;
            case Alignment::Centre:
                rect.moveLeft(whole.left() + (whole.width() - rect.width()) / 2);
                break;
            case Alignment::Right:
                rect.moveRight(whole.right());
                break;
            case Alignment::Top:
                rect.moveTop(whole.top());
                break;
            case Alignment::Middle:
                rect.moveTop(whole.top() + (whole.height() - rect.height()) / 2);
                break;
            case Alignment::Bottom:
                rect.moveBottom(whole.bottom());
                break;
        }
    }
    return rects;
}

std::vector<QRect> distributed(std::vector<QRect> rects, Qt::Orientation direction) {
    const auto at = [direction](const QRect& rect) {
        return direction == Qt::Horizontal ? rect.x() : rect.y();
    };
    const auto extent = [direction](const QRect& rect) {
        return direction == Qt::Horizontal ? rect.width() : rect.height();
    };
    if (rects.size() < 3) {
        return rects;
    }
    std::vector<QRect*> row;
    for (QRect& rect : rects) {
        row.push_back(&rect);
    }
    std::stable_sort(row.begin(), row.end(), [at, extent](const QRect* a, const QRect* b) {
        return 2 * at(*a) + extent(*a) < 2 * at(*b) + extent(*b);
    });
    double place = at(*row.front());
    double free = at(*row.back()) + extent(*row.back()) - place;
    for (const QRect* rect : row) {
        free -= extent(*rect);
    }
    const double gap = free / static_cast<double>(row.size() - 1);
    for (QRect* rect : row) {
        const int wanted = static_cast<int>(std::lround(place));
        place += extent(*rect) + gap;
        if (direction == Qt::Horizontal) {
            rect->moveLeft(wanted);
        } else {
            rect->moveTop(wanted);
        }
    }
    return rects;
}

}  // namespace nubivane
