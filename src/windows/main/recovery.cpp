// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/recovery.h"

#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/model/workspace.h"
#include "windows/main/frm_map.h"
#include "windows/main/notice_bar.h"

#include <QLocale>
#include <QPushButton>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The hour of a day that people need not be told, else the day as well.
QString timeText(const QDateTime& time) {
    const QDateTime local = time.toLocalTime();
    const QString hour = local.toString(u"HH:mm"_s);
    return local.date() == QDate::currentDate()
               ? hour
               : QLocale().toString(local.date(), QLocale::ShortFormat) + u' ' + hour;
}

}  // namespace

Recovery::Recovery(frmMap& window, Workspace& workspace, NoticeBar& bar,
                   const QString& recoveryFolder, const RecoveryKeeper::Delays& delays)
    : window_(window),
      workspace_(workspace),
      bar_(bar),
      folder_(recoveryFolder),
      keeper_(workspace, recoveryFolder, delays) {
    connect(&keeper_, &RecoveryKeeper::failed, this, &Recovery::tellFailure);
    connect(&keeper_, &RecoveryKeeper::succeeded, this, [this] { bar_.remove(failure_); });
}

void Recovery::tellFailure(const QString& reason) {
    bar_.remove(failure_);
    failure_ = bar_.tellClosable(
        tr("Unsaved work cannot be kept for the case of a crash: %1").arg(reason));
}

void Recovery::offer() {
    QStringList faults;
    for (const RecoveryEntry& entry : recoveryEntries(folder_, faults)) {
        if (!entry.isOpen) {
            addEntry(entry);
        }
    }
    for (const QString& fault : faults) {
        bar_.tellClosable(fault);
    }
}

void Recovery::addEntry(const RecoveryEntry& entry) {
    const QString name =
        entry.project.isEmpty() ? tr("a project without a name") : getFileName(entry.project);
    Notice* notice = bar_.tell(tr("Unsaved work on %1 from %2").arg(name, timeText(entry.time)));
    connect(notice->addButton(u"recoveryRestore"_s, tr("Restore"),
                              tr("Open this work as it was, unsaved")),
            &QPushButton::clicked, this, [this, entry, notice] { restore(entry, notice); });
    connect(
        notice->addButton(u"recoveryDiscard"_s, tr("Discard"), tr("Take this work away for good")),
        &QPushButton::clicked, this, [this, entry, notice] {
            discardRecovered(entry);
            bar_.remove(notice);
        });
    connect(notice->addButton(u"recoveryShow"_s, tr("Show"),
                              tr("Open a copy of it as a new project, and keep the entry")),
            &QPushButton::clicked, this, [this, entry] { open(entry, {}); });
}

void Recovery::restore(const RecoveryEntry& entry, Notice* notice) {
    if (open(entry, entry.project)) {
        keeper_.writeNow();  // before the copy it came from goes
        discardRecovered(entry);
        bar_.remove(notice);
    }
}

/// Opens a copy under the name of `project`, as work that was not saved.
bool Recovery::open(const RecoveryEntry& entry, const QString& project) {
    const QString copy = host_files::toModel(entry.folder) + u"\\restored.nvpf"_s;
    try {
        writeRecovered(entry, copy, workspace_.settings);
    } catch (const Error& error) {
        bar_.tellClosable(tr("This work cannot be opened: %1").arg(error.cause()));
        return false;
    }
    const bool opened = window_.projectCommands().openUnsaved(copy, {project, entry.opened});
    for (const QString& part : {copy, copy.chopped(1) + u'x'}) {
        host_files::removeFile(part);
    }
    return opened;
}

}  // namespace nubivane
