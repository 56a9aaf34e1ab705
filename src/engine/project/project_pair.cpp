// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/project/project_pair.h"

#include "engine/core/replaced_file.h"
#include "engine/project/interrupted_save.h"
#include "engine/project/project_error.h"

#include <chrono>
#include <optional>
#include <thread>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QFile> openPart(const QString& path) {
    auto file = std::make_unique<QFile>();
    QString reason;
    if (!openOrdinary(*file, path, reason)) {
        throw damagedProject(path + u": "_s + reason);
    }
    return file;
}

/// One look at the pair. Nothing when somebody changed it meanwhile.
class Look {
  public:
    Look(const QString& project, const QString& data)
        : project_(project),
          data_(data),
          before_(pairStateOf(project, data)),
          document_(completeInterruptedSave(project, data)) {}

    std::optional<ProjectPair> take() {
        ProjectPair pair{openPart(document_), openPart(data_), pairStateOf(project_, data_)};
        if (changed() || !(fileStateOf(*pair.document) == fileStateOf(document_)) ||
            !(fileStateOf(*pair.data) == pair.state.data)) {
            return std::nullopt;
        }
        if (document_ == project_ && isObsolete(*pair.document, pair.state.data)) {
            throw damagedProject(
                u"the project file is older than its pictures: a save was interrupted, and what it left has been removed"_s);
        }
        return pair;
    }

    /// A save changes the data file before the project file, and completing one only the latter.
    bool changed() const {
        const PairState now = pairStateOf(project_, data_);
        return !(now.data == before_.data) ||
               (document_ == project_ ? !(now.project == before_.project)
                                      : !fileStateOf(document_).exists());
    }

  private:
    QString project_;
    QString data_;
    PairState before_;
    QString document_;  ///< the project file, or the one that waits to take its place
};

}  // namespace

PairState pairStateOf(const QString& hostProjectFile, const QString& hostDataFile) {
    return {fileStateOf(hostProjectFile), fileStateOf(hostDataFile)};
}

ProjectPair openProjectPair(const QString& hostProjectFile, const QString& hostDataFile) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::seconds Patience{10};
    constexpr std::chrono::milliseconds Pause{5};
    const QString project = behindLinks(hostProjectFile);
    const QString data = behindLinks(hostDataFile);
    const Clock::time_point end = Clock::now() + Patience;
    while (Clock::now() < end) {
        Look look(project, data);
        try {
            if (auto pair = look.take()) {
                return std::move(*pair);
            }
        } catch (const Error&) {
            if (!look.changed()) {
                throw;
            }
        }
        std::this_thread::sleep_for(Pause);
    }
    throw damagedProject(project + u": other programs write it all the time"_s);
}

}  // namespace nubivane
