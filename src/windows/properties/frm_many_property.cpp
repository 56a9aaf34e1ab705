// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_many_property.h"

#include "engine/core/number_text.h"
#include "engine/export/label_painter.h"
#include "engine/model/edits/project_edits.h"
#include "windows/properties/font_rows.h"
#include "windows/properties/position_rows.h"
#include "windows/properties/property_grid.h"
#include "windows/properties/shared_rows.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <type_traits>
#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr auto Edited = QT_TRANSLATE_NOOP("Edits", "Change properties");

/// The value that all records have, or nothing where they differ.
template <class Record, class Value>
std::optional<Value> shared(const std::vector<Record>& records, Value Record::*member) {
    const bool same = std::all_of(records.begin(), records.end(), [&](const Record& record) {
        return record.*member == records.front().*member;
    });
    return same ? std::optional(records.front().*member) : std::nullopt;
}

void showColor(comboColor& combo, const std::optional<qint32>& color) {
    if (color) {
        combo.setColor(*color);
    } else {
        combo.setCurrentIndex(-1);
    }
}

QString numberText(const std::optional<qint32>& number) {
    return number ? QString::number(*number) : QString();
}

bool isOfKind(const SpriteId& id, SpriteKind kind) {
    return id.kind == kind;
}

}  // namespace

frmManyProperty::frmManyProperty(Workspace& workspace, Shell& shell, std::vector<SpriteId> ids,
                                 QWidget* parent)
    : PropertyDialog("frmManyProperty", tr("%1 selected").arg(ids.size()), workspace, shell,
                     parent),
      ids_(std::move(ids)) {
    if (!records<cLabel>().empty()) {
        addLabelRows();
    }
    if (!records<cSymbol>().empty()) {
        addSymbolRows();
    }
    addNotes();
}

frmManyProperty::~frmManyProperty() = default;

template <class Record>
std::vector<Record> frmManyProperty::records() const {
    constexpr SpriteKind kind =
        std::is_same_v<Record, cLabel> ? SpriteKind::Label : SpriteKind::Symbol;
    const cFrame& frame = std::as_const(workspace_).Frames().Item(workspace_.Status.CurrentFrame);
    std::vector<Record> found;
    for (const SpriteId& id : ids_) {
        if (isOfKind(id, kind) && frame.Sprites().contains(id)) {
            found.push_back(std::get<Record>(recordOf(frame, id)));
        }
    }
    return found;
}

template <class Record, class Mutate>
void frmManyProperty::change(const char* name, const QString& series, Mutate mutate) {
    const qint32 number = workspace_.Status.CurrentFrame;
    auto group = std::make_unique<EditGroup>(name, Marks::Nothing, number, series);
    std::vector<Record> all = records<Record>();
    for (Record& record : all) {
        mutate(record);
        group->add(std::make_unique<ChangeSprite>(name, Marks::Nothing, number, std::move(record),
                                                  series));
    }
    if (!all.empty()) {
        workspace_.edits().push(std::move(group));
    }
}

void frmManyProperty::Init() {
    if (!records<cLabel>().empty() || !records<cSymbol>().empty()) {
        run([this] { fill(); }, txtNote_);
    }
}

void frmManyProperty::addLabelRows() {
    grid_->addSection(tr("Labels"));
    font_ = std::make_unique<FontRows>(*grid_, QString(), QString());
    cboBackcolor_ = grid_->addColor(TextBackColorRow, u"cboBackcolor"_s);
    cboBorder_ = grid_->addChoice(BorderRow, u"cboBorder"_s);
    cboBorder_->addItems({tr("Yes"), tr("No")});
    cboBorderColor_ = grid_->addColor(BorderColorRow, u"cboBorderColor"_s);
    connect(font_.get(), &FontRows::fontChosen, this, &frmManyProperty::chooseFont);
    connect(cboBackcolor_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (committing() && index >= 0) {
            change<cLabel>(Edited, u"background"_s,
                           [this](cLabel& label) { label.BackColor = cboBackcolor_->color(); });
        }
    });
    connect(cboBorder_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (committing() && index >= 0) {
            change<cLabel>(Edited, u"border"_s, [index](cLabel& label) {
                label.Border = index == YesIndex ? WithBorder : qint16{0};
                const QSize size = labelSize(label);
                label.Width = size.width();
                label.Height = size.height();
            });
        }
    });
    connect(cboBorderColor_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (committing() && index >= 0) {
            change<cLabel>(Edited, u"border color"_s,
                           [this](cLabel& label) { label.BorderColor = cboBorderColor_->color(); });
        }
    });
}

