// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/main/draw_strip.h"

#include "windows/commands/commands.h"
#include "windows/drawing/figure_icon.h"
#include "windows/drawing/figure_table.h"
#include "windows/drawing/map_drawing.h"
#include "windows/widgets/icons.h"
#include "windows/widgets/scrspn.h"

#include <QActionGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>

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

QString keyText(Qt::Key key) {
    return QKeySequence(key).toString(QKeySequence::NativeText);
}

QString withKey(const QString& hint, Qt::Key key) {
    return u"%1 (%2)"_s.arg(hint, keyText(key));
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
    column->addWidget(makeTools(false));
    column->addWidget(separator(this));
    column->addWidget(makeWidthField());
    makeSwatch();
    column->addWidget(pctSelectedColor_);
    column->addWidget(separator(this));
    makeClearButton(commands);
    column->addWidget(btnClear_, 0, Qt::AlignHCenter);
    column->addWidget(separator(this));
    column->addWidget(makeTools(true));
    column->addStretch();
    connectTools();
    connect(&drawing_, &MapDrawing::changed, this, &DrawStrip::refresh);
}

/// A grid of the tools of plain lines, or of those for weather figures.
QWidget* DrawStrip::makeTools(bool weather) {
    constexpr int Columns = 2;
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    int place = 0;
    for (const ToolRow& row : toolTable) {
        if (isWeatherTool(row.tool) == weather) {
            grid->addWidget(makeToolButton(row, box), place / Columns, place % Columns,
                            Qt::AlignHCenter);
            ++place;
        }
    }
    return box;
}

void DrawStrip::connectTools() {
    connect(tools_, &QButtonGroup::idClicked, this,
            [this](int tool) { drawing_.chooseTool(static_cast<std::size_t>(tool)); });
    connect(&drawing_.choice(), &FigureChoice::changed, this, &DrawStrip::refreshGroups);
    connect(&drawing_, &MapDrawing::widthAsked, this,
            [this](int width) { txtValue_->setText(QString::number(width)); });
    btnDraw(0)->setChecked(true);
    refreshGroups();
}

QToolButton* DrawStrip::makeToolButton(const ToolRow& row, QWidget* box) {
    const auto index = static_cast<int>(row.tool);
    auto* button = new QToolButton(box);
    button->setObjectName(u"btnDraw"_s + QString::number(index));
    button->setIconSize({IconSize, IconSize});
    button->setAutoRaise(true);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(tr(row.hint));
    tools_->addButton(button, index);
    if (isWeatherTool(row.tool)) {
        makeFlyOut(row, *button);
    } else {
        button->setIcon(programIcon(QLatin1String(row.name)));
        button->setToolTip(withKey(tr(row.hint), row.key));
    }
    return button;
}

/// The kinds of a group, by their names and keys. They open by holding the button, by its right
/// button, and by Alt and the arrow down.
void DrawStrip::makeFlyOut(const ToolRow& row, QToolButton& button) {
    const std::vector<weather::FigureKind> kinds = kindsOf(row.tool);
    if (kinds.size() < 2) {
        return;
    }
    auto* menu = new QMenu(&button);
    menu->setObjectName(QLatin1String(row.name));
    auto* group = new QActionGroup(menu);
    int digit = 0;
    for (const weather::FigureKind kind : kinds) {
        const QString keys = keyText(row.key) + u", "_s + QString::number(++digit);
        QAction* action = menu->addAction(figureIcon(kind), nameOf(kind) + u'\t' + keys);
        action->setData(static_cast<int>(kind));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, kind] { drawing_.chooseFigure(kind); });
    }
    button.setMenu(menu);
    button.setPopupMode(QToolButton::DelayedPopup);
    button.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&button, &QWidget::customContextMenuRequested, &button, &QToolButton::showMenu);
    button.installEventFilter(this);
}

bool DrawStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.key() == Qt::Key_Down && key.modifiers() & Qt::AltModifier) {
            static_cast<QToolButton*>(watched)->showMenu();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

/// Each group's button is that of the kind which it draws.
void DrawStrip::refreshGroups() {
    for (const ToolRow& row : toolTable) {
        if (!isWeatherTool(row.tool)) {
            continue;
        }
        const weather::FigureKind kind = drawing_.choice().kind(row.tool);
        QToolButton* button = btnDraw(static_cast<int>(row.tool));
        button->setIcon(figureIcon(kind));
        const QString name = withKey(nameOf(kind), row.key);
        button->setToolTip(
            button->menu()
                ? tr("%1. Hold the button for others: %2").arg(name, tr(row.hint).toLower())
                : name);
        for (QAction* action : button->menu() ? button->menu()->actions() : QList<QAction*>()) {
            action->setChecked(action->data().toInt() == static_cast<int>(kind));
        }
    }
}

/// Fronts want another pen than plain lines; a width that somebody asked for stays.
void DrawStrip::offerWidth(Tool tool) {
    if (txtValue_->text() == offeredWidth_) {
        offeredWidth_ = QString::number(rowOf(tool).usualWidth);
        txtValue_->setText(offeredWidth_);
    }
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
    offeredWidth_ = txtValue_->text();
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
    offerWidth(current);
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
