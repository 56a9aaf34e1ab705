// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/model/workspace.h"

#include <QLineEdit>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

#include <functional>
#include <optional>

namespace nubivane {

class Shell;

/// `tabDay`, the strip with a tab for each Frame, and `txtDay`, the field laid over a tab to rename
/// it. The strip scrolls when there are more tabs than fit, and a button beside it lists them all.
class FrameTabs : public QWidget, private EditWatcher {
    Q_OBJECT

  public:
    FrameTabs(Workspace& workspace, Shell& shell, QWidget* parent);
    ~FrameTabs() override;

    /// `setTabDay`: rebuilds the tabs, for a new project the one tab "Map1", whose caption goes to
    /// the first Frame, otherwise one for each Frame.
    void setTabDay(bool newProject);
    /// Number of the selected tab, from 1; 0 without tabs.
    int selected() const { return tabDay_->currentIndex() + 1; }
    void select(int frame);
    int count() const { return tabDay_->count(); }
    QString caption(int frame) const { return captions_.value(frame - 1); }

    /// The first "Map" and number that no tab bears, compared in lower case.
    QString freeFrameName() const;

    /// Lays `txtDay` over the selected tab.
    void startRenaming();
    void showCaption();  ///< `txtDay` takes the selected tab's caption

    QTabBar* tabDay() const { return tabDay_; }
    QLineEdit* txtDay() const { return txtDay_; }
    QToolButton* allFrames() const { return allFrames_; }

  Q_SIGNALS:
    void frameSelected();  ///< another tab was chosen by the person
    /// A tab was dragged, or moved by the keyboard, to another place; both numbers from 1.
    void frameMoved(int from, int to);
    void menuRequested(QPoint globalPosition);  ///< right press
    void projectChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override { layoutStrip(); }

  private:
    // EditWatcher.
    void travelBegins() override { txtDay_->hide(); }
    void framesWillChange() override { txtDay_->hide(); }
    void framesChanged() override;
    void captionChanged(qint32 frame) override;

    bool tabEvent(QEvent& event);
    bool pressTab(const QPoint& position, Qt::MouseButton button, const QPoint& global);
    bool renameTab(const QPoint& position, Qt::MouseButton button);
    bool renameKey(int key);
    bool dragTab(const QPoint& position);
    void dropTab();
    bool moveTabByKey(const QKeyEvent& key);
    void matchTabs();
    void insertTab(int index, const QString& caption);
    void commitName();
    void setCaption(int index, const QString& caption);
    void listFrames();
    void layoutStrip();
    void colorArrow();

    Workspace& workspace_;
    Shell& shell_;
    QTabBar* tabDay_;
    QLineEdit* txtDay_;
    QToolButton* allFrames_;
    QStringList captions_;
    std::optional<QPoint> pressed_;  ///< where a tab was pressed that may be dragged
    int draggedFrom_ = -1;           ///< index of the tab being dragged, before it moved
    bool refusing_ = false;
};

}  // namespace nubivane
