// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/error.h"

#include "engine/core/sentence.h"

#include <utility>

namespace nubivane {

using namespace Qt::StringLiterals;

Error::Error(int number, QString source, QString description, QString cause)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      cause_(std::move(cause)) {
    const QString full =
        cause_.isEmpty() ? description_ : sentence(description_) + u" "_s + sentence(cause_);
    what_ = full.toUtf8();
}

void failToWrite(const QString& source, const QString& path, const QString& reason) {
    throw Error(error_number::FileAccess, source, u"Cannot write the file."_s,
                path + u": "_s + reason);
}

}  // namespace nubivane
