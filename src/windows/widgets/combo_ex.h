// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>

namespace nubivane {

/// A plain combo box. While it is closed the wheel leaves it alone and goes on scrolling the form,
/// so that nothing changes unseen. The list is no taller than a few rows and as wide as its items.
class comboEx : public QComboBox {
    Q_OBJECT

  public:
    explicit comboEx(QWidget* parent = nullptr);

    void showPopup() override;

  protected:
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace nubivane
