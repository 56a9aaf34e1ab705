// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>
#include <QWidget>

namespace nubivane {

/// `pctBackGround`: the ground on which the map lies, with its two scroll bars. The map rests at
/// (70, 70); a bar's values count steps from 1.
class MapViewport : public QWidget {
    Q_OBJECT

  public:
    explicit MapViewport(QWidget* parent);

    /// Takes the map's widget as a child.
    void setMap(QWidget* map);
    /// Shows the bars that the map needs and brings the map to its rest position.
    void setScrollBars();

    /// The part of the map that can be seen, in the map's widget coordinates.
    QRect visibleMapRect() const;
    /// What the empty ground below the map says; empty for nothing.
    void setHint(const QString& text);

    QScrollBar* hScroll1() const { return hScroll1_; }
    QScrollBar* vScroll1() const { return vScroll1_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void placeBars();
    void setScrollBar(QScrollBar* bar, int mapStart, int mapExtent, int viewportExtent);
    int offset(const QScrollBar* bar, int mapExtent, int viewportExtent) const;
    void placeMap();

    QWidget* map_ = nullptr;
    QScrollBar* hScroll1_;
    QScrollBar* vScroll1_;
    QWidget* barGround_;  ///< keeps the map from showing beside and between the bars
    QString hint_;
    int wheel_ = 0;  ///< eighths of a degree that have not yet moved the map
};

}  // namespace nubivane
