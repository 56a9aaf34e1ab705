// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/sprite_id.h"

#include <QLineEdit>

#include <optional>

namespace nubivane {

class MapCanvas;
class SpriteStack;
class Workspace;

/// The field in which a Label's text is typed on the map itself, in the Label's font and colours
/// and as large as the map is shown. Enter and leaving the field take the text over, Esc does not;
/// a text of blanks alone leaves the Label as it was.
class LabelEditor : public QLineEdit {
    Q_OBJECT

  public:
    LabelEditor(Workspace& workspace, SpriteStack& sprites, MapCanvas& canvas);
    ~LabelEditor() override;

    /// Lays the field over a Label of the current Frame.
    void start(const SpriteId& id);
    void commit();
    void cancel();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void place();

    Workspace& workspace_;
    SpriteStack& sprites_;
    MapCanvas& canvas_;
    std::optional<SpriteId> id_;
};

}  // namespace nubivane
