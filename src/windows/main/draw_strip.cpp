// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/draw_strip.h"

#include "windows/commands/commands.h"
#include "windows/drawing/map_drawing.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/scrspn.h"

#include <QGridLayout>
#include <QLabel>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int IconSize = 24;    // pixels
constexpr int WidestPen = 100;  // that the arrows reach; pixels

QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

}  // namespace

DrawStrip::DrawStrip(MapDrawing& drawing, const Commands& commands, QWidget* parent)
    : QFrame(parent),
      drawing_(drawing),
      tools_(new QButtonGroup(this)),
      txtValue_(new QLineEdit(this)),
      scrspn1_(new ScrSpn(this)),
      pctSelectedColor_(new SwatchButton(this)),
      btnClear_(new QToolButton(this)) {
    setObjectName("pctTlbDraw");
    setAccessibleName(tr("Drawing tools"));
    // Before all who ask the pen for its width when the text changes.
    connect(txtValue_, &QLineEdit::textChanged, &drawing_.pen(), &MapPen::setWidthText);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(3, 4, 3, 4);
    column->setSpacing(6);
    column->addWidget(makeTools());
    column->addWidget(separator(this));
    column->addWidget(makeWidthField());
    makeSwatch();
    column->addWidget(pctSelectedColor_);
    column->addWidget(separator(this));
    makeClearButton(commands);
    column->addWidget(btnClear_, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(&drawing_, &MapDrawing::changed, this, &DrawStrip::refresh);
}

QWidget* DrawStrip::makeTools() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    int index = 0;
    for (const ToolRow& row : toolTable) {
        auto* button = new QToolButton(box);
        button->setObjectName(u"btnDraw"_s + QString::number(index));
        button->setIcon(programIcon(QLatin1String(row.name)));
        button->setIconSize({IconSize, IconSize});
        button->setAutoRaise(true);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setAccessibleName(tr(row.hint));
        button->setToolTip(tr(row.hint));
        tools_->addButton(button, index);
        grid->addWidget(button, index / 2, index % 2, Qt::AlignHCenter);
        ++index;
    }
    connect(tools_, &QButtonGroup::idClicked, this,
            [this](int tool) { drawing_.chooseTool(static_cast<std::size_t>(tool)); });
    btnDraw(0)->setChecked(true);
    return box;
}

QWidget* DrawStrip::makeWidthField() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    auto* picture = new QLabel(box);
    picture->setPixmap(programIcon(u"pen-width"_s).pixmap(QSize(16, 16), devicePixelRatioF()));
    picture->setToolTip(tr("Width of the pen"));
    txtValue_->setObjectName("txtValue");
    txtValue_->setAccessibleName(tr("Width of the pen in pixels"));
    txtValue_->setToolTip(tr("Width of the pen in pixels"));
    txtValue_->setFixedWidth(txtValue_->fontMetrics().horizontalAdvance(u"0000"_s) + 10);
    scrspn1_->setObjectName("scrspn1");
    scrspn1_->setRange(1, WidestPen);
    scrspn1_->attach(*txtValue_);
    connect(txtValue_, &QLineEdit::textChanged, this, &DrawStrip::refreshWidth);
    grid->addWidget(picture, 0, 0, Qt::AlignCenter);
    grid->addWidget(txtValue_, 0, 1);
    grid->addWidget(scrspn1_, 0, 2);
    return box;
}

void DrawStrip::makeSwatch() {
    pctSelectedColor_->setObjectName("pctSelectedColor");
    pctSelectedColor_->setAccessibleName(tr("Color of the pen"));
    pctSelectedColor_->setToolTip(tr("Color of the pen"));
    pctSelectedColor_->setFocusPolicy(Qt::TabFocus);
    connect(pctSelectedColor_, &QAbstractButton::clicked, this, [this] { drawing_.chooseColor(); });
}

/// The command in another guise: the question is asked under the plain pointer.
void DrawStrip::makeClearButton(const Commands& commands) {
    QAction* clear = commands[Command::mnuPulisci];
    btnClear_->setObjectName("btnClear");
    btnClear_->setIcon(clear->icon());
    btnClear_->setIconSize({IconSize, IconSize});
    btnClear_->setAutoRaise(true);
    btnClear_->setFocusPolicy(Qt::TabFocus);
    btnClear_->setAccessibleName(tr("Clear the map of all drawings"));
    btnClear_->setToolTip(tr("Clear the map of all drawings"));
    btnClear_->setEnabled(clear->isEnabled());
    connect(clear, &QAction::enabledChanged, btnClear_, &QToolButton::setEnabled);
    connect(btnClear_, &QToolButton::clicked, this, [this, clear] {
        drawing_.resetPointer();
        clear->trigger();
    });
}

QToolButton* DrawStrip::btnDraw(int index) const {
    return qobject_cast<QToolButton*>(tools_->button(index));
}

QList<QWidget*> DrawStrip::focusOrder() const {
    QList<QWidget*> order;
    for (QAbstractButton* button : tools_->buttons()) {
        order << button;
    }
    return order << txtValue_ << pctSelectedColor_ << btnClear_;
}

void DrawStrip::refresh() {
    const Tool current = drawing_.workspace().Status.CurrentTool;
    btnDraw(static_cast<int>(current))->setChecked(true);
    if (current != shownTool_) {
        shownTool_ = current;
        Q_EMIT toolShown(tr(toolTable[static_cast<std::size_t>(current)].use));
    }
    pctSelectedColor_->setBackColor(drawing_.DrawColor());
}

/// A text that gives no pen is marked, since nothing could be drawn with it.
void DrawStrip::refreshWidth() {
    QPalette look;
    if (!MapPen::widthOf(txtValue_->text())) {
        look.setColor(QPalette::Text, QColor(214, 76, 65));
    }
    txtValue_->setPalette(look);
    drawing_.refreshFigure();
}

}  // namespace nubivane
