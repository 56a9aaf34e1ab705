// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>
#include <QWidget>

namespace nubivane {

/// `pctBackGround`: the ground on which the map lies, with its two scroll bars. The map rests at
/// (70, 70); a bar's values count steps from 1, and its last value shows the map's far edge with
/// the same margin as the rest position has at the near one. The wheel goes by pixels, so that no
/// notch leaves a part of the map unseen.
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
    /// Scrolls as little as is needed for a rectangle of the map's widget to be seen; of one that
    /// is too large the middle.
    void ensureVisible(const QRect& rect);
    /// What the empty ground below the map says; empty for nothing.
    void setHint(const QString& text);

    /// Moves the map by pixels, as far as it can be scrolled; positive ones show more of its right
    /// and lower parts. False where it stays.
    bool scrollBy(QPoint pixels);
    /// How far a wheel or a drag may scroll at once on each axis, in pixels.
    QPoint notch() const;
    /// The extent that a map may have to be seen whole at its rest position.
    QSize room() const;
    /// A map that is to be seen whole rests close to the corner, so that it can be larger.
    void setTight(bool tight);

    QScrollBar* hScroll1() const { return hScroll1_; }
    QScrollBar* vScroll1() const { return vScroll1_; }

  Q_SIGNALS:
    /// The ground beside the map was pressed.
    void groundPressed();
    /// Ctrl and the wheel were turned by notches at a position of the viewport.
    void zoomTurned(int notches, QPoint position);
    void resized();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void placeBars();
    /// One of the two directions in which the map is scrolled.
    struct Axis {
        QScrollBar* bar;
        int map;       ///< extents, pixels
        int viewport;  ///<
        int rest;      ///< free ground before the map and behind it

        /// From the rest position to the last one.
        int distance() const;
        /// Pixels of one value of the bar.
        int step() const;
        int notch() const;
        /// Pixels from the rest position for a value of the bar, and the value for pixels.
        int scrolledAt(int value) const;
        int valueAt(int scrolled) const;
    };
    Axis horizontal() const;
    Axis vertical() const;
    void setScrollBar(const Axis& axis);
    void barMoved();
    void placeMap(QPoint scrolled);
    QPoint restPosition() const { return {rest_, rest_}; }

    QWidget* map_ = nullptr;
    QScrollBar* hScroll1_;
    QScrollBar* vScroll1_;
    QWidget* barGround_;  ///< keeps the map from showing beside and between the bars
    QString hint_;
    int rest_;
    int wheel_ = 0;   ///< parts of a pixel that have not yet moved the map
    int turned_ = 0;  ///< eighths of a degree that have not yet made a notch of zooming
};

}  // namespace nubivane
