// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/error.h"
#include "engine/model/frames.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QIODevice;

namespace nubivane {

class ProgramFolder;

/// What the XML half of a project says.
struct ProjectDocument {
    qint32 frames = 0;                ///< blocks claimed, not counting the map's; may be any number
    QString map;                      ///< file name, a plain name
    QHash<qint32, qint32> sizes;      ///< bytes of block i; block 0 is the map
    QStringList collections;          ///< names of the checked collections
    std::unique_ptr<cWrapper> model;  ///< the Frames as far as they could be read
    bool missingSymbols = false;      ///< Symbols without a file were dropped
    std::optional<Error> damage;      ///< what stopped the reading of the Frames
};

/// Reads a ".nvpf" document (XML 1.0). Attributes and child elements are taken by position.
///
/// Raises `Error` with UnsupportedVersion or DamagedProject when nothing of the project can be
/// used; damage found later, inside the Frames, is told in the result, since an open project is by
/// then replaced by what was read. Takes no more memory than the model it builds. `progress` is
/// told after each Frame which part of all its number is, from 0 to 1.
ProjectDocument readProjectDocument(QIODevice& xml, const ProgramFolder& folder,
                                    const std::function<void(double part)>& progress = {});

/// A longer document is neither read nor written, bytes: room for a hundred thousand sprites; the
/// model takes some three times as much.
inline constexpr qint64 MaxDocumentBytes = qint64{64} * 1024 * 1024;

}  // namespace nubivane
