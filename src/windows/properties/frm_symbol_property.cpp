// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_symbol_property.h"

#include "engine/core/host_files.h"
#include "engine/core/number_text.h"

#include <QLabel>

namespace nubivane {

namespace {

constexpr PropertyRow SymbolRow{"Symbol", "Symbol", "Sets the displayed symbol"};
constexpr PropertyRow HeightRow{"Height", "Height", "Sets the height of the symbol"};
constexpr PropertyRow WidthRow{"Width", "Width", "Sets the width of the symbol"};
constexpr PropertyRow XRow{
    "X", "X", "Sets the position of the left corner of the symbol with respect to the map"};
constexpr PropertyRow YRow{
    "Y", "Y", "Sets the position of the top corner of the symbol with respect to the map"};
constexpr PropertyRow LinkRow{"Link", "Link", "Sets the url to navigate to"};
constexpr PropertyRow TooltipRow{
    "Tooltip", "Tooltip", "Sets the text displayed when the mouse is paused over the symbol"};
constexpr PropertyRow NoteRow{"Notes", "Notes", "Stores notes for internal use"};

constexpr int LeastExtent = 16;

/// The number of a text as an extent that begins at a position and ends on the map.
std::optional<qint32> extent(const QString& text, int position, int map) {
    const auto value = toNumber(text);
    return value && *value >= LeastExtent && *value + position <= map ? toInt32(text)
                                                                      : std::nullopt;
}

}  // namespace

frmSymbolProperty::frmSymbolProperty(Workspace& workspace, Shell& shell, SpriteOnMap& control,
                                     QWidget* parent)
    : PropertyDialog("frmSymbolProperty", tr("Symbol"), workspace, shell, parent),
      control_(control),
      txtFilename_(grid_->addReadOnly(SymbolRow, "txtFilename")),
      cmdSymbol_(grid_->addButton(txtFilename_, "cmdSymbol")),
      txtHeight_(grid_->addChecked(HeightRow, "txtHeight", shell, InvalidValue)),
      txtWidth_(grid_->addChecked(WidthRow, "txtWidth", shell, InvalidValue)),
      position_(*grid_, XRow, YRow, shell, control, workspace.pctMap),
      txtLink_(grid_->addText(LinkRow, "txtLink")),
      txtTooltip_(grid_->addText(TooltipRow, "txtTooltip")),
      txtNote_(grid_->addText(NoteRow, "txtNote")) {
    grid_->putBefore(txtLink_, new QLabel("http://"), "txtHttp");
    connectCommits();
}

void frmSymbolProperty::Init() {
    cSymbols& symbols =
        workspace_.Frames().Item(workspace_.Status.CurrentFrame).Sprites().Symbols();
    const QString& key = workspace_.Status.CurrentShapeControlKey;
    if (workspace_.Status.CurrentShapeControlType == sprite_type::Symbol && symbols.contains(key)) {
        symbol_ = &symbols.Item(key);
        cmdSymbol_->setEnabled(openSymbolSelection != nullptr);
        run([this] { fill(); });
        symbol_ = nullptr;
    }
}

void frmSymbolProperty::fill() {
    txtFilename_->setText(host_files::toHost(symbol_->PathFileGif));
    position_.show(symbol_->PosX, symbol_->PosY, [this] { return committing(); });
    txtHeight_->setText(QString::number(symbol_->Height));
    txtWidth_->setText(QString::number(symbol_->Width));
    txtLink_->setText(symbol_->Link);
    txtTooltip_->setText(symbol_->Tooltip);
    txtNote_->setText(symbol_->Note);
}

void frmSymbolProperty::connectCommits() {
    connect(cmdSymbol_, &QToolButton::clicked, this, [this] { chooseSymbol(); });
    txtHeight_->value = [this] { return QString::number(symbol_->Height); };
    txtHeight_->apply = [this](const QString& text) { return !committing() || commitHeight(text); };
    txtWidth_->value = [this] { return QString::number(symbol_->Width); };
    txtWidth_->apply = [this](const QString& text) { return !committing() || commitWidth(text); };
    connect(txtLink_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            symbol_->Link = text;
        }
    });
    connect(txtTooltip_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            symbol_->Tooltip = text;
            control_.setToolTipText(text);
        }
    });
    connect(txtNote_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            symbol_->Note = text;
        }
    });
}

void frmSymbolProperty::chooseSymbol() {
    openSymbolSelection(*this);
    if (SelectedSymbol_.isEmpty()) {
        return;
    }
    const HourglassGuard hourglass(shell_);
    txtFilename_->setText(host_files::toHost(SelectedSymbol_));
    symbol_->FileGif = SelectedSymbol_;
    symbol_->PathFileGif = SelectedSymbol_;
    control_.StopAnimation();
    control_.setFileName(SelectedSymbol_);
    shell_.processEvents();
    refreshSize(*symbol_, control_);
    txtHeight_->setText(txtHeight_->value());
    txtWidth_->setText(txtWidth_->value());
    control_.StartAnimation();
    shell_.processEvents();
}

bool frmSymbolProperty::commitWidth(const QString& text) {
    const QRect rect = control_.rect();
    const auto width = extent(text, rect.x(), workspace_.pctMap.ScaleWidth());
    if (!width) {
        return false;
    }
    symbol_->Width = *width;
    control_.Move({rect.topLeft(), QSize(*width, rect.height())});
    const QRect framed = control_.framedRect();
    control_.setFramedRect({QPoint(symbol_->PosX, framed.y()), QSize(*width, framed.height())});
    return true;
}

bool frmSymbolProperty::commitHeight(const QString& text) {
    const QRect rect = control_.rect();
    const auto height = extent(text, rect.y(), workspace_.pctMap.ScaleHeight());
    if (!height) {
        return false;
    }
    symbol_->Height = *height;
    control_.Move({rect.topLeft(), QSize(rect.width(), *height)});
    const QRect framed = control_.framedRect();
    control_.setFramedRect({QPoint(framed.x(), symbol_->PosY), QSize(framed.width(), *height)});
    return true;
}

}  // namespace nubivane
