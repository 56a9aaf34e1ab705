// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace nubivane {

/// Has all of a field's text selected when the field takes the keyboard, by the mouse too. The
/// field owns this and needs a slot `selectAll`.
class SelectOnFocus : public QObject {
    Q_OBJECT

  public:
    explicit SelectOnFocus(QWidget* field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace nubivane
