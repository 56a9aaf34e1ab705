// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

class QPainter;

namespace nubivane {

/// Shows a picture in its middle at its own size, or as large as fits where that is smaller.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    explicit PictureBox(QWidget* parent);

    /// A null image empties the box.
    void setImage(const QImage& image);
    const QImage& image() const { return image_; }
    /// What stands in the empty box.
    void setEmptyText(const QString& text);
    QString emptyText() const { return emptyText_; }
    /// Whether it has ground and border of its own, as fields have. It has at first.
    void setBordered(bool bordered);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paintFrame(QPainter& painter);

    QImage image_;
    QString emptyText_;
    bool bordered_ = true;
};

}  // namespace nubivane
