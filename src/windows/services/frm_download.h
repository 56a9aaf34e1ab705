// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/net/downloader.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace nubivane {

class PathLabel;
class Shell;

/// Fetches an installer into the user's downloads, shows how far it is, and in the end where it
/// lies.
class frmDownload : public QDialog {
    Q_OBJECT

  public:
    /// `folder` is a host path.
    frmDownload(Shell& shell, QWidget* parent, const QString& folder = standardFolder(),
                int stallLimit = 30);

    /// Shows the window and waits until it is closed.
    void Init(const QString& url);

    /// While the file is on its way this gives it up.
    void reject() override;

    static QString standardFolder();

  private:
    void fetch(const QString& url);
    void showProgress(qint64 bytes, qint64 total);
    void showEnd(const QString& name);
    QString freeName(const QString& name) const;

    Shell& shell_;
    const QString folder_;
    Downloader downloader_;
    PathLabel* lblInfo_;
    QProgressBar* ProgressBar_;
    QLabel* lblProgress_;
    QPushButton* cmdOpenFolder_;
    QPushButton* cmdCancelClose_;
    bool fetching_ = false;
    bool givenUp_ = false;
};

}  // namespace nubivane
