// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/drawing/figure_options.h"

#include "windows/drawing/figure_icon.h"
#include "windows/drawing/figure_table.h"
#include "windows/drawing/map_drawing.h"
#include "windows/widgets/icons.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QToolButton>

#include <cmath>
#include <type_traits>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

using weather::FigureFamily;
using weather::FigureKind;

constexpr int LongestText = 200;
constexpr int MostRepeats = 50;
constexpr int MostKnots = 995;
constexpr int KnotsStep = 5;
constexpr int OpacityStep = 5;  // percent
constexpr int IconSize = 20;    // pixels

bool hasPips(FigureKind kind) {
    return weather::rowOf(kind).family == FigureFamily::Front && kind != FigureKind::SquallLine &&
           kind != FigureKind::Trough;
}

bool hasKnots(FigureKind kind) {
    return kind == FigureKind::Jet || kind == FigureKind::WindBarb;
}

bool hasText(FigureKind kind) {
    const FigureFamily family = weather::rowOf(kind).family;
    return family == FigureFamily::Isoline || family == FigureFamily::Text;
}

bool hasSides(FigureKind kind) {
    return hasPips(kind) || hasKnots(kind) || kind == FigureKind::Cloud ||
           kind == FigureKind::CurvedText;
}

void select(QComboBox& box, int value) {
    box.setCurrentIndex(box.findData(value));
}

}  // namespace

