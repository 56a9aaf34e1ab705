// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/model/color_table.h"
#include "engine/model/frames.h"
#include "engine/web/page_settings.h"
#include "engine/web/text_lines.h"

#include <QSize>
#include <QString>

#include <memory>

namespace nubivane {

/// What a page is made from.
struct PageInput {
    const cFrames& frames;
    const ColorTable& colors;
    QSize map;       ///< inner size of the map, pixels
    QSize mapOuter;  ///< with its border, pixels
    PageSettings settings;
};

/// Types of page; the values are those of the setting "Type". No setting selects the slider. The
/// responsive page has nothing of the others' skeleton: `ResponsiveSite` makes it.
enum class PageType {
    NavigationButtons = 1,
    ExtendedView = 2,
    TimeInterval = 3,
    Slider = 4,
    Responsive = 5
};

/// Writes a forecast page (HTML 4, absolutely positioned) and its script.
///
/// All elements of all Frames stand in the one document from the start, hidden; the script only
/// switches their visibility. This class is the skeleton that all types of page share; each type
/// overrides where it differs. Texts go in as they stand, without escaping, so that authors can
/// use markup. Raises `Error` for a colour that pages cannot show and for a body item missing.
class PageWriter {
  public:
    explicit PageWriter(const PageInput& input);
    virtual ~PageWriter() = default;

    static std::unique_ptr<PageWriter> ofType(PageType type, const PageInput& input);

    QString page() const;
    QString script() const;

  protected:
    static constexpr int Left = 20;  ///< left edge of the maps, pixels

    virtual QString loadCall() const = 0;
    virtual QString bodyAttributes() const { return {}; }
    virtual QString titleElement() const;  ///< a line of the head
    virtual QString titleWidth() const { return QStringLiteral("100%"); }
    // Tops in pixels for Frame `i`, counted from 1.
    virtual qint64 titleTop(qint32 i) const;
    virtual qint64 subtitleTop(qint32 i) const;
    virtual qint64 mapTop(qint32 i) const;
    virtual int textHeight() const { return input_.map.height(); }
    /// Blocks of their own between the maps and the sprites, and behind the texts.
    virtual void writeAfterMaps(TextLines&) const {}
    virtual void writeAfterTexts(TextLines&) const {}
    virtual void writeScript(TextLines& out) const = 0;

    qint32 frameCount() const { return input_.frames.Count(); }
    bool hasTitles() const { return hasTitles_; }
    qint64 spriteCount() const;
    const PageInput& input() const { return input_; }
    const PageSettings& settings() const { return input_.settings; }

    /// "var idx_1 = …;" to the one behind the last Frame. The numbers start at 0 when the first
    /// Frame has no sprite.
    void writeSpriteIndexes(TextLines& out) const;

  private:
    void writeHead(TextLines& out) const;
    void writeBodyTag(TextLines& out) const;
    void writeTitles(TextLines& out) const;
    void writeTitle(TextLines& out, const char* id, qint32 i, qint64 top, const QString& width,
                    const TextLine& line) const;
    void writeMaps(TextLines& out) const;
    void writeSprites(TextLines& out) const;
    void writeSymbol(TextLines& out, qint64 n, qint64 top, const cSymbol& symbol) const;
    void writeLabel(TextLines& out, qint64 n, qint64 top, const cLabel& label) const;
    void writeTexts(TextLines& out) const;

    const PageInput& input_;
    bool hasTitles_;
};

}  // namespace nubivane
