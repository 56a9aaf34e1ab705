// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"

#include <vector>

namespace nubivane {

class cFrame;

/// Where sprites go among the others of their kind.
enum class Stacking { ToFront, Raise, Lower, ToBack };

/// The sprites of a Frame in another order, bottom to top. Symbols and Labels keep lists of their
/// own, Labels above all Symbols, so each moves among its kind.
class OrderSprites : public Edit {
  public:
    OrderSprites(const char* name, Marks marks, const cFrame& frame, qint32 number,
                 std::vector<SpriteId> moved, Stacking stacking);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override;
    bool isNothing() const override { return before_ == after_; }
    qsizetype bytes() const override;

  private:
    struct Order {
        QStringList symbols;
        QStringList labels;
        friend bool operator==(const Order&, const Order&) = default;
    };
    void arrange(EditScene& scene, const Order& order) const;

    std::vector<SpriteId> moved_;
    Order before_;
    Order after_;
};

}  // namespace nubivane
