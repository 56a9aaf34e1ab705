// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "engine/model/forecast.h"

#include <variant>
#include <vector>

namespace nubivane {

class cFrame;

/// A part of a Frame's forecast text that has a record of its own.
enum class TextPart { Box, Title, Subtitle, Header, Body };

/// Which record: for header and body the item's key, else no key.
struct TextId {
    TextPart part;
    QString key = {};

    friend bool operator==(const TextId&, const TextId&) = default;
};

using TextRecord = std::variant<cDiv, TextLine, TextItem>;

/// Raises `Error` where there is no such item.
TextRecord textOf(const cFrame& frame, const TextId& id);

/// A record of a forecast text that is another one. Changes of one property in a row are one edit:
/// those with the same series.
class ChangeText : public Edit {
  public:
    ChangeText(const char* name, qint32 frame, TextId id, TextRecord after, QString series = {});

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    bool isNothing() const override;
    bool absorb(const Edit& next) override;
    qsizetype bytes() const override;

  private:
    TextId id_;
    std::optional<TextRecord> before_;
    TextRecord after_;
    QString series_;
};

/// A new element below the others: a header item and a body item. It begins at the same position in
/// both lists, so the shorter one is filled up.
class AddElement : public Edit {
  public:
    AddElement(const cFrame& frame, qint32 number);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;

  private:
    std::vector<cHeaderAttribute> headers_;
    std::vector<cBodyAttribute> bodies_;
};

/// The element of a position goes, as far as header and body have one.
class RemoveElement : public Edit {
  public:
    RemoveElement(qint32 frame, qint32 position);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    qsizetype bytes() const override;

  private:
    qint32 position_;
    std::optional<cHeaderAttribute> header_;
    std::optional<cBodyAttribute> body_;
};

}  // namespace nubivane