FigureOptions::FigureOptions(MapDrawing& drawing, QWidget* parent)
    : QFrame(parent), drawing_(drawing) {
    setObjectName("figureOptions");
    setAccessibleName(tr("Options of the figure"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 6, 2);
    row->setSpacing(5);
    makeFields(*row);
    row->addStretch(1);
    makeButtons(*row);
    connectFields();
    hide();
}

/// A field behind its label.
template <class Field>
Field* FigureOptions::add(QHBoxLayout& row, const QString& label, const char* name,
                          const QString& hint) {
    auto* field = new Field(this);
    field->setObjectName(name);
    field->setAccessibleName(hint);
    field->setToolTip(hint);
    if constexpr (std::is_same_v<Field, QComboBox>) {
        field->view()->setAccessibleName(hint);
    }
    if (!label.isEmpty()) {
        auto* text = new QLabel(label, this);
        text->setBuddy(field);
        row.addWidget(text);
        labels_.append({field, text});
    }
    row.addWidget(field);
    return field;
}

void FigureOptions::makeFields(QHBoxLayout& row) {
    cboKind_ = add<QComboBox>(row, {}, "cboKind", tr("Kind of figure (1 to 9)"));
    cboKind_->setIconSize({IconSize, IconSize});
    txtText_ = add<QLineEdit>(row, tr("Text:"), "txtText", tr("Value in the line, or text"));
    txtText_->setMaxLength(LongestText);
    txtText_->setMinimumWidth(txtText_->fontMetrics().horizontalAdvance(u"0"_s) * 12);
    spnRepeats_ = add<QSpinBox>(row, tr("Times:"), "spnRepeats",
                                tr("How often the value stands in the line"));
    spnRepeats_->setRange(1, MostRepeats);
    spnKnots_ = add<QSpinBox>(row, tr("Knots:"), "spnKnots", tr("Speed of the wind in knots"));
    spnKnots_->setRange(0, MostKnots);
    spnKnots_->setSingleStep(KnotsStep);
    cboStage_ = add<QComboBox>(row, {}, "cboStage", tr("How far the front is"));
    cboStage_->addItem(tr("Established"), static_cast<int>(weather::FrontStage::Established));
    cboStage_->addItem(tr("Forming"), static_cast<int>(weather::FrontStage::Forming));
    cboStage_->addItem(tr("Dissipating"), static_cast<int>(weather::FrontStage::Dissipating));
    chkUpper_ = add<QCheckBox>(row, {}, "chkUpper", tr("The front lies aloft: hollow signs"));
    chkUpper_->setText(tr("Upper"));
    cboFill_ = add<QComboBox>(row, {}, "cboFill", tr("How the inside is shown"));
    cboFill_->addItem(tr("As usual"), static_cast<int>(weather::AreaFill::Usual));
    cboFill_->addItem(tr("Hatched"), static_cast<int>(weather::AreaFill::Hatching));
    cboFill_->addItem(tr("Shaded"), static_cast<int>(weather::AreaFill::Shading));
    cboFill_->addItem(tr("Outline alone"), static_cast<int>(weather::AreaFill::None));
    spnOpacity_ =
        add<QSpinBox>(row, tr("Opacity:"), "spnOpacity", tr("Opacity of the inside in percent"));
    spnOpacity_->setRange(0, 100);
    spnOpacity_->setSingleStep(OpacityStep);
    spnOpacity_->setSuffix(tr(" %"));
    chkFlipped_ = add<QCheckBox>(row, {}, "chkFlipped", tr("Signs on the other side (X)"));
    chkFlipped_->setText(tr("Turned over"));
    chkPenColor_ = add<QCheckBox>(row, {}, "chkPenColor",
                                  tr("The color of the pen in place of the usual one"));
    chkPenColor_->setText(tr("Pen's color"));
}

void FigureOptions::makeButtons(QHBoxLayout& row) {
    const auto button = [&](const char* name, const QString& text, const QString& hint,
                            const QIcon& icon) {
        auto* made = new QToolButton(this);
        made->setObjectName(name);
        made->setText(text);
        made->setIcon(icon);
        made->setToolButtonStyle(icon.isNull() ? Qt::ToolButtonTextOnly
                                               : Qt::ToolButtonTextBesideIcon);
        made->setAccessibleName(hint);
        made->setToolTip(hint);
        made->setFocusPolicy(Qt::TabFocus);
        row.addWidget(made);
        return made;
    };
    cmdEditAgain_ =
        button("cmdEditAgain", tr("Edit again"), tr("Edit the last figure again (G)"), {});
    cmdDraw_ =
        button("cmdDraw", tr("Draw"), tr("Draw the figure (Enter)"), programIcon(u"apply"_s));
    cmdDrop_ = button("cmdDrop", tr("Drop"), tr("Drop the figure (Esc)"), programIcon(u"cancel"_s));
}

void FigureOptions::connectFields() {
    connect(cboKind_, &QComboBox::activated, this, [this](int index) {
        drawing_.chooseFigure(static_cast<FigureKind>(cboKind_->itemData(index).toInt()));
    });
    connect(txtText_, &QLineEdit::textChanged, this, &FigureOptions::take);
    for (QSpinBox* field : {spnRepeats_, spnKnots_, spnOpacity_}) {
        connect(field, &QSpinBox::valueChanged, this, &FigureOptions::take);
    }
    for (QComboBox* field : {cboStage_, cboFill_}) {
        connect(field, &QComboBox::currentIndexChanged, this, &FigureOptions::take);
    }
    for (QCheckBox* field : {chkUpper_, chkFlipped_, chkPenColor_}) {
        connect(field, &QCheckBox::toggled, this, &FigureOptions::take);
    }
    connect(cmdEditAgain_, &QToolButton::clicked, &drawing_, &MapDrawing::editAgain);
    connect(&drawing_, &MapDrawing::changed, this, &FigureOptions::refresh);
    connect(&drawing_.choice(), &FigureChoice::changed, this, &FigureOptions::refresh);
    connect(cmdDraw_, &QToolButton::clicked, &drawing_, &MapDrawing::DrawApply);
    connect(cmdDrop_, &QToolButton::clicked, &drawing_, &MapDrawing::DrawCancel);
    connect(&drawing_, &MapDrawing::editAgainChanged, this, &FigureOptions::refreshButtons);
}

void FigureOptions::refreshButtons() {
    if (isWeatherTool(tool())) {
        cmdEditAgain_->setEnabled(drawing_.canEditAgain());
        cmdDraw_->setEnabled(drawing_.isUnfinished());
        cmdDrop_->setEnabled(drawing_.isUnfinished());
    }
}

bool FigureOptions::takeKeyboard() {
    for (QWidget* field : {static_cast<QWidget*>(txtText_), static_cast<QWidget*>(spnKnots_),
                           static_cast<QWidget*>(cboKind_), static_cast<QWidget*>(chkPenColor_)}) {
        if (field->isVisible()) {
            field->setFocus(Qt::ShortcutFocusReason);
            return true;
        }
    }
    return false;
}

QList<QWidget*> FigureOptions::focusOrder() const {
    return {cboKind_,    txtText_,    spnRepeats_,  spnKnots_,     cboStage_, chkUpper_, cboFill_,
            spnOpacity_, chkFlipped_, chkPenColor_, cmdEditAgain_, cmdDraw_,  cmdDrop_};
}

Tool FigureOptions::tool() const {
    return drawing_.workspace().Status.CurrentTool;
}

void FigureOptions::refresh() {
    const bool shown = isWeatherTool(tool());
    if (shown) {
        const QScopedValueRollback refreshing(refreshing_, true);
        refreshKinds();
        showFields();
        refreshButtons();
    }
    if (shown == isHidden()) {
        setVisible(shown);
        Q_EMIT shownChanged();
    }
}

void FigureOptions::refreshKinds() {
    if (shownTool_ != tool()) {
        shownTool_ = tool();
        cboKind_->clear();
        for (const FigureKind kind : kindsOf(shownTool_)) {
            cboKind_->addItem(figureIcon(kind), nameOf(kind), static_cast<int>(kind));
        }
    }
    select(*cboKind_, static_cast<int>(drawing_.choice().kind(tool())));
}

void FigureOptions::showFields() {
    const FigureKind kind = drawing_.choice().kind(tool());
    const FigureLook& look = drawing_.choice().look(tool());
    const weather::FigureStyle& style = look.style;
    const FigureFamily family = weather::rowOf(kind).family;
    show(cboKind_, cboKind_->count() > 1);
    show(txtText_, hasText(kind));
    for (const auto& [field, label] : std::as_const(labels_)) {
        if (field == txtText_) {
            label->setText(family == FigureFamily::Isoline ? tr("Value:") : tr("Text:"));
        }
    }
    show(spnRepeats_, family == FigureFamily::Isoline);
    show(spnKnots_, hasKnots(kind));
    show(cboStage_, hasPips(kind));
    show(chkUpper_, hasPips(kind));
    show(cboFill_, family == FigureFamily::Area);
    show(spnOpacity_, family == FigureFamily::Area);
    show(chkFlipped_, hasSides(kind));
    if (txtText_->text() != style.text) {
        txtText_->setText(style.text);
    }
    spnRepeats_->setValue(style.repeats);
    spnKnots_->setValue(style.knots);
    select(*cboStage_, static_cast<int>(style.stage));
    chkUpper_->setChecked(style.upper);
    select(*cboFill_, static_cast<int>(style.fill));
    spnOpacity_->setValue(static_cast<int>(std::lround(style.opacity * 100)));
    chkFlipped_->setChecked(style.flipped);
    chkPenColor_->setChecked(look.penColor);
}

void FigureOptions::show(QWidget* field, bool shown) {
    field->setVisible(shown);
    for (const auto& [of, label] : std::as_const(labels_)) {
        if (of == field) {
            label->setVisible(shown);
        }
    }
}

/// What the fields say becomes the look of the figure.
void FigureOptions::take() {
    if (refreshing_ || !isWeatherTool(tool())) {
        return;
    }
    FigureLook look = drawing_.choice().look(tool());
    weather::FigureStyle& style = look.style;
    style.text = txtText_->text();
    style.repeats = spnRepeats_->value();
    style.knots = spnKnots_->value();
    style.stage = static_cast<weather::FrontStage>(cboStage_->currentData().toInt());
    style.upper = chkUpper_->isChecked();
    style.fill = static_cast<weather::AreaFill>(cboFill_->currentData().toInt());
    style.opacity = spnOpacity_->value() / 100.0;
    style.flipped = chkFlipped_->isChecked();
    look.penColor = chkPenColor_->isChecked();
    drawing_.choice().setLook(tool(), look);
}

}  // namespace nubivane
