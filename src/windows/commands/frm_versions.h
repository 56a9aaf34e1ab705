// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/history/version_store.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace nubivane {

/// The list of what was kept of a project, the newest first: when and why, how much is on it, and a
/// picture of its first map. What the buttons do is done by whoever shows the window.
class frmVersions : public QDialog {
    Q_OBJECT

  public:
    static constexpr QSize PictureSize{144, 108};

    /// `name` is the project's; empty for one without.
    frmVersions(const QString& name, QList<KeptVersion> versions, QWidget* parent);

    QListWidget* list() const { return list_; }
    /// Answers `pictureWanted`.
    void setPicture(int row, const QImage& picture);
    /// Answers `compareWanted`.
    void showDifferences(const QString& text);

  Q_SIGNALS:
    /// Asked once for each row, while there is nothing else to do.
    void pictureWanted(int row, const KeptVersion& version);
    void openWanted(const KeptVersion& version);
    void compareWanted(const KeptVersion& version);
    void saveWanted(const KeptVersion& version);

  private:
    void buildLayout(const QString& name);
    QPushButton* addButton(const char* name, const QString& caption,
                           void (frmVersions::*wanted)(const KeptVersion&));
    void addRow(const KeptVersion& version);
    void fillNextRow();
    void refreshButtons();

    QList<KeptVersion> versions_;
    QListWidget* list_;
    QPlainTextEdit* differences_;
    QList<QPushButton*> buttons_;
    QTimer idle_;
    int filled_ = 0;  ///< rows whose picture was asked for
};

}  // namespace nubivane
