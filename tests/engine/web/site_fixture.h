// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/site_files.h"
#include "support/fixtures.h"

#include <QDir>
#include <QDirIterator>

#include <functional>

namespace nubivane::testing {

/// A workspace with a project of bare Frames, and what `createPage` leaves in its program folder.
class SiteTest : public WorkspaceFixture {
  protected:
    /// A project of `count` empty Frames on a map.
    void useFrames(int count, const QString& map = "blue.jpg") {
        useMap(map, {60, 40});
        while (workspace.Frames().Count() < count) {
            workspace.Frames().Add();
        }
        while (workspace.Frames().Count() > count) {
            workspace.Frames().Remove(workspace.Frames().Count());
        }
        workspace.clearTempPicture();
    }

    QByteArray mapBytes() const { return readFile(host("Maps/blue.jpg")); }
    QByteArray pageImage(int frame) const {
        return readFile(host(QStringLiteral("Web/Forecast%1.jpg").arg(frame)));
    }

    QStringList webFiles() const {
        return QDir(host("Web")).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    /// Every file under a folder, its path relative to it.
    static QStringList filesUnder(const QString& folder) {
        QStringList files;
        QDirIterator entries(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            files += QDir(folder).relativeFilePath(entries.next());
        }
        files.sort();
        return files;
    }

    /// Makes a folder under a name that a file is going to need.
    void block(const QString& relative) { writeFile(host(relative + "/in-the-way"), "x"); }
};

/// A shell that lets a test look around at the moment the browser is opened.
class WatchingShell : public ScriptedShell {
  public:
    std::function<void()> atOpening;

    void openInBrowser(const QString& hostFile) override {
        ScriptedShell::openInBrowser(hostFile);
        if (atOpening) {
            atOpening();
        }
    }
};

}  // namespace nubivane::testing
