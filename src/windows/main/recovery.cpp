// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/recovery.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/settings_store.h"
#include "engine/core/version.h"
#include "windows/main/frm_map.h"
#include "windows/main/recovery_bar.h"

#include <QFile>

namespace nubivane {

using namespace Qt::StringLiterals;

Recovery::Recovery(frmMap& window, Workspace& workspace, const QString& recoveryFolder)
    : window_(window),
      workspace_(workspace),
      bar_(new RecoveryBar(recoveryFolder, &window)),
      keeper_(workspace, recoveryFolder) {
    window.addToolBar(Qt::TopToolBarArea, bar_);
    bar_->hide();
    connect(bar_, &RecoveryBar::restoreWanted, this, &Recovery::restore);
    connect(bar_, &RecoveryBar::showWanted, this, &Recovery::showCopy);
    connect(&keeper_, &RecoveryKeeper::failed, this, [this](const QString& reason) {
        bar_->tell(tr("Unsaved work cannot be kept for the case of a crash: %1").arg(reason));
    });
}

void Recovery::offer() {
    bar_->refresh();
}

void Recovery::restore(const RecoveryEntry& entry) {
    if (open(entry, entry.project)) {
        keeper_.writeNow();  // before the copy it came from goes
        discardRecovered(entry);
        bar_->refresh();
    }
}

void Recovery::showCopy(const RecoveryEntry& entry) {
    open(entry, {});
}

/// Opens a copy under the name of `project`, as work that was not saved.
bool Recovery::open(const RecoveryEntry& entry, const QString& project) {
    const QString copy = host_files::toModel(entry.folder) + u"\\restored.nvpf"_s;
    const QStringList recent = workspace_.settings.list(SettingList::RecentFiles);
    try {
        writeRecovered(entry, copy, workspace_.settings);
    } catch (const Error& error) {
        bar_->tell(tr("This work cannot be opened: %1").arg(error.cause()));
        return false;
    }
    window_.projectCommands().open(copy);
    const bool opened = workspace_.opened && workspace_.opened->project == copy;
    workspace_.settings.setList(SettingList::RecentFiles, recent);
    for (const QString& part : {copy, copy.chopped(1) + u'x'}) {
        host_files::removeFile(part);
    }
    if (!opened) {
        return false;
    }
    workspace_.opened.reset();
    workspace_.Status.CurrentProject = project;
    workspace_.ProjectChanged = true;
    window_.setCaption((project.isEmpty() ? u"New project"_s : getFileName(project)) + u" - "_s +
                       QLatin1String(ProgramTitle));
    keeper_.isUnsaved();
    return true;
}

}  // namespace nubivane
