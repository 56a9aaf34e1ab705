// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace nubivane {

/// What opening, saving, creating and publishing need of the editor's window, in its own words.
/// The window implements it; where there is none, this class as it stands does nothing.
class EditorView {
  public:
    virtual ~EditorView() = default;

    /// Allows or forbids all input, so that nobody changes what is being read or written.
    virtual void setEnabled(bool) {}
    virtual void setCaption(const QString&) {}

    /// Removes the on-screen sprites of every Frame; the model keeps its own.
    virtual void unloadFrameSprites() {}
    virtual void clearSelection() {}
    /// Drops what the drawing tools hold of an unfinished drawing.
    virtual void resetDrawing() {}

    /// Empties the palette, adds a tab for each of these collections' folders, shows the first.
    virtual void rebuildPalette(const QStringList&) {}
    /// Rebuilds the Frame tabs from the captions in the model.
    virtual void rebuildFrameTabs() {}
    /// Shows the picture of `pctMap` anew where it stands.
    virtual void showPicture() {}
    /// Shows the picture of `pctMap` with its scroll bars, at its rest position.
    virtual void showMap() {}
    /// Selects the first Frame's tab and shows that Frame.
    virtual void selectFirstFrame() {}
    virtual void refreshRecentFiles() {}
};

/// Forbids input while it lives.
class InputGuard {
  public:
    explicit InputGuard(EditorView& view) : view_(view) { view_.setEnabled(false); }
    ~InputGuard() { view_.setEnabled(true); }
    InputGuard(const InputGuard&) = delete;
    InputGuard& operator=(const InputGuard&) = delete;

  private:
    EditorView& view_;
};

}  // namespace nubivane
