// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStatusBar>

class QLabel;
class QToolButton;

namespace nubivane {

/// The line below the editor: which tool is in hand, and what came of the last command where that
/// is not to be seen on the map.
class StatusLine : public QStatusBar {
    Q_OBJECT

  public:
    explicit StatusLine(QWidget* parent);

    /// Says what stands until something else is said.
    void tell(const QString& text);
    /// The same of a file (host path), with a button that shows it in its folder.
    void tellFile(const QString& text, const QString& hostFile);
    /// Says how the drawing tool in hand is used; an empty text for none.
    void setTool(const QString& text);

    QString text() const;
    QToolButton* cmdShowInFolder() const { return cmdShowInFolder_; }

  Q_SIGNALS:
    void folderAsked(const QString& hostFolder);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void show(const QString& text);
    void elide();

    QLabel* lblStatus_;
    QToolButton* cmdShowInFolder_;
    QString text_;
    QString folder_;
};

}  // namespace nubivane
