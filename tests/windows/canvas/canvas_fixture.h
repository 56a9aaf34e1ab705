// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/gif/small_gif.h"
#include "engine/picture/image_codec.h"
#include "support/editor_fixture.h"

#include <QMenu>

#include <cmath>

namespace nubivane::testing {

/// What tests of the canvas look at: controls, model and pixels of one sprite or position.
class CanvasFixture : public EditorFixture {
  protected:
    SpriteStack& sprites() { return window().canvas().sprites(); }
    Selection& selection() { return window().canvas().selection(); }

    cSymbols& symbols(qint32 number = 1) { return frame(number).Sprites().Symbols(); }
    cLabels& labels(qint32 number = 1) { return frame(number).Sprites().Labels(); }
    SpriteControl* symbolControl(const QString& key) {
        return sprites().find({SpriteKind::Symbol, key});
    }
    SpriteControl* labelControl(const QString& key) {
        return sprites().find({SpriteKind::Label, key});
    }

    /// Where a sprite stands by the model.
    QRect symbolRect(const QString& key) {
        const cSymbol& symbol = symbols().Item(key);
        return {symbol.PosX, symbol.PosY, symbol.Width, symbol.Height};
    }
    QPoint labelPosition(const QString& key) {
        const cLabel& label = labels().Item(key);
        return {label.PosX, label.PosY};
    }

    /// A still symbol of a size in the collection set-1; returns its file name.
    QString addStill(const QString& name, QSize size, Qt::GlobalColor color = Qt::red) {
        writeFile(host("Symbols/set-1/" + name),
                  encodePicture(plainImage(size, color), PictureFormat::Png));
        return name;
    }
    /// A moving symbol of one pixel that is red, green and blue in turn.
    QString addMoving(const QString& name, const QList<int>& hundredths) {
        QByteArrayList parts;
        for (int i = 0; i < hundredths.size(); ++i) {
            parts << small_gif::control(hundredths[i]) << small_gif::dot(i % 3);
        }
        writeFile(host("Symbols/set-1/" + name), small_gif::file(1, 1, parts));
        return name;
    }

    void selectTab(int number) { window().tabs().tabDay()->setCurrentIndex(number - 1); }

    /// The colour that the screen shows at a position of the map.
    QColor shown(QPoint position) {
        const QImage picture = canvas().grab().toImage();
        const auto at = [&](int value) {
            return static_cast<int>(std::floor((value + 1.5) * picture.devicePixelRatio()));
        };
        return picture.pixelColor(at(position.x()), at(position.y()));
    }

    QMenu& popup() { return *window().findChild<QMenu*>("MenuPopup"); }
};

/// JPEG gives colours back only nearly.
inline bool isNearly(const QColor& color, const QColor& wanted) {
    return std::abs(color.red() - wanted.red()) < 12 &&
           std::abs(color.green() - wanted.green()) < 12 &&
           std::abs(color.blue() - wanted.blue()) < 12;
}

}  // namespace nubivane::testing
