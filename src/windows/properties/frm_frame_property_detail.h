// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"
#include "windows/properties/text_item_rows.h"

#include <QDialog>

#include <optional>

class QPushButton;
class QTreeWidget;

namespace nubivane {

class Shell;
class SpellCheck;
class Spelling;

/// The forecast text of a Frame: a list of elements, each a header item and a body item.
class frmFramePropertyDetail : public QDialog {
    Q_OBJECT

  public:
    frmFramePropertyDetail(Workspace& workspace, Shell& shell, Spelling& spelling, QWidget* parent);

    /// Shows the elements of the current Frame's forecast and waits until the dialog closes.
    void Init();

  private:
    void build();
    QWidget* buildList();
    void refreshRows(int selected);
    void showElement(int element);
    void enablePanel(bool enabled);
    void addElement();
    void removeElement();
    void showAllRows();
    int count() const;
    const cForecast& forecast() const;

    Workspace& workspace_;
    int columnWidth_ = 0;
    QTreeWidget* lstItems_;
    QPushButton* cmdAdd_;
    QPushButton* cmdRemove_;
    PropertyGrid* grid_;
    SpellCheck* spellCheck_;
    std::optional<TextItemRows> header_;
    std::optional<TextItemRows> body_;
};

}  // namespace nubivane
