// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/collections/frm_collection_pane.h"
#include "windows/widgets/dialog_tools.h"

#include <QDialog>

class QLabel;

namespace nubivane {

/// The window in which collections are made, named and deleted, symbols imported and deleted, and
/// in which boxes choose what the palette shows. What it does to folders stays even when it is left
/// by Close; the boxes count with OK alone.
class frmSymbolsCollection : public QDialog {
    Q_OBJECT

  public:
    frmSymbolsCollection(Workspace& workspace, AnimationCache& animations, Shell& shell,
                         QWidget* parent);

    CollectionPane& pane() { return *pane_; }

    void accept() override;
    void done(int result) override;

  private:
    void buildTools();
    void newCollection();
    void renameCollectionTo(const QString& key, const QString& name);
    void deleteCollectionAsked();
    void importSymbol();
    void deleteSymbolAsked();
    void refreshTools();
    void refuse(const QString& text);

    Workspace& workspace_;
    Shell& shell_;
    DialogTools* tlbSymbols_;
    CollectionPane* pane_;
    QLabel* lblNotice_;               ///< what the disk refused, in the window itself
    QList<QAction*> needCollection_;  ///< tools that work on the selected collection
};

}  // namespace nubivane
