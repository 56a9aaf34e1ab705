// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <exception>

namespace nubivane {

/// Numbers by which a caller tells failures apart.
namespace error_number {
inline constexpr int DamagedProject = -100;
inline constexpr int UnsupportedVersion = -200;
inline constexpr int UploadStopped = -100;
inline constexpr int UnsupportedFormat = -1001;  ///< a picture file's name ends in no known format
inline constexpr int InvalidArgument = 5;        ///< an unknown key of a list or table
inline constexpr int OutOfRange = 9;             ///< a position outside a list
inline constexpr int TypeMismatch = 13;          ///< a text that is no number where one is needed
inline constexpr int FileNotFound = 53;
inline constexpr int FileAccess = 75;       ///< reading or writing failed
inline constexpr int InvalidPicture = 481;  ///< bytes that are no picture, or one beyond our limits
inline constexpr int InvalidVideo = 482;    ///< the encoder refused
}  // namespace error_number

/// A failure of the engine.
///
/// Carries what a window shows (`description`), who raised it (`source`) and, for the command line
/// and reports, what lay behind it (`cause`: a path, the system's reason).
class Error : public std::exception {
  public:
    Error(int number, QString source, QString description, QString cause = {});

    int number() const { return number_; }
    const QString& source() const { return source_; }
    const QString& description() const { return description_; }
    const QString& cause() const { return cause_; }

    /// The description with its cause, in UTF-8.
    const char* what() const noexcept override { return what_.constData(); }

  private:
    int number_;
    QString source_;
    QString description_;
    QString cause_;
    QByteArray what_;
};

/// Raises the `Error` (FileAccess) of a file that cannot be written, and why.
[[noreturn]] void failToWrite(const QString& source, const QString& path, const QString& reason);

}  // namespace nubivane
