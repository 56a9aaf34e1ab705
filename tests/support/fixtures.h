// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/settings_store.h"
#include "engine/model/editor.h"
#include "engine/model/editor_view.h"
#include "engine/model/workspace.h"
#include "support/scripted_shell.h"

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iosfwd>

/// Lets failed comparisons show texts instead of bytes.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);

namespace nubivane::testing {

/// Host path of a file under tests/.
QString testFile(const QString& relative);

QByteArray readFile(const QString& hostPath);
void writeFile(const QString& hostPath, const QByteArray& bytes);
/// Copies a folder with all that is in it.
void copyFolder(const QString& from, const QString& to);
/// Names of the sub-folders of a host folder, sorted.
QStringList folderNames(const QString& hostFolder);

/// An own, empty folder that vanishes with the object.
class TemporaryFolder {
  public:
    QString path() const { return folder_.path(); }
    QString file(const QString& name) const { return folder_.filePath(name); }

  private:
    QTemporaryDir folder_;
};

/// A view that writes down what it was asked, for tests of order.
class RecordingView : public EditorView {
  public:
    QStringList calls;
    QString caption;
    QStringList palette;  ///< folders of the collections last shown

    void setEnabled(bool enabled) override { calls << (enabled ? "enable" : "disable"); }
    void setCaption(const QString& text) override { caption = text; }
    void clearSelection() override { calls << "clearSelection"; }
    void unloadFrameSprites() override { calls << "unloadFrameSprites"; }
    void resetDrawing() override { calls << "resetDrawing"; }
    void rebuildPalette(const QStringList& folders) override {
        calls << "rebuildPalette";
        palette = folders;
    }
    void rebuildFrameTabs() override { calls << "rebuildFrameTabs"; }
    void showMap() override { calls << "showMap"; }
    void selectFirstFrame() override { calls << "selectFirstFrame"; }
    void refreshRecentFiles() override { calls << "refreshRecentFiles"; }
};

/// A workspace whose project a test may write as it likes, without edits.
class OpenWorkspace : public Workspace {
  public:
    using Workspace::Workspace;

    cFrames& Frames() { return Project->Frames(); }
    const cFrames& Frames() const { return Project->Frames(); }
};

/// A workspace in a program folder of its own, which holds the symbols set-1/sun.gif,
/// set-1/rain.gif, set-1/snow.gif and sea/wave.png, and with settings of its own.
class WorkspaceFixture : public ::testing::Test {
  protected:
    WorkspaceFixture();

    /// Host path and model path of something in the program folder.
    QString host(const QString& relative) const;
    QString model(const QString& relative) const;

    Editor editor() { return {workspace, shell, view}; }

    /// Writes a one-colour map of a size to "\Maps" and makes it the current one.
    void useMap(const QString& name, QSize size, Qt::GlobalColor color = Qt::blue);
    /// Opens a project (host path).
    void open(const QString& hostFile);

    TemporaryFolder temporary;
    SettingsStore settings;
    OpenWorkspace workspace;
    ScriptedShell shell;
    RecordingView view;
};

/// A one-colour picture.
QImage plainImage(QSize size, Qt::GlobalColor color);

}  // namespace nubivane::testing
