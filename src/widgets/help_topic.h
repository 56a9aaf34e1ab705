#pragma once

#include <QString>

namespace nubivane {

class Shell;
class Workspace;

/// Shows a topic of the help file, such as "index.htm": the page itself where it lies beside the
/// compiled file, otherwise that file. Where there is neither, a box says `notFound`.
void openHelpTopic(const Workspace& workspace, Shell& shell, const QString& topic,
                   const QString& notFound = QStringLiteral("Help not found."));

}  // namespace nubivane
