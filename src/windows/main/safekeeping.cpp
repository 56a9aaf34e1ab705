// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/safekeeping.h"

#include "windows/main/frm_map.h"
#include "windows/main/notice_bar.h"

#include <QGuiApplication>

#include <unistd.h>

namespace nubivane {

Safekeeping::Safekeeping(frmMap& window, Workspace& workspace, const QString& recoveryFolder,
                         const RecoveryKeeper::Delays& delays)
    : bar_(new NoticeBar(&window)),
      recovery_(window, workspace, *bar_, recoveryFolder, delays),
      lock_(workspace, *bar_) {
    window.addToolBar(Qt::TopToolBarArea, bar_);
    bar_->hide();
    connect(&termination_, &Termination::wanted, this, [this](int signal) {
        constexpr int ByASignal = 128;
        keepAll();
        // At once: a dialog that waits for an answer must not hold the end back.
        ::_exit(ByASignal + signal);
    });
    connect(&termination_, &Termination::exiting, this, &Safekeeping::keepAll);
    // The session may yet go on: the lock stays.
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this] { recovery_.writeNow(); });
}

void Safekeeping::close() {
    recovery_.close();
    lock_.release();
}

void Safekeeping::keepAll() {
    recovery_.writeNow();
    lock_.release();
}

}  // namespace nubivane
