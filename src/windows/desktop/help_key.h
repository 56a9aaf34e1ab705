// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace nubivane {

class Shell;
class Workspace;

/// The key F1 in every window that has a topic and no use of its own for the key.
class HelpKey : public QObject {
  public:
    HelpKey(const Workspace& workspace, Shell& shell);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    const Workspace& workspace_;
    Shell& shell_;
};

}  // namespace nubivane
