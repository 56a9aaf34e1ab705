// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/text_line_rows.h"

namespace nubivane {

namespace {

constexpr PropertyRow BackColorRow{"Back color", "Back color",
                                   "Sets background color used to display text"};
constexpr PropertyRow BorderRow{"Border", "Border", "Sets border style"};
constexpr PropertyRow BorderColorRow{"Border color", "Border color", "Sets border color"};
constexpr PropertyRow AlignRow{"Alignment", "Alignment", "Sets alignment of text"};

constexpr qint16 WithBorder = 1;

}  // namespace

void commitColor(comboColor& combo, std::function<bool()> committing,
                 std::function<qint32*()> color) {
    QObject::connect(&combo, &QComboBox::currentIndexChanged, &combo,
                     [&combo, committing = std::move(committing), color = std::move(color)] {
                         if (committing() && combo.currentIndex() >= 0) {
                             *color() = combo.color();
                         }
                     });
}

TextLineRows::TextLineRows(PropertyGrid& grid, const Names& names, std::function<bool()> committing)
    : committing_(std::move(committing)),
      font_(grid, names.part, names.buttonPart),
      cboBackcolor_(grid.addColor(BackColorRow, "cbo" + names.part + "Backcolor")),
      cboBorder_(grid.addChoice(BorderRow, "cbo" + names.part + "Border")),
      cboBorderColor_(grid.addColor(BorderColorRow, "cbo" + names.part + "BorderColor")),
      cboAlign_(grid.addChoice(AlignRow, "cbo" + names.part + "Align")),
      txtText_(grid.addText({"Text", "Text", names.textHelp}, "txt" + names.part + "Text")) {
    cboBorder_->addItems({"Yes", "No"});
    cboAlign_->addItem("left", 0);
    cboAlign_->addItem("right", 1);
    cboAlign_->addItem("center", 2);
    connectCommits();
}

void TextLineRows::show(TextLine& line) {
    line_ = &line;
    fill("Yes");
}

void TextLineRows::fill(const char* yes) {
    font_.show(FontObject(*line_), yes);
    cboBackcolor_->setColor(line_->BackColor);
    cboBorder_->setCurrentText(line_->Border == WithBorder ? "Yes" : "No");
    cboBorderColor_->setColor(line_->BorderColor);
    cboBorderColor_->setEnabled(line_->Border == WithBorder);
    cboAlign_->setCurrentIndex(cboAlign_->findData(line_->Align));
    txtText_->setText(line_->Text);
    txtText_->setCursorPosition(0);
}

void TextLineRows::connectCommits() {
    // After the font dialog flags are told with this other word until the window opens again.
    font_.fontDialogClosed = [this] { fill("Si"); };
    commitColor(*cboBackcolor_, committing_, [this] { return &line_->BackColor; });
    commitColor(*cboBorderColor_, committing_, [this] { return &line_->BorderColor; });
    QObject::connect(cboBorder_, &QComboBox::currentIndexChanged, cboBorder_, [this] {
        if (committing_()) {
            const bool bordered = cboBorder_->currentText() == u"Yes";
            line_->Border = bordered ? WithBorder : 0;
            cboBorderColor_->setEnabled(bordered);
        }
    });
    QObject::connect(cboAlign_, &QComboBox::currentIndexChanged, cboAlign_, [this] {
        if (committing_() && cboAlign_->currentIndex() >= 0) {
            line_->Align = static_cast<qint16>(cboAlign_->currentData().toInt());
        }
    });
    QObject::connect(txtText_, &QLineEdit::textChanged, txtText_, [this](const QString& text) {
        if (committing_()) {
            line_->Text = text;
        }
    });
}

}  // namespace nubivane
