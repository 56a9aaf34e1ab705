// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_label_property.h"

#include "engine/core/path_text.h"
#include "engine/model/edits/sprite_changes.h"
#include "windows/properties/shared_rows.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow LabelBackColorRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Back color"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets background color used to display text"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Back Color")};
constexpr PropertyRow LabelTextRow{QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Text"),
                                   QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets label text")};
constexpr PropertyRow LabelXRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "X"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid",
                      "Sets the position of the left corner of the label with respect to the map")};
constexpr PropertyRow LabelYRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Y"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid",
                      "Sets the position of the top corner of the label with respect to the map")};

constexpr auto FontEdit = QT_TRANSLATE_NOOP("Edits", "Change label font");
constexpr QLatin1String FontSeries("font");

}  // namespace

frmLabelProperty::frmLabelProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control,
                                   QWidget* parent)
    : PropertyDialog("frmLabelProperty", tr("Label"), workspace, shell, parent),
      control_(control),
      font_(*grid_, {}, {}),
      cboBackcolor_(grid_->addColor(LabelBackColorRow, u"cboBackcolor"_s)),
      cboBorder_(grid_->addChoice(BorderRow, u"cboBorder"_s)),
      cboBorderColor_(grid_->addColor(BorderColorRow, u"cboBorderColor"_s)),
      txtText_(
          grid_->addChecked(LabelTextRow, u"txtText"_s, shell, tr("Label text cannot be empty."))),
      position_(*grid_, LabelXRow, LabelYRow, shell, control, workspace.pctMap),
      txtNote_(grid_->addText(NoteRow, u"txtNote"_s)) {
    cboBorder_->addItems({tr("Yes"), tr("No")});
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

/// The Label gets its control's size, and the selection's border too.
void frmLabelProperty::refreshSize(const char* name, const QString& series) {
    const QSize size = control_.rect().size();
    change(name, series, [size](cLabel& label) {
        label.Width = size.width();
        label.Height = size.height();
    });
    control_.setBorderedRect(QRect(control_.borderedRect().topLeft(), size));
}

void frmLabelProperty::fill() {
    const cLabel shown = label();
    font_.show(&shown.Font, tr("Yes"));
    cboBackcolor_->setColor(shown.BackColor);
    cboBorder_->setCurrentIndex(shown.Border == WithBorder ? YesIndex : YesIndex + 1);
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
    connect(&font_, &FontRows::fontChosen, this, [this](const FontStyle& font) {
        change(FontEdit, FontSeries, [&font](cLabel& record) { record.Font = font; });
    });
    connect(&font_, &FontRows::fontDialogClosed, this, &frmLabelProperty::fontChanged);
    txtText_->bind([this] { return label().Text; },
                   [this](const QString& text) { return !committing() || commitText(text); });
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
    const bool bordered = cboBorder_->currentIndex() == YesIndex;
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
    font_.show(&shown.Font, tr("Yes"));
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
