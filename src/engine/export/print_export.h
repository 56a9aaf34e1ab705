// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_job.h"

#include <QImage>
#include <QString>

class QPagedPaintDevice;

namespace nubivane {

class Workspace;

/// The colour of the canvas's border, a line of one pixel around the map.
inline constexpr QRgb CanvasBorderColor = qRgb(96, 110, 122);

/// What is printed of the canvas: all but the first row and column, so that of its border the right
/// and the lower line are left. One pixel wider and higher than the map.
QImage partToPrint(const QImage& canvas);

/// Prints a picture at the upper left corner of a page, 96 pixels to the inch. Raises `Error`
/// (FileAccess) when the paper cannot be begun or ended.
void printPicture(QPagedPaintDevice& paper, const QImage& picture);

/// A Frame as a PDF file of one page, without any loss: A4 as it holds the picture, upright or
/// across; where neither does, a page of the picture's size. It shows what is printed of the
/// canvas. Viewers show the project and the Frame's title, or else its name, as that of the file;
/// its language is that of the person's system.
struct PrintRequest {
    qint32 frame = 1;   ///< its number
    QString path = {};  ///< path text
};

std::unique_ptr<ExportJob> makeJob(const Workspace& workspace, const PrintRequest& request);

/// What a print of a Frame is called.
QString titleOfPrint(const Workspace& workspace, qint32 frame);

}  // namespace nubivane
