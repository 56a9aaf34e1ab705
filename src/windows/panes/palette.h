// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/panes/palette_search.h"
#include "windows/panes/symbol_memory.h"
#include "windows/widgets/list_image.h"

#include <QLabel>
#include <QTabBar>
#include <QWidget>

#include <functional>
#include <vector>

namespace nubivane {

class Shell;

/// The palette at the left: `tabSymbols`, a tab for each checked collection, over its list of
/// thumbnails, and `imgText`, the button that stands for a new label.
class Palette : public QWidget {
    Q_OBJECT

  public:
    Palette(Workspace& workspace, AnimationCache& animations, Shell& shell, QWidget* parent);

    /// Makes tabs and lists anew from the checked collections and fills the first.
    void loadSymbolsCollections();
    /// The same for the folders given, in their order.
    void loadTabs(const QStringList& paths);
    /// Adds a tab with the last part of a collection's path and selects it.
    void addCollectionTab(const QString& path);
    /// Shows the list of the selected tab and fills it at its first visit.
    void showCollectionTab();
    /// Fills the selected tab's list again from its folder.
    void refreshCurrentList();
    void selectTab(int index) { tabSymbols_->setCurrentIndex(index); }

    QTabBar* tabSymbols() const { return tabSymbols_; }
    QToolButton* imgText() const { return imgText_; }
    /// The list of the selected tab, or nothing.
    ListImage* currentList() const;
    /// The folder of the selected tab; empty without one.
    QString currentFolder() const;
    /// The list that is seen: of the selected tab, or of what was searched for.
    ListImage* shownList() const;

    /// Gives the search field the keyboard.
    void startSearch() { search_->start(); }
    /// Reads the names of all symbols anew before the next search.
    void forgetNames() { search_->forgetNames(); }
    QLineEdit* txtSearch() const { return &search_->field(); }
    QToolButton* cmdFavourites() const { return &search_->favourites(); }
    ListImage* listImageFound() const { return listImageFound_; }

    /// A palette drag has begun and has not ended yet.
    bool dropAllowed() const { return dropAllowed_; }
    void allowDrop(bool allowed) { dropAllowed_ = allowed; }

    /// What takes the keyboard, in order.
    QList<QWidget*> focusOrder() const;

  Q_SIGNALS:
    void listsChanged();  ///< tabs and lists were made anew
    /// A sprite is to be placed without a drag; the text is a drag's payload.
    void placeAsked(const QString& payload);
    /// Picture files of this machine were dropped on the palette; paths with backslashes.
    void picturesDropped(const QStringList& files);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeText();
    void prepareList(ListImage& list);
    void showLists();
    void enterList();
    void place(const QString& file);
    void showMenu(const QString& file, QPoint globalPosition);
    void toggleFavourite(const QString& file);
    void setThumbnailSize(int size);
    void turnThumbnailSize(int steps);
    bool startDrag(const QString& payload, const QPixmap& picture);
    bool mayPlace();
    QPixmap pictureOf(const QString& file) const;

    struct Tab {
        QString folder;
        ListImage* list;
    };

    Workspace& workspace_;
    AnimationCache& animations_;
    Shell& shell_;
    QTabBar* tabSymbols_;
    QToolButton* imgText_;
    ListImage* listImageFound_;  ///< over the others while something is searched for
    SymbolMemory memory_;
    PaletteSearch* search_;
    QLabel* lblSymbolsMessage_;
    QLabel* emptyHint_;
    std::vector<Tab> listImageSymbols_;
    QPoint textPress_;
    bool dropAllowed_ = false;
    int thumbnailSize_;
};

}  // namespace nubivane
