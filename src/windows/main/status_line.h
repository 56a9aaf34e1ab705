// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QStatusBar>

#include <optional>

class QComboBox;
class QLabel;
class QToolButton;

namespace nubivane {

/// The line below the editor: which tool is in hand, what came of the last command where that is
/// not to be seen on the map, what is selected, where the pointer is, and how large the map is
/// shown.
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

    /// Says which pixel of the map the pointer is over; nothing beside the map.
    void setPosition(std::optional<QPoint> position);
    /// Says what is selected and where; an empty text for nothing.
    void setSelection(const QString& text);
    /// Shows how large the map is shown, in percent.
    void setZoom(int percent);

    QString text() const;
    QToolButton* cmdShowInFolder() const { return cmdShowInFolder_; }

  Q_SIGNALS:
    void folderAsked(const QString& hostFolder);
    void zoomAsked(int percent);
    void wholeMapAsked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void show(const QString& text);
    void elide();
    void makeZoomField();
    void takeZoom(const QString& text);

    QLabel* lblStatus_;
    QToolButton* cmdShowInFolder_;
    QLabel* lblSelection_;
    QLabel* lblPosition_;
    QComboBox* cboZoom_;
    int percent_ = 100;
    QString text_;
    QString folder_;
};

}  // namespace nubivane
