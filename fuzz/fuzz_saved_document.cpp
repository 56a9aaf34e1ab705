// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/scan_collections.h"
#include "engine/core/settings_store.h"
#include "engine/model/workspace.h"
#include "engine/project/project_document.h"
#include "engine/project/project_writer.h"
#include "fuzz_support.h"

#include <QBuffer>

#include <utility>
#include <vector>

using namespace nubivane;

namespace {

ProjectDocument read(const QByteArray& xml, const ProgramFolder& folder) {
    QBuffer buffer;
    buffer.setData(xml);
    buffer.open(QIODevice::ReadOnly);
    return readProjectDocument(buffer, folder);
}

/// Puts a document into the workspace as opening does, and writes it as saving does.
QByteArray save(Workspace& workspace, ProjectDocument document) {
    workspace.Status.CurrentMap = workspace.folder.maps() + u'\\' + document.map;
    workspace.Project = std::move(document.model);
    for (cSymbolsCollection& collection : workspace.Status.SymbolsCollection()) {
        collection.Checked = document.collections.contains(collection.Name);
    }
    const qint32 frames = workspace.Frames().Count();
    const std::vector<qint64> sizes(static_cast<std::size_t>(frames) + 1, 7);
    ProjectWriter writer(workspace, sizes);
    for (qint32 i = 1; i <= frames; ++i) {
        writer.writeFrame(i);
    }
    return writer.finish();
}

}  // namespace

/// The input is a ".nvpf" document. Whatever can be opened, even with damage, can be saved, and
/// what is saved can be opened again without loss.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryProgram program;
    static SettingsStore settings(program.settingsFile());
    static Workspace workspace(program.folder(), settings);
    static const bool scanned = [] {
        scanCollections(workspace.Status.SymbolsCollection(), workspace.folder);
        return true;
    }();
    fuzz::require(scanned, "the collections are there");

    QByteArray first;
    try {
        first = save(workspace, read(fuzz::inputBytes(data, size), workspace.folder));
    } catch (const Error&) {
        return 0;  // not a project at all
    }
    QByteArray saved = first;
    // Three flags of a Label change places at each opening: after three they are back.
    for (int round = 0; round < 3; ++round) {
        ProjectDocument again = read(saved, workspace.folder);
        fuzz::require(!again.damage, "a saved document has no damage");
        fuzz::require(!again.missingSymbols, "a saved document names files that were found");
        saved = save(workspace, std::move(again));
    }
    fuzz::require(saved == first, "a saved document comes back as it was");
    return 0;
}
