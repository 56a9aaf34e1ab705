// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListWidget>

namespace nubivane {

/// The names of a folder's files that fit a pattern such as "*.gif", in any case.
class FileList : public QListWidget {
    Q_OBJECT

  public:
    FileList(const QString& pattern, QWidget* parent);

    /// Lists the files of a folder (path text) and selects the first.
    void showFolder(const QString& path);

  Q_SIGNALS:
    /// The person has clicked on a file, or gone to it by the keyboard.
    void fileChosen(const QString& name);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString pattern_;
};

}  // namespace nubivane
