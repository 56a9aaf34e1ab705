// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/text_edits.h"

#include "engine/model/edits/edit_scene.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace nubivane {

namespace {

/// Calls `use` with the record of a forecast text.
template <class Forecast, class Use>
auto withRecord(Forecast& forecast, const TextId& id, Use use) {
    switch (id.part) {
        case TextPart::Box:
            return use(forecast.Div());
        case TextPart::Title:
            return use(forecast.Title());
        case TextPart::Subtitle:
            return use(forecast.Subtitle());
        case TextPart::Header:
            return use(forecast.Header().Item(id.key));
        case TextPart::Body:
            break;
    }
    return use(forecast.Body().Item(id.key));
}

/// What of a record a `TextRecord` keeps.
const cDiv& kept(const cDiv& box) {
    return box;
}
const TextLine& kept(const TextLine& line) {
    return line;
}
const TextItem& kept(const TextItem& item) {
    return item;
}

template <class Record>
void assign(Record& record, const TextRecord& value) {
    using Kept = std::decay_t<decltype(kept(record))>;
    static_cast<Kept&>(record) = std::get<Kept>(value);
}

void write(EditScene& scene, qint32 frame, const TextId& id, const TextRecord& value) {
    withRecord(scene.frame(frame).Texts().Forecast(), id,
               [&value](auto& record) { assign(record, value); });
    scene.textsChanged(frame);
}

qsizetype lettersOf(const TextRecord& record) {
    if (const auto* line = std::get_if<TextLine>(&record)) {
        return line->Text.size();
    }
    const auto* item = std::get_if<TextItem>(&record);
    return item ? item->Text.size() : 0;
}

template <class List, class Item>
void take(List& list, qint32 position, std::optional<Item>& item) {
    item.reset();
    if (position <= list.Count()) {
        item = list.Item(position);
        list.Remove(position);
    }
}

template <class List, class Item>
void putBack(List& list, qint32 position, const std::optional<Item>& item) {
    if (item) {
        list.Insert(position, *item);
    }
}

}  // namespace

TextRecord textOf(const cFrame& frame, const TextId& id) {
    return withRecord(frame.Texts().Forecast(), id,
                      [](const auto& record) { return TextRecord(kept(record)); });
}

ChangeText::ChangeText(const char* name, qint32 frame, TextId id, TextRecord after, QString series)
    : Edit(name, Marks::Nothing, frame),
      id_(std::move(id)),
      after_(std::move(after)),
      series_(std::move(series)) {}

void ChangeText::apply(EditScene& scene) {
    before_ = textOf(scene.frame(frame()), id_);
    if (!isNothing()) {
        write(scene, frame(), id_, after_);
    }
}

void ChangeText::revert(EditScene& scene) {
    write(scene, frame(), id_, *before_);
}

bool ChangeText::isNothing() const {
    return before_ == after_;
}

bool ChangeText::absorb(const Edit& next) {
    const auto* change = dynamic_cast<const ChangeText*>(&next);
    if (!change || series_.isEmpty() || change->series_ != series_ || change->frame() != frame() ||
        change->id_ != id_) {
        return false;
    }
    after_ = change->after_;
    return true;
}

qsizetype ChangeText::bytes() const {
    const qsizetype letters = lettersOf(after_) + (before_ ? lettersOf(*before_) : 0);
    return Edit::bytes() + static_cast<qsizetype>(sizeof(ChangeText)) + 2 * letters;
}

namespace {

/// New items that bring a list to a length.
template <class Item, class List>
std::vector<Item> newItems(const List& list, qint32 length) {
    std::vector<Item> items;
    for (qint32 count = list.Count(); count < length; ++count) {
        Item item;
        item.textKey = list.issueKey();
        item.IndexFontSize = 1;
        items.push_back(std::move(item));
    }
    return items;
}

template <class List, class Item>
void append(List& list, const std::vector<Item>& items) {
    for (const Item& item : items) {
        list.Insert(list.Count() + 1, item);
    }
}

template <class List, class Item>
void remove(List& list, const std::vector<Item>& items) {
    for (const Item& item : items) {
        list.Remove(item.textKey);
    }
}

}  // namespace

AddElement::AddElement(const cFrame& frame, qint32 number)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Add element"), Marks::Nothing, number) {
    const cForecast& forecast = frame.Texts().Forecast();
    const qint32 length = std::max(forecast.Header().Count(), forecast.Body().Count()) + 1;
    headers_ = newItems<cHeaderAttribute>(forecast.Header(), length);
    bodies_ = newItems<cBodyAttribute>(forecast.Body(), length);
}

void AddElement::apply(EditScene& scene) {
    cForecast& forecast = scene.frame(frame()).Texts().Forecast();
    append(forecast.Header(), headers_);
    append(forecast.Body(), bodies_);
    scene.textsChanged(frame());
}

void AddElement::revert(EditScene& scene) {
    cForecast& forecast = scene.frame(frame()).Texts().Forecast();
    remove(forecast.Header(), headers_);
    remove(forecast.Body(), bodies_);
    scene.textsChanged(frame());
}

RemoveElement::RemoveElement(qint32 frame, qint32 position)
    : Edit(QT_TRANSLATE_NOOP("Edits", "Remove element"), Marks::Nothing, frame),
      position_(position) {}

void RemoveElement::apply(EditScene& scene) {
    cForecast& forecast = scene.frame(frame()).Texts().Forecast();
    take(forecast.Header(), position_, header_);
    take(forecast.Body(), position_, body_);
    scene.textsChanged(frame());
}

void RemoveElement::revert(EditScene& scene) {
    cForecast& forecast = scene.frame(frame()).Texts().Forecast();
    putBack(forecast.Header(), position_, header_);
    putBack(forecast.Body(), position_, body_);
    scene.textsChanged(frame());
}

qsizetype RemoveElement::bytes() const {
    const qsizetype letters =
        (header_ ? header_->Text.size() : 0) + (body_ ? body_->Text.size() : 0);
    return Edit::bytes() + static_cast<qsizetype>(sizeof(RemoveElement)) + 2 * letters;
}

}  // namespace nubivane
