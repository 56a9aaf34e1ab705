// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/collections/symbol_files.h"

#include "engine/collections/entry_names.h"
#include "engine/collections/scan_collections.h"
#include "engine/core/error.h"
#include "engine/core/host_files.h"
#include "engine/core/path_text.h"
#include "engine/core/trash.h"
#include "engine/model/edits/project_edits.h"

namespace nubivane {

namespace {

/// The word "delete" serves the renaming of a collection too.
constexpr QLatin1String CollectionInUse(
    "Cannot delete: some symbols of the collection are currently used into the project.");

template <class Test>
bool anySymbol(const cFrames& frames, Test test) {
    for (qint32 i = 1; i <= frames.Count(); ++i) {
        for (const cSymbol& symbol : frames.Item(i).Sprites().Symbols()) {
            if (test(symbol)) {
                return true;
            }
        }
    }
    return false;
}

/// The collections after a look at the disk, where folders may have gone while a window was open.
cSymbolsCollections& collectionsOnDisk(Workspace& workspace) {
    cSymbolsCollections& collections = workspace.Status.SymbolsCollection();
    scanCollections(collections, workspace.folder);
    return collections;
}

}  // namespace

bool usesCollection(const cFrames& frames, const QString& folder) {
    return anySymbol(frames, [&folder](const cSymbol& symbol) {
        return getFolder(symbol.PathFileGif) == folder;
    });
}

bool usesSymbol(const cFrames& frames, const QString& file) {
    return anySymbol(frames, [&file](const cSymbol& symbol) { return symbol.PathFileGif == file; });
}

QString createCollection(Workspace& workspace) {
    const QString symbols = workspace.folder.symbols();
    cSymbolsCollections& collections = collectionsOnDisk(workspace);
    QString name = newCollectionName(symbols);
    if (name.isEmpty() || collections.contains(name)) {
        return {};
    }
    const QString path = symbols + u'\\' + name;
    try {
        host_files::makeFolder(path);
    } catch (const Error&) {
        return {};
    }
    collections.Add(path, name);
    collections.IsChanged = true;
    return name;
}

QString renameCollection(Workspace& workspace, const QString& key, const QString& newName) {
    cSymbolsCollections& collections = collectionsOnDisk(workspace);
    if (!collections.contains(key)) {
        return {};
    }
    const cSymbolsCollection& collection = collections.Item(key);
    const QString newPath = workspace.folder.symbols() + u'\\' + newName;
    if (newPath.toLower() == collection.Path.toLower()) {
        return {};
    }
    if (!isValidEntryName(newName)) {
        return QStringLiteral("Directory name not valid.");
    }
    if (host_files::folderExists(newPath)) {
        return QStringLiteral("A collection with the same name already exist.");
    }
    if (usesCollection(workspace.Frames(), collection.Path)) {
        return QLatin1String(CollectionInUse);
    }
    const QString oldPath = collection.Path;
    if (host_files::rename(oldPath, newName)) {
        const bool checked = collection.Checked;
        collections.Remove(key);
        collections.Add(newPath, newName).Checked = checked;
        collections.IsChanged = true;
        workspace.edits().renameFolder(oldPath, newPath);
    }
    return {};
}

QString deleteCollection(Workspace& workspace, const QString& key) {
    cSymbolsCollections& collections = collectionsOnDisk(workspace);
    if (!collections.contains(key)) {
        return {};
    }
    const QString path = collections.Item(key).Path;
    if (usesCollection(workspace.Frames(), path)) {
        return QLatin1String(CollectionInUse);
    }
    trash::discardFolder(path);
    if (!host_files::folderExists(path)) {
        collections.Remove(key);
    }
    collections.IsChanged = true;
    return {};
}

QString deleteSymbol(Workspace& workspace, const QString& file) {
    if (usesSymbol(workspace.Frames(), file)) {
        return QStringLiteral("Cannot delete: the symbol is currently used into the project.");
    }
    trash::discardFile(file);
    workspace.Status.SymbolsCollection().IsChanged = true;
    return {};
}

}  // namespace nubivane
