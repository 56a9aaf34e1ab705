// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/export/video_size.h"

#include "engine/core/error.h"
#include "engine/export/export_watcher.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// A side of a video in the proportion of two others, as near as the format has it.
int inProportion(VideoFormat format, int side, int from, int to) {
    const int step = format == VideoFormat::Mp4 ? 2 : 1;
    const double exact = double(side) * to / from;
    return static_cast<int>(
        std::min(std::round(exact / step) * step, double(std::numeric_limits<int>::max())));
}

QSize checked(QSize size) {
    if (size.width() < 2 || size.height() < 2 || size.width() > MaxVideoSide ||
        size.height() > MaxVideoSide) {
        throw Error(error_number::OutOfRange, u"export"_s,
                    u"The video would have %1 x %2 pixels."_s.arg(size.width()).arg(size.height()),
                    u"a side has 2 to %1 pixels; give the other side too"_s.arg(MaxVideoSide));
    }
    return size;
}

/// A map that is larger than a video may be, scaled down whole.
QSize scaledDown(VideoFormat format, QSize map) {
    const QSize scaled = map.scaled(MaxVideoSide, MaxVideoSide, Qt::KeepAspectRatio);
    return VideoWriter::sizeFor(format, scaled);
}

}  // namespace

bool isTooLargeForVideo(QSize map) {
    return map.width() > MaxVideoSide || map.height() > MaxVideoSide;
}

QSize sizeOfVideo(VideoFormat format, QSize asked, QSize map) {
    if (asked.width() > 0 && asked.height() > 0) {
        return asked;
    }
    if (asked.width() > 0) {
        const int height = inProportion(format, asked.width(), map.width(), map.height());
        return checked({asked.width(), height});
    }
    if (asked.height() > 0) {
        const int width = inProportion(format, asked.height(), map.height(), map.width());
        return checked({width, asked.height()});
    }
    return isTooLargeForVideo(map) ? scaledDown(format, map) : map;
}

QSize sizeInFormat(VideoFormat format, QSize wanted, ExportWatcher& watcher) {
    const QSize size = VideoWriter::sizeFor(format, wanted);
    if (size != wanted) {
        const QString reason = format == VideoFormat::Mp4 ? u"MP4 holds even sides alone"_s
                                                          : u"a side has at least 2 pixels"_s;
        watcher.remark(u"The video has %1 x %2 pixels instead of %3 x %4: %5."_s.arg(
            QString::number(size.width()), QString::number(size.height()),
            QString::number(wanted.width()), QString::number(wanted.height()), reason));
    }
    return size;
}

}  // namespace nubivane
