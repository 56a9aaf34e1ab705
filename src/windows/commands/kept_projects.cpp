// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/kept_projects.h"

#include "engine/core/host_files.h"
#include "engine/core/quiet_shell.h"
#include "engine/export/export_stage.h"
#include "engine/model/editor_view.h"
#include "engine/project/open_project.h"
#include "engine/project/project_differences.h"

#include <QCoreApplication>
#include <QStringList>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QString text(const char* source) {
    return QCoreApplication::translate("Versions", source);
}

void addSprites(QStringList& parts, const SpriteDifference& difference, const char* earlier,
                const char* now) {
    if (difference.onlyEarlier > 0) {
        parts += text(earlier).arg(difference.onlyEarlier);
    }
    if (difference.onlyNow > 0) {
        parts += text(now).arg(difference.onlyNow);
    }
}

QString sentenceOf(const FrameDifference& frame) {
    QStringList parts;
    if (frame.labelEarlier != frame.labelNow) {
        parts += text(QT_TRANSLATE_NOOP("Versions", "called %1 in this version"))
                     .arg(frame.labelEarlier);
    }
    addSprites(parts, frame.symbols,
               QT_TRANSLATE_NOOP("Versions", "symbols only in this version: %1"),
               QT_TRANSLATE_NOOP("Versions", "symbols only on the map now: %1"));
    addSprites(parts, frame.labels,
               QT_TRANSLATE_NOOP("Versions", "labels only in this version: %1"),
               QT_TRANSLATE_NOOP("Versions", "labels only on the map now: %1"));
    if (frame.title) {
        parts += text(QT_TRANSLATE_NOOP("Versions", "another title or subtitle"));
    }
    if (frame.text) {
        parts += text(QT_TRANSLATE_NOOP("Versions", "another forecast text"));
    }
    return u"%1: %2."_s.arg(frame.labelNow, parts.join(u"; "_s));
}

}  // namespace

KeptProject::KeptProject(const KeptVersion& version, const ProgramFolder& folder)
    : settings_(temporary_.filePath(u"settings.ini"_s)), workspace_(folder, settings_) {
    QuietShell shell;
    EditorView view;
    OpenProject({workspace_, shell, view}, host_files::toModel(version.document),
                host_files::toModel(temporary_.path()));
}

QImage KeptProject::firstFrame() {
    workspace_.storeCurrentFrame();
    return renderFrame(workspace_, 1);
}

QString differencesText(const KeptProject& version, const cFrames& now) {
    const ProjectDifferences differences = differencesOf(version.frames(), now);
    if (!differences.any()) {
        return text(QT_TRANSLATE_NOOP(
            "Versions", "Its maps, symbols, labels and texts are those that are open now."));
    }
    QStringList lines;
    if (differences.framesEarlier != differences.framesNow) {
        lines += text(QT_TRANSLATE_NOOP("Versions", "Maps in this version: %1, now: %2."))
                     .arg(differences.framesEarlier)
                     .arg(differences.framesNow);
    }
    for (const FrameDifference& frame : differences.frames) {
        lines += sentenceOf(frame);
    }
    return lines.join(u'\n');
}

}  // namespace nubivane
