// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/collections/symbol_index.h"

#include <QLineEdit>
#include <QToolButton>

namespace nubivane {

class ListImage;
class SymbolMemory;
class Workspace;

/// The palette's search: a field for words that are looked for in the names of all symbols, whether
/// or not their collections are shown, and a button for favorites and the symbols placed last. Both
/// fill the same list.
class PaletteSearch : public QObject {
    Q_OBJECT

  public:
    /// Field and button are children of the palette, which lays them out.
    PaletteSearch(Workspace& workspace, const SymbolMemory& memory, ListImage& found,
                  QWidget* palette);

    QLineEdit& field() const { return *txtSearch_; }
    QToolButton& favourites() const { return *cmdFavourites_; }

    /// Gives the field the keyboard.
    void start();
    /// Nothing is searched for, nor are the favorites asked for.
    void end();
    /// Whether what was found is to be shown in place of the collections.
    bool isActive() const;
    /// Reads the names of all symbols anew before the next search.
    void forgetNames() { namesRead_ = false; }
    /// The favorites are others.
    void refreshFavourites();

  Q_SIGNALS:
    /// There is something to be shown that was found, or no longer.
    void changed();
    /// The keyboard is to go on to the list that is shown.
    void listAsked();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void search();
    void showFavourites();

    Workspace& workspace_;
    const SymbolMemory& memory_;
    ListImage& found_;
    QLineEdit* txtSearch_;
    QToolButton* cmdFavourites_;
    SymbolIndex index_;
    bool namesRead_ = false;
};

}  // namespace nubivane
