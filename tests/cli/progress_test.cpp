// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cli_fixture.h"

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

namespace nubivane::testing {

namespace {

/// A terminal of our own: the program gets one end, the test reads the other.
class Terminal {
  public:
    Terminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY)) {
        EXPECT_GE(master_, 0);
        EXPECT_EQ(::grantpt(master_), 0);
        EXPECT_EQ(::unlockpt(master_), 0);
        // Held open here as well, so that what was written waits until it is read.
        slave_ = ::open(::ptsname(master_), O_RDWR | O_NOCTTY);
        EXPECT_GE(slave_, 0);
    }
    ~Terminal() {
        ::close(slave_);
        ::close(master_);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    /// Makes it the standard error of a new process.
    std::function<void()> asStandardError() const {
        return [slave = slave_] { ::dup2(slave, STDERR_FILENO); };
    }

    /// All that was written so far.
    QByteArray written() const {
        ::fcntl(master_, F_SETFL, O_NONBLOCK);
        QByteArray text;
        char part[4096];
        for (ssize_t got = ::read(master_, part, sizeof part); got > 0;
             got = ::read(master_, part, sizeof part)) {
            text.append(part, got);
        }
        return text;
    }

  private:
    int master_;
    int slave_;
};

class Progress : public CliTest {};

}  // namespace

TEST_F(Progress, IsShownWhenStandardErrorIsATerminal) {
    const Terminal terminal;
    const ProcessResult result =
        run({"save", useSoundProject()}, {.inChild = terminal.asStandardError()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "");
    const QByteArray text = terminal.written();
    EXPECT_TRUE(text.contains("\r 10 %")) << text.toStdString();
    EXPECT_TRUE(text.contains("\r100 %")) << text.toStdString();
}

TEST_F(Progress, IsWipedAwayAtTheEnd) {
    const Terminal terminal;
    run({"save", useSoundProject()}, {.inChild = terminal.asStandardError()});
    EXPECT_TRUE(terminal.written().endsWith("\r      \r"));
}

TEST_F(Progress, IsWipedAwayBeforeAMessage) {
    const Terminal terminal;
    const ProcessResult result = run({"show", useProject("engine/project/defects/not-xml.nvpf")},
                                     {.inChild = terminal.asStandardError()});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(terminal.written().contains("\r      \rCannot open the specified file."));
}

TEST_F(Progress, DoesNotMixWithTheResult) {
    const Terminal terminal;
    const QString project = useSoundProject();
    const QByteArray plain = run({"show", project}).out;
    EXPECT_EQ(run({"show", project}, {.inChild = terminal.asStandardError()}).out, plain);
}

TEST_F(Progress, IsNotShownInAPipe) {
    const QString project = useSoundProject();
    for (const char* command : {"show", "save", "page"}) {
        EXPECT_EQ(run({command, project}).err, "") << command;
    }
}

}  // namespace nubivane::testing
