// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_frame_property.h"

#include "windows/properties/frm_frame_property_detail.h"
#include "windows/properties/shared_rows.h"

#include <QCoreApplication>

namespace nubivane {

using namespace Qt::StringLiterals;

namespace {

constexpr PropertyRow ForecastBackColorRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Back Color"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets background color used to display text")};
constexpr PropertyRow ForecastTextRow{
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Text"),
    QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets forecast text")};

// In the order of the values that the model stores.
constexpr std::array borderStyles = {"none",  "solid", "double", "groove",
                                     "ridge", "inset", "outset"};

}  // namespace

frmFrameProperty::frmFrameProperty(Workspace& workspace, Shell& shell, Spelling& spelling,
                                   QWidget* parent)
    : PropertyDialog("frmFrameProperty", tr("Map"), workspace, shell, parent), spelling_(spelling) {
    const auto commits = [this] { return committing(); };
    grid_->addSection(tr("Title"));
    title_.emplace(
        *grid_,
        TextLineRows::Names{u"Title"_s, u"Title"_s,
                            QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets title text")},
        commits);
    grid_->addSection(tr("Subtitle"));
    subtitle_.emplace(
        *grid_,
        TextLineRows::Names{u"subTitle"_s, u"Subtitle"_s,
                            QT_TRANSLATE_NOOP("nubivane::PropertyGrid", "Sets subtitle text")},
        commits);
    grid_->addSection(tr("Forecast"));
    addForecastRows();
    connectForecast();
}

void frmFrameProperty::addForecastRows() {
    cboForecastBackcolor_ = grid_->addColor(ForecastBackColorRow, u"cboForecastBackcolor"_s);
    cboForecastBorder_ = grid_->addChoice(BorderRow, u"cboForecastBorder"_s);
    for (const char* style : borderStyles) {
        cboForecastBorder_->addItem(QLatin1String(style));
    }
    cboForecastBorderColor_ = grid_->addColor(BorderColorRow, u"cboForecastBorderColor"_s);
    cmdForecastText_ = grid_->addWideButton(ForecastTextRow, u"cmdForecastText"_s);
}

void frmFrameProperty::Init() {
    const auto line = [this](TextPart part, const char* name) {
        return textDoor<TextLine>(workspace_, {part}, name);
    };
    const auto title = line(TextPart::Title, QT_TRANSLATE_NOOP("Edits", "Change title"));
    box_ = textDoor<cDiv>(workspace_, {TextPart::Box},
                          QT_TRANSLATE_NOOP("Edits", "Change forecast box"));
    const auto fill = [&] {
        title_->show(title);
        subtitle_->show(line(TextPart::Subtitle, QT_TRANSLATE_NOOP("Edits", "Change subtitle")));
        // The swatch of the subtitle starts with the title's colour; its name is the subtitle's.
        subtitle_->setSwatch(title.read().Font.Color);
        fillForecast();
    };
    run(fill, title_->txtText());
}

void frmFrameProperty::fillForecast() {
    const cDiv box = box_.read();
    cboForecastBackcolor_->setColor(box.BackColor);
    cboForecastBorder_->setCurrentIndex(box.Border);
    cboForecastBorderColor_->setColor(box.BorderColor);
    cboForecastBorderColor_->setEnabled(box.Border != 0);
}

void frmFrameProperty::connectForecast() {
    const auto commits = [this] { return committing(); };
    commitColor(*cboForecastBackcolor_, commits, [this](qint32 color) {
        box_.change(u"background"_s, [color](cDiv& box) { box.BackColor = color; });
    });
    commitColor(*cboForecastBorderColor_, commits, [this](qint32 color) {
        box_.change(u"border color"_s, [color](cDiv& box) { box.BorderColor = color; });
    });
    connect(cboForecastBorder_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (committing() && index >= 0) {
            box_.change(u"border"_s,
                        [index](cDiv& box) { box.Border = static_cast<qint16>(index); });
            cboForecastBorderColor_->setEnabled(index != 0);
        }
    });
    connect(cmdForecastText_, &QToolButton::clicked, this,
            [this] { frmFramePropertyDetail(workspace_, shell_, spelling_, this).Init(); });
}

}  // namespace nubivane
