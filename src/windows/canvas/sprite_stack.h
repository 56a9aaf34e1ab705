// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit_watcher.h"
#include "engine/model/workspace.h"
#include "windows/canvas/sprite_control.h"

#include <QObject>
#include <QPoint>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace nubivane {

class AnimationCache;

/// An array of controls that grows at run time. Element 0 is a template and never shown, so the
/// upper bound of an array without controls is 0.
template <class Control>
class ControlArray {
  public:
    int upperBound() const { return controls_.empty() ? 0 : controls_.rbegin()->first; }
    /// Makes the element behind the last one.
    Control& load() {
        const int index = upperBound() + 1;
        auto& control = controls_[index];
        control = std::make_unique<Control>();
        control->Index = index;
        return *control;
    }
    /// The element of an index, or nothing.
    Control* find(int index) const {
        const auto found = controls_.find(index);
        return found == controls_.end() ? nullptr : found->second.get();
    }
    void unload(int index) { controls_.erase(index); }

  private:
    std::map<int, std::unique_ptr<Control>> controls_;
};

/// The on-screen sprites of the current Frame, bottom to top in the order in which they were made.
class SpriteStack : public QObject {
    Q_OBJECT

  public:
    /// `now` is the time that animations run on, in milliseconds.
    SpriteStack(Workspace& workspace, AnimationCache& animations, std::function<qint64()> now);

    /// Makes the controls of a Frame, Symbols first. A Symbol whose file is missing is passed over.
    void loadFrameSprites(qint32 frame);
    /// Removes all controls.
    void unloadAllSprites();

    /// Makes and shows the control of a sprite of a Frame, as a visit or an arrival does. Without a
    /// depth a visit puts it where the order of its list says.
    void loadSprite(qint32 frame, const SpriteId& id, Arrival arrival, std::optional<int> depth);
    /// Takes over what has changed in a sprite's record.
    void refresh(const SpriteRecord& before, const SpriteRecord& after);
    /// Puts the controls into the order of the Frame's lists, Labels above all Symbols.
    void restack(qint32 frame);
    /// The place of a control from below.
    std::optional<int> depthOf(const SpriteControl& control) const;
    /// The size of a symbol's picture; nothing where it cannot be shown.
    std::optional<QSize> sizeOf(const QString& file) const;

    /// New, invisible elements for a sprite about to be placed; `id` is the caller's to set.
    GifSymbol& makeSymbol(const QString& file);
    LblTesto& makeLabel();
    void discard(SpriteControl& control);

    /// The control of a sprite of the current Frame, or nothing.
    SpriteControl* find(const SpriteId& id) const;
    /// The topmost visible control at a position of the map, or nothing.
    SpriteControl* at(QPoint position) const;

    /// All controls from bottom to top.
    const std::vector<SpriteControl*>& controls() const { return order_; }
    const ControlArray<GifSymbol>& gifSymbol() const { return gifSymbol_; }
    const ControlArray<LblTesto>& lblTesto() const { return lblTesto_; }

    /// Moves a control and has both places painted.
    void Move(SpriteControl& control, const QRect& rect);
    void show(SpriteControl& control);
    /// Has a control painted again whose looks have changed.
    void repaint(const SpriteControl& control) { Q_EMIT changed(control.rect); }
    /// Starts a Symbol's animation from its first image, or stops it. Nothing else plays.
    void setPlaying(SpriteControl& control, bool playing);
    /// A Symbol's control shows another file, standing still.
    void setFileName(GifSymbol& control, const QString& file);
    /// A Label's control takes over the looks of a Label.
    void showLabel(LblTesto& control, const cLabel& label);

  Q_SIGNALS:
    void changed(const QRect& area);  ///< of the map, to be painted again
    void playingChanged();            ///< a control has begun or ceased to exist or to play
    void arrived(const SpriteControl& control);  ///< it is shown from now on
    void leaving(const SpriteControl& control);  ///< it is still there

  private:
    void unload(SpriteControl* control);
    GifSymbol& loadSymbol(const cSymbol& symbol);
    LblTesto& loadLabel(const cLabel& label);
    int placeInList(const cSprites& sprites, const SpriteId& id) const;
    void refreshSymbol(GifSymbol& control, const cSymbol& before, const cSymbol& after);
    void refreshLabel(LblTesto& control, const cLabel& before, const cLabel& after);

    Workspace& workspace_;
    AnimationCache& animations_;
    std::function<qint64()> now_;
    ControlArray<GifSymbol> gifSymbol_;
    ControlArray<LblTesto> lblTesto_;
    std::vector<SpriteControl*> order_;
};

}  // namespace nubivane
