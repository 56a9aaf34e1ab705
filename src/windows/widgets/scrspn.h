// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class QLineEdit;

namespace nubivane {

/// The spin control: two arrows beside a field that hold a whole number between `min` and `max`. It
/// writes its value into the field; what is typed there goes back to it as far as it is a number in
/// its range. Up, Down and the wheel step too.
class ScrSpn : public QWidget {
    Q_OBJECT

  public:
    explicit ScrSpn(QWidget* parent);

    int min() const { return min_; }
    int max() const { return max_; }
    int value() const { return value_; }
    void setRange(int min, int max);
    /// A value beyond the range becomes its end.
    void setValue(int value);

    /// Ties the control to its field, which gets the value at once.
    void attach(QLineEdit& field);

  Q_SIGNALS:
    void valueChanged(int value);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void step(int by);
    void writeField();
    void readField();

    int min_ = 1;
    int max_ = 10;
    int value_ = 1;
    int turned_ = 0;  ///< eighths of a degree that the wheel has turned since the last step
    QPointer<QLineEdit> field_;
};

}  // namespace nubivane
