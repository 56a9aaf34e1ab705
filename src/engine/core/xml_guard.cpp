// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/xml_guard.h"

#include <QIODevice>
#include <QRegularExpression>

#include <array>
#include <string_view>

namespace nubivane {

namespace {

constexpr int MaxAttributes = 200;  // a Label, the largest element, has 17
constexpr int MaxDepth = 200;       // a project is 6 levels deep

/// Leaves the walk at the first fault.
struct Refusal {
    const char* cause;
};

[[noreturn]] void refuse(const char* cause) {
    throw Refusal{cause};
}

/// Walks the bytes of a document and counts; what is not well-formed it leaves to the parser.
class TagCounter {
  public:
    void feed(char c) {
        if (c == '\0') {
            refuse("the XML document holds a NUL byte");
        }
        switch (state_) {
            case State::Text:
                if (c == '<') {
                    state_ = State::Opened;
                }
                break;
            case State::Opened:
                opened(c);
                break;
            case State::Tag:
                insideTag(c);
                break;
            case State::Quoted:
                if (c == quote_) {
                    state_ = State::Tag;
                }
                break;
            case State::Other:
                insideOther(c);
                break;
        }
        last_ = c;
    }

  private:
    enum class State { Text, Opened, Tag, Quoted, Other };

    void opened(char c) {
        if (c == '!' || c == '?') {
            state_ = State::Other;
            start_ = {c};
            startSize_ = 1;
            before_ = {};
        } else if (c == '/') {
            --depth_;
            state_ = State::Text;
        } else {
            state_ = State::Tag;
            attributes_ = 0;
        }
    }

    void insideTag(char c) {
        if (c == '"' || c == '\'') {
            quote_ = c;
            state_ = State::Quoted;
        } else if (c == '=' && ++attributes_ > MaxAttributes) {
            refuse("an XML element has too many attributes");
        } else if (c == '>') {
            state_ = State::Text;
            if (last_ != '/' && ++depth_ > MaxDepth) {
                refuse("the XML elements are nested too deep");
            }
        }
    }

    /// Comments, CDATA sections and instructions end by marks of their own, since they may hold
    /// any tag.
    void insideOther(char c) {
        if (startSize_ < start_.size()) {
            start_[startSize_++] = c;
        }
        const std::string_view start(start_.data(), startSize_);
        const bool instruction = start.starts_with('?');
        const bool comment = start.starts_with("!--");
        const bool section = start.starts_with("![");
        if (c == '[' && start.starts_with("!D")) {
            refuse("the XML document declares its own types");
        }
        if (c == '>' && (instruction ? before_[1] == '?'
                         : comment   ? before_[0] == '-' && before_[1] == '-' && startSize_ == 5
                         : section   ? before_[0] == ']' && before_[1] == ']'
                                     : true)) {
            state_ = State::Text;
        }
        before_ = {before_[1], c};
    }

    State state_ = State::Text;
    char quote_ = 0;
    char last_ = 0;
    std::array<char, 5> start_{};  ///< the first bytes of a comment, section or instruction
    std::size_t startSize_ = 0;
    std::array<char, 2> before_{};  ///< the two bytes before the current one in it
    int attributes_ = 0;
    int depth_ = 0;
};

/// The counter knows encodings whose tags are plain ASCII; a parser knows many more.
void refuseStrangeEncoding(const QByteArray& start) {
    static const QRegularExpression declared(
        QStringLiteral("^(\\xEF\\xBB\\xBF)?<\\?xml[^>]*encoding\\s*=\\s*[\"']([^\"']*)"));
    static const QRegularExpression known(
        QStringLiteral("^(utf-8|us-ascii|iso-8859-\\d+|windows-125\\d)$"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = declared.match(QString::fromLatin1(start));
    if (match.hasMatch() && !known.match(match.captured(2)).hasMatch()) {
        refuse("the XML document has an unknown encoding");
    }
}

}  // namespace

std::optional<QString> xmlFault(QIODevice& device) try {
    refuseStrangeEncoding(device.peek(1024));
    TagCounter counter;
    while (!device.atEnd()) {
        const QByteArray chunk = device.read(1 << 16);
        if (chunk.isEmpty()) {
            break;
        }
        for (const char c : chunk) {
            counter.feed(c);
        }
    }
    device.seek(0);
    return std::nullopt;
} catch (const Refusal& refusal) {
    return QString::fromLatin1(refusal.cause);
}

}  // namespace nubivane
