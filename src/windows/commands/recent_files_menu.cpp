// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/recent_files_menu.h"

#include "engine/core/host_files.h"
#include "engine/core/settings_store.h"

#include <QAction>
#include <QMenu>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

QAction* find(const QMenu& menu, const QString& name) {
    for (QAction* action : menu.actions()) {
        if (action->objectName() == name) {
            return action;
        }
    }
    return nullptr;
}

}  // namespace

void RecentFilesMenu::refresh() {
    const QStringList files = settings_.list(SettingList::RecentFiles);
    if (files.isEmpty()) {
        return;
    }
    QAction* below = find(menu_, u"mnuWindowSep"_s);
    if (!below) {
        below = menu_.insertSeparator(find(menu_, u"mnuEsci"_s));
        below->setObjectName("mnuWindowSep");
    }
    for (int i = 4; i >= 1; --i) {
        const QString name = u"mnuWindow"_s + QString::number(i);
        if (QAction* known = find(menu_, name)) {
            below = known;
        } else if (i <= files.size()) {
            const QString file = files[i - 1];
            auto* entry = new QAction(
                u'&' + QString::number(i) + u' ' + host_files::toHost(file).replace(u'&', "&&"_L1),
                &menu_);
            entry->setObjectName(name);
            connect(entry, &QAction::triggered, this, [this, file] { Q_EMIT chosen(file); });
            menu_.insertAction(below, entry);
            below = entry;
        }
    }
}

}  // namespace nubivane
