// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/project/recovery_copy.h"

#include <QLabel>
#include <QToolBar>

namespace nubivane {

/// A bar above the map that tells, without a box, what an editor that did not end as it should has
/// left, one entry at a time. Hidden while there is nothing.
class RecoveryBar : public QToolBar {
    Q_OBJECT

  public:
    RecoveryBar(const QString& recoveryFolder, QWidget* parent);

    /// Looks for what is left and shows the newest of it.
    void refresh();
    /// Shows a sentence of its own, such as a failure.
    void tell(const QString& sentence);

  Q_SIGNALS:
    /// The person wants the work back; it is taken away by `discardRecovered` once it is open.
    void restoreWanted(const RecoveryEntry& entry);
    void showWanted(const RecoveryEntry& entry);

  private:
    void discard();

    QString folder_;
    QLabel* text_;
    QAction* restore_;
    QAction* discard_;
    QAction* show_;
    QAction* close_;
    QList<RecoveryEntry> entries_;
};

}  // namespace nubivane
