// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/sprite_edits.h"
#include "windows/properties/property_dialog.h"

#include <memory>
#include <vector>

class QComboBox;

namespace nubivane {

class CheckedField;
class FontRows;
class comboColor;
class comboEx;
class TextField;

/// The properties that several sprites of the current Frame share: those of Labels where there are
/// Labels among them, those of Symbols where there are Symbols. What differs shows empty; what is
/// set is set for all of the kind, by one edit.
class frmManyProperty : public PropertyDialog {
    Q_OBJECT

  public:
    frmManyProperty(Workspace& workspace, Shell& shell, std::vector<SpriteId> ids, QWidget* parent);
    ~frmManyProperty() override;

    /// Waits until the dialog closes; nothing where none of the sprites is there.
    void Init();

  private:
    void addLabelRows();
    void addSymbolRows();
    void addNotes();
    void fill();
    void fillFont(const std::vector<cLabel>& labels);
    void chooseFont(const FontStyle& font);

    template <class Record>
    std::vector<Record> records() const;
    /// Changes a copy of each record of the kind.
    template <class Record, class Mutate>
    void change(const char* name, const QString& series, Mutate mutate);
    void changeNotes(const QString& text);
    bool commitExtent(const QString& text, qint32 cSymbol::*extent);

    std::vector<SpriteId> ids_;
    std::unique_ptr<FontRows> font_;
    comboColor* cboBackcolor_ = nullptr;
    comboEx* cboBorder_ = nullptr;
    comboColor* cboBorderColor_ = nullptr;
    CheckedField* txtHeight_ = nullptr;
    CheckedField* txtWidth_ = nullptr;
    TextField* txtLink_ = nullptr;
    TextField* txtTooltip_ = nullptr;
    TextField* txtNote_ = nullptr;
};

}  // namespace nubivane
