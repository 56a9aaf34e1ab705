// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/editor.h"
#include "engine/services/publisher.h"

#include <QObject>

class QWidget;

namespace nubivane {

class Commands;

/// The commands that talk to the publisher or of it, with their windows.
class ServiceCommands : public QObject {
    Q_OBJECT

  public:
    ServiceCommands(Editor editor, Commands& commands, QWidget* window,
                    Publisher publisher = Publisher::ofThisBuild(), FtpOptions options = {});

  private:
    void mnuPack();
    void mnuBugReport();
    void mnuLastVersion();
    void mnuInfo();
    void mnuWeb();

    Editor editor_;
    QWidget* window_;
    const Publisher publisher_;
    const FtpOptions options_;
};

}  // namespace nubivane
