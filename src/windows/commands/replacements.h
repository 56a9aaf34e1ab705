// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/workspace.h"

#include <QString>
#include <QStringList>

namespace nubivane {

/// Replacing one thing by another in all Frames of a project. Each does so by one edit and returns
/// in how many places; 0 where there was nothing to replace, and then there is no edit.

/// A text within the texts of Labels. A Label that would be left with blanks alone stays.
int replaceLabelText(Workspace& workspace, const QString& find, const QString& replacement,
                     Qt::CaseSensitivity letters);
/// The picture of Symbols; full paths, which are compared without regard to case. Sizes stay.
int replacePicture(Workspace& workspace, const QString& from, const QString& to);
/// The font of Labels and of forecast texts, by its name.
int replaceFont(Workspace& workspace, const QString& from, const QString& to);

/// What there is to be replaced: each once, in order.
QStringList picturesOf(const Workspace& workspace);
QStringList fontsOf(const Workspace& workspace);

}  // namespace nubivane
