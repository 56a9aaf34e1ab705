// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/properties/frm_frame_property.h"

#include "windows/properties/frm_frame_property_detail.h"

namespace nubivane {

namespace {

constexpr PropertyRow BackColorRow{"Back Color", "Back Color",
                                   "Sets background color used to display text"};
constexpr PropertyRow BorderRow{"Border", "Border", "Sets border style"};
constexpr PropertyRow BorderColorRow{"Border color", "Border color", "Sets border color"};
constexpr PropertyRow TextRow{"Text", "Text", "Sets forecast text"};

// In the order of the values that the model stores.
constexpr std::array borderStyles = {"none",  "solid", "double", "groove",
                                     "ridge", "inset", "outset"};

}  // namespace

frmFrameProperty::frmFrameProperty(Workspace& workspace, Shell& shell, QWidget* parent)
    : PropertyDialog("frmFrameProperty", tr("Map"), workspace, shell, parent) {
    const auto commits = [this] { return committing(); };
    grid_->addSection(tr("Title"));
    title_.emplace(*grid_, TextLineRows::Names{"Title", "Title", "Sets title text"}, commits);
    grid_->addSection(tr("Subtitle"));
    subtitle_.emplace(*grid_, TextLineRows::Names{"subTitle", "Subtitle", "Sets subtitle text"},
                      commits);
    grid_->addSection(tr("Forecast"));
    addForecastRows();
    connectForecast();
}

void frmFrameProperty::addForecastRows() {
    cboForecastBackcolor_ = grid_->addColor(BackColorRow, "cboForecastBackcolor");
    cboForecastBorder_ = grid_->addChoice(BorderRow, "cboForecastBorder");
    for (const char* style : borderStyles) {
        cboForecastBorder_->addItem(style);
    }
    cboForecastBorderColor_ = grid_->addColor(BorderColorRow, "cboForecastBorderColor");
    cmdForecastText_ = grid_->addWideButton(TextRow, "cmdForecastText");
}

void frmFrameProperty::Init() {
    forecast_ = &workspace_.Frames().Item(workspace_.Status.CurrentFrame).Texts().Forecast();
    run([this] {
        title_->show(forecast_->Title());
        subtitle_->show(forecast_->Subtitle());
        // The swatch of the subtitle starts with the title's colour; its name is the subtitle's.
        subtitle_->setSwatch(forecast_->Title().Forecolor);
        fillForecast();
    });
    forecast_ = nullptr;
}

void frmFrameProperty::fillForecast() {
    const cDiv& div = forecast_->Div();
    cboForecastBackcolor_->setColor(div.BackColor);
    cboForecastBorder_->setCurrentIndex(div.Border);
    cboForecastBorderColor_->setColor(div.BorderColor);
    cboForecastBorderColor_->setEnabled(div.Border != 0);
}

void frmFrameProperty::connectForecast() {
    const auto commits = [this] { return committing(); };
    commitColor(*cboForecastBackcolor_, commits, [this] { return &forecast_->Div().BackColor; });
    commitColor(*cboForecastBorderColor_, commits,
                [this] { return &forecast_->Div().BorderColor; });
    connect(cboForecastBorder_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (committing() && index >= 0) {
            forecast_->Div().Border = static_cast<qint16>(index);
            cboForecastBorderColor_->setEnabled(index != 0);
        }
    });
    connect(cmdForecastText_, &QToolButton::clicked, this, [this] {
        frmFramePropertyDetail detail(this);
        detail.Init(*forecast_);
    });
}

}  // namespace nubivane
