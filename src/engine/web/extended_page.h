// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/web/page_writer.h"

namespace nubivane {

/// Type 2: all Frames under each other on one long page.
class ExtendedPage : public PageWriter {
  public:
    using PageWriter::PageWriter;

  protected:
    QString loadCall() const override { return QStringLiteral("javascript:_Show();"); }
    QString titleElement() const override;
    qint64 titleTop(qint32 i) const override { return blockTop(i) + 20; }
    qint64 subtitleTop(qint32 i) const override { return blockTop(i) + 80; }
    qint64 mapTop(qint32 i) const override { return blockTop(i) + 140; }
    void writeScript(TextLines& out) const override;

  private:
    qint64 blockTop(qint32 i) const;
    /// Writes a loop over the Frames whose body repeats `lines` for each family of elements, and
    /// one over the sprites. "%1" in a line stands for the family.
    void writeLoops(TextLines& out, int column, const QStringList& lines) const;
};

}  // namespace nubivane
