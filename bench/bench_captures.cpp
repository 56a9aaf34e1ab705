// SPDX-License-Identifier: GPL-3.0-or-later
// bench_captures PROGRAM_FOLDER PROJECT anigif|film FOLDER: writes the captures of Frame 1, or of a
// film of a second for each Frame, as FOLDER/0001.png and so on, for other encoders to work on.

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/quiet_shell.h"
#include "engine/core/settings_store.h"
#include "engine/export/capture_plan.h"
#include "engine/export/film_stage.h"
#include "engine/model/editor.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "engine/project/open_project.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace nubivane;

namespace {

bool write(const QImage& picture, const QString& folder, qint64 number) {
    return picture.save(QStringLiteral("%1/%2.png").arg(folder).arg(number, 4, 10, QChar(u'0')));
}

bool writeAll(Workspace& workspace, bool film, const QString& folder) {
    bool ok = true;
    if (film) {
        FilmStage stage(workspace, 1, 100);
        for (qint32 i = 1; i <= stage.count(); ++i) {
            ok = write(stage.captureFrame(i).picture, folder, i) && ok;
        }
        return ok;
    }
    const FrameContent content = contentOf(workspace, 1);
    ExportStage stage;
    stage.loadMap(content);
    stage.loadStageSprites(content);
    const CapturePlan plan = planGif(stage.timing(), 1);
    for (qint64 i = 0; i < plan.count(); ++i) {
        ok = write(stage.grabStage(i * plan.interval), folder, i + 1) && ok;
    }
    return ok;
}

}  // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 5) {
        std::fputs("Usage: bench_captures PROGRAM_FOLDER PROJECT anigif|film FOLDER\n", stderr);
        return 2;
    }
    try {
        const QTemporaryDir temporary;
        SettingsStore settings(temporary.filePath("settings.ini"));
        Workspace workspace(ProgramFolder(host_files::toModel(QString::fromLocal8Bit(argv[1]))),
                            settings);
        QuietShell shell;
        EditorView noWindow;
        OpenProject({workspace, shell, noWindow},
                    host_files::toModel(QString::fromLocal8Bit(argv[2])));
        const bool film = QByteArray(argv[3]) == "film";
        return writeAll(workspace, film, QString::fromLocal8Bit(argv[4])) ? 0 : 1;
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
