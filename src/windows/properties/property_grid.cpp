// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/property_grid.h"

#include "windows/widgets/scroll_panel.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QShortcutEvent>
#include <QVBoxLayout>

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int Gap = 5;  // between the caption column and the fields
constexpr int InfoLines = 2;

QFrame* framed(QWidget* parent, const char* name) {
    auto* frame = new QFrame(parent);
    frame->setObjectName(name);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

QLabel* boldLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

PropertyGrid::PropertyGrid(const QString& heading, QWidget* parent)
    : QWidget(parent),
      txtType_(boldLabel(heading, this)),
      fraContainer_(new ScrollPanel(this)),
      rows_(new QGridLayout(fraContainer_->fraText())) {
    txtType_->setObjectName("txtType");
    txtType_->setFrameShape(QFrame::StyledPanel);
    txtType_->setMargin(3);
    txtType_->setHidden(heading.isEmpty());
    rows_->setContentsMargins(6, 2, 4, 2);
    rows_->setHorizontalSpacing(Gap);
    rows_->setVerticalSpacing(2);
    rows_->setColumnStretch(1, 1);

    auto* fraInfo = framed(this, "fraInfo");
    lblTitleInfo_ = boldLabel({}, fraInfo);
    lblTitleInfo_->setObjectName("lblTitleInfo");
    lblInfo_ = new QLabel(fraInfo);
    lblInfo_->setObjectName("lblInfo");
    lblInfo_->setWordWrap(true);
    lblInfo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblInfo_->setMinimumHeight(InfoLines * fontMetrics().lineSpacing());
    auto* info = new QVBoxLayout(fraInfo);
    info->setContentsMargins(6, 3, 6, 3);
    info->setSpacing(1);
    info->addWidget(lblTitleInfo_);
    info->addWidget(lblInfo_);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(txtType_);
    column->addWidget(fraContainer_, 1);
    column->addWidget(fraInfo);
}

void PropertyGrid::addSection(const QString& title) {
    section_ = title;
    keys_.clear();
    auto* label = boldLabel(title, fraContainer_->fraText());
    label->setContentsMargins(0, 4, 0, 2);
    rows_->addWidget(label, line_, 0, 1, 2);
    finishRow();
}

QLineEdit* PropertyGrid::addReadOnly(const PropertyRow& row, const QString& name) {
    auto* field = new QLineEdit;
    field->setReadOnly(true);
    field->setFrame(false);
    // Without a ground of its own it does not look like a field to write in.
    QPalette colors = field->palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(colors);
    addRow(row, name, field);
    return field;
}

TextField* PropertyGrid::addText(const PropertyRow& row, const QString& name) {
    auto* field = new TextField;
    addRow(row, name, field);
    return field;
}

WrappedField* PropertyGrid::addWrapped(const PropertyRow& row, const QString& name) {
    auto* field = new WrappedField;
    addRow(row, name, field);
    return field;
}

CheckedField* PropertyGrid::addChecked(const PropertyRow& row, const QString& name, Shell& shell,
                                       const QString& refusal) {
    auto* field = new CheckedField(shell, refusal);
    addRow(row, name, field);
    return field;
}

comboEx* PropertyGrid::addChoice(const PropertyRow& row, const QString& name) {
    auto* field = new comboEx;
    addRow(row, name, field);
    return field;
}

comboColor* PropertyGrid::addColor(const PropertyRow& row, const QString& name) {
    auto* field = new comboColor;
    addRow(row, name, field);
    return field;
}

QToolButton* PropertyGrid::addWideButton(const PropertyRow& row, const QString& name) {
    auto* button = new QToolButton;
    button->setText(u"..."_s);
    button->setFocusPolicy(Qt::StrongFocus);
    addRow(row, name, button);
    return button;
}

void PropertyGrid::putBefore(QWidget* field, QWidget* widget, const QString& name) {
    widget->setObjectName(name);
    QHBoxLayout* line = lines_.value(field);
    line->insertWidget(line->indexOf(field), widget);
}

QToolButton* PropertyGrid::addButton(QWidget* field, const QString& name) {
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setText(u"..."_s);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(field->accessibleName());
    lines_.value(field)->addWidget(button);
    explain(button, help_.value(field));
    return button;
}

void PropertyGrid::addRow(const PropertyRow& row, const QString& name, QWidget* field) {
    field->setObjectName(name);
    field->setAccessibleName((section_ + u' ' + tr(row.caption)).trimmed());
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    field->setMinimumWidth(fontMetrics().averageCharWidth() * 8);
    auto* line = new QHBoxLayout;
    line->setSpacing(4);
    line->addWidget(field);
    lines_.insert(field, line);
    // What reads the window aloud looks for a field's caption among its siblings, and has no other
    // name for a combo box; only with its section the caption tells which row it is.
    auto* caption = new QLabel(withAccessKey(tr(row.caption)));
    caption->setAccessibleName(field->accessibleName());
    caption->setBuddy(field);
    caption->installEventFilter(this);
    captions_.append(caption);
    rows_->addWidget(caption, line_, 0);
    rows_->addLayout(line, line_, 1);
    explain(field, row);
    finishRow();
}

/// The same letters serve in every section: pressing one again goes on to the next. That of the
/// texts, for which most people come, is kept for captions that begin with it.
QString PropertyGrid::withAccessKey(const QString& caption) {
    constexpr QChar LetterOfTexts = u't';
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const QChar letter = caption[i].toLower();
        const bool kept = i > 0 && letter == LetterOfTexts;
        if (letter.isLetter() && !kept && !keys_.contains(letter) && !taken_.contains(letter)) {
            keys_ += letter;
            return QString(caption).insert(i, u'&');
        }
    }
    return caption;
}

/// Rules off the row just added and leaves what the panel has too much of below it.
void PropertyGrid::finishRow() {
    auto* sepLine = new QWidget;
    sepLine->setObjectName(u"sepLine"_s + QString::number(++separators_));
    sepLine->setFixedHeight(1);
    sepLine->setAutoFillBackground(true);
    sepLine->setBackgroundRole(QPalette::Mid);
    rows_->addWidget(sepLine, line_ + 1, 0, 1, 2);
    rows_->setRowStretch(line_, 0);
    line_ += 2;
    rows_->setRowStretch(line_, 1);
}

void PropertyGrid::explain(QWidget* field, const PropertyRow& row) {
    help_.insert(field, row);
    field->installEventFilter(this);
}

/// Of the rows that share an access key, that below the one where the keyboard is; by itself the
/// first press would always begin with the first of them.
void PropertyGrid::goOn(const QKeySequence& key) {
    QList<QWidget*> fields;
    for (const QLabel* caption : std::as_const(captions_)) {
        if (QKeySequence::mnemonic(caption->text()) == key && caption->buddy()->isEnabled()) {
            fields.append(caption->buddy());
        }
    }
    if (!fields.isEmpty()) {
        const qsizetype here = fields.indexOf(QApplication::focusWidget());
        fields[(here + 1) % fields.size()]->setFocus(Qt::ShortcutFocusReason);
    }
}

bool PropertyGrid::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Shortcut && qobject_cast<QLabel*>(watched)) {
        const auto* shortcut = static_cast<QShortcutEvent*>(event);
        if (shortcut->isAmbiguous()) {
            goOn(shortcut->key());
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn) {
        const PropertyRow row = help_.value(watched);
        lblTitleInfo_->setText(tr(row.helpTitle));
        lblInfo_->setText(tr(row.help));
        fraContainer_->ensureVisible(*static_cast<QWidget*>(watched));
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace nubivane
