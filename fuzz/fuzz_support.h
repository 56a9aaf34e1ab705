// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/core/program_folder.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

/// What the fuzz targets share.
namespace nubivane::fuzz {

/// A program folder of its own with the Symbols "set-1\sun.gif" and "set-1\rain.gif", so that
/// documents find some of the files that they name.
class TemporaryProgram {
  public:
    TemporaryProgram();

    ProgramFolder folder() const;
    QString settingsFile() const { return directory_.filePath("settings.ini"); }

  private:
    QTemporaryDir directory_;
};

/// The fuzzer's bytes without a copy, so that reading behind their end is found.
QByteArray inputBytes(const std::uint8_t* data, std::size_t size);

/// Makes a broken promise a crash: prints `promise` and aborts unless `kept`.
void require(bool kept, const char* promise);

}  // namespace nubivane::fuzz
