// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace nubivane {

class EditorView;
class Shell;
class Workspace;

/// What a command on projects works with: what is open, the person, the window.
struct Editor {
    Workspace& workspace;
    Shell& shell;
    EditorView& view;
};

}  // namespace nubivane
