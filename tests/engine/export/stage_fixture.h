// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/export/export_request.h"
#include "engine/export/export_watcher.h"
#include "engine/gif/small_gif.h"
#include "support/fixtures.h"

#include <QDir>

namespace nubivane::testing {

/// What an export told its run window.
class RecordingWatcher : public ExportWatcher {
  public:
    QStringList told;
    QStringList remarks;
    int rounds = 0;

    void setCaption(const QString& text) override { told << text; }
    void setProgress(int percent) override { told << QString::number(percent); }
    void working() override { ++rounds; }
    void remark(const QString& sentence) override { remarks << sentence; }
};

/// A workspace with a blue map of 60 x 40 pixels, and sprites put on its Frames.
class StageFixture : public WorkspaceFixture {
  protected:
    StageFixture() {
        useMap("map.png", {60, 40});
        QDir().mkpath(host("out"));
    }

    cSprites& sprites(qint32 frame = 1) { return workspace.Frames().Item(frame).Sprites(); }

    /// A symbol of one pixel that is red, green, blue, white in turn, each for as long as given
    /// (hundredths).
    void makeSymbol(const QString& name, const QList<int>& delays) {
        QByteArrayList parts;
        for (int i = 0; i < delays.size(); ++i) {
            parts << small_gif::control(delays[i]) << small_gif::dot(i % 3);
        }
        writeFile(host("Symbols/set-1/" + name), small_gif::file(1, 1, parts));
    }

    cSymbol& addSymbol(const QString& file, QPoint position, qint32 frame = 1,
                       const QString& name = "gifSymbol") {
        const QString path = model("Symbols/set-1/" + file);
        return sprites(frame).Symbols().add({.Name = name,
                                             .Frame = static_cast<qint16>(frame),
                                             .PosX = position.x(),
                                             .PosY = position.y(),
                                             .Width = 99,
                                             .Height = 99,
                                             .FileGif = path,
                                             .PathFileGif = path});
    }

    cLabel& addLabel(const QString& text, QPoint position, qint32 backColor = -1, qint32 frame = 1,
                     const QString& name = "lblTesto") {
        return sprites(frame).Labels().add({.Name = name,
                                            .Frame = static_cast<qint16>(frame),
                                            .Width = 99,
                                            .Height = 99,
                                            .Font = {.Name = "Arial", .Size = 10},
                                            .BackColor = backColor,
                                            .PosX = position.x(),
                                            .PosY = position.y(),
                                            .Text = text});
    }

    /// Does what is requested, while `watcher` looks on.
    void run(const ExportRequest& request) { runExport(workspace, request, watcher); }

    QString output(const QString& name) const { return model("out/" + name); }
    QString outputHost(const QString& name) const { return host("out/" + name); }
    QStringList outputs() const {
        return QDir(host("out")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    bool temporaryFolderIsGone() const { return !QFile::exists(host("~temp")); }

    RecordingWatcher watcher;
};

inline constexpr QRgb Red = qRgb(255, 0, 0);
inline constexpr QRgb Green = qRgb(0, 255, 0);
inline constexpr QRgb Blue = qRgb(0, 0, 255);

}  // namespace nubivane::testing
