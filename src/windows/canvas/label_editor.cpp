// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/canvas/label_editor.h"

#include "engine/core/path_text.h"
#include "engine/export/label_painter.h"
#include "engine/gif/color_value.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/model/forecast.h"
#include "windows/canvas/map_canvas.h"
#include "windows/widgets/one_line.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

constexpr int Beside = 4;       // room for the cursor and the field's own border, pixels
constexpr int LeastWidth = 48;  // pixels

}  // namespace

LabelEditor::LabelEditor(Workspace& workspace, SpriteStack& sprites, MapCanvas& canvas)
    : QLineEdit(&canvas), workspace_(workspace), sprites_(sprites), canvas_(canvas) {
    setObjectName("labelEditor");
    setAccessibleName(tr("Text of the label"));
    setTextMargins(0, 0, 0, 0);
    keepOneLine(*this);
    hide();
    qApp->installEventFilter(this);
    connect(this, &QLineEdit::textChanged, this, &LabelEditor::place);
}

LabelEditor::~LabelEditor() {
    qApp->removeEventFilter(this);
}

void LabelEditor::start(const SpriteId& id) {
    commit();
    const cSprites& sprites =
        std::as_const(workspace_).Frames().Item(workspace_.Status.CurrentFrame).Sprites();
    if (id.kind != SpriteKind::Label || !sprites.contains(id) || !sprites_.find(id)) {
        return;
    }
    const cLabel& label = sprites.Labels().Item(id.key);
    id_ = id;
    QFont font = mapFont(label.Font);
    font.setPixelSize(std::max(1, canvas_.zoom().toScreen(font.pixelSize())));
    setFont(font);
    QPalette colors;
    colors.setColor(QPalette::Text, colorOf(label.Font.Color));
    // A text without a ground is typed on one that lets it be read.
    const bool dark = colorOf(label.Font.Color).lightness() < 128;
    colors.setColor(QPalette::Base, label.BackColor != NoColor ? colorOf(label.BackColor)
                                    : dark                     ? QColor(Qt::white)
                                                               : QColor(48, 48, 48));
    setPalette(colors);
    setText(label.Text);
    place();
    show();
    raise();
    selectAll();
    setFocus();
}

/// The field grows with its text.
void LabelEditor::place() {
    const SpriteControl* control = id_ ? sprites_.find(*id_) : nullptr;
    if (!control) {
        return;
    }
    const QRect label = canvas_.toWidget(control->rect);
    const int text = fontMetrics().horizontalAdvance(this->text());
    setGeometry(QRect(label.topLeft() - QPoint(Beside, Beside),
                      QSize(std::max({LeastWidth, label.width(), text}) + 4 * Beside,
                            std::max(label.height(), fontMetrics().height()) + 2 * Beside)));
}

void LabelEditor::commit() {
    const auto id = std::exchange(id_, std::nullopt);
    if (!id) {
        return;
    }
    hide();
    const QString typed = text();
    if (!trimBlanks(typed).isEmpty()) {
        workspace_.edits().seal();
        changeSprite<cLabel>(workspace_, *id, QT_TRANSLATE_NOOP("Edits", "Change label text"), {},
                             [&typed](cLabel& label) {
                                 if (label.Text == typed) {
                                     return;
                                 }
                                 label.Text = typed;
                                 const QSize size = labelSize(label);
                                 label.Width = size.width();
                                 label.Height = size.height();
                             });
    }
}

void LabelEditor::cancel() {
    if (std::exchange(id_, std::nullopt)) {
        hide();
    }
}

/// Whatever is clicked or asked for by a key finds the text taken over.
bool LabelEditor::eventFilter(QObject* watched, QEvent* event) {
    const bool elsewhere =
        event->type() == QEvent::MouseButtonPress && watched->isWidgetType() && watched != this;
    if (id_ && (elsewhere || event->type() == QEvent::Shortcut)) {
        commit();
    }
    return QLineEdit::eventFilter(watched, event);
}

void LabelEditor::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            commit();
            canvas_.setFocus();
            break;
        case Qt::Key_Escape:
            cancel();
            canvas_.setFocus();
            break;
        default:
            QLineEdit::keyPressEvent(event);
            return;
    }
    event->accept();
}

void LabelEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        commit();
    }
}

}  // namespace nubivane
