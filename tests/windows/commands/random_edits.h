// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_changes.h"
#include "windows/canvas/canvas_fixture.h"
#include "windows/properties/record_door.h"

#include <QRandomGenerator>

#include <array>
#include <functional>

namespace nubivane::testing {

/// An editor that is driven at random, from a seed, in every way that a person has.
class RandomEditing : public CanvasFixture {
  protected:
    /// Builds the editor, with a project (model path) if one is given.
    void startRandom(quint32 seed, const QString& project = {}) {
        random_.seed(seed);
        writeFile(host("Maps/other.png"),
                  encodePicture(plainImage({460, 380}, Qt::yellow), PictureFormat::Png));
        start(project);
    }
    /// What was done last, for people who look for a failure.
    const QString& last() const { return last_; }

    void randomEdit() {
        static constexpr std::array ways = {
            &RandomEditing::place,     &RandomEditing::place,   &RandomEditing::dragOne,
            &RandomEditing::nudge,     &RandomEditing::resize,  &RandomEditing::deleteOne,
            &RandomEditing::copyPaste, &RandomEditing::clear,   &RandomEditing::frames,
            &RandomEditing::frames,    &RandomEditing::stroke,  &RandomEditing::stroke,
            &RandomEditing::figure,    &RandomEditing::text,    &RandomEditing::property,
            &RandomEditing::property,  &RandomEditing::special, &RandomEditing::leave};
        const int way = below(static_cast<int>(ways.size()));
        last_ = QString("way %1").arg(way);
        (this->*ways[static_cast<std::size_t>(way)])();
    }

    int below(int limit) { return static_cast<int>(random_.bounded(limit)); }
    /// Inside the map, so that no control stands elsewhere than its sprite.
    QPoint somewhere() { return {60 + below(330), 60 + below(250)}; }
    ProjectEdits& edits() { return workspace.edits(); }

    void randomTravel() {
        const int kind = below(3);
        last_ = QString("travel %1").arg(kind);
        if (kind == 0) {
            trigger("mnuUndo");
        } else if (kind == 1) {
            trigger("mnuRedo");
        } else {
            edits().goTo(below(edits().count() + 1));
        }
    }

