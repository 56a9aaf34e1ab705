// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/widgets/dialog_tools.h"
#include "windows/widgets/name_list.h"
#include "windows/widgets/picture_box.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

namespace nubivane {

class Shell;

/// The window of the base maps: imports, names and deletes them, marks the default one.
class frmMapsCollection : public QDialog {
    Q_OBJECT

  public:
    frmMapsCollection(Workspace& workspace, Shell& shell, QWidget* parent);

    /// Lists the maps anew and selects the one of that file name; without a name the default map,
    /// or the first.
    void fillMapList(const QString& selectName = {});

    NameList* lvwCollection() const { return lvwCollection_; }
    PictureBox* imgMap() const { return imgMap_; }

    /// The path of the map that OK was given with; empty where none was chosen.
    const QString& chosenMap() const { return chosenMap_; }

    void accept() override;
    void done(int result) override;

  private:
    void buildTools();
    void buildLayout();
    void showMap();
    void importMap();
    void renameMapTo(const QString& name, const QString& newStem);
    void deleteMapAsked();
    void setSelectedAsDefault();
    void refuse(const QString& text);

    Workspace& workspace_;
    Shell& shell_;
    DialogTools* tlbMap_;
    NameList* lvwCollection_;
    PictureBox* imgMap_;
    QLabel* lblSize_;
    QLineEdit* txtMap_;
    QLineEdit* txtDirectory_;
    QString chosenMap_;
    QList<QAction*> needMap_;  ///< tools that work on the selected map
};

}  // namespace nubivane
