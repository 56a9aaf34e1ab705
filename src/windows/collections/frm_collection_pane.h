// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/widgets/gif_animator.h"
#include "windows/widgets/list_image.h"
#include "windows/widgets/name_list.h"

#include <QLineEdit>
#include <QWidget>

namespace nubivane {

class Shell;

/// What the two windows on collections share: the list of collections, the thumbnails of the
/// selected one, and the selected symbol with its path and a moving picture.
class CollectionPane : public QWidget {
    Q_OBJECT

  public:
    enum class Boxes { Shown, None };

    CollectionPane(Workspace& workspace, AnimationCache& animations, Shell& shell, Boxes boxes,
                   QWidget* parent);

    /// Brings the model into step with the disk and lists it anew. Selects the collection of a
    /// name, or the first. Boxes that the person has ticked or cleared stay as they are.
    void fillCollectionList(const QString& selectName = {});
    /// Shows the thumbnails of the selected collection and selects the first, or `file`.
    void showCollection(const QString& file = {});
    /// Takes the boxes into the model and marks it as changed where one differs.
    void syncChecks();
    /// Shows another collection of the model in a row's place; its box stays.
    void replaceRow(const QString& key, const cSymbolsCollection& collection);

    /// Key and folder of the selected collection; empty without one.
    QString selectedKey() const { return NameList::keyOf(lvwCollection_->currentItem()); }
    QString selectedFolder() const { return NameList::tagOf(lvwCollection_->currentItem()); }
    /// Path (with backslashes) of the selected symbol; empty without one.
    const QString& selectedFile() const { return selectedFile_; }

    NameList* lvwCollection() const { return lvwCollection_; }
    ListImage* listImageSymbols() const { return listImageSymbols_; }

  Q_SIGNALS:
    void collectionSelected();

  private:
    void buildLayout();
    void showFile();
    void showPreview();

    Workspace& workspace_;
    Shell& shell_;
    Boxes boxes_;
    NameList* lvwCollection_;
    ListImage* listImageSymbols_;
    QLineEdit* txtCollection_;
    QLineEdit* txtFile_;
    GifAnimator* gifSymbol_;
    QString selectedFile_;
};

}  // namespace nubivane
