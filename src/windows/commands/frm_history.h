// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QLabel;
class QListWidget;
class QListWidgetItem;

namespace nubivane {

class EditPictures;
class ProjectEdits;

/// The list of edits, oldest first, each with the map as it was after it. A click or Enter goes to
/// that state. What has been undone is grey, the saved state is marked.
class frmHistory : public QDialog {
    Q_OBJECT

  public:
    frmHistory(const ProjectEdits& edits, EditPictures& pictures, QWidget* parent);

    /// Shows the edits as they are now.
    void refresh();

    QListWidget* list() const { return list_; }

  Q_SIGNALS:
    /// The state after that many edits is wanted.
    void chosen(int index);

  private:
    void setTexts(int index, int saved);
    void setLook(int index);
    void showPicture(int index);
    void choose(const QListWidgetItem* row);

    const ProjectEdits& edits_;
    EditPictures& pictures_;
    QListWidget* list_;
    QLabel* forgotten_;
    int shownIndex_ = 0;
    int saved_ = -1;
};

}  // namespace nubivane