void frmManyProperty::addSymbolRows() {
    grid_->addSection(tr("Symbols"));
    txtHeight_ = grid_->addChecked(HeightRow, u"txtHeight"_s, shell_, invalidValue());
    txtWidth_ = grid_->addChecked(WidthRow, u"txtWidth"_s, shell_, invalidValue());
    txtLink_ = grid_->addText(LinkRow, u"txtLink"_s);
    txtTooltip_ = grid_->addText(TooltipRow, u"txtTooltip"_s);
    txtHeight_->bind([this] { return numberText(shared(records<cSymbol>(), &cSymbol::Height)); },
                     [this](const QString& text) { return commitExtent(text, &cSymbol::Height); });
    txtWidth_->bind([this] { return numberText(shared(records<cSymbol>(), &cSymbol::Width)); },
                    [this](const QString& text) { return commitExtent(text, &cSymbol::Width); });
    connect(txtLink_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change<cSymbol>(Edited, u"link"_s, [&text](cSymbol& symbol) { symbol.Link = text; });
        }
    });
    connect(txtTooltip_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (committing()) {
            change<cSymbol>(Edited, u"tooltip"_s,
                            [&text](cSymbol& symbol) { symbol.Tooltip = text; });
        }
    });
}

void frmManyProperty::addNotes() {
    grid_->addSection(tr("All"));
    txtNote_ = grid_->addText(NoteRow, u"txtNote"_s);
    connect(txtNote_, &QLineEdit::textChanged, this, &frmManyProperty::changeNotes);
}

/// An empty field that is left as it is changes nothing: what differs may differ.
bool frmManyProperty::commitExtent(const QString& text, qint32 cSymbol::*extent) {
    const std::vector<cSymbol> symbols = records<cSymbol>();
    if (!committing() || text == numberText(shared(symbols, extent))) {
        return true;
    }
    const auto value = toInt32(text);
    const bool across = extent == &cSymbol::Width;
    const int map = across ? workspace_.pctMap.Width() : workspace_.pctMap.Height();
    const bool fits = value && *value >= LeastExtent &&
                      std::all_of(symbols.begin(), symbols.end(), [&](const cSymbol& symbol) {
                          return *value + (across ? symbol.PosX : symbol.PosY) <= map;
                      });
    if (fits) {
        change<cSymbol>(Edited, {}, [&](cSymbol& symbol) { symbol.*extent = *value; });
    }
    return fits;
}

void frmManyProperty::changeNotes(const QString& text) {
    if (!committing()) {
        return;
    }
    const qint32 number = workspace_.Status.CurrentFrame;
    auto group = std::make_unique<EditGroup>(Edited, Marks::Nothing, number, u"note"_s);
    const auto add = [&](auto record) {
        record.Note = text;
        group->add(std::make_unique<ChangeSprite>(Edited, Marks::Nothing, number, std::move(record),
                                                  u"note"_s));
    };
    for (const cLabel& label : records<cLabel>()) {
        add(label);
    }
    for (const cSymbol& symbol : records<cSymbol>()) {
        add(symbol);
    }
    workspace_.edits().push(std::move(group));
}

void frmManyProperty::chooseFont(const FontStyle& font) {
    change<cLabel>(Edited, u"font"_s, [&font](cLabel& label) {
        label.Font = font;
        const QSize size = labelSize(label);
        label.Width = size.width();
        label.Height = size.height();
    });
    fillFont(records<cLabel>());
}

void frmManyProperty::fillFont(const std::vector<cLabel>& labels) {
    font_->show(&labels.front().Font, tr("Yes"));
    std::vector<FontStyle> fonts;
    for (const cLabel& label : labels) {
        fonts.push_back(label.Font);
    }
    const auto clearWhere = [&](bool same, const char* field) {
        if (!same) {
            findChild<QLineEdit*>(QLatin1String(field))->clear();
        }
    };
    clearWhere(shared(fonts, &FontStyle::Name).has_value(), "txtFont");
    clearWhere(shared(fonts, &FontStyle::Size).has_value(), "txtFontSize");
    clearWhere(shared(fonts, &FontStyle::Color).has_value(), "txtForeColor");
}

void frmManyProperty::fill() {
    const std::vector<cLabel> labels = records<cLabel>();
    const std::vector<cSymbol> symbols = records<cSymbol>();
    std::vector<QString> notes;
    if (!labels.empty()) {
        fillFont(labels);
        showColor(*cboBackcolor_, shared(labels, &cLabel::BackColor));
        const auto border = shared(labels, &cLabel::Border);
        cboBorder_->setCurrentIndex(!border ? -1 : *border != 0 ? YesIndex : YesIndex + 1);
        showColor(*cboBorderColor_, shared(labels, &cLabel::BorderColor));
        notes.push_back(shared(labels, &cLabel::Note).value_or(QString()));
    }
    if (!symbols.empty()) {
        txtHeight_->showValue();
        txtWidth_->showValue();
        txtLink_->setText(shared(symbols, &cSymbol::Link).value_or(QString()));
        txtTooltip_->setText(shared(symbols, &cSymbol::Tooltip).value_or(QString()));
        notes.push_back(shared(symbols, &cSymbol::Note).value_or(QString()));
    }
    txtNote_->setText(notes.front() == notes.back() ? notes.front() : QString());
}

}  // namespace nubivane