  private:
    void place() {
        if (below(3) == 0) {
            placeLabel(somewhere());
        } else {
            placeSymbol(somewhere(), below(2) == 0 ? "sun.gif" : "rain.gif");
        }
    }
    /// Selects one of the controls, if there is any.
    SpriteControl* selectOne() {
        const auto& controls = sprites().controls();
        if (controls.empty()) {
            return nullptr;
        }
        SpriteControl* control =
            controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))];
        selection().clearSelection();
        selection().select(*control);
        return control;
    }
    void dragOne() {
        if (const SpriteControl* control = selectOne()) {
            const QPoint from = control->rect.center();
            selection().clearSelection();
            drag(from, somewhere());
        }
    }
    void nudge() {
        if (selectOne()) {
            for (int i = below(4); i >= 0; --i) {
                QTest::keyClick(&canvas(), Qt::Key_Right, Qt::ShiftModifier);
            }
        }
    }
    void resize() {
        const SpriteControl* control = selectOne();
        if (control && control->id.kind == SpriteKind::Symbol) {
            const QPoint corner = selection().shpSelector()->rect().bottomRight();
            drag(corner, corner + QPoint(below(40) - 10, below(40) - 10));
        }
    }
    void deleteOne() {
        if (selectOne()) {
            trigger("mnuDelSymbol");
        }
    }
    void copyPaste() {
        if (selectOne()) {
            trigger(below(2) == 0 ? "mnuCopy" : "mnuCut");
            if (below(2) == 0) {
                selectTab(1 + below(workspace.Frames().Count()));
            }
            trigger("mnuPaste");
        }
    }
    void clear() {
        const bool sprites = below(2) == 0;
        shell.expectMessage(sprites ? "Are you sure you want to delete all symbols in the map ?"
                                    : "Are you sure you want to clear map ?",
                            Icon::Question, Buttons::YesNo, Answer::Yes);
        trigger(sprites ? "mnuDelAllSymbols" : "mnuPulisci");
    }
    void frames() {
        const int count = workspace.Frames().Count();
        switch (below(6)) {
            case 0:
            case 1:
                if (count < 6) {
                    trigger("mnuFrameInsert");
                }
                break;
            case 2:
                trigger("mnuFrameRemove");
                break;
            case 3:
                window().tabs().frameMoved(1 + below(count), 1 + below(count));
                break;
            case 4:
                trigger("mnuMapRename");
                window().tabs().txtDay()->setText("Day" + QString::number(below(100)));
                QTest::keyClick(window().tabs().txtDay(), Qt::Key_Return);
                break;
            default:
                if (below(4) == 0) {
                    window().findChild<FrameCommands*>()->changeMap(
                        model(below(2) == 0 ? "Maps/other.png" : "Maps/europe.jpg"));
                } else {
                    selectTab(1 + below(count));
                }
        }
    }
    void withTool(Tool tool, const std::function<void()>& use) {
        window().canvas().drawing().chooseTool(static_cast<std::size_t>(tool));
        use();
        window().canvas().drawing().chooseTool(0);
    }
    /// A place of the map that no sprite covers.
    QPoint bare() {
        for (int i = 0; i < 50; ++i) {
            const QPoint point = somewhere();
            if (!sprites().at(point)) {
                return point;
            }
        }
        return {3, 3};
    }
    void stroke() {
        withTool(below(3) == 0 ? Tool::erase : Tool::draw, [this] { drag(bare(), somewhere()); });
    }
    void figure() {
        static constexpr std::array tools = {Tool::line, Tool::curvy, Tool::circle, Tool::poly};
        withTool(tools[static_cast<std::size_t>(below(4))], [this] {
            click(bare());
            click(bare());
            window().canvas().drawing().DrawApply();
        });
    }
    void text() {
        const auto title = textDoor<TextLine>(
            workspace, {below(2) == 0 ? TextPart::Title : TextPart::Subtitle}, "Change title");
        for (int i = below(3); i >= 0; --i) {
            title.change("text", [&](TextLine& line) { line.Text = QString::number(below(1000)); });
        }
        const qint32 number = workspace.Status.CurrentFrame;
        const qint32 elements = frame(number).Texts().Forecast().Header().Count();
        if (below(2) == 0) {
            edits().push(std::make_unique<AddElement>(frame(number), number));
        } else if (elements > 0) {
            edits().push(std::make_unique<RemoveElement>(number, 1 + below(elements)));
        }
        edits().seal();
    }
    void property() {
        const SpriteControl* control = selectOne();
        if (!control) {
            return;
        }
        if (control->id.kind == SpriteKind::Label) {
            changeSprite<cLabel>(workspace, control->id, "Change label text", "text",
                                 [&](cLabel& label) {
                                     label.Text = QString::number(below(100000));
                                     label.Font.Size = 8 + below(10);
                                     label.BackColor = below(2) == 0 ? -1 : 255;
                                 });
        } else {
            changeSprite<cSymbol>(
                workspace, control->id, "Change symbol", "all", [&](cSymbol& symbol) {
                    symbol.Note = QString::number(below(100));
                    symbol.PathFileGif =
                        model(below(2) == 0 ? "Symbols/set-1/snow.gif" : "Symbols/set-1/sun.gif");
                });
        }
    }
    void special() {
        const int count = workspace.Frames().Count();
        window().findChild<CopySpecial*>()->copyBetweenFrames(
            QString("%1|%2|%3").arg(1 + below(count)).arg(1 + below(count)).arg(below(2)));
    }
    void leave() { edits().seal(); }

    QRandomGenerator random_;
    QString last_;
};

}  // namespace nubivane::testing
