// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/project_snapshot.h"

#include <QCryptographicHash>
#include <QTextStream>

#include <cstring>

namespace nubivane::testing {

namespace {

template <class Record>
void write(QTextStream& out, const char* kind, const Record& record) {
    out << kind;
    Record::forEachSlot(record, [&out](const Slot& slot, const auto& value) {
        if (std::strcmp(slot.name, "Index") != 0) {
            out << ' ' << slot.name << '=' << value;
        }
    });
    out << '\n';
}

QString sumOf(const Picture& picture) {
    MapSurface surface;
    surface.setPicture(picture);
    const QImage image = surface.pixels().convertToFormat(QImage::Format_RGB32);
    QCryptographicHash sum(QCryptographicHash::Md5);
    for (int y = 0; y < image.height(); ++y) {
        sum.addData(QByteArrayView(reinterpret_cast<const char*>(image.constScanLine(y)),
                                   qsizetype{4} * image.width()));
    }
    return QString::fromLatin1(sum.result().toHex());
}

Picture pictureOf(const Workspace& workspace, qint32 frame) {
    if (frame == workspace.Status.CurrentFrame) {
        return workspace.pctMap.image();
    }
    const Picture picture = workspace.pctPanel.picture(frame);
    return picture.isEmpty() ? workspace.loadCurrentMap() : picture;
}

}  // namespace

QString snapshotOf(const Workspace& workspace) {
    QString text;
    QTextStream out(&text);
    out << workspace.Status.CurrentMap << '\n';
    for (qint32 i = 1; i <= workspace.Frames().Count(); ++i) {
        const cFrame& frame = workspace.Frames().Item(i);
        out << "Frame " << frame.Texts().Label << '\n';
        const cForecast& forecast = frame.Texts().Forecast();
        write<cDiv>(out, "box", forecast.Div());
        write<TextLine>(out, "title", forecast.Title());
        write<TextLine>(out, "subtitle", forecast.Subtitle());
        for (const cHeaderAttribute& item : forecast.Header()) {
            write(out, "header", item);
        }
        for (const cBodyAttribute& item : forecast.Body()) {
            write(out, "body", item);
        }
        for (const cSymbol& symbol : frame.Sprites().Symbols()) {
            write(out, "symbol", symbol);
        }
        for (const cLabel& label : frame.Sprites().Labels()) {
            write(out, "label", label);
        }
        out << "picture " << sumOf(pictureOf(workspace, i)) << '\n';
    }
    return text;
}

}  // namespace nubivane::testing
