// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdio>
// Needs <cstdio> before it.
#include <jpeglib.h>

#include <array>
#include <csetjmp>

namespace nubivane {

/// Of a picture in colour: red, green and blue, or brightness and two of colour.
inline constexpr int JpegChannels = 3;

/// How libjpeg tells what is wrong with a file: it jumps out of its work at an error, and notes
/// what it can do without. Stays where it is while the library knows it.
class JpegErrors {
  public:
    JpegErrors();
    JpegErrors(const JpegErrors&) = delete;
    JpegErrors& operator=(const JpegErrors&) = delete;

    /// For the member `err` of the library's objects.
    jpeg_error_mgr* handler() { return &state_.handler; }

    /// Does some work with the library; false when it jumped out of it. Nothing with a destructor
    /// may live in there.
    template <class Work>
    bool survives(const Work& work) {
        if (setjmp(state_.giveUp)) {
            return false;
        }
        work();
        return true;
    }

    /// True when the file had fewer pixels than it claims, and grey was put in their place.
    bool dataMissing() const { return state_.dataMissing; }
    /// What the error was, in the library's words.
    QString cause() const { return QString::fromLatin1(state_.text.data()); }

  private:
    struct State {
        jpeg_error_mgr handler;  ///< first: the library hands it back by its address
        std::jmp_buf giveUp;
        std::array<char, JMSG_LENGTH_MAX> text;
        bool dataMissing;
    };

    static State& stateOf(j_common_ptr file);
    [[noreturn]] static void onError(j_common_ptr file);
    static void onWarning(j_common_ptr file, int level);

    State state_{};
};

}  // namespace nubivane
