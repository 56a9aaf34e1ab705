// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_label_property.h"

#include "engine/core/path_text.h"

namespace nubivane {

namespace {

constexpr PropertyRow BackColorRow{"Back color", "Back Color",
                                   "Sets background color used to display text"};
constexpr PropertyRow BorderRow{"Border", "Border", "Sets border style"};
constexpr PropertyRow BorderColorRow{"Border color", "Border color", "Sets border color"};
constexpr PropertyRow TextRow{"Text", "Text", "Sets label text"};
constexpr PropertyRow XRow{
    "X", "X", "Sets the position of the left corner of the label with respect to the map"};
constexpr PropertyRow YRow{
    "Y", "Y", "Sets the position of the top corner of the label with respect to the map"};
constexpr PropertyRow NoteRow{"Notes", "Notes", "Stores notes for internal use"};

constexpr qint16 WithBorder = 1;

}  // namespace

frmLabelProperty::frmLabelProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control,
                                   QWidget* parent)
    : PropertyDialog("frmLabelProperty", tr("Label"), workspace, shell, parent),
      control_(control),
      font_(*grid_, {}, {}),
      cboBackcolor_(grid_->addColor(BackColorRow, "cboBackcolor")),
      cboBorder_(grid_->addChoice(BorderRow, "cboBorder")),
      cboBorderColor_(grid_->addColor(BorderColorRow, "cboBorderColor")),
      txtText_(grid_->addChecked(TextRow, "txtText", shell, "Label text cannot be empty.")),
      position_(*grid_, XRow, YRow, shell, control, workspace.pctMap),
      txtNote_(grid_->addText(NoteRow, "txtNote")) {
    cboBorder_->addItems({"Yes", "No"});
    connectCommits();
}

void frmLabelProperty::Init() {
    cLabels& labels = workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites().Labels();
    const QString& key = workspace_.Status.CurrentShapeControlKey;
    if (workspace_.Status.CurrentShapeControlType == sprite_type::Label && labels.contains(key)) {
        label_ = &labels.Item(key);
        run([this] { fill(); });
        label_ = nullptr;
    }
}

void frmLabelProperty::fill() {
    font_.show(FontObject(*label_), "Yes");
    cboBackcolor_->setColor(label_->BackColor);
    cboBorder_->setCurrentText(label_->Border == WithBorder ? "Yes" : "No");
    cboBorderColor_->setColor(label_->BorderColor);
    cboBorderColor_->setEnabled(label_->Border == WithBorder);
    txtText_->setText(label_->Text);
    txtText_->setCursorPosition(0);
    position_.show(label_->PosX, label_->PosY, [this] { return committing(); });
    txtNote_->setText(label_->Note);
}

void frmLabelProperty::connectCommits() {
    font_.fontDialogClosed = [this] { fontChanged(); };
    txtText_->value = [this] { return label_->Text; };
    txtText_->apply = [this](const QString& text) { return !committing() || commitText(text); };
    connect(cboBackcolor_, &QComboBox::currentIndexChanged, this, [this] {
        if (committing() && cboBackcolor_->currentIndex() >= 0) {
            commitBackColor();
        }
    });
    connect(cboBorder_, &QComboBox::currentIndexChanged, this, [this] {
        if (committing()) {
            commitBorder();
        }
    });
    connect(cboBorderColor_, &QComboBox::currentIndexChanged, this, [this] {
        if (committing() && cboBorderColor_->currentIndex() >= 0) {
            label_->BorderColor = cboBorderColor_->color();
        }
    });
    connect(txtNote_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            label_->Note = text;
        }
    });
}

void frmLabelProperty::commitBackColor() {
    label_->BackColor = cboBackcolor_->color();
    control_.setBackColor(label_->BackColor);
}

void frmLabelProperty::commitBorder() {
    const bool bordered = cboBorder_->currentText() == u"Yes";
    label_->Border = bordered ? WithBorder : 0;
    cboBorderColor_->setEnabled(bordered);
    control_.show(*label_);
}

bool frmLabelProperty::commitText(const QString& text) {
    if (trimBlanks(text).isEmpty()) {
        return false;
    }
    label_->Text = text;
    control_.show(*label_);
    refreshSize(*label_, control_);
    return true;
}

void frmLabelProperty::fontChanged() {
    font_.show(FontObject(*label_), "Yes");
    control_.setFontStrikethru(label_->FontStrikethourht);
    control_.show(*label_);
    refreshSize(*label_, control_);
}

void frmLabelProperty::closing(QWidget* active) {
    position_.closing(active);
    if (active == txtText_) {
        txtText_->commit();
    }
}

}  // namespace nubivane
