// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace nubivane {

class Shell;
class Workspace;

/// Shows a topic of the help file, such as "index.htm". Where there is no help file, or no such
/// topic in it, a box says `notFound`.
void openHelpTopic(const Workspace& workspace, Shell& shell, const QString& topic,
                   const QString& notFound = {});

/// The topic that tells about a window, by the window's object name; empty for one without any.
QString helpTopicOf(const QString& window);

}  // namespace nubivane
