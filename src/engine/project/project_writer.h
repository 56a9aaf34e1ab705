// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/frames.h"

#include <QByteArray>
#include <QStringList>

#include <memory>
#include <vector>

namespace nubivane {

class Workspace;

/// What a document says before its Frames.
struct DocumentHead {
    QString map;              ///< file name
    QStringList collections;  ///< names of those that are checked

    bool operator==(const DocumentHead&) const = default;
};
DocumentHead headOf(const Workspace& workspace);

/// What a document says of a Frame, by value.
struct FrameRecords {
    QString label;
    cDiv div;
    cTitle title;
    cSubtitle subtitle;
    std::vector<cHeaderAttribute> header;
    std::vector<cBodyAttribute> body;
    std::vector<cSymbol> symbols;
    std::vector<cLabel> labels;
};
FrameRecords recordsOf(const cFrame& frame);

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
    const Workspace& workspace_;
    const std::vector<qint64>& sizes_;
    std::unique_ptr<class DocumentText> xml_;
};

/// A Frame's element without what depends on its place and its picture, for those who put documents
/// together of parts that were written at different times.
QByteArray frameText(const FrameRecords& frame);
/// The document of such parts: the very bytes that a `ProjectWriter` makes. `sizes` as above.
QByteArray joinDocument(const DocumentHead& head, const std::vector<qint64>& sizes,
                        const std::vector<QByteArray>& frameTexts);

}  // namespace nubivane
