// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

class QTextOption;

namespace nubivane {

/// A text in a room of a few lines that does not grow with it, for what a run shows of its files: a
/// path is broken where it must be, and one that is too long loses its middle.
class PathLabel : public QLabel {
    Q_OBJECT

  public:
    PathLabel(int lines, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// The text as it fits.
    QString shownText() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool fits(const QString& text) const;
    static QTextOption wrapping();

    int lines_;
};

}  // namespace nubivane
