// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/frames.h"
#include "engine/project/project_document.h"

#include <QHash>
#include <QStringList>

class QXmlStreamAttributes;
class QXmlStreamReader;

namespace nubivane {

class ProgramFolder;

/// Reads `Frame` elements into the model, values by position. Used for all Frames of a document in
/// turn, so that a symbol file that many of them use is looked for once.
class FrameReader {
  public:
    FrameReader(QXmlStreamReader& xml, const ProgramFolder& folder, ProjectDocument& document);

    /// Reads the element on which the reader stands, appends its Frame to the model and returns its
    /// number. Raises `Error`; the model then keeps what was read so far.
    qint32 read();

  private:
    /// Reads the values that the current element holds as children.
    template <class Record>
    void readChildren(Record& record, QStringView element);
    template <class Items>
    void readTextItems(Items& items);
    void readSymbols(cSymbols& symbols);
    void readLabels(cLabels& labels);

    /// The texts of the current element's children, of which at least `needed` must be there.
    QStringList readChildTexts(qsizetype needed);
    QString readText();
    /// The full path of a symbol, empty when it has no file inside "\Symbols".
    QString findSymbol(const QString& relative);

    QXmlStreamReader& xml_;
    const ProgramFolder& folder_;
    ProjectDocument& document_;
    QHash<QString, QString> symbolPaths_;
    qint32 number_ = 0;
};

}  // namespace nubivane
