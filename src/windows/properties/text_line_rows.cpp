// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/text_line_rows.h"

#include "windows/properties/shared_rows.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow AlignRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Alignment"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets alignment of text")};

}  // namespace

void commitColor(comboColor& combo, std::function<bool()> committing,
                 std::function<void(qint32)> store) {
    QObject::connect(&combo, &QComboBox::currentIndexChanged, &combo,
                     [&combo, committing = std::move(committing), store = std::move(store)] {
                         if (committing() && combo.currentIndex() >= 0) {
                             store(combo.color());
                         }
                     });
}

TextLineRows::TextLineRows(PropertyGrid& grid, const Names& names, std::function<bool()> committing)
    : committing_(std::move(committing)),
      font_(grid, names.part, names.buttonPart),
      cboBackcolor_(grid.addColor(TextBackColorRow, u"cbo"_s + names.part + u"Backcolor"_s)),
      cboBorder_(grid.addChoice(BorderRow, u"cbo"_s + names.part + u"Border"_s)),
      cboBorderColor_(grid.addColor(BorderColorRow, u"cbo"_s + names.part + u"BorderColor"_s)),
      cboAlign_(grid.addChoice(AlignRow, u"cbo"_s + names.part + u"Align"_s)),
      txtText_(grid.addText({QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Text"), names.textHelp},
                            u"txt"_s + names.part + u"Text"_s)) {
    cboBorder_->addItems({tr("Yes"), tr("No")});
    cboAlign_->addItem(tr("left"), 0);
    cboAlign_->addItem(tr("right"), 1);
    cboAlign_->addItem(tr("center"), 2);
    connectCommits();
}

void TextLineRows::show(RecordDoor<TextLine> line) {
    line_ = std::move(line);
    fill(tr("Yes"));
}

void TextLineRows::fill(const QString& yes) {
    const TextLine line = line_.read();
    font_.show(&line.Font, yes);
    cboBackcolor_->setColor(line.BackColor);
    cboBorder_->setCurrentIndex(line.Border == WithBorder ? YesIndex : YesIndex + 1);
    cboBorderColor_->setColor(line.BorderColor);
    cboBorderColor_->setEnabled(line.Border == WithBorder);
    cboAlign_->setCurrentIndex(cboAlign_->findData(line.Align));
    txtText_->setText(line.Text);
    txtText_->setCursorPosition(0);
}

void TextLineRows::connectCommits() {
    // After the font dialog flags are told with this other word until the window opens again.
    QObject::connect(&font_, &FontRows::fontChosen, &font_, [this](const FontStyle& font) {
        line_.change({}, [&font](TextLine& line) { line.Font = font; });
    });
    QObject::connect(&font_, &FontRows::fontDialogClosed, &font_, [this] { fill(tr("Si")); });
    commitColor(*cboBackcolor_, committing_, [this](qint32 color) {
        line_.change(u"background"_s, [color](TextLine& line) { line.BackColor = color; });
    });
    commitColor(*cboBorderColor_, committing_, [this](qint32 color) {
        line_.change(u"border color"_s, [color](TextLine& line) { line.BorderColor = color; });
    });
    QObject::connect(cboBorder_, &QComboBox::currentIndexChanged, cboBorder_, [this] {
        if (committing_()) {
            const bool bordered = cboBorder_->currentIndex() == YesIndex;
            line_.change(u"border"_s, [bordered](TextLine& line) {
                line.Border = bordered ? WithBorder : qint16{0};
            });
            cboBorderColor_->setEnabled(bordered);
        }
    });
    QObject::connect(cboAlign_, &QComboBox::currentIndexChanged, cboAlign_, [this] {
        if (committing_() && cboAlign_->currentIndex() >= 0) {
            const auto align = static_cast<qint16>(cboAlign_->currentData().toInt());
            line_.change(u"alignment"_s, [align](TextLine& line) { line.Align = align; });
        }
    });
    QObject::connect(txtText_, &QLineEdit::textChanged, txtText_, [this](const QString& text) {
        if (committing_()) {
            line_.change(u"text"_s, [&text](TextLine& line) { line.Text = text; });
        }
    });
}

}  // namespace nubivane
