// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_label_property.h"

#include "engine/core/path_text.h"
#include "engine/model/edits/sprite_changes.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

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

constexpr auto FontEdit = QT_TRANSLATE_NOOP("Edits", "Change label font");
constexpr QLatin1String FontSeries("font");

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
    const auto selected = workspace_.Status.selectedSprite();
    if (selected && selected->kind == SpriteKind::Label &&
        workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites().contains(*selected)) {
        id_ = *selected;
        run([this] { fill(); }, txtText_);
    }
}

/// An empty one where the Label has gone under the window.
cLabel frmLabelProperty::label() const {
    const cFrame& frame = workspace_.Frames().Item(workspace_.Status.CurrentFrame);
    return frame.Sprites().contains(id_) ? frame.Sprites().Labels().Item(id_.key) : cLabel();
}

template <class Mutate>
void frmLabelProperty::change(const char* name, const QString& series, Mutate mutate) {
    changeSprite<cLabel>(workspace_, id_, name, series, mutate);
}

/// The Label gets its control's size, and the selection frame too.
void frmLabelProperty::refreshSize(const char* name, const QString& series) {
    const QSize size = control_.rect().size();
    change(name, series, [size](cLabel& label) {
        label.Width = size.width();
        label.Height = size.height();
    });
    control_.setFramedRect(QRect(control_.framedRect().topLeft(), size));
}

void frmLabelProperty::fill() {
    const cLabel shown = label();
    font_.show(&shown.Font, "Yes");
    cboBackcolor_->setColor(shown.BackColor);
    cboBorder_->setCurrentText(shown.Border == WithBorder ? "Yes" : "No");
    cboBorderColor_->setColor(shown.BorderColor);
    cboBorderColor_->setEnabled(shown.Border == WithBorder);
    txtText_->setText(shown.Text);
    txtText_->setCursorPosition(0);
    position_.show([this] { return positionOf(workspace_, id_).value_or(QPoint()); },
                   [this](QPoint position) {
                       moveSprite(workspace_, id_, position, Marks::Nothing, u"position"_s);
                   },
                   [this] { return committing(); });
    txtNote_->setText(shown.Note);
}

void frmLabelProperty::connectCommits() {
    font_.fontChosen = [this](const FontStyle& font) {
        change(FontEdit, FontSeries, [&font](cLabel& record) { record.Font = font; });
    };
    font_.fontDialogClosed = [this] { fontChanged(); };
    txtText_->value = [this] { return label().Text; };
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
            change(QT_TRANSLATE_NOOP("Edits", "Change label border color"), u"border color"_s,
                   [this](cLabel& label) { label.BorderColor = cboBorderColor_->color(); });
        }
    });
    connect(txtNote_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change(QT_TRANSLATE_NOOP("Edits", "Change label notes"), u"note"_s,
                   [&text](cLabel& label) { label.Note = text; });
        }
    });
}

void frmLabelProperty::commitBackColor() {
    const qint32 color = cboBackcolor_->color();
    change(QT_TRANSLATE_NOOP("Edits", "Change label background"), u"background"_s,
           [color](cLabel& label) { label.BackColor = color; });
    control_.setBackColor(color);
}

void frmLabelProperty::commitBorder() {
    const bool bordered = cboBorder_->currentText() == u"Yes";
    change(QT_TRANSLATE_NOOP("Edits", "Change label border"), u"border"_s,
           [bordered](cLabel& label) { label.Border = bordered ? WithBorder : qint16{0}; });
    cboBorderColor_->setEnabled(bordered);
    control_.show(label());
}

bool frmLabelProperty::commitText(const QString& text) {
    if (trimBlanks(text).isEmpty()) {
        return false;
    }
    constexpr auto name = QT_TRANSLATE_NOOP("Edits", "Change label text");
    change(name, u"text"_s, [&text](cLabel& label) { label.Text = text; });
    control_.show(label());
    refreshSize(name, u"text"_s);
    return true;
}

void frmLabelProperty::fontChanged() {
    const cLabel shown = label();
    font_.show(&shown.Font, "Yes");
    control_.setFontStrikethru(shown.Font.Strikeout);
    control_.show(shown);
    refreshSize(FontEdit, FontSeries);
    workspace_.edits().seal();
}

void frmLabelProperty::closing(QWidget* active) {
    position_.closing(active);
    if (active == txtText_ && txtText_->isModified()) {
        txtText_->commit();
    }
}

}  // namespace nubivane
