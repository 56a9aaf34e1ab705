// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/arguments.h"

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

/// Wrong usage, told in one line.
struct UsageError {
    QString text;
};

/// The words of a command line, taken one by one.
class Words {
  public:
    explicit Words(QStringList words) : words_(std::move(words)) {}

    bool isEmpty() const { return words_.isEmpty(); }
    QString take() { return words_.takeFirst(); }
    QString peek() const { return words_.isEmpty() ? QString() : words_.first(); }

    QString takeValueOf(const QString& option) {
        if (words_.isEmpty()) {
            throw UsageError{option + u" needs a value"_s};
        }
        return take();
    }

  private:
    QStringList words_;
};

const Command* findCommand(Words& words) {
    const QString first = words.take();
    for (const Command& command : commands()) {
        if (first == QLatin1String(command.name)) {
            return &command;
        }
        if (first + u' ' + words.peek() == QLatin1String(command.name)) {
            words.take();
            return &command;
        }
    }
    throw UsageError{u"unknown command \""_s +
                     (words.isEmpty() ? first : first + u' ' + words.peek()) + u'"'};
}

const CommandOption& findOption(const Command& command, const QString& name) {
    for (const CommandOption& option : command.options) {
        if (name == QLatin1String(option.name)) {
            return option;
        }
    }
    throw UsageError{u"\""_s + QLatin1String(command.name) + u"\" has no option "_s + name};
}

void checkValue(const CommandOption& option, const QString& value) {
    const QString allowed = QLatin1String(option.value);
    if (allowed.contains(u'|') && !allowed.split(u'|').contains(value)) {
        throw UsageError{QLatin1String(option.name) + QStringLiteral(" takes ") + allowed +
                         u", not \""_s + value + u'"'};
    }
}

/// Options may stand anywhere behind the command; after "--" everything is an argument.
void parseCommand(Words& words, Arguments& result) {
    result.command = findCommand(words);
    bool onlyArguments = false;
    while (!words.isEmpty()) {
        const QString word = words.take();
        if (onlyArguments || !word.startsWith(QLatin1String("--"))) {
            result.arguments += word;
        } else if (word == u"--") {
            onlyArguments = true;
        } else if (word == u"--help") {
            result.request = Arguments::Request::Help;
            return;
        } else {
            const CommandOption& option = findOption(*result.command, word);
            const bool takesValue = *option.value != '\0';
            const QString value = takesValue ? words.takeValueOf(word) : QString();
            checkValue(option, value);
            result.options.insert(word, value);
        }
    }
    const qsizetype count = result.arguments.size();
    if (count < result.command->minArguments || count > result.command->maxArguments) {
        throw UsageError{u"\""_s + QLatin1String(result.command->name) + u"\" takes "_s +
                         QLatin1String(result.command->arguments)};
    }
}

Arguments parse(Words words) {
    Arguments result;
    while (!words.isEmpty()) {
        if (words.peek() == u"--help") {
            result.request = Arguments::Request::Help;
            return result;
        }
        if (words.peek() == u"--version") {
            result.request = Arguments::Request::Version;
            return result;
        }
        if (words.peek() == u"--program-folder") {
            words.take();
            result.programFolder = words.takeValueOf(u"--program-folder"_s);
        } else if (words.peek() == u"--settings") {
            words.take();
            result.settingsFile = words.takeValueOf(u"--settings"_s);
        } else if (words.peek().startsWith(u'-')) {
            throw UsageError{u"unknown option "_s + words.peek()};
        } else {
            parseCommand(words, result);
            return result;
        }
    }
    throw UsageError{u"a command is needed"_s};
}

/// A command with its arguments and options, in lines that fit a terminal.
QString usageOf(const Command& command) {
    constexpr qsizetype widest = 80;
    QString text;
    QString line = u"  "_s + QLatin1String(command.name) + u' ' + QLatin1String(command.arguments);
    for (const CommandOption& option : command.options) {
        QString words = QLatin1String(option.name);
        if (*option.value != '\0') {
            words += u' ' + QLatin1String(option.value);
        }
        if (line.size() + words.size() + 3 > widest) {
            text += line + u'\n';
            line = u"     "_s;
        }
        line += u" ["_s + words + u']';
    }
    return text + line;
}

}  // namespace

std::optional<Arguments> parseArguments(const QStringList& words, QString& error) {
    try {
        return parse(Words(words));
    } catch (const UsageError& wrong) {
        error = wrong.text;
        return std::nullopt;
    }
}

QString helpText() {
    QString text =
        "Usage: nubivane-cli [--program-folder DIR] [--settings FILE] COMMAND ...\n"
        "\n"
        "  --program-folder DIR  work in DIR instead of the folder of this program\n"
        "  --settings FILE       use the settings in FILE instead of the user's\n"
        "  --help, --version\n"
        "\n"
        u"Commands:\n"_s;
    for (const Command& command : commands()) {
        text += usageOf(command) + u"\n      "_s + QLatin1String(command.summary) + u'\n';
    }
    text += u"\nExit code: 0 done, 1 failed, 2 wrong usage. Messages go to stderr.\n"_s;
    return text;
}

}  // namespace nubivane
