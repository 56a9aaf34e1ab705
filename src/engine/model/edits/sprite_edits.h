// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/edit.h"
#include "engine/model/sprites.h"

#include <memory>
#include <utility>
#include <vector>

namespace nubivane {

class cFrame;

/// The name of a record's sprite.
SpriteId idOf(const SpriteRecord& record);
/// The record of a sprite of a Frame. Raises `Error` where there is none.
SpriteRecord recordOf(const cFrame& frame, const SpriteId& id);

/// A sprite that comes onto a Frame, above the others of its kind.
class AddSprite : public Edit {
  public:
    /// The record gets its key here, so that the caller knows it.
    AddSprite(const char* name, Marks marks, const cFrame& frame, qint32 number,
              SpriteRecord record, Arrival arrival);

    const SpriteId& id() const { return id_; }

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {frame(), id_}; }
    EditPlace placeBefore() const override { return {frame(), std::nullopt}; }
    qsizetype bytes() const override;
    void renameFolder(const QString& from, const QString& to) override;

  private:
    SpriteRecord record_;
    SpriteId id_;
    Arrival arrival_;
};

/// A sprite that leaves its Frame.
class RemoveSprite : public Edit {
  public:
    RemoveSprite(const char* name, Marks marks, qint32 frame, SpriteId id,
                 std::optional<int> depth = {});

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {frame(), std::nullopt}; }
    EditPlace placeBefore() const override { return {frame(), id_}; }
    qsizetype bytes() const override;
    void renameFolder(const QString& from, const QString& to) override;

  private:
    SpriteId id_;
    std::optional<int> depth_;
    std::optional<SpriteRecord> record_;
    qint32 position_ = 0;
};

/// A sprite whose record is another one. Changes of one property in a row are one edit: those with
/// the same series.
class ChangeSprite : public Edit {
  public:
    /// `after` bears the key of the sprite that it is for. An empty series stands alone.
    ChangeSprite(const char* name, Marks marks, qint32 frame, SpriteRecord after,
                 QString series = {});

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override { return {frame(), idOf(after_)}; }
    bool isNothing() const override;
    bool absorb(const Edit& next) override;
    qsizetype bytes() const override;
    void renameFolder(const QString& from, const QString& to) override;

  private:
    std::optional<SpriteRecord> before_;
    SpriteRecord after_;
    QString series_;
};

/// All sprites of one Frame or of two that give way to others.
class ReplaceSprites : public Edit {
  public:
    struct Sprites {
        std::vector<cSymbol> symbols;
        std::vector<cLabel> labels;
    };
    struct Row {
        qint32 frame;
        Sprites after;
        Sprites before = {};
    };

    ReplaceSprites(const char* name, Marks marks, std::vector<Row> rows);

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    bool isNothing() const override;
    qsizetype bytes() const override;
    void renameFolder(const QString& from, const QString& to) override;

  private:
    std::vector<Row> rows_;
    bool applied_ = false;
};

/// Several edits that are one for the person; done in order, taken back in the other. Groups with
/// one series in a row are one edit, where each of their edits continues its like.
class EditGroup : public Edit {
  public:
    EditGroup(const char* name, Marks marks, qint32 frame, QString series = {})
        : Edit(name, marks, frame), series_(std::move(series)) {}
    void add(std::unique_ptr<Edit> edit) { edits_.push_back(std::move(edit)); }

    void apply(EditScene& scene) override;
    void revert(EditScene& scene) override;
    EditPlace placeAfter() const override;
    EditPlace placeBefore() const override;
    bool isNothing() const override;
    bool absorb(const Edit& next) override;
    qsizetype bytes() const override;
    void renameFolder(const QString& from, const QString& to) override;

  private:
    std::vector<std::unique_ptr<Edit>> edits_;
    QString series_;
};

}  // namespace nubivane
