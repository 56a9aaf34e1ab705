// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_symbol_property.h"

#include "engine/core/host_files.h"
#include "engine/core/number_text.h"
#include "engine/model/edits/sprite_changes.h"
#include "windows/properties/shared_rows.h"

#include <QCoreApplication>
#include <QLabel>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow SymbolRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Symbol"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets the displayed symbol")};
constexpr PropertyRow SymbolXRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "X"),
    QT_TRANSLATE_NOOP(
        "nubivane::PropertyGrid",
        "Sets the position of the left corner of the symbol with respect to the map")};
constexpr PropertyRow SymbolYRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Y"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid",
                      "Sets the position of the top corner of the symbol with respect to the map")};

/// The number of a text as an extent that begins at a position and ends on the map.
std::optional<qint32> extent(const QString& text, int position, int map) {
    const auto value = toNumber(text);
    return value && *value >= LeastExtent && *value + position <= map ? toInt32(text)
                                                                      : std::nullopt;
}

}  // namespace

frmSymbolProperty::frmSymbolProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control,
                                     SymbolChooser chooser, QWidget* parent)
    : PropertyDialog("frmSymbolProperty", tr("Symbol"), workspace, shell, parent),
      control_(control),
      chooser_(std::move(chooser)),
      txtFilename_(grid_->addReadOnly(SymbolRow, u"txtFilename"_s)),
      cmdSymbol_(grid_->addButton(txtFilename_, u"cmdSymbol"_s)),
      txtHeight_(grid_->addChecked(HeightRow, u"txtHeight"_s, shell, invalidValue())),
      txtWidth_(grid_->addChecked(WidthRow, u"txtWidth"_s, shell, invalidValue())),
      position_(*grid_, SymbolXRow, SymbolYRow, shell, control, workspace.pctMap),
      txtLink_(grid_->addText(LinkRow, u"txtLink"_s)),
      txtTooltip_(grid_->addText(TooltipRow, u"txtTooltip"_s)),
      txtNote_(grid_->addText(NoteRow, u"txtNote"_s)) {
    grid_->putBefore(txtLink_, new QLabel(u"http://"_s), u"txtHttp"_s);
    connectCommits();
}

void frmSymbolProperty::Init() {
    const auto selected = workspace_.Status.selectedSprite();
    if (selected && selected->kind == SpriteKind::Symbol &&
        workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites().contains(*selected)) {
        id_ = *selected;
        run([this] { fill(); }, txtFilename_);
    }
}

/// An empty one where the Symbol has gone under the window.
cSymbol frmSymbolProperty::symbol() const {
    const cFrame& frame = workspace_.Frames().Item(workspace_.Status.CurrentFrame);
    return frame.Sprites().contains(id_) ? frame.Sprites().Symbols().Item(id_.key) : cSymbol();
}

template <class Mutate>
void frmSymbolProperty::change(const char* name, const QString& series, Mutate mutate) {
    changeSprite<cSymbol>(workspace_, id_, name, series, mutate);
}

void frmSymbolProperty::fill() {
    const cSymbol shown = symbol();
    txtFilename_->setText(host_files::toHost(shown.PathFileGif));
    position_.show([this] { return positionOf(workspace_, id_).value_or(QPoint()); },
                   [this](QPoint position) {
                       moveSprite(workspace_, id_, position, Marks::Nothing, u"position"_s);
                   },
                   [this] { return committing(); });
    txtHeight_->setText(QString::number(shown.Height));
    txtWidth_->setText(QString::number(shown.Width));
    txtLink_->setText(shown.Link);
    txtTooltip_->setText(shown.Tooltip);
    txtNote_->setText(shown.Note);
}

void frmSymbolProperty::connectCommits() {
    connect(cmdSymbol_, &QToolButton::clicked, this, [this] { chooseSymbol(); });
    txtHeight_->bind([this] { return QString::number(symbol().Height); },
                     [this](const QString& text) { return !committing() || commitHeight(text); });
    txtWidth_->bind([this] { return QString::number(symbol().Width); },
                    [this](const QString& text) { return !committing() || commitWidth(text); });
    connect(txtLink_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change(QT_TRANSLATE_NOOP("Edits", "Change symbol link"), u"link"_s,
                   [&text](cSymbol& record) { record.Link = text; });
        }
    });
    connect(txtTooltip_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change(QT_TRANSLATE_NOOP("Edits", "Change symbol tooltip"), u"tooltip"_s,
                   [&text](cSymbol& record) { record.Tooltip = text; });
            control_.setToolTipText(text);
        }
    });
    connect(txtNote_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change(QT_TRANSLATE_NOOP("Edits", "Change symbol notes"), u"note"_s,
                   [&text](cSymbol& record) { record.Note = text; });
        }
    });
}

void frmSymbolProperty::chooseSymbol() {
    if (const auto chosen = chooser_(this)) {
        SelectedSymbol_ = *chosen;
    }
    if (SelectedSymbol_.isEmpty()) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    txtFilename_->setText(host_files::toHost(SelectedSymbol_));
    constexpr auto name = QT_TRANSLATE_NOOP("Edits", "Change symbol picture");
    workspace_.edits().seal();
    change(name, u"picture"_s, [this](cSymbol& record) {
        record.FileGif = SelectedSymbol_;
        record.PathFileGif = SelectedSymbol_;
    });
    control_.StopAnimation();
    control_.setFileName(SelectedSymbol_);
    shell_.processEvents();
    const QSize size = control_.rect().size();
    change(name, u"picture"_s, [size](cSymbol& record) {
        record.Width = size.width();
        record.Height = size.height();
    });
    control_.setBorderedRect(QRect(control_.borderedRect().topLeft(), size));
    txtHeight_->showValue();
    txtWidth_->showValue();
    control_.StartAnimation();
    shell_.processEvents();
}

bool frmSymbolProperty::commitWidth(const QString& text) {
    const QRect rect = control_.rect();
    const auto width = extent(text, rect.x(), workspace_.pctMap.ScaleWidth());
    if (!width) {
        return false;
    }
    change(QT_TRANSLATE_NOOP("Edits", "Resize symbol"), u"width"_s,
           [width](cSymbol& record) { record.Width = *width; });
    control_.Move({rect.topLeft(), QSize(*width, rect.height())});
    const QRect framed = control_.borderedRect();
    control_.setBorderedRect({QPoint(symbol().PosX, framed.y()), QSize(*width, framed.height())});
    return true;
}

bool frmSymbolProperty::commitHeight(const QString& text) {
    const QRect rect = control_.rect();
    const auto height = extent(text, rect.y(), workspace_.pctMap.ScaleHeight());
    if (!height) {
        return false;
    }
    change(QT_TRANSLATE_NOOP("Edits", "Resize symbol"), u"height"_s,
           [height](cSymbol& record) { record.Height = *height; });
    control_.Move({rect.topLeft(), QSize(rect.width(), *height)});
    const QRect framed = control_.borderedRect();
    control_.setBorderedRect({QPoint(framed.x(), symbol().PosY), QSize(framed.width(), *height)});
    return true;
}

}  // namespace nubivane
