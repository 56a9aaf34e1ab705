// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_changes.h"
#include "engine/project/save_project.h"
#include "support/project_snapshot.h"
#include "windows/canvas/canvas_fixture.h"
#include "windows/properties/record_door.h"

#include <QRandomGenerator>

#include <array>
#include <map>

namespace nubivane {

/// Random edits in every way that a person has, taken back and done again to random depths: each
/// time a state comes back, model, pixels, canvas and saved files must be what they were.
///
/// NUBIVANE_RANDOM_EDITS sets the number of steps, NUBIVANE_RANDOM_SEED the seed.
class RandomEdits : public testing::CanvasFixture {
  protected:
    struct State {
        QString project;
        QString canvas;
        QByteArray saved;
    };

    ~RandomEdits() override { workspace.ProjectChanged = false; }

    void run(quint32 seed, int steps) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random_.seed(seed);
        testing::writeFile(
            host("Maps/other.png"),
            encodePicture(testing::plainImage({460, 380}, Qt::yellow), PictureFormat::Png));
        start();
        remember();
        for (int step = 0; step < steps && !HasFailure(); ++step) {
            if (below(100) < 35) {
                travel();
            } else {
                edit();
            }
            remember();
            if (HasFailure()) {
                std::cerr << "failed at step " << step << " of seed " << seed << " after "
                          << last_.toStdString() << '\n';
            }
        }
    }

  private:
    int below(int limit) { return static_cast<int>(random_.bounded(limit)); }
    /// Inside the map, so that no control stands elsewhere than its sprite.
    QPoint somewhere() { return {60 + below(330), 60 + below(250)}; }
    ProjectEdits& edits() { return workspace.edits(); }

    void travel() {
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

    void edit() {
        static constexpr std::array ways = {
            &RandomEdits::place,     &RandomEdits::place,   &RandomEdits::dragOne,
            &RandomEdits::nudge,     &RandomEdits::resize,  &RandomEdits::deleteOne,
            &RandomEdits::copyPaste, &RandomEdits::clear,   &RandomEdits::frames,
            &RandomEdits::frames,    &RandomEdits::stroke,  &RandomEdits::stroke,
            &RandomEdits::figure,    &RandomEdits::text,    &RandomEdits::property,
            &RandomEdits::property,  &RandomEdits::special, &RandomEdits::save};
        const int way = below(static_cast<int>(ways.size()));
        last_ = QString("way %1").arg(way);
        (this->*ways[static_cast<std::size_t>(way)])();
    }

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
    void save() { edits().seal(); }

    /// Controls by who they are, since a visit of the Frame puts them in another order.
    QString canvasText() {
        QStringList rows;
        for (const SpriteControl* control : sprites().controls()) {
            const QRect& rect = control->rect;
            rows << QString("%1 %2 %3,%4 %5x%6")
                        .arg(static_cast<int>(control->id.kind))
                        .arg(control->id.key)
                        .arg(rect.x())
                        .arg(rect.y())
                        .arg(rect.width())
                        .arg(rect.height());
        }
        rows.sort();
        rows << window().tabs().caption(window().tabs().selected());
        return rows.join('\n');
    }
    QByteArray savedFiles() {
        workspace.Status.CurrentProject = model("random.nvpf");
        // A save keeps what a longer data file holds behind the new end.
        QFile::remove(host("random.nvpf"));
        QFile::remove(host("random.nvpx"));
        EXPECT_TRUE(saveProject({workspace, shell, window()}, false));
        restorePersistentLayer({workspace, shell, window()});
        return testing::readFile(host("random.nvpf")) + testing::readFile(host("random.nvpx"));
    }

    void remember() {
        if (HasFailure()) {
            return;
        }
        const quint64 number = edits().stateAfter(edits().index());
        const QString project = testing::snapshotOf(workspace);
        const qint32 shown = workspace.Status.CurrentFrame;
        const auto known = states_.find(number);
        if (known == states_.end()) {
            State& state = states_[number];
            state.project = project;
            state.canvas = canvasText();
            shown_[number] = shown;
            if (below(10) == 0) {
                state.saved = savedFiles();
            }
            return;
        }
        ASSERT_EQ(project, known->second.project);
        if (shown_[number] == shown) {
            ASSERT_EQ(canvasText(), known->second.canvas);
        }
        ASSERT_EQ(window().tabs().count(), workspace.Frames().Count());
        ASSERT_EQ(canvas().thumbnail(workspace.pctMap.pixels().size()).size(),
                  workspace.pctMap.pixels().size());
        if (!known->second.saved.isEmpty()) {
            ASSERT_TRUE(savedFiles() == known->second.saved) << "the saved files differ";
        }
    }

    QRandomGenerator random_;
    QString last_;
    std::map<quint64, State> states_;
    std::map<quint64, qint32> shown_;
};

TEST_F(RandomEdits, ComeBackAsTheyWereAtAnyDepth) {
    const int steps = qEnvironmentVariableIntValue("NUBIVANE_RANDOM_EDITS");
    const int seed = qEnvironmentVariableIntValue("NUBIVANE_RANDOM_SEED");
    const auto chosen =
        seed > 0 ? static_cast<quint32>(seed) : QRandomGenerator::global()->bounded(1U, 1'000'000U);
    std::cout << "seed " << chosen << '\n';
    run(chosen, steps > 0 ? steps : 250);
}

TEST_F(RandomEdits, OfAKnownSeedComeBackAsTheyWere) {
    run(4711, 250);
}

}  // namespace nubivane
