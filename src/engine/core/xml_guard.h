// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

class QIODevice;

namespace nubivane {

/// What makes XML cost a parser more than it is worth, found before one sees it: tags with
/// hundreds of attributes (reading them takes quadratic time), elements nested hundreds deep, NUL
/// bytes, type declarations of the document's own, encodings in which tags are not ASCII. Nothing
/// when the document may be parsed, which then stands at its start.
[[nodiscard]] std::optional<QString> xmlFault(QIODevice& device);

}  // namespace nubivane
