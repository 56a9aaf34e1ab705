// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_frame_property_detail.h"

#include "engine/model/edits/project_edits.h"
#include "windows/properties/spell_check.h"
#include "windows/widgets/at_once.h"
#include "windows/widgets/screen_room.h"
#include "windows/widgets/scroll_panel.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr int ColumnWidth = 153;
constexpr int BarWidth = 18;  // room for the list's scroll bar
constexpr int ButtonMargin = 12;
constexpr int ButtonGap = 6;
constexpr int RowsWithoutBar = 17;
constexpr int PanelWidth = 330;

/// The item of a position, or nothing.
template <class List>
std::optional<RecordDoor<TextItem>> itemAt(Workspace& workspace, const List& list, TextPart part,
                                           int position, const char* name) {
    if (position < 1 || position > list.Count()) {
        return std::nullopt;
    }
    return textDoor<TextItem>(workspace, {part, list.Item(position).textKey}, name);
}

}  // namespace

frmFramePropertyDetail::frmFramePropertyDetail(Workspace& workspace, Shell& shell,
                                               Spelling& spelling, QWidget* parent)
    : QDialog(parent),
      workspace_(workspace),
      lstItems_(new QTreeWidget(this)),
      cmdAdd_(new QPushButton(tr("&Add"), this)),
      cmdRemove_(new QPushButton(tr("&Remove"), this)),
      grid_(new PropertyGrid({}, this)),
      spellCheck_(new SpellCheck(spelling, shell, this)) {
    setObjectName("frmFramePropertyDetail");
    setWindowTitle(tr("Forecast text"));
    build();
    answerKeysAtOnce(*this);
    connect(lstItems_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* current) {
        showElement(lstItems_->indexOfTopLevelItem(current) + 1);
    });
    // What is typed in a field is one edit until the field is left.
    connect(qApp, &QApplication::focusChanged, this, [this] { workspace_.edits().seal(); });
    connect(cmdAdd_, &QPushButton::clicked, this, [this] { addElement(); });
    connect(cmdRemove_, &QPushButton::clicked, this, [this] { removeElement(); });
}

void frmFramePropertyDetail::build() {
    grid_->leaveKeys(u"aer"_s);  // Add, Elements, Remove
    grid_->addSection(tr("Header"));
    header_.emplace(*grid_, u"Header"_s,
                    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets header text"));
    grid_->addSection(tr("Body"));
    body_.emplace(*grid_, u"Body"_s, QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets body text"));
    spellCheck_->watch(header_->text());
    spellCheck_->watch(body_->text());
    grid_->setMinimumWidth(PanelWidth);
    auto* row = new QHBoxLayout(this);
    row->addWidget(buildList());
    row->addWidget(grid_, 1);
}

/// As tall as the rows that need no scroll bar.
QWidget* frmFramePropertyDetail::buildList() {
    lstItems_->setObjectName("lstItems");
    lstItems_->setAccessibleName(tr("Elements"));
    lstItems_->setHeaderHidden(true);
    lstItems_->setRootIsDecorated(false);
    lstItems_->setUniformRowHeights(true);
    lstItems_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lstItems_->header()->setStretchLastSection(false);
    const int frame = 2 * lstItems_->frameWidth();
    const int buttonWidth = fontMetrics().horizontalAdvance(tr("Remove")) + 2 * ButtonMargin;
    // Large letters need more.
    columnWidth_ =
        std::max({ColumnWidth, fontMetrics().horizontalAdvance(u"Element 000"_s) + 2 * BarWidth,
                  2 * buttonWidth + ButtonGap - frame});
    lstItems_->setFixedWidth(columnWidth_ + frame);
    lstItems_->addTopLevelItem(new QTreeWidgetItem({tr("Element %1").arg(1)}));
    const int rowHeight = std::max(1, lstItems_->sizeHintForRow(0));
    lstItems_->clear();
    lstItems_->setMinimumHeight(RowsWithoutBar * rowHeight + frame);

    auto* panel = new QWidget;
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("&Elements:"));
    label->setBuddy(lstItems_);
    column->addWidget(label);
    column->addWidget(lstItems_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(ButtonGap);
    cmdAdd_->setObjectName("cmdAdd");
    cmdRemove_->setObjectName("cmdRemove");
    for (QPushButton* button : {cmdAdd_, cmdRemove_}) {
        button->setAutoDefault(false);
        // Both fit below the list.
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        button->setMinimumWidth(buttonWidth);
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
    return panel;
}

void frmFramePropertyDetail::Init() {
    refreshRows(1);
    showAllRows();
    lstItems_->setFocus();
    exec();
}

/// As high as its rows, as far as the screen goes: the texts are the last ones of their sections.
void frmFramePropertyDetail::showAllRows() {
    adjustSize();
    const ScrollPanel& panel = *grid_->container();
    const int hidden =
        panel.fraText()->sizeHint().height() + 2 * panel.frameWidth() - panel.height();
    resize(size().expandedTo(withinScreen(*this, {width(), height() + hidden})));
}

/// A project from elsewhere may have lists of different lengths: the rows are those of the header.
int frmFramePropertyDetail::count() const {
    return forecast().Header().Count();
}

const cForecast& frmFramePropertyDetail::forecast() const {
    return workspace_.Frames().Item(workspace_.Status.CurrentFrame).Texts().Forecast();
}

/// One row for each element, named after its position, with one of them selected.
void frmFramePropertyDetail::refreshRows(int selected) {
    {
        const QSignalBlocker quiet(lstItems_);
        lstItems_->clear();
        for (int i = 1; i <= count(); ++i) {
            lstItems_->addTopLevelItem(new QTreeWidgetItem({tr("Element %1").arg(i)}));
        }
        lstItems_->setColumnWidth(
            0, count() > RowsWithoutBar ? columnWidth_ - BarWidth : columnWidth_);
        lstItems_->setCurrentItem(lstItems_->topLevelItem(selected - 1));
    }
    enablePanel(count() > 0);
    showElement(count() > 0 ? selected : 0);
}

void frmFramePropertyDetail::enablePanel(bool enabled) {
    grid_->container()->fraText()->setEnabled(enabled);
    grid_->container()->VScroll()->setEnabled(enabled);
    cmdRemove_->setEnabled(enabled);
}

void frmFramePropertyDetail::showElement(int element) {
    header_->show(itemAt(workspace_, forecast().Header(), TextPart::Header, element,
                         QT_TRANSLATE_NOOP("Edits", "Change element")));
    body_->show(itemAt(workspace_, forecast().Body(), TextPart::Body, element,
                       QT_TRANSLATE_NOOP("Edits", "Change element")));
}

void frmFramePropertyDetail::addElement() {
    const qint32 frame = workspace_.Status.CurrentFrame;
    workspace_.edits().push(std::make_unique<AddElement>(workspace_.Frames().Item(frame), frame));
    refreshRows(count());
}

void frmFramePropertyDetail::removeElement() {
    const int element = lstItems_->indexOfTopLevelItem(lstItems_->currentItem()) + 1;
    if (element < 1) {
        return;
    }
    showElement(0);
    workspace_.edits().push(
        std::make_unique<RemoveElement>(workspace_.Status.CurrentFrame, element));
    refreshRows(std::max(1, element - 1));
}

}  // namespace nubivane
