// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/widgets/combo_ex.h"

namespace nubivane {

/// The colours that pages can show, "none" first, each with its name and a swatch. An item's key is
/// "K" and the decimal colour.
class comboColor : public comboEx {
    Q_OBJECT

  public:
    explicit comboColor(QWidget* parent = nullptr);

    /// Selects the item of a colour; nothing is selected when there is none.
    void setColor(qint32 color);
    /// The colour of the selected item, -1 when nothing is selected.
    qint32 color() const;
    /// The key of the selected item, empty when nothing is selected.
    QString key() const { return Key(currentIndex()); }

    /// The key of an item by its position from 0.
    QString Key(int index) const { return itemData(index).toString(); }
};

/// The name of a colour as the combo boxes show it; empty for one that they do not list.
QString colorName(qint32 color);

}  // namespace nubivane
