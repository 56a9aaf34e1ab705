// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/save_project.h"
#include "support/project_snapshot.h"
#include "windows/commands/random_edits.h"

#include <map>

namespace nubivane {

/// Random edits in every way that a person has, taken back and done again to random depths: each
/// time a state comes back, model, pixels, canvas and saved files must be what they were.
///
/// NUBIVANE_RANDOM_EDITS sets the number of steps, NUBIVANE_RANDOM_SEED the seed.
class RandomEdits : public testing::RandomEditing {
  protected:
    struct State {
        QString project;
        QString canvas;
        QByteArray saved;
    };

    ~RandomEdits() override { workspace.ProjectChanged = false; }

    void run(quint32 seed, int steps) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        startRandom(seed);
        remember();
        for (int step = 0; step < steps && !HasFailure(); ++step) {
            if (below(100) < 35) {
                randomTravel();
            } else {
                randomEdit();
            }
            remember();
            if (HasFailure()) {
                std::cerr << "failed at step " << step << " of seed " << seed << " after "
                          << last().toStdString() << '\n';
            }
        }
    }

  private:
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
