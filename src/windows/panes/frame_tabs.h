// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QLineEdit>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

#include <functional>

namespace nubivane {

class Shell;

/// `tabDay`, the strip with a tab for each Frame, and `txtDay`, the field laid over a tab to rename
/// it. The strip scrolls when there are more tabs than fit, and a button beside it lists them all.
class FrameTabs : public QWidget {
    Q_OBJECT

  public:
    FrameTabs(Workspace& workspace, Shell& shell, QWidget* parent);

    /// `setTabDay`: rebuilds the tabs, for a new project the one tab "Map1", whose caption goes to
    /// the first Frame, otherwise one for each Frame.
    void setTabDay(bool newProject);
    /// Appends a tab and selects it.
    void append(const QString& caption);
    void remove(int frame);

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

    std::function<void()> frameSelected;        ///< another tab was chosen by the person
    std::function<void(QPoint)> menuRequested;  ///< right press, global position
    std::function<void()> projectChanged;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override { layoutStrip(); }

  private:
    bool pressTab(const QPoint& position, Qt::MouseButton button, const QPoint& global);
    bool renameKey(int key);
    void commitName();
    void setCaption(int index, const QString& caption);
    void listFrames();
    void layoutStrip();

    Workspace& workspace_;
    Shell& shell_;
    QTabBar* tabDay_;
    QLineEdit* txtDay_;
    QToolButton* allFrames_;
    QStringList captions_;
    bool refusing_ = false;
};

}  // namespace nubivane
