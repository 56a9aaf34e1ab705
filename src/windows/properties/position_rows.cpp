// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/position_rows.h"

#include "engine/core/number_text.h"

#include <QCoreApplication>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// The number of a text where a sprite of an extent may begin on a map of an extent; it is stored
/// with 16 bits.
std::optional<qint16> position(const QString& text, int sprite, int map) {
    const auto value = toNumber(text);
    const double half = sprite / 2.0;
    return value && *value >= -half && *value <= map - half ? toInt16(text) : std::nullopt;
}

}  // namespace

QString invalidValue() {
    return QCoreApplication::translate("nubivane::PositionRows", "Invalid value.");
}

PositionRows::PositionRows(PropertyGrid& grid, const PropertyRow& x, const PropertyRow& y,
                           Shell& shell, SpriteOnMap& control, const MapSurface& map)
    : control_(control),
      map_(map),
      txtPosX_(grid.addChecked(x, u"txtPosX"_s, shell, invalidValue())),
      txtPosY_(grid.addChecked(y, u"txtPosY"_s, shell, invalidValue())) {}

void PositionRows::show(std::function<QPoint()> shown, std::function<void(QPoint)> moveTo,
                        const std::function<bool()>& committing) {
    position_ = std::move(shown);
    moveTo_ = std::move(moveTo);
    txtPosX_->bind([this] { return QString::number(position_().x()); },
                   [this, committing](const QString& text) { return !committing() || setX(text); });
    txtPosY_->bind([this] { return QString::number(position_().y()); },
                   [this, committing](const QString& text) { return !committing() || setY(text); });
    txtPosX_->showValue();
    txtPosY_->showValue();
}

bool PositionRows::setX(const QString& text) {
    const QRect rect = control_.rect();
    const auto x = position(text, rect.width(), map_.ScaleWidth());
    if (!x) {
        return false;
    }
    moveTo_({*x, position_().y()});
    control_.Move({QPoint(*x, rect.y()), rect.size()});
    const QRect framed = control_.borderedRect();
    control_.setBorderedRect({QPoint(*x, framed.y()), framed.size()});
    return true;
}

bool PositionRows::setY(const QString& text) {
    const QRect rect = control_.rect();
    const auto y = position(text, rect.height(), map_.ScaleHeight());
    if (!y) {
        return false;
    }
    moveTo_({position_().x(), *y});
    control_.Move({QPoint(rect.x(), *y), rect.size()});
    const QRect framed = control_.borderedRect();
    control_.setBorderedRect({QPoint(framed.x(), *y), framed.size()});
    return true;
}

void PositionRows::closing(const QWidget* active) {
    for (CheckedField* field : {txtPosX_, txtPosY_}) {
        if (field != active) {
            continue;
        }
        if (toNumber(field->text())) {
            txtPosX_->commit();
            txtPosY_->commit();
        } else {
            field->refuse();
        }
    }
}

}  // namespace nubivane
