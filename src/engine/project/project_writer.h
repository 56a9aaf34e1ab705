// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <memory>
#include <vector>

namespace nubivane {

class Workspace;

/// The XML half of a project (XML 1.0 in UTF-8, no declaration, no line breaks between elements).
/// `sizes` holds the byte lengths of the data file's blocks: the map's and one for each Frame.
/// Characters that XML cannot hold are left out.
class ProjectWriter {
  public:
    ProjectWriter(const Workspace& workspace, const std::vector<qint64>& sizes);
    /// The sizes must outlive the writer.
    ProjectWriter(const Workspace& workspace, std::vector<qint64>&& sizes) = delete;
    ~ProjectWriter();

    /// Writes Frame `number`, counted from 1; to be called for each in turn.
    void writeFrame(qint32 number);

    /// Ends the document and returns it.
    QByteArray finish();

  private:
    class Document;
    const Workspace& workspace_;
    const std::vector<qint64>& sizes_;
    std::unique_ptr<Document> xml_;
};

}  // namespace nubivane
