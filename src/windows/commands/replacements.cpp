// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/commands/replacements.h"

#include "engine/core/path_text.h"
#include "engine/export/label_painter.h"
#include "engine/model/edits/project_edits.h"
#include "engine/model/edits/sprite_edits.h"
#include "engine/model/edits/text_edits.h"

#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace nubivane {

namespace {

constexpr auto Name = QT_TRANSLATE_NOOP("Edits", "Replace");

bool isSameName(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// Collects edits on the Frames of a project and does them as one.
class Collected {
  public:
    explicit Collected(Workspace& workspace)
        : workspace_(workspace), group_(std::make_unique<EditGroup>(Name, Marks::Project, 0)) {}

    template <class Record>
    void sprite(qint32 frame, Record record) {
        add(std::make_unique<ChangeSprite>(Name, Marks::Project, frame, std::move(record)));
    }
    void text(qint32 frame, const TextId& id, TextRecord record) {
        add(std::make_unique<ChangeText>(Name, frame, id, std::move(record)));
    }
    int push() {
        if (count_ > 0) {
            workspace_.edits().seal();
            workspace_.edits().push(std::move(group_));
        }
        return count_;
    }

  private:
    void add(std::unique_ptr<Edit> edit) {
        group_->add(std::move(edit));
        ++count_;
    }

    Workspace& workspace_;
    std::unique_ptr<EditGroup> group_;
    int count_ = 0;
};

/// Calls with each Frame and its number.
template <class Call>
void forEachFrame(const Workspace& workspace, Call call) {
    for (qint32 number = 1; number <= workspace.Frames().Count(); ++number) {
        call(workspace.Frames().Item(number), number);
    }
}

void sizeByText(cLabel& label) {
    const QSize size = labelSize(label);
    label.Width = size.width();
    label.Height = size.height();
}

/// Every text of a forecast that has a font.
std::vector<TextId> textsOf(const cFrame& frame) {
    std::vector<TextId> ids = {{TextPart::Title}, {TextPart::Subtitle}};
    for (const auto& item : frame.Texts().Forecast().Header()) {
        ids.push_back({TextPart::Header, item.textKey});
    }
    for (const auto& item : frame.Texts().Forecast().Body()) {
        ids.push_back({TextPart::Body, item.textKey});
    }
    return ids;
}

/// Calls with the font of a text's record, where it has one.
template <class Record, class Call>
void withFont(Record& record, Call call) {
    std::visit(
        [&call](auto& value) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(value)>, cDiv>) {
                call(value.Font);
            }
        },
        record);
}

QStringList sorted(QStringList names) {
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

}  // namespace

int replaceLabelText(Workspace& workspace, const QString& find, const QString& replacement,
                     Qt::CaseSensitivity letters) {
    Collected edits(workspace);
    if (find.isEmpty()) {
        return 0;
    }
    forEachFrame(workspace, [&](const cFrame& frame, qint32 number) {
        for (const cLabel& label : frame.Sprites().Labels()) {
            cLabel after = label;
            after.Text.replace(find, replacement, letters);
            if (after.Text != label.Text && !trimBlanks(after.Text).isEmpty()) {
                sizeByText(after);
                edits.sprite(number, std::move(after));
            }
        }
    });
    return edits.push();
}

int replacePicture(Workspace& workspace, const QString& from, const QString& to) {
    Collected edits(workspace);
    forEachFrame(workspace, [&](const cFrame& frame, qint32 number) {
        for (const cSymbol& symbol : frame.Sprites().Symbols()) {
            if (isSameName(symbol.PathFileGif, from) && symbol.PathFileGif != to) {
                cSymbol after = symbol;
                after.FileGif = to;
                after.PathFileGif = to;
                edits.sprite(number, std::move(after));
            }
        }
    });
    return edits.push();
}

int replaceFont(Workspace& workspace, const QString& from, const QString& to) {
    Collected edits(workspace);
    forEachFrame(workspace, [&](const cFrame& frame, qint32 number) {
        for (const cLabel& label : frame.Sprites().Labels()) {
            if (isSameName(label.Font.Name, from) && label.Font.Name != to) {
                cLabel after = label;
                after.Font.Name = to;
                sizeByText(after);
                edits.sprite(number, std::move(after));
            }
        }
        for (const TextId& id : textsOf(frame)) {
            TextRecord record = textOf(frame, id);
            bool changed = false;
            withFont(record, [&](FontStyle& font) {
                changed = isSameName(font.Name, from) && font.Name != to;
                font.Name = changed ? to : font.Name;
            });
            if (changed) {
                edits.text(number, id, std::move(record));
            }
        }
    });
    return edits.push();
}

QStringList picturesOf(const Workspace& workspace) {
    QStringList paths;
    forEachFrame(workspace, [&paths](const cFrame& frame, qint32) {
        for (const cSymbol& symbol : frame.Sprites().Symbols()) {
            paths << symbol.PathFileGif;
        }
    });
    return sorted(paths);
}

QStringList fontsOf(const Workspace& workspace) {
    QStringList names;
    forEachFrame(workspace, [&names](const cFrame& frame, qint32) {
        for (const cLabel& label : frame.Sprites().Labels()) {
            names << label.Font.Name;
        }
        for (const TextId& id : textsOf(frame)) {
            const TextRecord record = textOf(frame, id);
            withFont(record, [&names](const FontStyle& font) { names << font.Name; });
        }
    });
    return sorted(names);
}

}  // namespace nubivane
