// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/widgets/gif_animator.h"

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

namespace nubivane {

class Shell;

/// The small window of every import: copies one file while it shows how far it is.
class frmCopy : public QDialog {
    Q_OBJECT

  public:
    frmCopy(const Workspace& workspace, Shell& shell, QWidget* parent);

    /// Shows the window until the file stands at its target (paths with backslashes). A copy that
    /// fails is not reported: whoever lists the folder anew sees it.
    void Init(const QString& source, const QString& target);

    void reject() override {}  // a copy under way is not left

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void Timer1_Timer();
    void copyFile();

    const Workspace& workspace_;
    Shell& shell_;
    QLabel* lblFile_;
    GifAnimator* gifCopy_;
    QProgressBar* pBar_;
    QTimer Timer1_;
    QString source_;
    QString target_;
};

}  // namespace nubivane
