#pragma once

class QIODevice;

namespace nubivane {

/// Refuses XML that would cost a parser more than it is worth, before one sees it: tags with
/// hundreds of attributes (reading them takes quadratic time), elements nested hundreds deep, NUL
/// bytes, type declarations of the document's own, encodings in which tags are not ASCII. Raises
/// `Error` (DamagedProject). Leaves the device at its start.
void guardXml(QIODevice& device);

}  // namespace nubivane
